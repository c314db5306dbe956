#ifndef QUOREL_TRACEAUDIT_H
#define QUOREL_TRACEAUDIT_H

#include <QDialog>
#include <QList>
#include <QString>

class QSqlQuery;
class QTreeWidget;

// One movement that counts for a product's stock: a received trace line (count 1) or a
// dispensed invoice line, counted once when pending and once per journal entry "I"/"RF" else.
struct StockMovement {
    QString date;
    bool received = false;
    QString reference;   // trace number or invoice number
    QString detail;      // the trace's note, or the invoice's status
    double quantity = 0.0;
    int count = 1;
    double effect() const { return received ? quantity * count : -quantity * count; }
};

namespace StockRule {
// How many times the invoice line `ii` of the invoice `inv` counts as dispensed: 1 when the
// invoice is pending ("P"), else the number of its journal entries "I" or "RF". The codes are
// compared exactly as the program compares them, so MariaDB's padding of "I " to "I" does not
// count a row that SQLite and PostgreSQL leave out.
QString dispensedCountSql();
// Received and dispensed of one product, in one statement run in `query` (so that a caller can
// show its error). False when the table is no product table or the statement failed.
bool figures(QSqlQuery &query, const QString &code, const QString &table, double *received, double *dispensed);
} // namespace StockRule

// Every movement of the product in date order (received before dispensed on one day). False when
// the table is no product table or a statement failed; the failure has been shown.
bool loadStockMovements(const QString &code, const QString &table, QList<StockMovement> *movements);

// The detailed trace: every movement with a running balance (`audit_list`), and the totals
// (`received_lab`, `dispensed_lab`, `onhand_lab`).
class TraceAuditDialog : public QDialog
{
    Q_OBJECT
public:
    TraceAuditDialog(const QString &code, const QString &table, const QList<StockMovement> &movements,
                     QWidget *parent = nullptr);

private:
    QTreeWidget *list;
};

#endif
