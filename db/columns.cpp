#include "columns.h"

#include "dialect.h"
#include "session.h"

#include <QHash>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QVariant>

namespace {
using Table = QHash<QString, Columns::Width>; // by column name in lower case

// Read once per table, and again after the connection was opened anew (it may reach another
// server's copy of the database).
QHash<QString, Table> known;
quint64 knownUnder = 0;

qint64 limit(const QVariant &value)
{
    return value.isNull() ? -1 : value.toLongLong();
}

// SQLite keeps the declared type as written: "VARCHAR(100)" takes 100 characters here, as it does
// on the servers; TEXT and the types without a width take any length.
bool sqliteWidths(QSqlQuery &query, const QString &table, Table *widths)
{
    static const QRegularExpression declared("CHAR[A-Z ]*\\(\\s*(\\d+)\\s*\\)",
                                             QRegularExpression::CaseInsensitiveOption);
    if (!query.exec("PRAGMA table_info(" + table + ")"))
        return false;
    while (query.next()) {
        const QRegularExpressionMatch match = declared.match(query.value(2).toString());
        if (match.hasMatch())
            widths->insert(query.value(1).toString().toLower(), {match.captured(1).toLongLong(), -1});
    }
    return true;
}

// information_schema on MariaDB and PostgreSQL: the width in characters and in bytes.
bool serverWidths(QSqlQuery &query, const QString &table, bool mysql, Table *widths)
{
    query.prepare(mysql ? "SELECT COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH, CHARACTER_OCTET_LENGTH FROM "
                          "information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() AND TABLE_NAME=?"
                        : "SELECT column_name, character_maximum_length, character_octet_length FROM "
                          "information_schema.columns WHERE table_schema=current_schema() AND table_name=?");
    // PostgreSQL folded the unquoted names of the schema to lower case; MariaDB keeps them.
    query.addBindValue(mysql ? table : table.toLower());
    if (!query.exec())
        return false;
    while (query.next())
        widths->insert(query.value(0).toString().toLower(), {limit(query.value(1)), limit(query.value(2))});
    return true;
}

bool readWidths(QSqlQuery &query, const QString &table, Table *widths)
{
    const Dialect::Engine engine = Dialect::connectedEngine();
    if (engine == Dialect::SQLite)
        return sqliteWidths(query, table, widths);
    return serverWidths(query, table, engine == Dialect::MySQL, widths);
}
} // namespace

namespace Columns {

bool width(const QString &table, const QString &column, Width *width, QSqlError *error, QString *statement)
{
    if (knownUnder != Session::generation()) {
        known.clear();
        knownUnder = Session::generation();
    }
    auto found = known.find(table);
    if (found == known.end()) {
        QSqlQuery query;
        Table widths;
        if (!readWidths(query, table, &widths)) {
            *error = query.lastError();
            *statement = query.lastQuery();
            return false;
        }
        found = known.insert(table, widths);
    }
    *width = found->value(column.toLower());
    return true;
}

QString stored(const QString &text)
{
    QString out = text;
    return out.remove(QChar(0));
}

bool fits(const QString &text, const Width &width)
{
    const QString kept = stored(text);
    if (width.characters >= 0 && kept.toUcs4().size() > width.characters)
        return false;
    return width.bytes < 0 || kept.toUtf8().size() <= width.bytes;
}

} // namespace Columns
