// The sales and performance reports: the nine category performance reports, client purchases,
// commission and personnel performance.
#include "admin.h"
#include "dialect.h"
#include "globals.h"
#include "prompter.h"
#include "reportframe.h"
#include "utility.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QSqlQuery>
#include <algorithm>
#include <array>

namespace {

const int Periods = 6;
using Amounts = std::array<double, Periods>;

// The first of the six periods shown from `date`. Monthly: five months back, on the 1st. Daily:
// five days back, except that a date on the 1st to 5th goes back a whole month to the same day.
QDate firstPeriod(const QDate &date, bool monthly)
{
    int year = date.year();
    int month = date.month();
    int day = date.day();
    if (monthly) {
        month -= 5;
        day = 1;
    } else if (day - 5 > 0) {
        day -= 5;
    } else {
        --month;
    }
    if (month < 1) {
        month += 12;
        --year;
    }
    return QDate(year, month, day);
}

QDate nextPeriod(const QDate &period, bool monthly)
{
    return period.addDays(monthly ? period.daysInMonth() : 1);
}

// The six periods from the first: their column titles and the condition on InvoiceItem.MyDate
// that selects each.
struct Period {
    QString title;
    QString condition;
};

QList<Period> periods(const QDate &first, bool monthly)
{
    QList<Period> result;
    QDate period = first;
    for (int i = 0; i < Periods; ++i, period = nextPeriod(period, monthly)) {
        if (monthly)
            result.append({QString::asprintf("%04d-%02d", period.year(), period.month()),
                           "MyDate LIKE '" + period.toString("yyyy-MM-%%") + "'"});
        else
            result.append({QString::asprintf("%04d-%02d-%d", period.year(), period.month(), period.day()),
                           "MyDate='" + ReportFrame::sqlDate(period) + "'"});
    }
    return result;
}

// The amounts of every product of the category in each of the six periods, by code, in one
// statement: the period of a line is the first period whose condition it meets. The range on
// MyDate only lets the date index narrow the lines; every line of a period lies within it.
QString periodAmountsSql(const char *category, bool stocked, const QDate &first, bool monthly)
{
    const QList<Period> list = periods(first, monthly);
    QString which = "CASE";
    for (int i = 0; i < list.size(); ++i)
        which += QString(" WHEN %1 THEN %2").arg(list.at(i).condition, QString::number(i));
    which += " END";
    QString range;
    if (monthly) {
        const QDate after = first.addMonths(Periods);
        range = "MyDate >= '" + first.toString("yyyy-MM") + "' AND MyDate < '" + after.toString("yyyy-MM") + "'";
    } else {
        QStringList days;
        for (QDate day = first; days.size() < Periods; day = day.addDays(1))
            days << "'" + ReportFrame::sqlDate(day) + "'";
        range = "MyDate IN (" + days.join(',') + ")";
    }
    return QString("SELECT Code, %1, %2(Quantity) FROM InvoiceItem WHERE Category='%3' AND %4 GROUP BY 1, 2")
        .arg(which, stocked ? "SUM" : "COUNT", category, range);
}

bool loadPeriodAmounts(ReportFrame &frame, const QString &sql, QHash<QString, Amounts> *amounts)
{
    QSqlQuery query;
    if (!frame.run(query, sql))
        return false;
    while (query.next()) {
        if (query.value(1).isNull())
            continue;
        Amounts &product = (*amounts)[ReportFrame::codeKey(query.value(0).toString())]; // zeros when new
        product[query.value(1).toInt()] += query.value(2).toDouble();
    }
    return true;
}

// Every client's name as the reports show it, by account number, in one statement.
bool loadClients(ReportFrame &frame, QHash<qint64, QString> *clients)
{
    QSqlQuery query;
    if (!frame.run(query, "SELECT AccountNumber,Surname," + ReportFrame::titleAndInitials("Owner") + " FROM Owner"))
        return false;
    clients->reserve(query.size() > 0 ? query.size() : 0);
    while (query.next())
        clients->insert(query.value(0).toLongLong(), ReportFrame::client(query.value(1), query.value(2)));
    return true;
}

// PostgreSQL refuses a column that is neither grouped nor aggregated; the other engines take it
// from the group's rows, which agree on it as long as no two operators share their initials.
QString ofOperator(const QString &column)
{
    return Dialect::connectedEngine() == Dialect::PostgreSQL ? "MIN(" + column + ")" : column;
}

// The sales of the period by operator, counted once per invoice and journal entry 'I' or 'RF'.
QString operatorSalesSql(const QString &category, const QDate &start, const QDate &end)
{
    return QString("SELECT %1, SUM(InvoiceItem.Price) AS Amount FROM Operators,InvoiceItem,Journal "
                   "WHERE InvoiceItem.Category='%2' AND Operators.Initials = InvoiceItem.Vet "
                   "AND InvoiceItem.MyDate >= '%3' AND InvoiceItem.MyDate <= '%4' "
                   "AND InvoiceItem.InvoiceNumber=Journal.MyNumber "
                   "AND (Journal.Description='I' OR Journal.Description='RF') GROUP BY Operators.Initials")
        .arg(ofOperator("Operators.Operator"), category, ReportFrame::sqlDate(start), ReportFrame::sqlDate(end));
}

// The declared shape of a report's columns, kept for a later report format: composed and dropped,
// as nothing reads it yet.
QString reportDefinition(const QString &title, const QList<ReportFrame::Column> &columns)
{
    QString text = "<zephron>\n  <head\n    type=\"report\"\n    title=\"" + title + "\"\n"
                   "    columns=\"3\"\n    chart=\"disabled\"\n";
    for (int i = 0; i < columns.size(); ++i) {
        text += QString("    col%1=\"%2\"\n").arg(i).arg(columns.at(i).title);
        if (columns.at(i).right)
            text += QString("    col%1align=\"right\"\n").arg(i);
    }
    return text + " />\n";
}

// Amounts as the reports show them, one cell each, and their total.
template <typename List> QStringList amountCells(const List &amounts, double *total)
{
    QStringList cells;
    *total = 0.0;
    for (double amount : amounts) {
        *total += amount;
        cells << Utility::numStr(amount, 2);
    }
    return cells;
}

// Names in code point order, the same on every engine and in every run.
bool byCodePoint(const QString &a, const QString &b)
{
    return a.toUcs4() < b.toUcs4();
}

} // namespace

