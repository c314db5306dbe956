#include "utility.h"

#include "globals.h"
#include "logindialog.h"
#include "prompter.h"
#include "session.h"
#include "traceaudit.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>
#include <QTextBrowser>
#include <QVariant>
#include <cmath>

namespace {
bool connectionIsMySql()
{
    return QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false)
        .driverName().startsWith(QLatin1String("QMYSQL"));
}

// Half away from zero on the decimal value the double stands for: 1.005 is stored as
// 1.00499999999999989..., and that binary noise (below the 15th significant digit) must not tip a
// half cent downwards, nor make two ties of the same kind round differently.
double roundHalfAway(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    const double scaled = QString::number(value * scale, 'g', 15).toDouble();
    const double rounded = std::round(scaled) / scale;
    return rounded == 0.0 ? 0.0 : rounded; // no "-0.00"
}

// The help window is not modal: the administrator reads it beside the main window.
QTextBrowser *helpWindow = nullptr;
} // namespace

Utility::Utility(const QString &applicationName)
    : appName(applicationName)
{
}

Utility::~Utility()
{
    delete helpWindow;
    helpWindow = nullptr;
}

const QStringList &Utility::categories()
{
    static const QStringList names{"Goods", "Hospital", "Consult", "Diagnosis", "Injection",
                                   "Lab", "Medication", "Proc", "Vaccination"};
    return names;
}

bool Utility::initClass(bool reload)
{
    QSqlQuery query;
    if (!query.exec("SELECT ALINE1, Tax1Name, Tax1, Tax2Name, Tax2 FROM SysInfo")) {
        Prompter::critical(nullptr, tr("Quorel"),
                           tr("The practice information could not be read from the table SysInfo:\n%1")
                               .arg(query.lastError().text()));
        return false;
    }
    if (!query.next()) {
        Prompter::critical(nullptr, tr("Quorel"),
                           tr("The table SysInfo holds no practice information. "
                              "Create its row before starting the program."));
        return false;
    }
    practice = query.value(0).toString();
    tax1Name = query.value(1).toString();
    tax1 = query.value(2).toDouble();
    tax2Name = query.value(3).toString();
    tax2 = query.value(4).toDouble();
    loaded = true;
    Q_UNUSED(reload); // a reload reads exactly what a first load reads
    return true;
}

int Utility::validateLoginId()
{
    LoginDialog dialog;
    if (lastLoginFailed)
        dialog.setMessage(tr("The login id or code is not correct. Try again."));
    if (Prompter::current()->exec(&dialog) != QDialog::Accepted)
        return 2;
    QSqlQuery query;
    query.prepare("SELECT Operator, id FROM Operators WHERE Operator = ?");
    query.addBindValue(dialog.loginId());
    if (!query.exec()) {
        showDBError(query);
        lastLoginFailed = true;
        return 1;
    }
    // Compared here, not by the database: MariaDB takes 'admin ' for 'admin'.
    bool match = false;
    while (!match && query.next())
        match = query.value(0).toString() == dialog.loginId() && query.value(1).toString() == dialog.code();
    lastLoginFailed = !match;
    if (lastLoginFailed)
        return 1;
    login = dialog.loginId();
    return 0;
}

bool Utility::showDBError(const QSqlQuery &query)
{
    return showDBError(query.lastError(), query.lastQuery());
}

bool Utility::showDBError(const QSqlError &error, const QString &statement)
{
    if (Session::isLost(error))
        return reportLostConnection(error);
    QString text = tr("The database reported an error.\n\nDriver: %1\nDatabase: %2")
                       .arg(error.driverText(), error.databaseText());
    if (!statement.isEmpty())
        text += tr("\n\nStatement:\n%1").arg(statement);
    Prompter::critical(QApplication::activeWindow(), tr("Quorel Database Error"), text);
    return true;
}

// The statement is not run again: the user decides whether to repeat what they were doing (a
// repeated INSERT would write twice). The connection is opened again at once, so that their next
// action works without a restart of the program.
bool Utility::reportLostConnection(const QSqlError &error)
{
    if (Session::lossReported())
        return true;
    const bool reopened = Session::reopen();
    QString server = error.databaseText().trimmed();
    if (server.isEmpty())
        server = error.driverText().trimmed();
    if (server.isEmpty())
        server = tr("The connection to the server had been closed.");
    const QString next = reopened ? tr("The connection has been opened again: you can carry on, and repeat what "
                                       "you were doing.")
                                  : tr("The server cannot be reached yet. The program tries again with your next "
                                       "action.");
    Prompter::critical(QApplication::activeWindow(), tr("Quorel Database Error"),
                       tr("The database could not be reached, and the change was not made.\n\n%1\n\n"
                          "The server said:\n%2")
                           .arg(next, server));
    Session::markLossReported();
    return true;
}

