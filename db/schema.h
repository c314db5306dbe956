#ifndef QUOREL_SCHEMA_H
#define QUOREL_SCHEMA_H

#include "dialect.h"

#include <QSqlDatabase>
#include <QStringList>

// The suite's tables, created from the DDL of each engine (resources :/schema/<engine>.sql).
// The program itself creates no tables; quorel-db and the tests do, through this.
namespace Schema {

// Every table of the schema, in creation order.
QStringList tables();
// The engine's DDL, one statement per entry, comments removed, the product-table layout
// written out for each of the nine product tables.
QStringList statements(Dialect::Engine e);
// Runs the DDL on `db`; on failure `error` (may be null) gets the failing statement's error.
bool create(QSqlDatabase db, Dialect::Engine e, QString *error);
// Drops every table of the schema that exists (and stocktrace_seq on PostgreSQL).
bool dropAll(QSqlDatabase db, Dialect::Engine e, QString *error);

} // namespace Schema

#endif
