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
// Writes rows of its own beside the practice, with bound values (quotes and backslashes as they
// are); false on the first failed statement (printed).
bool insert(const QString &table, const QStringList &columns, const QList<QList<QVariant>> &rows);

// Chooses report `index` the way a person does (type_combo activated: reportMode, clearList).
void choose(Admin *admin, int index);
// Chooses report `index` and sets the start and end dates.
void choose(Admin *admin, int index, const QDate &start, const QDate &end);

// Prepares a case: each entry is a statement to run, or "/Key=value" for a setting.
bool prepare(const QStringList &steps);
// Chooses report `index` with the dates, queues the answers its dialogs get (an int for getInt,
// a text for getItem, an invalid value to cancel) and presses Process.
void process(Admin *admin, int index, const QDate &start, const QDate &end, const QList<QVariant> &answers = {});
// Rows written one a text, cells separated by "|".
QList<QStringList> table(const QStringList &rows);
// The rows' looks as one digit each ("0120").
QString lookDigits(Admin *admin);

// The list's rows in list order, every cell of the columns that have a title, as shown.
QList<QStringList> rows(Admin *admin);
// The titles of the columns that have one, in order.
QStringList titles(Admin *admin);
// Per column with a title: "title/width/alignment" with alignment "auto", "right", "left" or "center".
QStringList columns(Admin *admin);
// The rows' looks (ZrListItem::altVisual), in list order.
QList<int> looks(Admin *admin);

} // namespace ReportPractice

#endif
