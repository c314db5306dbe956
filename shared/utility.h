#ifndef QUOREL_UTILITY_H
#define QUOREL_UTILITY_H

#include <QCoreApplication>
#include <QPalette>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

// The suite's run-wide helper: the practice data loaded from SysInfo, login, number formatting,
// tax, SQL escaping, database error display and the stock services. One per process (`utils`).
class Utility
{
    Q_DECLARE_TR_FUNCTIONS(Utility)

public:
    explicit Utility(const QString &applicationName);
    ~Utility();
    Utility(const Utility &) = delete;
    Utility &operator=(const Utility &) = delete;

    // Loads the practice data from SysInfo; `reload` says it is a second load after a save.
    // A missing or unreadable SysInfo is shown to the user and makes it return false.
    bool initClass(bool reload);
    // Login: 0 accepted, 2 cancelled, 1 a wrong login id or code.
    int validateLoginId();
    QString getLogin() const { return login; }
    QString applicationName() const { return appName; }

    // Shows the failed statement's errors; returns true: the caller is to stop. A connection the
    // server dropped is said so in plain words, once per action, and opened again.
    bool showDBError(const QSqlQuery &query); // Qt 6 queries are not copied
    // The same for a failure that has no query of its own, such as a data table's submit.
    bool showDBError(const QSqlError &error, const QString &statement = QString());
    // Makes `text` safe between single quotes on the engine of the default connection.
    QString escapeSQL(const QString &text, bool flag) const;

    static QString numStr(double value, int decimals);
    static double strNum(const QString &text, bool *ok);
    static double calcTax(double amount, double rate);
    static QString rot13(const QString &text);

    double getTax1() const { return tax1; }
    double getTax2() const { return tax2; }
    QString getTax1Name() const { return tax1Name; }
    QString getTax2Name() const { return tax2Name; }
    QString practiceName() const { return practice; }

    // Received less dispensed; `ok` (preset true by the caller) turns false when no level
    // could be computed (unknown table, failed query).
    double getStockLevelFromTrace(const QString &code, const QString &table, bool *ok);
    // What the product's stock trace received and what its invoices dispensed, run in `query`
    // (so a caller can show its error). False when the table is no product table or it failed.
    static bool stockFigures(QSqlQuery &query, const QString &code, const QString &table,
                             double *received, double *dispensed);
    void stockItemTraceAudit(const QString &code, const QString &table);

    void showHelp();
    void checkMemoryLeaks();

    static QPalette normalPalette();
    static QPalette warningPalette();

    // The nine product tables, in the order the suite lists them.
    static const QStringList &categories();

private:
    bool reportLostConnection(const QSqlError &error);

    QString appName;
    QString login;
    QString practice;
    QString tax1Name;
    QString tax2Name;
    double tax1 = 0.0;
    double tax2 = 0.0;
    bool loaded = false;
    bool lastLoginFailed = false; // the next login dialog says the last one was wrong
};

#endif
