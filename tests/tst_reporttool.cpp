// quorel-report run as a scheduled job runs it, against the suite's engine: its files equal what
// the window exports and prints, and every input it cannot use ends it with the right status and a
// message naming the problem, never with a wait for input or a half-written file.
#include "admin.h"
#include "globals.h"
#include "pdfpages.h"
#include "reportpractice.h"
#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

namespace {

struct ToolRun {
    int status = -1;
    QString out, err;
    bool finished = false;
};

QString serverVariable(const QString &key)
{
    const char *prefix = TestSupport::engine() == Dialect::MySQL ? "QUOREL_MARIADB_" : "QUOREL_PG_";
    return qEnvironmentVariable(qPrintable(prefix + key));
}

// The test's own connection, as options over an empty settings file.
QStringList connection()
{
    QStringList args{"--driver", settings->value("/Global/DBDriver").toString()};
    if (TestSupport::engine() == Dialect::SQLite)
        return args << "--database" << settings->value("/Global/DBName").toString();
    return args << "--host" << serverVariable("HOST") << "--port" << serverVariable("PORT") << "--user"
                << serverVariable("USER") << "--password" << serverVariable("PASSWORD") << "--database"
                << serverVariable("DATABASE");
}

QFileInfoList folderEntries(const QString &folder)
{
    return QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class ReportTool : public TestSupport::EngineSuite
{
    Q_OBJECT

    QTemporaryDir *config = nullptr; // XDG_CONFIG_HOME of the tool: a settings file of its own
    QTemporaryDir *out = nullptr;
    Admin *admin = nullptr;
    QDate today;

    // Settings that reach both the window and the tool (the connection aside).
    void setBoth(const QString &key, const QVariant &value)
    {
        settings->setValue(key, value);
        QSettings tool(config->filePath("Zephron/Quorel.conf"), QSettings::IniFormat);
        tool.setValue(key, value);
    }

    ToolRun tool(const QStringList &arguments, bool withConnection = true)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", config->path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        // The test's connection first: a connection option of the arguments, given later, wins.
        process.start(QUOREL_REPORT_TOOL, withConnection ? connection() + arguments : arguments);
        process.closeWriteChannel(); // a question read from standard input would end at once
        ToolRun run;
        run.finished = process.waitForFinished(120000);
        if (!run.finished)
            process.kill();
        run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.out = QString::fromUtf8(process.readAllStandardOutput());
        run.err = QString::fromUtf8(process.readAllStandardError());
        return run;
    }

    // The window's run of a report, as a person makes it.
    void windowRuns(int index, const QDate &start, const QDate &end, const QString &answer = QString())
    {
        if (!answer.isEmpty())
            TestSupport::prompter()->answerText(answer);
        ReportPractice::choose(admin, index, start, end);
        admin->processQuery();
    }

    QString windowExport()
    {
        const QString file = out->filePath("window.csv");
        admin->ui.report_list->selectAll();
        TestSupport::prompter()->answerText(file);
        admin->exportQuery();
        return file;
    }

    QString windowPrintAll()
    {
        const QString file = out->filePath("window.pdf");
        admin->printQuery();
        TestSupport::prompter()->answerPrinter(file);
        admin->tableViewAction(reinterpret_cast<void *>(quintptr(12)));
        return file;
    }

    static QByteArray contents(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(missing)");
    }

private slots:
    void init()
    {
        EngineSuite::init();
        today = QDate::currentDate();
        QVERIFY(ReportPractice::seed(today));
        config = new QTemporaryDir;
        out = new QTemporaryDir;
        QVERIFY(QDir(config->path()).mkpath("Zephron"));
        admin = TestSupport::makeAdmin();
    }

    void cleanup()
    {
        EngineSuite::cleanup();
        delete config;
        config = nullptr;
        delete out;
        out = nullptr;
    }

    void listsTheCatalogueWithoutADatabase()
    {
        const ToolRun run = tool({"--list"}, false);
        QCOMPARE(run.status, 0);
        const QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 24);
        QCOMPARE(lines.first(), QString("0\tGoods Performance"));
        QCOMPARE(lines.at(12), QString("12\tMonthly Client Expenditure"));
        QCOMPARE(lines.last(), QString("23\tDrug Levels"));
        QCOMPARE(run.err, QString());
    }