void Admin::processDispenseTotals(const char *category, bool stocked)
{
    bool ok = false;
    const QString mode = Prompter::current()->getItem(this, tr("Quorel Reports"), tr("Select mode for Report"),
                                                      {tr("Daily"), tr("Monthly")}, 0, false, &ok);
    if (!ok)
        return;
    const bool monthly = mode == tr("Monthly");
    ReportFrame frame(this);
    const QDate first = firstPeriod(frame.start(), monthly);
    frame.wait();
    QList<ReportFrame::Column> columns{{tr("Description"), 270}};
    for (const Period &period : periods(first, monthly))
        columns.append({period.title, 70, true});
    frame.setColumns(columns);

    // The amounts first: a driver that fetches rows as they are used loses them to the next statement.
    QHash<QString, Amounts> amounts;
    QSqlQuery products;
    if (!loadPeriodAmounts(frame, periodAmountsSql(category, stocked, first, monthly), &amounts)
        || !frame.run(products, QString("SELECT Description,Code FROM %1 WHERE Active='Y' ORDER BY Description,Code")
                                    .arg(category)))
        return;
    while (products.next()) {
        const QString description = products.value(0).toString();
        frame.status(tr("Processing %1").arg(description));
        QCoreApplication::processEvents();
        double total = 0.0;
        const QStringList cells =
            amountCells(amounts.value(ReportFrame::codeKey(products.value(1).toString()), Amounts{}), &total);
        if (total != 0.0)
            frame.addRow(QStringList{description} + cells);
    }
}

