#ifndef QUOREL_REPORTPRACTICE_H
#define QUOREL_REPORTPRACTICE_H

#include <QDate>
#include <QList>
#include <QStringList>
#include <QVariant>

class Admin;

// A small practice for the report suites, seeded with what makes engines differ: a category whose
// value sums to NULL, ties in every ORDER BY (two products of one description, two clients of one
// total), mixed-case and non-ASCII names, amounts that round at .005, negative balances (credits),
// dates at month ends, a pending invoice whose account has no client, quotes, backslashes, "%" and
// "_" in texts. Every date is relative to `anchor` (the tests pass today), so that reports that
// age balances "as of today" find the same practice whatever day the tests run.
namespace ReportPractice {

// Writes the practice into the fresh schema; false on the first failed statement (printed).
bool seed(const QDate &anchor);
// Writes rows beside the practice with bound values (quotes and backslashes as they are); a row
// shorter than `columns` leaves the rest NULL. False on the first failed statement (printed).
bool insert(const QString &table, const QStringList &columns, const QList<QList<QVariant>> &rows);
// Runs each step: a statement, or "/Key=value" for a setting.
bool prepare(const QStringList &steps);

// Chooses report `index` the way a person does (type_combo activated: reportMode, clearList).
void choose(Admin *admin, int index);
// Chooses report `index` and sets the start and end dates.
void choose(Admin *admin, int index, const QDate &start, const QDate &end);
// Chooses report `index` with the dates, queues the answers its dialogs get (an int for getInt,
// a text for getItem, an invalid value to cancel) and presses Process.
void process(Admin *admin, int index, const QDate &start, const QDate &end, const QList<QVariant> &answers = {});

// The list's rows in list order, every cell of the columns that have a title, as shown.
QList<QStringList> rows(Admin *admin);
// Per column with a title: its heading (see shown()) and width, "heading/width".
QStringList columns(Admin *admin);
// The rows' looks (ZrListItem::altVisual), in list order.
QList<int> looks(Admin *admin);
// What the list shows, a line each with cells separated by "|": first the headings of the columns
// that have a title (">" before a right-aligned one's, "?" before one of any other alignment), then
// every row ("[n]" before a row of look n).
QStringList shown(Admin *admin);

} // namespace ReportPractice

#endif
