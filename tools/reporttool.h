#ifndef QUOREL_REPORTTOOL_H
#define QUOREL_REPORTTOOL_H

#include <QDate>
#include <QString>
#include <QStringList>

class Admin;
class ReportPrompter;

// quorel-report's work: one catalogue report run in the real window (offscreen) and written as
// the window's own output would write it. Nothing of a report is computed here: the window's
// generators fill the list, and its Export, Print All and Graph write the files.
namespace ReportTool {

// What the command line asks for.
struct Request {
    int index = -1;
    QDate from, to;
    QString mode;     // "daily" or "monthly"
    QString category; // Stock Levels
    int schedule = -1; // Drug Levels
    QString csv, pdf, chart;
    bool quiet = false;
};

// 0 after a written report; 1 for a database that failed; 2 for input the tool cannot use.
struct Outcome {
    int status = 0;
    QString message;
};

// The catalogue as the window lists it (the combo's entries, translated when a catalogue is loaded).
QStringList catalogue();
// A report named by its index or its entry (case and surrounding blanks ignored); -1 if none.
int reportIndex(const QString &nameOrIndex);
// Whether the report charts (the window's Graph works for it).
bool charts(int index);

// Checks what can be checked before the database is opened: the report's questions have their
// answers, a chart is asked only of a report that charts, the outputs can be written.
Outcome check(const Request &request);
// Runs the report in `admin` and writes the outputs.
Outcome run(Admin *admin, ReportPrompter *prompter, const Request &request);

} // namespace ReportTool

#endif