void Admin::processProductSales()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns({{tr("Client"), 200}, {tr("Acc No."), 80}, {tr("Category"), 80}, {tr("Description"), 300},
                      {tr("Quantity"), 120, true}});
    // The journal only has to hold an invoice or refund entry at all; joined without a condition
    // it would multiply every line by the whole journal. The quantity is the client's total of
    // the description in the period, the category the first of those lines' categories. The
    // clients' names are read apart and joined here: MariaDB, given them in one statement, walks
    // every client's lines instead of the period's.
    const QString sales =
        "SELECT Patient.AccountNumber, MIN(InvoiceItem.Category), InvoiceItem.Description, "
        "SUM(InvoiceItem.Quantity) AS Quantity FROM Patient,InvoiceItem "
        "WHERE (Category='Goods' OR Category='Hospital' OR Category='Lab' OR Category='Medication' "
        "OR Category='Injection' OR Category='Vaccination') AND InvoiceItem.Petnumber = Patient.PetNumber "
        "AND InvoiceItem.MyDate >= '" + ReportFrame::sqlDate(frame.start()) + "%' "
        "AND InvoiceItem.MyDate <= '" + ReportFrame::sqlDate(frame.end()) + "%' "
        "AND EXISTS (SELECT 1 FROM Journal WHERE Journal.Description='I' OR Journal.Description='RF') "
        "GROUP BY InvoiceItem.Description, Patient.AccountNumber "
        "ORDER BY InvoiceItem.Description, Quantity, Patient.AccountNumber";
    QHash<qint64, QString> clients;
    QSqlQuery query;
    if (!loadClients(frame, &clients) || !frame.run(query, sales))
        return;
    while (query.next()) {
        const auto client = clients.constFind(query.value(0).toLongLong());
        if (client != clients.constEnd()) // a patient whose account has no client is nobody's purchase
            frame.addRow({*client, query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                          ReportFrame::plainNumber(query.value(3).toDouble())});
    }
}

void Admin::processCommission()
{
    ReportFrame frame(this);
    (void)reportDefinition(tr("Goods Sales Commission Report"),
                           {{tr("Sales Person")}, {tr("Total Sales."), 0, true}, {tr("Commission"), 0, true}});
    frame.wait();
    frame.setColumns({{tr("Sales Person"), 150}, {tr("Total Sales."), 150}, {tr("Commission"), 150, true}});
    const QString sql =
        QString("SELECT %1, SUM(InvoiceItem.Price) AS Amount, SUM(InvoiceItem.Price) * %2 / 100.0 AS Commission "
                "FROM Operators,InvoiceItem,Journal WHERE InvoiceItem.Category='Goods' "
                "AND Operators.Initials=InvoiceItem.vet AND InvoiceItem.MyDate >= '%3' AND InvoiceItem.MyDate <= '%4' "
                "AND InvoiceItem.InvoiceNumber=Journal.MyNumber "
                "AND (Journal.Description='I' OR Journal.Description='RF') GROUP BY Operators.Initials "
                "ORDER BY Operators.Initials")
            .arg(ofOperator("Operators.Operator"), ofOperator("Operators.Commission"),
                 ReportFrame::sqlDate(frame.start()), ReportFrame::sqlDate(frame.end()));
    QSqlQuery query;
    if (!frame.run(query, sql))
        return;
    while (query.next())
        frame.addRow({query.value(0).toString(), Utility::numStr(query.value(1).toDouble(), 2),
                      Utility::numStr(query.value(2).toDouble(), 2)});
}

void Admin::processPersonnelPerformance()
{
    const QStringList &categories = Utility::categories();
    ReportFrame frame(this);
    QList<ReportFrame::Column> columns{{tr("Personnel"), 100}};
    for (const QString &category : categories) // the category's caption, as the product tab shows it
        columns.append({tr(category.toLatin1().constData()), 75, category != categories.first()});
    (void)reportDefinition(tr("Personnel Performance Report"),
                           QList<ReportFrame::Column>(columns) << ReportFrame::Column{tr("Total")});
    columns.append({tr("Total Sales."), 80, true});
    frame.wait();
    frame.setColumns(columns);

    struct perfValues {
        std::array<double, 9> amount{}; // one per category, in column order
    };
    QHash<QString, perfValues> people;
    for (int c = 0; c < categories.size(); ++c) {
        QSqlQuery query;
        if (!frame.run(query, operatorSalesSql(categories.at(c), frame.start(), frame.end())))
            return;
        while (query.next())
            people[query.value(0).toString()].amount[c] += query.value(1).toDouble();
    }
    QStringList names = people.keys();
    std::sort(names.begin(), names.end(), byCodePoint);
    double grandTotal = 0.0;
    for (const QString &name : names) {
        double total = 0.0;
        const QStringList cells = amountCells(people.value(name).amount, &total);
        grandTotal += total;
        frame.addRow(QStringList{name} + cells << Utility::numStr(total, 2));
    }
    QStringList last{tr("Grand Total")};
    for (int c = 0; c < categories.size(); ++c)
        last << QString();
    frame.addRow(last << Utility::numStr(grandTotal, 2));
}
