#ifndef QUOREL_TESTS_STOCKFIXTURES_H
#define QUOREL_TESTS_STOCKFIXTURES_H

// Stock movements written with bound values, and the stock figures computed the long way: one
// journal query per unpaid invoice line, the codes compared in the program. The suites of the
// stock trace and the audit check the set-based figures against it.
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <QtTest>

namespace StockFixtures {

inline bool run(const QString &sql, const QVariantList &values)
{
    QSqlQuery query;
    query.prepare(sql);
    for (const QVariant &v : values)
        query.addBindValue(v);
    if (query.exec())
        return true;
    qWarning() << sql << query.lastError().text();
    return false;
}

inline bool received(int trace, const QString &table, const QString &code, double quantity,
                     const QString &date = "2026-01-10", const QString &note = "Delivery")
{
    return run("INSERT INTO StockTrace (TraceNumber, MyDate, SP, Notes) VALUES (?,?,?,?)",
               {trace, date, "Admin", note})
        && run("INSERT INTO StockTraceItem (TraceNumber, Category, Code, Quantity) VALUES (?,?,?,?)",
               {trace, table, code, quantity});
}

inline bool invoice(int number, const QString &status, const QString &date = "2026-02-01")
{
    return run("INSERT INTO Invoice (MyNumber, AccountNumber, MyDate, Status) VALUES (?,?,?,?)",
               {number, 1, date, status});
}

inline bool line(int invoiceNumber, const QString &table, const QString &code, double quantity,
                 const QString &date = "2026-02-01")
{
    return run("INSERT INTO InvoiceItem (InvoiceNumber, MyDate, Category, Code, Quantity) VALUES (?,?,?,?,?)",
               {invoiceNumber, date, table, code, quantity});
}

inline bool journal(int number, const QString &description)
{
    return run("INSERT INTO Journal (MyNumber, AccountNumber, MyDate, Description, Amount) VALUES (?,?,?,?,?)",
               {number, 1, "2026-02-01", description, 10.0});
}

// The figures as the trace was first written: the received sum, then every invoice line with a
// journal query of its own when its invoice is not pending.
inline bool describedLoop(const QString &code, const QString &table, double *inStock, double *out)
{
    QSqlQuery sum;
    if (!sum.exec("SELECT SUM(Quantity) FROM StockTraceItem WHERE Code='" + code + "' AND Category='" + table + "'")
        || !sum.next())
        return false;
    *inStock = sum.value(0).toDouble();
    *out = 0.0;
    QSqlQuery lines;
    if (!lines.exec("SELECT Quantity,InvoiceNumber,Status FROM InvoiceItem,Invoice WHERE Category='" + table
                    + "' AND Code='" + code + "'AND Invoice.Mynumber=InvoiceNumber"))
        return false;
    while (lines.next()) {
        if (lines.value(2).toString() == "P") {
            *out += lines.value(0).toDouble();
            continue;
        }
        QSqlQuery entries;
        if (!entries.exec("SELECT Description FROM Journal WHERE MyNumber='" + lines.value(1).toString() + "'"))
            return false;
        while (entries.next()) {
            const QString kind = entries.value(0).toString();
            if (kind == "I" || kind == "RF")
                *out += lines.value(0).toDouble();
        }
    }
    return true;
}

// Goods 1: received 10 + 2.5, pending 3, paid 2 (journal I), unpaid with I twice 1.5, refund RF 4,
//          R/Q/VR only 7 (not counted), no journal row 6 (not counted),
//          lower-case "p" 0.75 and padded "I " 0.25 (neither counts, also not on MariaDB).
// Goods 2: no trace lines, pending 3 -> received 0, on hand -3.
// Goods 3: received 4, nothing dispensed.  Medication 1: received 100, pending 1 (another table).
inline bool trickyPractice()
{
    bool ok = received(1, "Goods", "1", 10, "2026-01-05") && received(2, "Goods", "1", 2.5, "2026-03-01", "Top-up")
        && received(3, "Goods", "3", 4) && received(4, "Medication", "1", 100);
    ok = ok && invoice(101, "P", "2026-02-01") && line(101, "Goods", "1", 3) && line(101, "Goods", "2", 3);
    ok = ok && invoice(102, "", "2026-02-02") && line(102, "Goods", "1", 2) && journal(102, "I")
        && journal(102, "R");
    ok = ok && invoice(103, "", "2026-02-03") && line(103, "Goods", "1", 1.5) && journal(103, "I")
        && journal(103, "I");
    ok = ok && invoice(104, "", "2026-02-04") && line(104, "Goods", "1", 4) && journal(104, "RF");
    ok = ok && invoice(105, "", "2026-02-05") && line(105, "Goods", "1", 7) && journal(105, "R")
        && journal(105, "Q") && journal(105, "VR");
    ok = ok && invoice(106, "", "2026-02-06") && line(106, "Goods", "1", 6);
    ok = ok && invoice(107, "p", "2026-02-07") && line(107, "Goods", "1", 0.75);
    ok = ok && invoice(108, "", "2026-02-08") && line(108, "Goods", "1", 0.25) && journal(108, "I ");
    ok = ok && invoice(109, "P", "2026-02-09") && line(109, "Medication", "1", 1);
    return ok;
}

} // namespace StockFixtures

#endif
