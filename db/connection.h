#ifndef QUOREL_CONNECTION_H
#define QUOREL_CONNECTION_H

#include <QSqlDatabase>
#include <QString>

class QSettings;

// The suite's database connection as its settings describe it: the program, quorel-db and the
// benchmark all connect through this, so they read the same keys with the same defaults.
namespace Connection {

struct Parameters {
    QString driver;   // the setting's name: QMYSQL3, QSQLITE, QPSQL7...
    QString host;
    QString database;
    QString user;
    QString password;
    QString port;     // as written; empty when there is none
};

// The /Global/DB* keys of `store`, with the suite's defaults where a key is missing.
Parameters read(const QSettings &store);

// Adds the default connection for the parameters, with the engine's connect options. The port is
// set only when it reads as a number, so that a missing or mistyped entry leaves the driver its
// own. Not opened; invalid when the driver cannot be loaded.
QSqlDatabase add(const Parameters &parameters);

// The default connection from the /Global/DB* keys of `store`, opened and its session prepared, for
// the command-line tools. False with `error` set: "Could not load the database driver ..." or the
// database's own text.
bool open(const QSettings &store, QString *error);

} // namespace Connection

#endif
