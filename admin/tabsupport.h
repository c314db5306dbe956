#ifndef QUOREL_TABSUPPORT_H
#define QUOREL_TABSUPPORT_H

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class QAbstractButton;
class QSqlQuery;
class QTreeWidgetItem;
class QWidget;

// Helpers shared by the tabs that write to the database.
namespace TabSupport {

// Runs a statement; false when it failed and showDBError says to stop. A connection that an
// earlier action found gone is opened again first.
bool run(QSqlQuery &query, const QString &sql);
bool run(const QString &sql);

// Runs the statements of one change in one transaction: committed when `statements` returns true,
// rolled back when one of them failed (it has been reported), so that the database holds all of
// the change or none of it. True when committed.
bool inOneTransaction(const std::function<bool()> &statements);

// The suite's confirmation; anything but "&Yes" is reported as "Operation cancelled" under the
// same caption.
bool confirmed(QWidget *parent, const QString &caption, const QString &text);
void cancelled(QWidget *parent, const QString &caption);

// The text escaped for a quoted SQL literal.
QString escaped(const QString &text);

// The text a list row holds in a column, as stored: a one-line list shows a line break as a blank,
// and a key or a value written back must not be read from what it shows.
QString cell(const QTreeWidgetItem *item, int column);

// "Y" when the box is checked, else "N".
QString flag(const QAbstractButton *box);

// Fills each "%s" of `pattern` with the next value, as these statements have always been
// formatted.
QString formatted(const QString &pattern, const QStringList &values);

// A text bound for a column of the table being written.
struct ColumnText {
    QString column;
    QString text;
};
// False, after a warning under `caption`, when a text is longer than its column takes; nothing
// has been written then.
bool textsFit(QWidget *parent, const QString &caption, const QString &table, const QList<ColumnText> &texts);

// A number typed in a field, with the name the warning gives it.
struct TypedNumber {
    QString name;
    QString text;
    bool whole = false; // a whole number (the integer columns)
};
// False, after a warning under `caption`, when a text is no number: "abc", "15%", "1e400" (too
// large for any column) are refused the same way on every engine, where MariaDB and PostgreSQL
// would refuse them and SQLite would keep the text. An empty field counts as 0.
bool numbersRead(QWidget *parent, const QString &caption, const QList<TypedNumber> &numbers);

// A number as read by numbersRead, as the plain decimal text that every engine reads alike (no
// "-0"); 0 for an empty field. `whole` rounds it to an integer.
QString numberText(const QString &typed, bool whole = false);

} // namespace TabSupport

#endif
