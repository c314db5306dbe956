#ifndef QUOREL_DB_DEMODATA_H
#define QUOREL_DB_DEMODATA_H

#include "dialect.h"

#include <QSqlDatabase>
#include <QString>

// The size of a generated practice. The demo is a small practice; the benchmark scales the same
// shapes: scale 1 is about 10,000 invoice lines and 50 products, scale 100 the large practice.
struct Shape {
    int products = 0;       // 0: every product of the catalogue
    int owners = 400;
    int ownerYears = 3;     // clients opened over these years up to today
    int invoiceYears = 2;   // invoices over these years up to today
    int invoiceLines = 8000;
    int wrongStock = 3;     // products whose stored Quantity disagrees with their trace
    double hotShare = 0.04; // of all invoice lines go to one Medication product

    static Shape demo();
    static Shape bench(int scale);
};

// Fills an empty schema with a practice of that shape (fixed seed, dates relative to today).
bool writePractice(QSqlDatabase db, Dialect::Engine engine, const Shape &shape, QString *error);

#endif