QString Utility::escapeSQL(const QString &text, bool flag) const
{
    Q_UNUSED(flag); // both callers' uses want the literal made safe; there is one way to do it
    QString out;
    out.reserve(text.size() + 8);
    const bool backslashes = connectionIsMySql();
    for (const QChar c : text) {
        if (c == QChar(0))
            continue; // no engine keeps a NUL inside a text value; it is dropped everywhere alike
        if (c == QLatin1Char('\''))
            out += QLatin1String("''");
        else if (backslashes && c == QLatin1Char('\\'))
            out += QLatin1String("\\\\");
        else
            out += c;
    }
    return out;
}

QString Utility::numStr(double value, int decimals)
{
    if (std::isnan(value) || std::isinf(value))
        return QString::number(value);
    decimals = qMax(0, decimals);
    return QString::number(roundHalfAway(value, decimals), 'f', decimals);
}

double Utility::strNum(const QString &text, bool *ok)
{
    QString t = text.trimmed();
    // Most texts read here on export are names, not numbers: what cannot begin a number is none,
    // without the locale's full parse (which only turned them down more slowly).
    const QChar first = t.isEmpty() ? QChar() : t.front();
    if (!first.isDigit() && first != QLatin1Char('-') && first != QLatin1Char('+') && first != QLatin1Char('.')) {
        if (ok)
            *ok = false;
        return 0.0;
    }
    t.remove(QLatin1Char(' '));
    // The C locale takes "1,234.50" but not "12,5": a comma that does not group thousands is no
    // number rather than a silent factor of ten.
    bool good = false;
    double value = QLocale::c().toDouble(t, &good);
    if (!good || !std::isfinite(value)) {
        good = false;
        value = 0.0;
    }
    if (ok)
        *ok = good;
    return value;
}

double Utility::calcTax(double amount, double rate)
{
    // Tax is levied in whole cents, half a cent away from zero.
    return roundHalfAway(amount * rate, 2);
}

QString Utility::rot13(const QString &text)
{
    QString out = text;
    for (QChar &c : out) {
        const ushort u = c.unicode();
        if (u >= 'a' && u <= 'z')
            c = QChar(ushort('a' + (u - 'a' + 13) % 26));
        else if (u >= 'A' && u <= 'Z')
            c = QChar(ushort('A' + (u - 'A' + 13) % 26));
    }
    return out;
}

bool Utility::stockFigures(QSqlQuery &query, const QString &code, const QString &table, double *received,
                           double *dispensed)
{
    return StockRule::figures(query, code, table, received, dispensed);
}

double Utility::getStockLevelFromTrace(const QString &code, const QString &table, bool *ok)
{
    QSqlQuery query;
    double received = 0.0;
    double dispensed = 0.0;
    if (!stockFigures(query, code, table, &received, &dispensed)) {
        if (ok)
            *ok = false;
        return 0.0;
    }
    return received - dispensed;
}

void Utility::stockItemTraceAudit(const QString &code, const QString &table)
{
    QList<StockMovement> movements;
    if (!loadStockMovements(code, table, &movements))
        return;
    TraceAuditDialog dialog(code, table, movements, QApplication::activeWindow());
    Prompter::current()->exec(&dialog);
}

void Utility::showHelp()
{
    if (!helpWindow) {
        helpWindow = new QTextBrowser;
        helpWindow->setObjectName("QuorelHelp");
        // Read beside the main window, and gone with it: an open help window must not keep the
        // program (and its connection) running once the main window is closed.
        helpWindow->setAttribute(Qt::WA_QuitOnClose, false);
        helpWindow->setWindowTitle(tr("Quorel Admin Help"));
        helpWindow->setOpenExternalLinks(false);
        helpWindow->resize(640, 560);
        // The guide in the language of the catalogues ("/Personal/Lang"), where there is one.
        const QString language = settings ? settings->value("/Personal/Lang").toString() : QString();
        QFile file(":/quorel/help_" + language + ".html");
        if (language.isEmpty() || !file.exists())
            file.setFileName(":/quorel/help.html");
        if (file.open(QIODevice::ReadOnly))
            helpWindow->setHtml(QString::fromUtf8(file.readAll()));
    }
    helpWindow->show();
    helpWindow->raise();
}

void Utility::checkMemoryLeaks()
{
    // Closed help is not kept around between saves.
    if (helpWindow && !helpWindow->isVisible()) {
        delete helpWindow;
        helpWindow = nullptr;
    }
}

QPalette Utility::normalPalette()
{
    return QApplication::palette();
}

QPalette Utility::warningPalette()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, QColor(255, 214, 214));
    palette.setColor(QPalette::Text, QColor(150, 0, 0));
    return palette;
}
