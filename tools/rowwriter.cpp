#include "rowwriter.h"

#include <QSqlError>
#include <cstdio>

namespace {

// Placeholders per statement stay well below every engine's limit (SQLite: 32766).
const int maxPlaceholders = 4000;
const int maxRowsPerStatement = 250;
const qint64 commitEvery = 200000;
const qint64 reportEvery = 100000;

QString rowPlaceholders(int columns)
{
    QStringList marks;
    for (int i = 0; i < columns; ++i)
        marks << "?";
    return "(" + marks.join(',') + ")";
}

} // namespace

RowWriter::RowWriter(QSqlDatabase database)
    : db(database)
{
}

RowWriter::~RowWriter()
{
    qDeleteAll(statements);
    if (inTransaction)
        db.rollback();
}

void RowWriter::declare(const QString &table, const QStringList &columns)
{
    Table &t = tables[table];
    t.columns = columns;
    t.rowsPerStatement = qMax(1, qMin(maxRowsPerStatement, maxPlaceholders / int(columns.size())));
}

bool RowWriter::add(const QString &table, const QVariantList &values)
{
    Table &t = tables[table];
    if (values.size() != t.columns.size())
        return fail(QString("%1: %2 values for %3 columns").arg(table).arg(values.size()).arg(t.columns.size()));
    if (!inTransaction)
        inTransaction = db.transaction();
    t.values += values;
    if (++t.rows < t.rowsPerStatement)
        return true;
    return flush(table, t);
}

bool RowWriter::finish()
{
    for (auto it = tables.begin(); it != tables.end(); ++it) {
        if (it->rows && !flush(it.key(), *it))
            return false;
    }
    if (inTransaction && !db.commit())
        return fail(db.lastError().text());
    inTransaction = false;
    if (nextReport)
        std::fprintf(stderr, "\n");
    return true;
}

bool RowWriter::flush(const QString &name, Table &table)
{
    QSqlQuery *query = statement(name, table, table.rows);
    if (!query)
        return false;
    for (const QVariant &value : std::as_const(table.values))
        query->addBindValue(value);
    if (!query->exec())
        return fail(name + ": " + query->lastError().text());
    rowsWritten += table.rows;
    sinceCommit += table.rows;
    table.values.clear();
    table.rows = 0;
    progress(name);
    if (sinceCommit >= commitEvery && inTransaction) {
        if (!db.commit())
            return fail(db.lastError().text());
        inTransaction = db.transaction();
        sinceCommit = 0;
    }
    return true;
}

QSqlQuery *RowWriter::statement(const QString &name, const Table &table, int rows)
{
    const QString key = name + '/' + QString::number(rows);
    if (QSqlQuery *query = statements.value(key))
        return query;
    QStringList tuples;
    const QString tuple = rowPlaceholders(int(table.columns.size()));
    for (int i = 0; i < rows; ++i)
        tuples << tuple;
    auto *query = new QSqlQuery(db);
    const QString sql = "INSERT INTO " + name + " (" + table.columns.join(',') + ") VALUES " + tuples.join(',');
    if (!query->prepare(sql)) {
        fail(name + ": " + query->lastError().text());
        delete query;
        return nullptr;
    }
    statements.insert(key, query);
    return query;
}

bool RowWriter::fail(const QString &text)
{
    lastError = text;
    return false;
}

void RowWriter::progress(const QString &table)
{
    if (rowsWritten < nextReport || rowsWritten < reportEvery)
        return;
    std::fprintf(stderr, "\rquorel-db: %lld rows written (%s)...        ", static_cast<long long>(rowsWritten),
                 qPrintable(table));
    std::fflush(stderr);
    nextReport = rowsWritten + reportEvery;
}
