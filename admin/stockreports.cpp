// The stock and activity reports: stock levels and values, drug levels, pending invoices and the
// daily activity.
#include "admin.h"
#include "dialect.h"
#include "globals.h"
#include "prompter.h"
#include "reportframe.h"
#include "traceaudit.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QHash>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlQuery>

namespace {

// The stock-controlled categories, in the order the stock reports list them.
const QStringList stockCategories{"Goods", "Hospital", "Lab", "Medication", "Injection", "Vaccination"};

// The products the stock reports count. PostgreSQL reads "!=-" as one operator, which it does not
// know, so there the comparison gets its blanks.
QString stockControlled()
{
    return Dialect::connectedEngine() == Dialect::PostgreSQL ? " WHERE Active='Y' AND ReORder != -1"
                                                             : " WHERE Active='Y' AND ReORder!=-1";
}

// The category typed into the stock levels report becomes part of a statement: only a plain
// table name may.
bool isTableName(const QString &name)
{
    static const QRegularExpression identifier("^[A-Za-z_][A-Za-z0-9_]*$");
    return identifier.match(name).hasMatch();
}

// Every product's level as its stock trace gives it, by code, for the whole category in one
// statement: what the trace received, less what the invoices dispensed (StockRule's count).
bool loadTracedLevels(ReportFrame &frame, const QString &category, QHash<QString, double> *levels)
{
    const QString table = utils->escapeSQL(category, false);
    QSqlQuery query;
    if (!frame.run(query, "SELECT Code, SUM(Quantity) FROM StockTraceItem WHERE Category='" + table
                              + "' GROUP BY Code UNION ALL SELECT ii.Code, -SUM(ii.Quantity * "
                              + StockRule::dispensedCountSql()
                              + ") FROM InvoiceItem ii JOIN Invoice inv ON inv.MyNumber=ii.InvoiceNumber "
                                "WHERE ii.Category='" + table + "' GROUP BY ii.Code"))
        return false;
    while (query.next())
        (*levels)[ReportFrame::codeKey(query.value(0).toString())] += query.value(1).toDouble();
    return true;
}

// The lines of the invoices of the period, by invoice number: vet, category, quantity, unit and
// description, in one statement for all of them. A line has no key of its own, so lines are listed
// by what they show, the same way on every engine.
bool loadInvoiceLines(ReportFrame &frame, const QString &period, QHash<QString, QList<QStringList>> *lines)
{
    QSqlQuery query;
    if (!frame.run(query, "SELECT InvoiceItem.InvoiceNumber, InvoiceItem.Vet, InvoiceItem.Category, "
                          "InvoiceItem.Quantity, InvoiceItem.UnitOfMeasure, InvoiceItem.Description FROM InvoiceItem "
                          "JOIN Invoice ON Invoice.MyNumber=InvoiceItem.InvoiceNumber WHERE " + period
                              + " ORDER BY InvoiceItem.InvoiceNumber, InvoiceItem.MyDate, InvoiceItem.Category, "
                                "InvoiceItem.Description, InvoiceItem.Code, InvoiceItem.Vet, InvoiceItem.Quantity, "
                                "InvoiceItem.UnitOfMeasure"))
        return false;
    while (query.next())
        (*lines)[query.value(0).toString()].append({query.value(1).toString(), query.value(2).toString(),
                                                    Utility::numStr(query.value(3).toDouble(), 2),
                                                    query.value(4).toString(), query.value(5).toString()});
    return true;
}

// A row of the stock levels: the product as stored, its quantity followed by the traced level in
// brackets (and the row marked) where the two differ to the cent.
void addStockLevel(ReportFrame &frame, const QSqlQuery &product, double level)
{
    QString quantity = Utility::numStr(product.value(5).toDouble(), 2);
    const bool differs = quantity != Utility::numStr(level, 2);
    if (differs)
        quantity += "(" + Utility::numStr(level, 2) + ")";
    ZrListItem *item = frame.addRow({product.value(0).toString(), product.value(1).toString(),
                                     product.value(2).toString(), Utility::numStr(product.value(3).toDouble(), 2),
                                     Utility::numStr(product.value(4).toDouble(), 2), quantity,
                                     Utility::numStr(product.value(6).toDouble(), 2)});
    if (differs)
        item->setAltVisual(1);
}

} // namespace

void Admin::processStock()
{
    const bool analyse = settings->value("/Global/AnalyseProcessStock", true).toBool();
    ReportFrame frame(this);
    frame.setColumns({{tr("Code"), 50}, {tr("Item"), 285}, {tr("UOM"), 100}, {tr("Price"), 80, true},
                      {tr("Cost"), 80, true}, {tr("Quantity"), 80, true}, {tr("Value OH"), 80, true}});
    const QString caption = tr("Quorel Stock Levels");
    bool ok = false;
    const QString category =
        Prompter::current()->getItem(this, caption, tr("Choose a category"), stockCategories, 0, true, &ok);
    if (!ok)
        return;
    if (!isTableName(category)) {
        Prompter::warn(this, caption,
                       tr("\"%1\" is not the name of a table.\nA category is a product table's name: letters, "
                          "digits and underscores, not beginning with a digit.")
                           .arg(category));
        return;
    }
    report.subtitle = " (" + category + " )";
    frame.wait();
    // A table that is none of the product tables has no trace to compare with. The levels are read
    // first: a driver that fetches rows as they are used loses them to the next statement.
    const bool traced = analyse && Utility::categories().contains(category);
    QHash<QString, double> levels;
    if (traced && !loadTracedLevels(frame, category, &levels))
        return;
    QSqlQuery query;
    if (!frame.run(query, "SELECT Code,Description,UnitOfMeasure,Price, Cost,Quantity, Cost*Quantity FROM " + category
                              + stockControlled() + " ORDER BY Description,Code"))
        return;
    while (query.next()) {
        const double quantity = query.value(5).toDouble();
        addStockLevel(frame, query, traced ? levels.value(ReportFrame::codeKey(query.value(0).toString())) : quantity);
    }
}

