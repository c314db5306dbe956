#ifndef QUOREL_REPORTFRAME_H
#define QUOREL_REPORTFRAME_H

#include <QList>
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
    bool run(QSqlQuery &query, const QString &sql);

    // The start and end dates of the tab.
    QDate start() const;
    QDate end() const;
    // A date as the statements write it: "yyyy-MM-dd".
    static QString sqlDate(const QDate &date);

    // The reset of clearList and of every report: width 0, empty title, automatic alignment.
    static void resetColumns(QTreeWidget *list);

private:
    Admin *admin;
    QTreeWidget *list;
    QList<ZrListItem *> pending;
    QList<bool> rightAligned;
    bool waiting = false;
    bool statusShown = false;
};

#endif
