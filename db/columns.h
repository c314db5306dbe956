#ifndef QUOREL_COLUMNS_H
#define QUOREL_COLUMNS_H

#include <QSqlError>
#include <QString>

// How much text a column takes, as the database itself declares it. The program checks a text
// against this before its statement, so that a text too long is refused the same way on every
// engine: MariaDB in strict mode and PostgreSQL would refuse it (a MariaDB server in its old mode
// would cut it silently), SQLite keeps any length whatever the declared width.
namespace Columns {

// -1: no limit. MariaDB and PostgreSQL count characters (code points); MariaDB's TEXT also has a
// limit in bytes of UTF-8. On SQLite the width is the one the column was declared with.
struct Width {
    qint64 characters = -1;
    qint64 bytes = -1;
};

// The width of `column` of `table`, read from the catalogue once per table and connection. False
// when the catalogue could not be read (the server went away): `error` and `statement` then say
// why, for the caller to report as any failed statement.
bool width(const QString &table, const QString &column, Width *width, QSqlError *error, QString *statement);

// Whether the text, as it will be stored (a NUL is dropped), fits.
bool fits(const QString &text, const Width &width);

// The text as the database will count it: without NUL characters, which no engine keeps.
QString stored(const QString &text);

} // namespace Columns

#endif
