// The client reports: new clients by month and in detail, monthly and full expenditure, debt and
// credit, bad debtors and the list of all clients.
//
// Every report here sends a fixed number of statements, whatever the number of clients or journal
// entries: what a client needs (a last visit, an aged balance) comes from the one statement that
// lists the clients, since a practice's server is a round trip away.
#include "admin.h"
#include "dialect.h"
#include "reportframe.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QDate>
#include <QLocale>
#include <QSqlQuery>
#include <QVariant>
#include <algorithm>

namespace {

using Columns = QList<ReportFrame::Column>;

// The debt report's periods: under 30 days, 30 to 59, 60 to 89, 90 to 119, 120 days and more.
const int Periods = 5;
const int PeriodDays = 30;

// The client's surname (stored in ROT13) and then, after two blanks, title and initials: two
// columns of a statement.
QString nameColumns()
{
    return "Surname," + ReportFrame::titleAndInitials("Owner");
}

// The client's name as every report shows it, from the two name columns starting at `column`.
QString clientName(const QSqlQuery &query, int column)
{
    return ReportFrame::client(query.value(column), query.value(column + 1));
}

// The fields `first` to `last` of the query's row, as text.
QStringList fields(const QSqlQuery &query, int first, int last)
{
    QStringList texts;
    for (int column = first; column <= last; ++column)
        texts << query.value(column).toString();
    return texts;
}

// The telephone numbers of the client lists: home, work and cell.
Columns telephoneColumns()
{
    return {{Admin::tr("Home Tel."), 92}, {Admin::tr("Work Tel."), 92}, {Admin::tr("Cellular."), 92}};
}

QString money(double value)
{
    return Utility::numStr(value, 2);
}

// Rows in the order of the client's name as shown (column 0), one name's clients by account number
// (column 1). The surname is stored encoded, so no statement can order by the name.
void addByName(ReportFrame &frame, QList<QStringList> rows)
{
    std::stable_sort(rows.begin(), rows.end(), [](const QStringList &a, const QStringList &b) {
        if (a.at(0) != b.at(0))
            return a.at(0) < b.at(0);
        return a.at(1).toLongLong() < b.at(1).toLongLong();
    });
    for (const QStringList &row : qAsConst(rows))
        frame.addRow(row);
}

// Both expenditure reports: per client, the total of the invoices ('I') and refunds ('RF') whose
// date meets `dateCondition`, largest first, one total's clients by account number.
QString expenditureStatement(const QString &dateCondition)
{
    // PostgreSQL refuses the client's columns under a grouping by the journal's account; grouped by
    // the client's own key, which equals it in every joined row, it makes the same groups.
    const QString account = Dialect::connectedEngine() == Dialect::PostgreSQL ? "Owner.AccountNumber"
                                                                               : "Journal.AccountNumber";
    return "SELECT " + nameColumns() + ",Owner.AccountNumber, SUM(Amount-Rounding) AS Total From Owner,Journal "
           "WHERE Owner.AccountNumber=Journal.AccountNumber and (Description='I' OR Description='RF') "
           "AND " + dateCondition + " GROUP BY " + account + " ORDER BY Total Desc," + account;
}

// Lists the clients of an expenditure statement under `title` up to the first total of 0.01 or
// less: the totals come largest first, so none after it is larger. Returns the listed totals' sum.
double listExpenditure(ReportFrame &frame, QSqlQuery &query, const QString &title)
{
    frame.setColumns({{Admin::tr("Client"), 200}, {Admin::tr("Acc No."), 80}, {title, 170, true}});
    double sum = 0.0;
    while (query.next()) {
        const double total = query.value(3).toDouble();
        if (total <= 0.01)
            break;
        frame.addRow({clientName(query, 0), query.value(2).toString(), money(total)});
        sum += total;
    }
    return sum;
}

// The date condition, as of `today`, of period `period` (0 the most recent) among the entries of
// the last four periods.
QString periodCondition(int period, const QDate &today)
{
    const auto since = [&](int p) { return ReportFrame::sqlDate(today.addDays(-(PeriodDays * (p + 1) - 1))); };
    QStringList condition;
    if (period < Periods - 2)
        condition << "MyDate>='" + since(period) + "'";
    if (period > 0)
        condition << "MyDate<'" + since(period - 1) + "'";
    return condition.join(" AND ");
}

// Per client with an open balance over every entry but 'Q' and 'VR' (more than 0.01 either way):
// name, account, balance, then what was charged (entries above 0) in each of the four recent
// periods from the most recent on, then what was paid or credited (entries below 0) in each. The
// last period needs no sums of its own: it holds whatever the recent ones do not, and the
// recent ones are read from the recent entries only.
QString balancesStatement(const QDate &today)
{
    const QString value = "Amount-Rounding";
    const QString counted = "Description!='Q' AND Description!='VR'";
    QStringList sums, columns;
    for (const QString &side : {QString("Charged"), QString("Paid")}) {
        for (int period = 0; period < Periods - 1; ++period) {
            const QString name = side + QString::number(period);
            sums << QString("SUM(CASE WHEN %1%2 AND %3 THEN %1 ELSE 0 END) AS %4")
                        .arg(value, side == "Charged" ? ">0" : "<0", periodCondition(period, today), name);
            columns << name;
        }
    }
    const QString recent = ReportFrame::sqlDate(today.addDays(-(PeriodDays * (Periods - 1) - 1)));
    return "SELECT " + nameColumns() + ",AccountNumber,Balance," + columns.join(',') + " FROM Owner "
           "JOIN (SELECT AccountNumber AS Account,SUM(" + value + ") AS Balance FROM Journal WHERE " + counted
           + " GROUP BY AccountNumber HAVING SUM(" + value + ")>0.01 OR SUM(" + value + ")<-0.01) Balances "
           "ON Owner.AccountNumber=Balances.Account "
           "LEFT JOIN (SELECT AccountNumber AS Recent," + sums.join(',') + " FROM Journal WHERE MyDate>='" + recent
           + "' AND " + counted + " GROUP BY AccountNumber) Periods ON Periods.Recent=Balances.Account";
}

// A balance's part in each period. Payments settle the oldest charges first, so what is still
// owed sits on the most recent charges; a credit likewise sits on the most recent payments.
// What was charged (a debt) or paid (a credit) in the recent periods comes from column `first` on.
QList<double> aged(double balance, const QSqlQuery &query, int first)
{
    const bool credit = balance < 0;
    double open = credit ? -balance : balance;
    QList<double> parts;
    for (int period = 0; period < Periods; ++period) {
        double part = open;
        if (period < Periods - 1) {
            const double entries = query.value(first + (credit ? Periods - 1 : 0) + period).toDouble();
            part = std::min(open, credit ? -entries : entries);
        }
        open -= part;
        parts << (credit ? 0.0 - part : part);
    }
    return parts;
}

QStringList moneyCells(const QList<double> &values)
{
    QStringList cells;
    for (double value : values)
        cells << money(value);
    return cells;
}

} // namespace