    void writesTheFilesTheWindowWrites_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("startMonths"); // the start date, months before today
        QTest::addColumn<QString>("answer");  // the window's answer to the report's question
        QTest::addColumn<QStringList>("options");
        QTest::newRow("Monthly Client Expenditure, last month") << 12 << 1 << QString() << QStringList();
        QTest::newRow("Client Debt/Credit") << 14 << 0 << QString() << QStringList();
        QTest::newRow("Goods Performance, daily") << 0 << 0 << QString("Daily") << QStringList{"--mode", "daily"};
        QTest::newRow("Stock Levels of Medication") << 16 << 0 << QString("Medication")
                                                    << QStringList{"--category", "Medication"};
    }

    void writesTheFilesTheWindowWrites()
    {
        QFETCH(int, index);
        QFETCH(int, startMonths);
        QFETCH(QString, answer);
        QFETCH(QStringList, options);
        setBoth("/Admin/QueryPrintLines", 3); // several pages from a small practice
        const QDate start = today.addMonths(-startMonths);
        windowRuns(index, start, today, answer);
        QVERIFY(admin->ui.report_list->topLevelItemCount() > 0);
        const QString csv = windowExport();
        const QString pdf = windowPrintAll();

        const ToolRun run = tool(QStringList{"--report", QString::number(index), "--from", start.toString(Qt::ISODate),
                                             "--to", today.toString(Qt::ISODate), "--csv", out->filePath("tool.csv"),
                                             "--pdf", out->filePath("tool.pdf")} + options);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QString());
        QCOMPARE(contents(out->filePath("tool.csv")), contents(csv));
        const QStringList printed = PdfPages::text(pdf);
        QVERIFY(printed.size() > 1);
        QCOMPARE(PdfPages::text(out->filePath("tool.pdf")), printed);
        QCOMPARE(folderEntries(out->path()).size(), 4); // nothing else left beside them
        QCOMPARE(QFileInfo(out->filePath("tool.csv")).permissions() & QFile::ReadOther,
                 QFileInfo(csv).permissions() & QFile::ReadOther); // as readable as any file made here
    }

    void progressGoesToStandardErrorUnlessQuiet()
    {
        const QStringList report{"--report", "0", "--mode", "daily", "--csv", out->filePath("goods.csv")};
        const ToolRun told = tool(report);
        QCOMPARE(told.status, 0);
        QVERIFY2(told.err.contains("quorel-report: Processing Bone Treats\n"), qPrintable(told.err));
        QCOMPARE(told.out, QString());
        const ToolRun quiet = tool(report + QStringList{"--quiet"});
        QCOMPARE(quiet.status, 0);
        QCOMPARE(quiet.err, QString());
    }

    // The report's texts are the window's: in the language of the settings, from the same catalogues.
    void speaksTheLanguageOfTheSettings()
    {
        QDir installDir(QCoreApplication::applicationDirPath()); // the build is laid out as an installation
        while (!installDir.exists("i18n/Quorel/admin.af.qm") && installDir.cdUp()) {}
        QTranslator catalogue;
        QVERIFY(catalogue.load(installDir.filePath("i18n/Quorel/admin.af.qm")));
        setBoth("/Global/InstallDir", installDir.absolutePath());
        setBoth("/Personal/Lang", "af");
        const ToolRun run = tool({"--report", "Stock Values", "--csv", out->filePath("stock.csv")});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QString titles = QString("\"%1\",\"%2\"\n").arg(catalogue.translate("Admin", "Category"),
                                                               catalogue.translate("Admin", "Value OH"));
        QVERIFY(!titles.contains("Category"));
        QVERIFY(contents(out->filePath("stock.csv")).startsWith(titles.toUtf8()));
    }

    // A report that lists no rows is still written: its titles, and its totals where it has them.
    void aReportWithoutRowsGivesItsTitles_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("a month without sales") << QStringList{"--report", "Monthly Client Expenditure", "--from", "1990-01-01"}
                                               << QByteArray("\"Client\",\"Acc No.\",\"Expenditure for Jan 1990\"\n");
        QTest::newRow("an end before the start")
            << QStringList{"--report", "New Clients Detailed", "--from", "2026-06-01", "--to", "2025-06-01"}
            << QByteArray("\"Client\",\"Acc No.\",\"Initial Visit\",\"Home Tel.\",\"Work Tel.\",\"Cellular.\","
                          "\"Email Address\"\n\"Number of Clients\",0,\"\",\"\",\"\",\"\",\"\"\n");
    }
    void aReportWithoutRowsGivesItsTitles()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, written);
        const ToolRun run = tool(arguments + QStringList{"--csv", out->filePath("empty.csv")});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(contents(out->filePath("empty.csv")), written);
    }

    void refusesWhatItCannotUse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message"); // the start of the one line on standard error
        const QString csv = "--csv";
        QTest::newRow("unknown report") << QStringList{"--report", "Turnover", csv, "x.csv"} << 2
                                        << "quorel-report: there is no report Turnover";
        QTest::newRow("index past the catalogue") << QStringList{"--report", "24", csv, "x.csv"} << 2
                                                  << "quorel-report: there is no report 24";
        QTest::newRow("impossible date") << QStringList{"--report", "12", "--from", "2026-02-30", csv, "x.csv"} << 2
                                         << "quorel-report: --from 2026-02-30 is not a date of the form yyyy-MM-dd";
        QTest::newRow("malformed date") << QStringList{"--report", "10", "--to", "1/2/2026", csv, "x.csv"} << 2
                                        << "quorel-report: --to 1/2/2026 is not a date";
        QTest::newRow("unknown option") << QStringList{"--report", "12", "--monthly", csv, "x.csv"} << 2
                                        << "quorel-report: Unknown option 'monthly'.";
        QTest::newRow("performance without a mode") << QStringList{"--report", "0", csv, "x.csv"} << 2
                                                    << "quorel-report: Goods Performance asks for a mode";
        QTest::newRow("drug levels without a schedule") << QStringList{"--report", "Drug Levels", csv, "x.csv"} << 2
                                                        << "quorel-report: Drug Levels asks for the lowest schedule";
        QTest::newRow("stock levels without a category") << QStringList{"--report", "16", csv, "x.csv"} << 2
                                                         << "quorel-report: Stock Levels asks for a category";
        QTest::newRow("a chart of a report that does not chart")
            << QStringList{"--report", "All Clients", "--chart", "x.png"} << 2
            << "quorel-report: All Clients does not chart";
        QTest::newRow("a folder that is not there") << QStringList{"--report", "20", csv, "missing/x.csv"} << 2
                                                    << "quorel-report: cannot write missing/x.csv: there is no folder";
        QTest::newRow("nothing to write") << QStringList{"--report", "20"} << 2
                                          << "quorel-report: nothing to write";
        QTest::newRow("a database that cannot be opened")
            << QStringList{"--report", "20", csv, "x.csv", "--driver", "QMYSQL3", "--host", "127.0.0.1", "--port", "1"}
            << 1 << "quorel-report: could not open the database: ";
        QTest::newRow("no such table") << QStringList{"--report", "16", "--category", "Kennels", csv, "x.csv"} << 1
                                       << "quorel-report: ";
        QTest::newRow("a category that is no table name")
            << QStringList{"--report", "16", "--category", "Goods; DROP TABLE Owner", csv, "x.csv"} << 2
            << "quorel-report: \"Goods; DROP TABLE Owner\" is not the name of a table. A category is";
    }

    void refusesWhatItCannotUse()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, message);
        QDir::setCurrent(out->path());
        const ToolRun run = tool(arguments);
        QVERIFY2(run.finished, "the tool waited");
        QCOMPARE(run.status, status);
        QVERIFY2(run.err.startsWith(message), qPrintable(run.err));
        if (status == 2)
            QCOMPARE(run.err.count('\n'), 1);
        QCOMPARE(run.out, QString());
        QCOMPARE(folderEntries(out->path()), QFileInfoList()); // nothing written, nothing half-written
    }

    void anEarlierFileStaysWholeWhenARunFails()
    {
        const QString target = out->filePath("stock.csv");
        QFile earlier(target);
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write("last month's\n");
        earlier.close();
        const ToolRun run = tool({"--report", "16", "--category", "Kennels", "--csv", target});
        QCOMPARE(run.status, 1);
        QCOMPARE(contents(target), QByteArray("last month's\n"));
        QCOMPARE(folderEntries(out->path()).size(), 1);
    }

    void chartsAsAPictureOrAPdf()
    {
        const ToolRun run = tool({"--report", "9", "--chart", out->filePath("clients.png")});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QImage picture(out->filePath("clients.png"));
        QVERIFY(!picture.isNull());
        QVERIFY(picture.pixelColor(0, 0) == QColor(Qt::white));
        const ToolRun pdf = tool({"--report", "New Clients History", "--chart", out->filePath("clients.pdf")});
        QVERIFY2(pdf.status == 0, qPrintable(pdf.err));
        const QString text = PdfPages::text(out->filePath("clients.pdf")).join('\n');
        QVERIFY2(text.contains("New Clients History") && text.contains("New Clients"), qPrintable(text));
    }
};

QTEST_MAIN(ReportTool)
#include "tst_reporttool.moc"
