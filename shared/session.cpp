#include "session.h"

#include <QCoreApplication>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTimer>

namespace {
quint64 openings = 0;
bool reported = false;

QSqlDatabase defaultConnection()
{
    return QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
}

bool isMySql(const QSqlDatabase &db)
{
    return db.driverName().startsWith(QLatin1String("QMYSQL"));
}

// The client's errors for a server gone away (2006), lost during a statement (2013, 2055), not
// reachable at all (2002, 2003), and the server's own for a shutdown under way (1053), a killed
// connection (1927) and one dropped for being idle (4031).
bool mysqlLost(const QString &code)
{
    static const QSet<QString> codes{"2006", "2013", "2055", "2002", "2003", "1053", "1927", "4031"};
    return codes.contains(code);
}

// SQLSTATE class 08 (connection exception), and the server shut down (57P01), crashed (57P02),
// still starting (57P03) or ending an idle session (57P05).
bool postgresLost(const QString &code)
{
    return code.startsWith(QLatin1String("08")) || code == QLatin1String("57P01") || code == QLatin1String("57P02")
        || code == QLatin1String("57P03") || code == QLatin1String("57P05");
}
} // namespace

namespace Session {

void prepare(QSqlDatabase &db)
{
    if (isMySql(db)) {
        // || concatenates (the reports use it when the setting names Qt's own "QMYSQL"); a text too
        // long for its column or no number where one goes is refused, as on PostgreSQL, instead of
        // being cut or read as 0; and a backslash is an escape in literals, as escapeSQL expects,
        // whatever the server's own mode says.
        QSqlQuery(db).exec("SET SESSION sql_mode=CONCAT(REPLACE(@@sql_mode,'NO_BACKSLASH_ESCAPES',''),"
                           "',PIPES_AS_CONCAT,STRICT_TRANS_TABLES')");
    } else if (db.driverName() == QLatin1String("QPSQL")) {
        // escapeSQL leaves backslashes alone: literals must take them as they stand.
        QSqlQuery(db).exec("SET standard_conforming_strings = on");
    }
}

bool isLost(const QSqlError &error)
{
    const QSqlDatabase db = defaultConnection();
    if (!db.isValid())
        return false;
    if (!db.isOpen())
        return true;
    // SQLite calls any failed step a connection error; it has no server to lose.
    if (db.driverName() == QLatin1String("QSQLITE"))
        return false;
    if (error.type() == QSqlError::ConnectionError)
        return true;
    return isMySql(db) ? mysqlLost(error.nativeErrorCode()) : postgresLost(error.nativeErrorCode());
}

bool reopen()
{
    QSqlDatabase db = defaultConnection();
    if (!db.isValid())
        return false;
    db.close();
    ++openings;
    if (!db.open())
        return false;
    prepare(db);
    return true;
}

bool ensureOpen()
{
    const QSqlDatabase db = defaultConnection();
    if (!db.isValid() || db.isOpen())
        return db.isValid();
    return !reported && reopen();
}

quint64 generation()
{
    return openings;
}

bool lossReported()
{
    return reported;
}

void markLossReported()
{
    if (reported || !QCoreApplication::instance())
        return;
    reported = true;
    QTimer::singleShot(0, QCoreApplication::instance(), [] { reported = false; });
}

} // namespace Session
