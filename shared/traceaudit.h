#ifndef QUOREL_TRACEAUDIT_H
#define QUOREL_TRACEAUDIT_H

#include <QDialog>
#include <QList>
#include <QString>

class QLabel;
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

// Every movement of the product in date order (received before dispensed on one day).
// False when the table is no product table or a statement failed (`error` says why).
bool loadStockMovements(const QString &code, const QString &table, QList<StockMovement> *movements, QString *error);

// The detailed trace: every movement with a running balance, and the totals.
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
