// quorel-report: any report of the Reports tab written to CSV, PDF or a chart image without the
// window, for scheduled use. The report runs in the real window, offscreen, answered from the
// command line, so that it cannot differ from what the window shows, exports and prints.
#include "admin.h"
#include "connection.h"
#include "connectionoptions.h"
#include "dialect.h"
#include "globals.h"
#include "reportprompter.h"
#include "reporttool.h"
#include "startup.h"
#include "utility.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QStatusBar>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

namespace {

const char *const Program = "quorel-report";

int say(int status, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", Program, qPrintable(text));
    return status;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        "Runs a report of Quorel Admin's Reports tab and writes it as the window's Export (CSV, all rows), "
        "Print All (PDF) or Graph (PNG or PDF) would. Exit status: 0 written, 1 database failure, 2 bad input.");
    parser.addHelpOption();
    parser.addOptions({{"list", "Lists the reports: index and name."},
                       {"report", "The report, by name or index (see --list).", "name|index"},
                       {"from", "Start date (default today).", "yyyy-MM-dd"},
                       {"to", "End date (default today).", "yyyy-MM-dd"},
                       {"mode", "Performance reports: daily or monthly.", "daily|monthly"},
                       {"category", "Stock Levels: the product table.", "name"},
                       {"schedule", "Drug Levels: the lowest schedule, 0 to 7.", "N"},
                       {"csv", "Writes the CSV file Export writes, with every row highlighted.", "file"},
                       {"pdf", "Writes the pages Print All prints.", "file"},
                       {"chart", "Writes the chart Graph shows (performance reports, New Clients History).",
                        "file.png|file.pdf"},
                       {"quiet", "No progress messages on standard error."}});
    ConnectionOptions::add(parser);
}

// A date exactly as yyyy-MM-dd that exists in the calendar (2026-02-30 does not).
bool readDate(const QCommandLineParser &parser, const QString &option, QDate *date, QString *error)
{
    *date = QDate::currentDate();
    if (!parser.isSet(option))
        return true;
    const QString text = parser.value(option);
    static const QRegularExpression form("^\\d{4}-\\d{2}-\\d{2}$");
    *date = QDate::fromString(text, "yyyy-MM-dd");
    if (form.match(text).hasMatch() && date->isValid())
        return true;
    *error = QString("--%1 %2 is not a date of the form yyyy-MM-dd").arg(option, text);
    return false;
}

bool readRequest(const QCommandLineParser &parser, ReportTool::Request *request, QString *error)
{
    if (!parser.isSet("report")) {
        *error = "give --report NAME or INDEX (see --list)";
        return false;
    }
    request->index = ReportTool::reportIndex(parser.value("report"));
    if (request->index < 0) {
        *error = QString("there is no report %1 (see --list)").arg(parser.value("report"));
        return false;
    }
    if (!readDate(parser, "from", &request->from, error) || !readDate(parser, "to", &request->to, error))
        return false;
    request->mode = parser.value("mode").toLower();
    if (parser.isSet("mode") && request->mode != "daily" && request->mode != "monthly") {
        *error = QString("--mode takes daily or monthly, not %1").arg(parser.value("mode"));
        return false;
    }
    request->category = parser.value("category");
    bool number = true;
    if (parser.isSet("schedule"))
        request->schedule = parser.value("schedule").toInt(&number);
    if (!number || (parser.isSet("schedule") && (request->schedule < 0 || request->schedule > 7))) {
        *error = QString("--schedule takes a number from 0 to 7, not %1").arg(parser.value("schedule"));
        return false;
    }
    request->csv = parser.value("csv");
    request->pdf = parser.value("pdf");
    request->chart = parser.value("chart");
    request->quiet = parser.isSet("quiet");
    return true;
}

int list()
{
    const QStringList names = ReportTool::catalogue();
    for (int i = 0; i < names.size(); ++i)
        std::printf("%d\t%s\n", i, qPrintable(names.at(i)));
    return 0;
}

int runReport(const ReportTool::Request &request, ReportPrompter *prompter)
{
    Admin admin(nullptr, "admin", Qt::Window);
    if (!request.quiet)
        QObject::connect(admin.statusBar(), &QStatusBar::messageChanged, [](const QString &message) {
            if (!message.isEmpty())
                say(0, message);
        });
    const ReportTool::Outcome outcome = ReportTool::run(&admin, prompter, request);
    return outcome.status ? say(outcome.status, outcome.message) : 0;
}

int work(const QCommandLineParser &parser)
{
    ReportTool::Request request;
    QString error;
    if (!readRequest(parser, &request, &error))
        return say(2, error);
    const ReportTool::Outcome checked = ReportTool::check(request);
    if (checked.status)
        return say(checked.status, checked.message);

    QTemporaryDir scratch;
    const QSettings store("Zephron", "Quorel");
    std::unique_ptr<QSettings> effective(
        ConnectionOptions::effectiveSettings(parser, store, scratch.filePath("Quorel.conf")));
    settings = effective.get();
    Startup::installLanguage(*qApp);
    ReportPrompter prompter;
    Prompter::install(&prompter);
    int status = Connection::open(*settings, &error) ? 0 : say(1, "could not open the database: " + error);
    if (!status) {
        std::unique_ptr<Utility> helper(new Utility("Admin"));
        utils = helper.get();
        status = utils->initClass(false) ? runReport(request, &prompter)
                                         : say(1, prompter.said.value(0).text.simplified());
        utils = nullptr;
    }
    Prompter::install(nullptr);
    settings = nullptr;
    return status;
}

// Qt's own notes (no XDG_RUNTIME_DIR under cron, the MySQL driver's SSL advice) are no business of
// a scheduled job's log; QUOREL_REPORT_DEBUG=1 shows them again.
void quietQt(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || type == QtCriticalMsg)
        std::fprintf(stderr, "%s: %s\n", Program, qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QUOREL_REPORT_DEBUG"))
        qInstallMessageHandler(quietQt);
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(Program);
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return say(2, parser.errorText());
    if (parser.isSet("help")) {
        std::printf("%s", qPrintable(parser.helpText()));
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return say(2, QString("unexpected argument %1 (see --help)").arg(parser.positionalArguments().first()));
    return parser.isSet("list") ? list() : work(parser);
}
