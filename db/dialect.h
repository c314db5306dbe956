#ifndef QUOREL_DIALECT_H
#define QUOREL_DIALECT_H

#include <QString>

class QSqlDatabase;

// What differs by database engine. The dialect of the described statements is chosen by the
// text of "/Global/DBDriver" ("QMYSQL3" MySQL, "QSQLITE" SQLite, anything else PostgreSQL);
// the forms that only exist because an engine rejects a statement follow the engine actually
// connected, so that they stay right whatever the setting is spelled.
namespace Dialect {

enum Engine { MySQL, SQLite, PostgreSQL };

QString driverSetting();                          // "/Global/DBDriver", default "QMYSQL3"
Engine engineOfSetting(const QString &setting);   // the exact comparison
Engine engine();                                  // engineOfSetting(driverSetting())
bool isMySqlSetting();                            // the setting reads "QMYSQL3"

QString qtDriverName(const QString &setting);     // "QMYSQL3" -> "QMYSQL", "QPSQL7" -> "QPSQL"
QString connectOptions(const QString &qtDriver);  // the MySQL client flags, for MySQL only
void prepareSession(QSqlDatabase &db);            // session settings after opening

Engine connectedEngine();                         // by the default connection's driver

// "CONCAT(a,b,c)" for "QMYSQL3", "a||b||c" for every other setting.
QString concat(const QStringList &parts);
// The key of the last inserted stock movement, by the setting.
QString lastTraceNumberQuery();

} // namespace Dialect

#endif
