#ifndef QUOREL_SESSION_H
#define QUOREL_SESSION_H

#include <QtGlobal>

class QSqlDatabase;
class QSqlError;

// The suite's session on its default connection: prepared the same way after every opening, and
// opened again when the server went away (restarted for an update, a dropped network link).
//
// A lost connection shows differently by engine. MariaDB leaves the connection "open" and fails
// each statement with a client error (2013 lost during the query, 2006 gone away, ...) until it is
// opened again. PostgreSQL fails the statement that finds the server gone (SQLSTATE 57P01 when it
// was shut down, class 08 for a broken link) and closes the connection itself, so that the next
// statements fail with no error text at all. Both are recognised here.
//
// Nothing here repeats a statement: the one that failed is reported, and the caller's next
// statement runs on the connection opened again.
namespace Session {

// The session settings every connection of the suite needs, run right after opening.
void prepare(QSqlDatabase &db);

// Whether `error` (of the default connection) means that the server can no longer be reached.
bool isLost(const QSqlError &error);

// Closes the default connection and opens it again with the same settings and preparation. True
// when it is open again.
bool reopen();

// Before a statement: opens the default connection again if an earlier attempt left it closed
// (the server was still away then), unless this action has already been told that the server
// cannot be reached. True when the connection is open.
bool ensureOpen();

// Counts the openings since the program started: a transaction begun under one number has no
// meaning under another (the server dropped it with the old connection).
quint64 generation();

// A lost connection is reported once per action: the statements an action runs after the first
// lost one (a list reloaded after a failed change) fail for the same reason, and waiting for the
// server again would only hold the window up. The report stands until control returns to the
// event loop, after the message has been closed.
bool lossReported();
void markLossReported();

} // namespace Session

#endif
