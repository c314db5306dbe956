#include "traceaudit.h"

#include "globals.h"
#include "prompter.h"
#include "utility.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {
// MariaDB's collations pad: 'I ' = 'I'. A binary string compares byte for byte, as the other
// engines compare text.
QString exact(const QString &column)
{
    const bool mysql = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false)
                           .driverName()
                           .startsWith(QLatin1String("QMYSQL"));
    return mysql ? "BINARY " + column : column;
}

// Runs `sql` with the product table and code bound to its two placeholders.
bool runBound(QSqlQuery &query, const QString &sql, const QString &table, const QString &code)
{
    query.prepare(sql);
    query.addBindValue(table);
    query.addBindValue(code);
    return query.exec();
}

// The movements of one kind, from a statement whose columns are date, reference, detail and
// quantity (and, for dispensed lines, the count).
bool loadMovements(bool received, const QString &sql, const QString &code, const QString &table,
                   QList<StockMovement> *movements)
{
    QSqlQuery query;
    if (!runBound(query, sql, table, code)) {
        utils->showDBError(query);
        return false;
    }
    while (query.next()) {
        StockMovement m;
        m.date = query.value(0).toString();
        m.received = received;
        m.reference = query.value(1).toString();
        m.detail = query.value(2).toString();
        m.quantity = query.value(3).toDouble();
        if (!received)
            m.count = query.value(4).toInt();
        movements->append(m);
    }
    return true;
}

// Every trace line counts, with or without its movement's header, as in the stock figures.
bool loadReceived(const QString &code, const QString &table, QList<StockMovement> *movements)
{
    return loadMovements(true,
                         "SELECT st.MyDate, sti.TraceNumber, st.Notes, sti.Quantity FROM StockTraceItem sti "
                         "LEFT JOIN StockTrace st ON st.TraceNumber=sti.TraceNumber "
                         "WHERE sti.Category=? AND sti.Code=? ORDER BY st.MyDate, sti.TraceNumber",
                         code, table, movements);
}

bool loadDispensed(const QString &code, const QString &table, QList<StockMovement> *movements)
{
    return loadMovements(false,
                         "SELECT inv.MyDate, ii.InvoiceNumber, inv.Status, ii.Quantity, "
                             + StockRule::dispensedCountSql()
                             + " FROM InvoiceItem ii JOIN Invoice inv ON inv.MyNumber=ii.InvoiceNumber "
                               "WHERE ii.Category=? AND ii.Code=? ORDER BY inv.MyDate, ii.InvoiceNumber",
                         code, table, movements);
}

QLabel *totalLabel(QWidget *parent, const char *name, const QString &text)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}
} // namespace

QString StockRule::dispensedCountSql()
{
    return "CASE WHEN " + exact("inv.Status") + "='P' THEN 1 ELSE (SELECT COUNT(*) FROM Journal j "
           "WHERE j.MyNumber=ii.InvoiceNumber AND " + exact("j.Description") + " IN ('I','RF')) END";
}

bool StockRule::figures(QSqlQuery &query, const QString &code, const QString &table, double *received,
                        double *dispensed)
{
    if (!Utility::categories().contains(table))
        return false;
    // Served by the indexes on (Category, Code), Invoice(MyNumber) and Journal(MyNumber, Description):
    // one statement per product instead of one journal query per unpaid invoice line.
    query.prepare("SELECT (SELECT COALESCE(SUM(Quantity),0) FROM StockTraceItem WHERE Category=? AND Code=?), "
                  "(SELECT COALESCE(SUM(ii.Quantity * " + dispensedCountSql() + "),0) "
                  "FROM InvoiceItem ii JOIN Invoice inv ON inv.MyNumber=ii.InvoiceNumber "
                  "WHERE ii.Category=? AND ii.Code=?)");
    for (int i = 0; i < 2; ++i) {
        query.addBindValue(table);
        query.addBindValue(code);
    }
    if (!query.exec() || !query.next())
        return false;
    *received = query.value(0).toDouble();
    *dispensed = query.value(1).toDouble();
    return true;
}

bool loadStockMovements(const QString &code, const QString &table, QList<StockMovement> *movements)
{
    movements->clear();
    if (!Utility::categories().contains(table)) {
        Prompter::warn(nullptr, TraceAuditDialog::tr("Stock Trace"),
                       TraceAuditDialog::tr("%1 is not a product table").arg(table));
        return false;
    }
    if (!loadReceived(code, table, movements) || !loadDispensed(code, table, movements))
        return false;
    std::stable_sort(movements->begin(), movements->end(), [](const StockMovement &a, const StockMovement &b) {
        const QString dayA = a.date.left(10);
        const QString dayB = b.date.left(10);
        return dayA < dayB || (dayA == dayB && a.received && !b.received);
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
