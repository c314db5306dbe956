// quorel-outputbench: times the report output on a long list in the real window (offscreen):
// the first page, turning pages (from the top and at the end of the list), printing a run of
// pages into a PDF, and exporting every row to CSV. The list is filled as a performance report
// fills it (a name and six figures a row); the database only has to hold the practice.
#include "admin.h"
#include "connection.h"
#include "dialect.h"
#include "globals.h"
#include "schema.h"
#include "testsupport.h"
#include "utility.h"
#include "zrlistitem.h"
#include "zrrichtext.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

double timed(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

void report(const char *step, QList<double> ms)
{
    std::sort(ms.begin(), ms.end());
    std::printf("%-46s %8lld %10.2f %10.2f %10.2f\n", step, qint64(ms.size()), ms.at(ms.size() / 2), ms.first(), ms.last());
}

void fill(Admin *admin, int rows)
{
    QTreeWidget *list = admin->ui.report_list;
    QTreeWidgetItem *header = list->headerItem();
    const QStringList titles{"Product", "2026-01", "2026-02", "2026-03", "2026-04", "2026-05", "2026-06"};
    for (int c = 0; c < titles.size(); ++c) {
        header->setText(c, titles.at(c));
        list->setColumnWidth(c, c ? 60 : 200);
        if (c)
            header->setTextAlignment(c, Qt::AlignRight);
    }
    QList<QTreeWidgetItem *> items;
    for (int i = 0; i < rows; ++i) {
        auto *item = new ZrListItem;
        item->setText(0, QString("Product %1 Łukasz").arg(i));
        for (int c = 1; c < titles.size(); ++c)
            item->setText(c, Utility::numStr(i * 0.37 + c, 2));
        if (i % 17 == 0)
            item->setAltVisual(2);
        items << item;
    }
    list->addTopLevelItems(items);
}

bool openPractice(const QString &file)
{
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE");
    db.setDatabaseName(file);
    QString error;
    if (!db.open() || !Schema::create(db, Dialect::SQLite, &error))
        return false;
    return QSqlQuery().exec("INSERT INTO SysInfo (ALINE1, Tax1Name, Tax2Name, Tax1, Tax2) "
                            "VALUES ('Bench Practice', 'VAT', '', 0.15, 0)");
}

int run(int rows, int pages, const QTemporaryDir &dir)
{
    TestSupport::ScriptedPrompter prompter;
    Prompter::install(&prompter);
    Admin admin;
    Admin *a = &admin;
    report("fill the list (not output)", {timed([a, rows] { fill(a, rows); })});
    ZrRichText *viewer = admin.reportViewer();

    report("Print: count pages, show page 1", {timed([a] { a->printQuery(); })});
    std::printf("  -> %d rows, last page index %d\n", rows, admin.report.lastPage);
    QList<double> next;
    for (int i = 0; i < pages; ++i)
        next << timed([viewer] { viewer->next(); });
    report("Next, pages 2 onwards", next);
    admin.report.currentPage = admin.report.lastPage - pages - 1;
    QList<double> nearEnd;
    for (int i = 0; i < pages; ++i)
        nearEnd << timed([viewer] { viewer->next(); });
    report("Next, the last pages", nearEnd);

    const int last = admin.report.lastPage + 1;
    for (int from : {1, last - pages + 1}) {
        prompter.answerPrinter(dir.filePath(QString("pages%1.pdf").arg(from)), from, from + pages - 1);
        const double ms = timed([viewer] { viewer->printAll(); });
        report(qPrintable(QString("Print All, pages %1-%2 (per page)").arg(from).arg(from + pages - 1)), {ms / pages});
    }

    admin.ui.report_list->selectAll(); // as Ctrl+A does: one selection range
    const QString csv = dir.filePath("all.csv");
    prompter.answerText(csv);
    report("Export, every row highlighted", {timed([a] { a->exportQuery(); })});
    std::printf("  -> %lld bytes, messages: %s\n", QFileInfo(csv).size(), qPrintable(prompter.messageTexts().join(" | ")));
    Prompter::install(nullptr);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Times the report output (pages, printing, export) on a long list.");
    parser.addHelpOption();
    parser.addOptions({{"rows", "Rows of the list.", "N", "100000"},
                       {"pages", "Pages turned and printed in each run.", "N", "40"}});
    parser.process(app);
    QTemporaryDir dir;
    settings = new QSettings(dir.filePath("Quorel.ini"), QSettings::IniFormat);
    settings->setValue("/Global/DBDriver", "QSQLITE");
    if (!openPractice(dir.filePath("practice.sqlite"))) {
        std::fprintf(stderr, "quorel-outputbench: cannot create the practice\n");
        return 1;
    }
    utils = new Utility("Admin");
    if (!utils->initClass(false))
        return 1;
    std::printf("%-46s %8s %10s %10s %10s\n", "step", "runs", "median ms", "min ms", "max ms");
    const int status = run(parser.value("rows").toInt(), qMax(1, parser.value("pages").toInt()), dir);
    delete utils;
    utils = nullptr;
    delete settings;
    settings = nullptr;
    return status;
}