void Admin::processNewOwners()
{
    ReportFrame frame(this);
    frame.wait();
    const QDate start = frame.start();
    const QDate first = QDate(start.year(), start.month(), 1).addMonths(-5);
    Columns columns{{tr("Description"), 270}};
    for (int month = 0; month < 6; ++month) {
        const QDate date = first.addMonths(month);
        columns << ReportFrame::Column{QString::asprintf("%04d-%02d", date.year(), date.month()), 70};
    }
    frame.setColumns(columns);
    ZrListItem *row = frame.addRow({tr("New Clients")});
    QSqlQuery query;
    for (int month = 0; month < 6; ++month) {
        const QDate date = first.addMonths(month);
        if (!frame.run(query, QString::asprintf("SELECT COUNT(Created) FROM Owner WHERE Created LIKE '%04d-%02d-%%'",
                                                date.year(), date.month())))
            return;
        if (query.next())
            row->setText(month + 1, query.value(0).toString());
    }
}

void Admin::processNewOwnersDetailed()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns(Columns{{tr("Client"), 150}, {tr("Acc No."), 55}, {tr("Initial Visit"), 78}}
                     + telephoneColumns() + Columns{{tr("Email Address"), 170}});
    QSqlQuery query;
    if (!frame.run(query, "SELECT " + nameColumns() + ",TelHome,TelWork,Cell,Email,AccountNumber,Created FROM Owner "
                          "WHERE Created >= '" + ReportFrame::sqlDate(frame.start()) + "' AND Created <= '"
                          + ReportFrame::sqlDate(frame.end()) + "' ORDER BY Created,AccountNumber"))
        return;
    int clients = 0;
    while (query.next()) {
        frame.addRow(QStringList{clientName(query, 0)} + fields(query, 6, 7) + fields(query, 2, 5));
        ++clients;
    }
    frame.addRow({tr("Number of Clients"), QString::number(clients)});
}

void Admin::processOwnerExpenditure()
{
    ReportFrame frame(this);
    frame.status(tr("Processing Owner Expenditure, this could take a while, please wait.."));
    const QDate month = frame.start();
    frame.wait();
    QSqlQuery query;
    if (!frame.run(query, expenditureStatement("MyDate LIKE '" + month.toString("yyyy-MM-%%") + "'")))
        return;
    // The month's name in the user's language, as the rest of the desktop writes it.
    listExpenditure(frame, query, tr("Expenditure for %1").arg(QLocale().toString(month, "MMM yyyy")));
}

