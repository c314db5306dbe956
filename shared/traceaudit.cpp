#include "traceaudit.h"

#include "utility.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QSqlError>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {
bool runBound(QSqlQuery &query, const QString &sql, const QString &table, const QString &code, QString *error)
{
    query.prepare(sql);
    query.addBindValue(table);
    query.addBindValue(code);
    if (query.exec())
        return true;
    if (error)
        *error = query.lastError().text();
    return false;
}

bool loadReceived(const QString &code, const QString &table, QList<StockMovement> *movements, QString *error)
{
    QSqlQuery query;
    if (!runBound(query,
                  "SELECT st.MyDate, sti.TraceNumber, st.Notes, sti.Quantity FROM StockTraceItem sti "
                  "LEFT JOIN StockTrace st ON st.TraceNumber=sti.TraceNumber "
                  "WHERE sti.Category=? AND sti.Code=? ORDER BY st.MyDate, sti.TraceNumber",
                  table, code, error))
        return false;
    while (query.next()) {
        StockMovement m;
        m.date = query.value(0).toString();
        m.received = true;
        m.reference = query.value(1).toString();
        m.detail = query.value(2).toString();
        m.quantity = query.value(3).toDouble();
        movements->append(m);
    }
    return true;
}

bool loadDispensed(const QString &code, const QString &table, QList<StockMovement> *movements, QString *error)
{
    QSqlQuery query;
    if (!runBound(query,
                  "SELECT ii.MyDate, ii.InvoiceNumber, inv.Status, ii.Quantity, "
                  "CASE WHEN inv.Status='P' THEN 1 ELSE (SELECT COUNT(*) FROM Journal j "
                  "WHERE j.MyNumber=ii.InvoiceNumber AND j.Description IN ('I','RF')) END "
                  "FROM InvoiceItem ii JOIN Invoice inv ON inv.MyNumber=ii.InvoiceNumber "
                  "WHERE ii.Category=? AND ii.Code=? ORDER BY ii.MyDate, ii.InvoiceNumber",
                  table, code, error))
        return false;
    while (query.next()) {
        StockMovement m;
        m.date = query.value(0).toString();
        m.reference = query.value(1).toString();
        m.detail = query.value(2).toString();
        m.quantity = query.value(3).toDouble();
        m.count = query.value(4).toInt();
        movements->append(m);
    }
    return true;
}

QLabel *totalLabel(QWidget *parent, const char *name, const QString &text)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}
} // namespace

bool loadStockMovements(const QString &code, const QString &table, QList<StockMovement> *movements, QString *error)
{
    movements->clear();
    if (!Utility::categories().contains(table)) {
        if (error)
            *error = QObject::tr("%1 is not a product table").arg(table);
        return false;
    }
    if (!loadReceived(code, table, movements, error) || !loadDispensed(code, table, movements, error))
        return false;
    std::stable_sort(movements->begin(), movements->end(), [](const StockMovement &a, const StockMovement &b) {
        return a.date.left(10) < b.date.left(10) || (a.date.left(10) == b.date.left(10) && a.received && !b.received);
    });
    return true;
}

TraceAuditDialog::TraceAuditDialog(const QString &code, const QString &table, const QList<StockMovement> &movements,
                                   QWidget *parent)
    : QDialog(parent)
{
    setObjectName("TraceAudit");
    setWindowTitle(tr("Stock Trace of %1 %2").arg(table, code));
    auto *layout = new QVBoxLayout(this);
    list = new QTreeWidget(this);
    list->setObjectName("audit_list");
    list->setRootIsDecorated(false);
    list->setHeaderLabels({tr("Date"), tr("Movement"), tr("Trace / Invoice"), tr("Note / Status"), tr("Quantity"),
                           tr("Counted"), tr("Balance")});
    double balance = 0.0;
    double received = 0.0;
    double dispensed = 0.0;
    for (const StockMovement &m : movements) {
        balance += m.effect();
        (m.received ? received : dispensed) += m.quantity * m.count;
        auto *row = new QTreeWidgetItem(list);
        row->setText(0, m.date);
        row->setText(1, m.received ? tr("Received") : tr("Dispensed"));
        row->setText(2, m.reference);
        row->setText(3, m.detail);
        row->setText(4, Utility::numStr(m.quantity, 2));
        row->setText(5, QString::number(m.count));
        row->setText(6, Utility::numStr(balance, 2));
        for (int column = 4; column < 7; ++column)
            row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    layout->addWidget(list);
    layout->addWidget(totalLabel(this, "received_lab", tr("Received: %1").arg(Utility::numStr(received, 2))));
    layout->addWidget(totalLabel(this, "dispensed_lab", tr("Dispensed: %1").arg(Utility::numStr(dispensed, 2))));
    layout->addWidget(totalLabel(this, "onhand_lab", tr("On Hand: %1").arg(Utility::numStr(received - dispensed, 2))));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(720, 480);
}
