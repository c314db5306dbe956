#ifndef QUOREL_TABSUPPORT_H
#define QUOREL_TABSUPPORT_H

#include <QString>
#include <QStringList>

class QAbstractButton;
class QSqlQuery;
class QWidget;

// Helpers shared by the tabs that write to the database.
namespace TabSupport {

// Runs a statement; false when it failed and showDBError says to stop.
bool run(QSqlQuery &query, const QString &sql);
bool run(const QString &sql);

// The suite's confirmation; anything but "&Yes" is reported as "Operation cancelled" under the
// same caption.
bool confirmed(QWidget *parent, const QString &caption, const QString &text);
void cancelled(QWidget *parent, const QString &caption);

// The text escaped for a quoted SQL literal.
QString escaped(const QString &text);

// "Y" when the box is checked, else "N".
QString flag(const QAbstractButton *box);

// Fills each "%s" of `pattern` with the next value passed through Latin-1, as these statements
// have always been formatted: a character outside Latin-1 becomes '?'.
QString latin1Format(const QString &pattern, const QStringList &values);

// A number typed as text for a numeric column. MySQL in its old default mode read an empty or
// unreadable text as 0, while strict MariaDB and PostgreSQL refuse '' outright; an empty
// commission or quantity must not stop the administrator (a new user is created with
// commission 0), so anything that is no number is written as 0 on every engine, and a number as
// its plain decimal text.
QString numberText(const QString &typed);

} // namespace TabSupport

#endif
