#include "schema.h"
#include "utility.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

// The DDL lives in a static library; its resources need an explicit start.
static void initSchemaResources()
{
    Q_INIT_RESOURCE(schema);
}

namespace Schema {

namespace {

QString resourceName(Dialect::Engine e)
{
    switch (e) {
    case Dialect::MySQL:
        return ":/schema/mariadb.sql";
    case Dialect::SQLite:
        return ":/schema/sqlite.sql";
    default:
        return ":/schema/postgres.sql";
    }
}

QString readDdl(Dialect::Engine e)
{
    static const bool started = (initSchemaResources(), true);
    Q_UNUSED(started);
    QFile file(resourceName(e));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

bool run(QSqlDatabase &db, const QString &sql, QString *error)
{
    QSqlQuery query(db);
    if (query.exec(sql))
        return true;
    if (error)
        *error = query.lastError().text() + "\n" + sql;
    return false;
}

// SQLite and PostgreSQL take DDL inside a transaction: one commit instead of one per statement.
bool runAll(QSqlDatabase &db, Dialect::Engine e, const QStringList &sqls, QString *error)
{
    const bool inTransaction = e != Dialect::MySQL && db.transaction();
    for (const QString &sql : sqls) {
        if (!run(db, sql, error)) {
            if (inTransaction)
                db.rollback();
            return false;
        }
    }
    if (inTransaction && !db.commit()) {
        if (error)
            *error = db.lastError().text();
        return false;
    }
    return true;
}

// A statement of the product-table layout, written out for one of the nine product tables.
QString productStatement(const QString &sql, const QString &product)
{
    static const QString vaccinationOnly = "@Vaccination@";
    QStringList lines;
    for (QString line : sql.split('\n')) {
        if (line.startsWith(vaccinationOnly)) {
            if (product != "Vaccination")
                continue;
            line.remove(0, vaccinationOnly.size());
        }
        lines << line;
    }
    return lines.join('\n').replace("@Product@", product).replace("@product@", product.toLower());
}

} // namespace

QStringList tables()
{
    return QStringList{"SysInfo"} + Utility::categories()
           + QStringList{"StockTrace", "StockTraceItem", "Owner", "Patient", "Invoice", "InvoiceItem", "Journal",
                         "Operators", "Permissions", "Supply", "AutoProc", "AutoProcContents", "breeds"};
}

QStringList statements(Dialect::Engine e)
{
    static const QRegularExpression comment("--[^\n]*");
    static const QRegularExpression end(";\\s*(\n|$)");
    QStringList result;
    const QStringList parts = readDdl(e).remove(comment).split(end);
    for (const QString &part : parts) {
        const QString sql = part.trimmed();
        if (sql.contains("@Product@")) {
            for (const QString &product : Utility::categories())
                result << productStatement(sql, product);
        } else if (!sql.isEmpty()) {
            result << sql;
        }
    }
    return result;
}

bool create(QSqlDatabase db, Dialect::Engine e, QString *error)
{
    const QStringList sqls = statements(e);
    if (sqls.isEmpty()) {
        if (error)
            *error = QString("The schema of this engine could not be read (%1).").arg(resourceName(e));
        return false;
    }
    return runAll(db, e, sqls, error);
}

bool dropAll(QSqlDatabase db, Dialect::Engine e, QString *error)
{
    const QString list = tables().join(',');
    switch (e) {
    case Dialect::MySQL:
        return run(db, "DROP TABLE IF EXISTS " + list, error);
    case Dialect::PostgreSQL:
        // SET LOCAL keeps the "does not exist, skipping" notices of a fresh database quiet.
        return runAll(db, e, {"SET LOCAL client_min_messages TO warning",
                              "DROP TABLE IF EXISTS " + list + " CASCADE",
                              "DROP SEQUENCE IF EXISTS stocktrace_seq"}, error);
    default: {
        QStringList drops;
        for (const QString &table : tables())
            drops << "DROP TABLE IF EXISTS " + table;
        return runAll(db, e, drops, error);
    }
    }
}

} // namespace Schema
