#ifndef QUOREL_DB_ROWWRITER_H
#define QUOREL_DB_ROWWRITER_H

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariantList>

// Bulk insertion: rows are queued per table and written many at a time through prepared
// multi-row INSERT statements, inside transactions that are committed every so many rows.
// Every generated row of quorel-db goes through here.
class RowWriter
{
public:
    explicit RowWriter(QSqlDatabase db);
    ~RowWriter(); // rolls back what was not finished
    RowWriter(const RowWriter &) = delete;
    RowWriter &operator=(const RowWriter &) = delete;

    // Names the columns that add() gives values for, in order.
    void declare(const QString &table, const QStringList &columns);
    bool add(const QString &table, const QVariantList &values);
    // Writes what is queued and commits.
    bool finish();

    QString error() const { return lastError; }
    qint64 written() const { return rowsWritten; }

private:
    struct Table {
        QStringList columns;
        QVariantList values; // queued rows, flattened
        int rows = 0;
        int rowsPerStatement = 1;
    };

    bool flush(const QString &name, Table &table);
    QSqlQuery *statement(const QString &name, const Table &table, int rows);
    bool fail(const QString &text);
    void progress(const QString &table);

    QSqlDatabase db;
    QHash<QString, Table> tables;
    QHash<QString, QSqlQuery *> statements;
    QString lastError;
    qint64 rowsWritten = 0;
    qint64 sinceCommit = 0;
    qint64 nextReport = 0;
    bool inTransaction = false;
};

#endif
