#include "connection.h"
#include "dialect.h"

#include <QSettings>
#include <QSqlError>

namespace Connection {

Parameters read(const QSettings &store)
{
    return {store.value("/Global/DBDriver", "QMYSQL3").toString(),
            store.value("/Global/DBServer", "localhost").toString(),
            store.value("/Global/DBName", "Quorel").toString(),
            store.value("/Global/DBUser", "Quorel").toString(),
            store.value("/Global/DBPassword", "vmo").toString(),
            store.value("/Global/DBPort").toString()};
}

QSqlDatabase add(const Parameters &parameters)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(Dialect::qtDriverName(parameters.driver));
    if (!db.isValid())
        return db;
    db.setConnectOptions(Dialect::connectOptions(db.driverName()));
    db.setHostName(parameters.host);
    db.setDatabaseName(parameters.database);
    db.setUserName(parameters.user);
    db.setPassword(parameters.password);
    bool ok = false;
    const int port = parameters.port.toInt(&ok);
    if (ok)
        db.setPort(port);
    return db;
}

bool open(const QSettings &store, QString *error)
{
    const Parameters parameters = read(store);
    QSqlDatabase db = add(parameters);
    if (!db.isValid()) {
        *error = QString("Could not load the database driver %1").arg(parameters.driver);
        return false;
    }
    if (!db.open()) {
        *error = db.lastError().text();
        return false;
    }
    Dialect::prepareSession(db);
    return true;
}

} // namespace Connection