void Admin::processStockValues()
{
    ReportFrame frame(this);
    frame.setColumns({{tr("Category"), 100}, {tr("Value OH"), 100, true}});
    frame.wait();
    for (const QString &category : stockCategories) {
        QSqlQuery query;
        if (!frame.run(query, "SELECT sum(Cost*Quantity) FROM " + category + stockControlled()))
            return;
        if (query.next())
            frame.addRow({category, Utility::numStr(query.value(0).toDouble(), 2)});
    }
}

void Admin::processDailyActivity()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns({{tr("Date"), 90}, {tr("Invoice No."), 80}, {tr("Client"), 200}, {tr("Patient"), 250},
                      {tr("Vet"), 50}, {tr("Category"), 90}, {tr("Quantity"), 70, true}, {tr("UOM"), 70},
                      {tr("Description"), 285}});
    const QString period = "Invoice.MyDate>='" + ReportFrame::sqlDate(frame.start()) + "' AND Invoice.MyDate<='"
                         + ReportFrame::sqlDate(frame.end()) + "'";
    QHash<QString, QList<QStringList>> lines;
    if (!loadInvoiceLines(frame, period, &lines))
        return;
    // Each invoice with its client and patient in one statement, instead of two per invoice.
    QSqlQuery invoices;
    if (!frame.run(invoices, "SELECT Invoice.MyNumber, Invoice.MyDate, Owner.Surname, "
                                 + ReportFrame::titleAndInitials("Owner")
                                 + ", Patient.Name, Patient.Weight, Patient.Sex, Patient.Breed FROM Invoice "
                                   "LEFT JOIN Owner ON Owner.AccountNumber=Invoice.AccountNumber "
                                   "LEFT JOIN Patient ON Patient.PetNumber=Invoice.PetNumber WHERE "
                                 + period + " ORDER BY Invoice.MyDate, Invoice.MyNumber"))
        return;
    const QString unit = settings->value("/Global/Weight", "Kg").toString();
    int count = 0;
    while (invoices.next()) {
        const QString number = invoices.value(0).toString();
        QString patient;
        if (!invoices.value(4).isNull())
            patient = QStringList{invoices.value(4).toString(),
                                  ReportFrame::plainNumber(invoices.value(5).toDouble()) + " " + unit,
                                  invoices.value(6).toString(), invoices.value(7).toString()}
                          .join(", ");
        frame.addRow({invoices.value(1).toString(), number, ReportFrame::client(invoices.value(2), invoices.value(3)),
                      patient})
            ->setAltVisual(2);
        for (const QStringList &line : lines.value(number))
            frame.addRow(QStringList(4, QString()) + line);
        ++count;
    }
    frame.addRow({tr("Invoices"), QString::number(count)});
}

void Admin::processPendingInvoices()
{
    ReportFrame frame(this);
    frame.wait();
    // The client of each pending invoice joined at once, instead of one statement per invoice.
    QSqlQuery query;
    if (!frame.run(query, "SELECT DISTINCT Invoice.AccountNumber,Invoice.MyNumber,Owner.Surname,"
                              + ReportFrame::titleAndInitials("Owner")
                              + " FROM Invoice LEFT JOIN Owner ON Owner.AccountNumber=Invoice.AccountNumber "
                                "WHERE Invoice.Status='P' ORDER BY Invoice.AccountNumber,Invoice.MyNumber"))
        return;
    frame.setColumns({{tr("Client"), 200}, {tr("Acc No."), 80}, {tr("Invoice No."), 80}});
    while (query.next())
        frame.addRow({ReportFrame::client(query.value(2), query.value(3)), query.value(0).toString(),
                      query.value(1).toString()});
}

void Admin::processDrugs()
{
    bool ok = false;
    const int schedule = Prompter::current()->getInt(this, tr("Drug Report"), tr("Enter minimum Schedule no."), 6, 0,
                                                     7, 1, &ok);
    if (!ok)
        return;
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns({{tr("Code"), 50}, {tr("Item"), 285}, {tr("UOM"), 100}, {tr("Schedule"), 80},
                      {tr("Quantity"), 80, true}, {tr("Value OH"), 80, true}});
    QSqlQuery query;
    if (!frame.run(query, QString::asprintf("SELECT Code,Description,UnitOfMeasure,Schedule,Quantity FROM Medication "
                                            "WHERE Schedule >= %d AND Active='Y' ORDER BY Schedule,Description,Code",
                                            schedule)))
        return;
    while (query.next())
        frame.addRow({query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                      query.value(3).toString(), Utility::numStr(query.value(4).toDouble(), 2)});
}
