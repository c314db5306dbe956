#include "dialect.h"

#include "globals.h"
#include "session.h"

#include <QSettings>
#include <QSqlDatabase>
#include <QStringList>

namespace Dialect {

QString driverSetting()
{
    return settings ? settings->value("/Global/DBDriver", "QMYSQL3").toString() : QString("QMYSQL3");
}

Engine engineOfSetting(const QString &setting)
{
    if (setting == QLatin1String("QMYSQL3"))
        return MySQL;
    if (setting == QLatin1String("QSQLITE"))
        return SQLite;
    return PostgreSQL;
}

Engine engine()
{
    return engineOfSetting(driverSetting());
}

bool isMySqlSetting()
{
    return engine() == MySQL;
}

QString qtDriverName(const QString &setting)
{
    if (setting == QLatin1String("QMYSQL3"))
        return "QMYSQL";
    if (setting == QLatin1String("QPSQL7"))
        return "QPSQL";
    return setting;
}

QString connectOptions(const QString &qtDriver)
{
    return qtDriver.startsWith(QLatin1String("QMYSQL")) ? QString("CLIENT_SSL;CLIENT_IGNORE_SPACE") : QString();
}

void prepareSession(QSqlDatabase &db)
{
    // The suite library prepares a connection it opens again after the server went away the same
    // way, so the settings live there.
    Session::prepare(db);
}

Engine connectedEngine()
{
    const QString name = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).driverName();
    if (name.startsWith(QLatin1String("QMYSQL")))
        return MySQL;
    if (name == QLatin1String("QSQLITE"))
        return SQLite;
    return PostgreSQL;
}

QString concat(const QStringList &parts)
{
    if (isMySqlSetting())
        return "CONCAT(" + parts.join(',') + ")";
    return parts.join("||");
}

QString lastTraceNumberQuery()
{
    switch (engine()) {
    case MySQL:
        return "SELECT LAST_INSERT_ID()";
    case SQLite:
        return "SELECT LAST_INSERT_ROWID()";
    default:
        return "SELECT LAST_VALUE FROM stocktrace_seq";
    }
}

} // namespace Dialect
