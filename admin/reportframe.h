#ifndef QUOREL_REPORTFRAME_H
#define QUOREL_REPORTFRAME_H

#include <QList>
#include <QVariant>
#include <QString>
#include <QStringList>

class Admin;
class QDate;
class QSqlQuery;
class QTreeWidget;
class ZrListItem;

// The frame every report generator runs in, so that no generator repeats it: the wait cursor and
// the status message (both taken away again when the frame ends, on every path), the column reset,
// the columns a report shows, its rows appended in order, and its statements run through
// showDBError.
//
// Column conventions that the output (print, export, graph) relies on: a column takes part when
// its title is not empty; an unused column has width 0; the header's alignment is 0 ("automatic")
// unless the report aligns the column, and a right-aligned column is exactly Qt::AlignRight, on
// the header and on each row's cell.
class ReportFrame
{
public:
    // The list's columns, made once with the window: a report shows at most these.
    static constexpr int Columns = 11;

    struct Column {
        QString title;
        int width = 0;
        bool right = false; // numbers are right-aligned
    };

    explicit ReportFrame(Admin *admin);
    ~ReportFrame(); // shows the rows not yet shown, restores the cursor, clears its status message
    ReportFrame(const ReportFrame &) = delete;
    ReportFrame &operator=(const ReportFrame &) = delete;

    // The wait cursor as the application's override cursor, until the frame ends.
    void wait();
    // A status bar message, cleared when the frame ends.
    void status(const QString &text);
    // Empties the list and resets every column (width 0, empty title, automatic alignment).
    void reset();
    // reset(), then the given columns from column 0 on.
    void setColumns(const QList<Column> &columns);
    // A new row after the last one, its cells in column order; right-aligned columns align the
    // cell too. Rows reach the list in batches (a list of many thousand rows is filled at once at
    // the end), so a generator must not look for its rows in the list while it runs.
    ZrListItem *addRow(const QStringList &cells);
    // Shows the rows added so far (the frame's end does it too).
    void flush();
    // Runs a statement; false when it failed (shown through showDBError) and the report must stop.
    // The query is forward-only, and PostgreSQL's driver then fetches rows as they are read: the
    // next statement run loses the rest, so read one statement's rows before running another.
    bool run(QSqlQuery &query, const QString &sql);

    // The start and end dates of the tab.
    QDate start() const;
    QDate end() const;
    // A date as the statements write it: "yyyy-MM-dd".
    static QString sqlDate(const QDate &date);

    // The reset of clearList and of every report: width 0, empty title, automatic alignment.
    static void resetColumns(QTreeWidget *list);

    // The client as the reports show one: the decoded surname followed directly by the text of
    // titleAndInitials() (which begins with two blanks). A missing client shows as empty text.
    static QString client(const QVariant &surname, const QVariant &titleAndInitials);
    // "'  '||<table>.Title||' '||<table>.Initials" in the concatenation of the setting.
    static QString titleAndInitials(const QString &table);
    // A code as the connected engine compares it, to look up the figures a statement grouped by
    // code: MariaDB's collations ignore trailing blanks, so "5 " and "5" are one code there.
    static QString codeKey(const QString &code);
    // A stored number as typed ("2", "0.5", "32.25"): the shortest text, without the last-digit
    // noise that adding binary fractions leaves, which differs with the order an engine adds in.
    static QString plainNumber(double value);

private:
    Admin *admin;
    QTreeWidget *list;
    QList<ZrListItem *> pending;
    QList<bool> rightAligned;
    bool waiting = false;
    bool statusShown = false;
};

#endif