void Admin::processFullOwnerExpenditure()
{
    ReportFrame frame(this);
    frame.status(tr("Processing Full Owner Expenditure, this will take a while, please wait.."));
    // "To date" is up to and including the start date, the one date this report takes. Comparing
    // with the next day keeps an entry whose date text carries a time of that day.
    const QString dayAfter = ReportFrame::sqlDate(frame.start().addDays(1));
    frame.wait();
    QSqlQuery query;
    if (!frame.run(query, expenditureStatement("MyDate < '" + dayAfter + "'")))
        return;
    const double sum = listExpenditure(frame, query, tr("Total Expenditure to date."));
    frame.addRow({tr("Grand Total"), QString(), money(sum)});
}

void Admin::processOwnerDebt()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns({{tr("Client"), 190},
                      {tr("Acc No."), 55},
                      {tr("Balance"), 85, true},
                      {tr("Curr."), 80, true},
                      {tr("30"), 80, true},
                      {tr("60"), 80, true},
                      {tr("90"), 80, true},
                      {tr("120+"), 80, true}});
    QSqlQuery query;
    if (!frame.run(query, balancesStatement(QDate::currentDate())))
        return;
    QList<QStringList> rows;
    QList<double> debts(1 + Periods, 0.0), credits(1 + Periods, 0.0);
    while (query.next()) {
        const double balance = query.value(3).toDouble();
        const QList<double> figures = QList<double>{balance} + aged(balance, query, 4);
        QList<double> &totals = balance < 0 ? credits : debts;
        for (int column = 0; column < figures.size(); ++column)
            totals[column] += figures.at(column);
        rows << QStringList{clientName(query, 0), query.value(2).toString()} + moneyCells(figures);
    }
    addByName(frame, rows);
    frame.addRow(QStringList{tr("zzz- Debt Totals -zzz"), QString()} + moneyCells(debts));
    frame.addRow(QStringList{tr("zzz- Credit Totals -zzz"), QString()} + moneyCells(credits));
}

void Admin::processBadDebtors()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns(Columns{{tr("Acc No."), 55}, {tr("Client"), 150}, {tr("Balance"), 75, true},
                             {tr("Identity No."), 107}}
                     + telephoneColumns()
                     + Columns{{tr("Physical Address"), 120}, {tr("Postal Address"), 100}, {tr("Notes"), 150}});
    QSqlQuery query;
    if (!frame.run(query, "SELECT Owner.AccountNumber," + nameColumns() + ",SUM(Amount-Rounding) AS Balance,"
                          "IDno,TelHome,TelWork,Cell,PhysAddr,PostalAddr,Notes FROM Owner,Journal "
                          "WHERE Owner.AccountNumber=Journal.AccountNumber AND Owner.BadDebt='Y' AND "
                          "Journal.Description!='Q' AND Journal.Description!='VR' GROUP BY Owner.AccountNumber "
                          "ORDER BY Balance DESC,Owner.AccountNumber"))
        return;
    double total = 0.0;
    while (query.next()) {
        const double balance = query.value(3).toDouble();
        frame.addRow(QStringList{query.value(0).toString(), clientName(query, 1), money(balance)}
                     + fields(query, 4, 10));
        total += balance;
    }
    frame.addRow({QString(), tr("Grand Total"), money(total)});
}

void Admin::processAllOwners()
{
    ReportFrame frame(this);
    frame.wait();
    frame.setColumns(Columns{{tr("Client"), 150}, {tr("Acc. #"), 48}, {tr("Identity No."), 107}} + telephoneColumns()
                     + Columns{{tr("Physical Address"), 120},
                               {tr("Postal Address"), 100},
                               {tr("Email Address"), 140},
                               {tr("Last Visit"), 78}});
    QSqlQuery query;
    // Each client's last visit within the one statement: the journal's index by account and date
    // gives it at once.
    if (!frame.run(query, "SELECT " + nameColumns() + ","
                          "(SELECT MAX(MyDate) FROM Journal WHERE AccountNumber=Owner.AccountNumber),"
                          "AccountNumber,IDno, TelHome, TelWork, Cell, PhysAddr, PostalAddr, Email FROM Owner"))
        return;
    QList<QStringList> rows;
    while (query.next()) {
        QStringList row = QStringList{clientName(query, 0)} + fields(query, 3, 10);
        const QString visit = query.value(2).toString();
        row << (visit.isEmpty() ? tr("Unknown") : visit);
        rows << row;
    }
    addByName(frame, rows);
}
