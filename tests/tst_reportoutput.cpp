// What the window makes of a report list: pages in the viewer, the printed job, the CSV file and
// the chart. The tests fill the list as a report would (titles, widths, alignments, rows).
#include "admin.h"
#include "globals.h"
#include "pdfpages.h"
#include "plot.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "zrlistitem.h"
#include "zrrichtext.h"

#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

using Rows = QList<QStringList>;

namespace {

// Each column is "title|width|alignment" (alignment as a number, 0 automatic).
void setColumns(Admin *admin, const QStringList &columns)
{
    QTreeWidgetItem *header = admin->ui.report_list->headerItem();
    for (int c = 0; c < columns.size(); ++c) {
        const QStringList f = columns.at(c).split('|');
        header->setText(c, f.at(0));
        admin->ui.report_list->setColumnWidth(c, f.at(1).toInt());
        header->setData(c, Qt::TextAlignmentRole, f.at(2).toInt());
    }
}

// Each row is its look (ZrListItem::altVisual) followed by its cells.
void addRows(Admin *admin, const Rows &rows)
{
    QTreeWidget *list = admin->ui.report_list;
    for (const QStringList &row : rows) {
        auto *item = new ZrListItem(list, list->topLevelItem(list->topLevelItemCount() - 1));
        item->setAltVisual(row.at(0).toInt());
        for (int c = 1; c < row.size(); ++c)
            item->setText(c - 1, row.at(c));
    }
}

// "Row 1" to "Row n" with an amount beside each.
void fillNumbered(Admin *admin, int rows)
{
    setColumns(admin, {"Name|120|0", "Amount|60|" + QString::number(Qt::AlignRight)});
    Rows made;
    for (int i = 1; i <= rows; ++i)
        made << QStringList{"0", QString("Row %1").arg(i), QString::number(i)};
    addRows(admin, made);
}

QStringList numbered(int from, int to)
{
    QStringList names;
    for (int i = from; i <= to; ++i)
        names << QString("Row %1").arg(i);
    return names;
}

// The rows "Row i" that a page shows, in its HTML or on paper.
QStringList rowsShown(const QString &page)
{
    QStringList names;
    const QRegularExpression name("\\bRow (\\d+)\\b");
    for (auto m = name.globalMatch(page); m.hasNext();)
        names << "Row " + m.next().captured(1);
    return names;
}

QStringList messages()
{
    QStringList shown;
    for (const auto &call : TestSupport::prompter()->calls)
        if (call.kind == "message")
            shown << call.caption + ": " + call.text;
    return shown;
}

void select(Admin *admin, const QList<int> &rows)
{
    for (int row : rows)
        admin->ui.report_list->topLevelItem(row)->setSelected(true);
    if (!rows.isEmpty())
        admin->ui.report_list->setCurrentItem(admin->ui.report_list->topLevelItem(rows.first()), 0,
                                              QItemSelectionModel::NoUpdate);
}

QPushButton *viewerButton(Admin *admin, const char *name)
{
    return admin->reportViewer()->findChild<QPushButton *>(name);
}

} // namespace

class ReportOutputTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    Admin *admin = nullptr;
    QTemporaryDir scratch;
    static constexpr int Cancelled = -2;

private slots:
    void init()
    {
        EngineSuite::init();
        settings->remove("/Admin/QueryPrintLines");
        admin = TestSupport::makeAdmin();
        ReportPractice::choose(admin, 16, QDate(2026, 3, 1), QDate(2026, 3, 31));
    }

    // Page p holds rows p*L+1 to (p+1)*L; a list that fills its pages exactly has one more, empty page.
    void pagesOfTheList_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lines"); // 0: the setting is absent
        QTest::addColumn<QList<int>>("perPage");
        QTest::newRow("no rows") << 0 << 0 << QList<int>{0};
        QTest::newRow("52 rows") << 52 << 0 << QList<int>{52};
        QTest::newRow("53 rows and an empty page") << 53 << 0 << QList<int>{53, 0};
        QTest::newRow("105 rows") << 105 << 0 << QList<int>{53, 52};
        QTest::newRow("106 rows and an empty page") << 106 << 0 << QList<int>{53, 53, 0};
        QTest::newRow("25 rows at 10 lines") << 25 << 10 << QList<int>{10, 10, 5};
    }
    void pagesOfTheList()
    {
        QFETCH(int, rows);
        QFETCH(int, lines);
        QFETCH(QList<int>, perPage);
        if (lines)
            settings->setValue("/Admin/QueryPrintLines", lines);
        fillNumbered(admin, rows);
        ZrRichText *viewer = admin->reportViewer();
        QVERIFY(!viewer->isVisible());
        admin->printQuery();
        QVERIFY(viewer->isVisible());
        QCOMPARE(admin->report.lastPage, perPage.size() - 1);
        int first = 1;
        for (int page = 0; page < perPage.size(); ++page) {
            QCOMPARE(admin->report.currentPage, page);
            QCOMPARE(rowsShown(viewer->text()), numbered(first, first + perPage.at(page) - 1));
            QCOMPARE(viewerButton(admin, "prevButton")->isEnabled(), page > 0);
            QCOMPARE(viewerButton(admin, "nextButton")->isEnabled(), page < perPage.size() - 1);
            first += perPage.at(page);
            viewerButton(admin, "nextButton")->click();
        }
    }

    void pageHtml_data()
    {
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QString>("subtitle");
        QTest::addColumn<QString>("expected");
        const QString heading = "<center><h2>Quorel<br>Test Practice<br>Stock Levels%1 - Sun Mar 1 2026</h2></center>"
                                "<table BORDER=0 CELLSPACING=0 CELLPADDING=0 WIDTH=\"100%\"><tr>";
        QTest::newRow("marked row, multi-line cell, subtitle")
            << QStringList{"Name|150|0", "Level|50|" + QString::number(Qt::AlignRight), "Remark|100|" + QString::number(Qt::AlignLeft)}
            << Rows{{"2", "Łukasz Ōtsuka", "3.00", "first\nsecond"}, {"1", "Bella", "12.50", ""}} << " (Goods )"
            << heading.arg(" (Goods )") + "<th align=auto width=50%><b>Name</b></th><th align=right width=16%><b>Level</b></th>"
                   "<th align=left width=33%><b>Remark</b></th><tr BGCOLOR=\"#FFCCCC\"><td align=auto>Łukasz Ōtsuka</td>"
                   "<td align=right>3.00</td><td align=left>first<br>second</td></tr><tr><td align=auto>Bella</td>"
                   "<td align=right>12.50</td><td align=left></td></tr></table>";
        QTest::newRow("untitled columns left out, other alignments centred")
            << QStringList{"Code|60|" + QString::number(Qt::AlignHCenter | Qt::AlignVCenter), "|0|0",
                           "Sum|40|" + QString::number(Qt::AlignRight | Qt::AlignVCenter), "|0|0",
                           "Note|0|" + QString::number(Qt::AlignJustify)}
            << Rows{{"0", "7", "hidden", "1.00", "", "x"}} << ""
            << heading.arg("") + "<th align=center width=60%><b>Code</b></th><th align=right width=40%><b>Sum</b></th>"
                   "<th align=center width=0%><b>Note</b></th><tr><td align=center>7</td><td align=right>1.00</td>"
                   "<td align=center>x</td></tr></table>";
        QTest::newRow("no rows: heading and titles") << QStringList{"Name|10|0"} << Rows{} << ""
            << heading.arg("") + "<th align=auto width=100%><b>Name</b></th></table>";
    }
    void pageHtml()
    {
        QFETCH(QStringList, columns);
        QFETCH(Rows, rows);
        QFETCH(QString, subtitle);
        QFETCH(QString, expected);
        QLocale::setDefault(QLocale::c()); // the day and month names of the heading's date
        setColumns(admin, columns);
        addRows(admin, rows);
        admin->report.subtitle = subtitle;
        admin->printQuery();
        QCOMPARE(admin->tableViewLoad(), expected);
        QCOMPARE(admin->reportViewer()->text(), expected);
        // The viewer shows names beyond Latin-1 as the list does.
        for (const QStringList &row : rows)
            QVERIFY(admin->reportViewer()->view()->toPlainText().contains(row.at(1)));
    }

    // The heading's date reads in the window's language, as its month names do elsewhere.
    void headingDateInTheWindowsLanguage()
    {
        QLocale::setDefault(QLocale("af"));
        setColumns(admin, {"Name|10|0"});
        admin->printQuery();
        const QString page = admin->tableViewLoad();
        QLocale::setDefault(QLocale::system());
        QVERIFY2(page.contains("Stock Levels - So. Mrt. 1 2026</h2>"), qPrintable(page));
    }

    // Prev on the first page and Next on the last do nothing at all: no new page, the viewer
    // neither shown again nor its buttons touched.
    void turningPagesAtTheEnds_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("to"); // -1: nothing happens
        QTest::newRow("Prev on the first page") << 0 << 10 << -1;
        QTest::newRow("Next on the last page") << 2 << 11 << -1;
        QTest::newRow("an unknown code") << 1 << 13 << -1;
        QTest::newRow("Prev from the last page") << 2 << 10 << 1;
        QTest::newRow("Next from the first page") << 0 << 11 << 1;
    }
    void turningPagesAtTheEnds()
    {
        QFETCH(int, from);
        QFETCH(int, code);
        QFETCH(int, to);
        fillNumbered(admin, 106);
        admin->printQuery();
        for (int page = 0; page < from; ++page)
            admin->reportViewer()->next();
        const QString before = admin->reportViewer()->text();
        admin->reportViewer()->hide();
        admin->reportViewer()->setButtons(true, true);
        admin->tableViewAction(reinterpret_cast<void *>(quintptr(code)));
        QCOMPARE(admin->report.currentPage, to < 0 ? from : to);
        QCOMPARE(admin->reportViewer()->isVisible(), to >= 0);
        if (to < 0) {
            QCOMPARE(admin->reportViewer()->text(), before);
            QVERIFY(viewerButton(admin, "prevButton")->isEnabled() && viewerButton(admin, "nextButton")->isEnabled());
        } else {
            QCOMPARE(rowsShown(admin->reportViewer()->text()).value(0), QString("Row %1").arg(to * 53 + 1));
            QVERIFY(viewerButton(admin, "prevButton")->isEnabled() && viewerButton(admin, "nextButton")->isEnabled());
        }
    }

    // Print All from the viewer: one PDF of the chosen pages, each with its own rows as text.
    void printAllPages_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lines"); // 0: the setting is absent (53)
        QTest::addColumn<int>("fromPage");
        QTest::addColumn<int>("toPage");
        QTest::addColumn<QList<int>>("printed");
        using Scripted = TestSupport::ScriptedPrompter;
        QTest::newRow("the range as offered") << 17 << 5 << 0 << 0 << QList<int>{1, 2, 3, 4};
        QTest::newRow("pages 2 to 3") << 17 << 5 << 2 << 3 << QList<int>{2, 3};
        QTest::newRow("a range past the end") << 17 << 5 << 3 << 9 << QList<int>{3, 4};
        QTest::newRow("All chosen") << 17 << 5 << int(Scripted::AllPages) << 0 << QList<int>{1, 2, 3, 4};
        QTest::newRow("53 rows fit on a sheet") << 60 << 0 << 0 << 0 << QList<int>{1, 2};
        QTest::newRow("set-up cancelled") << 17 << 5 << Cancelled << 0 << QList<int>{};
    }
    void printAllPages()
    {
        QFETCH(int, rows);
        QFETCH(int, lines);
        QFETCH(int, fromPage);
        QFETCH(int, toPage);
        QFETCH(QList<int>, printed);
        if (lines)
            settings->setValue("/Admin/QueryPrintLines", lines);
        const int perPage = lines ? lines : 53;
        fillNumbered(admin, rows);
        admin->printQuery();
        admin->reportViewer()->next();
        const QString shown = admin->reportViewer()->text();
        const QString pdf = scratch.filePath(QTest::currentDataTag() + QString(".pdf"));
        if (fromPage == Cancelled)
            TestSupport::prompter()->answerPrinter(false);
        else
            TestSupport::prompter()->answerPrinter(pdf, fromPage, toPage);
        viewerButton(admin, "printAllButton")->click();

        const auto &setup = TestSupport::prompter()->last();
        QCOMPARE(setup.kind, "setupPrinter");
        QCOMPARE(setup.caption, "Quorel_Report");
        QCOMPARE(setup.pages, QString("1-%1").arg(rows / perPage + 1));
        QVERIFY(!admin->reportViewer()->printing());
        QCOMPARE(admin->report.currentPage, 1);
        QCOMPARE(admin->reportViewer()->text(), shown);
        const QStringList pages = PdfPages::text(pdf);
        QCOMPARE(pages.size(), printed.size());
        for (int i = 0; i < printed.size(); ++i) {
            const int first = (printed.at(i) - 1) * perPage + 1;
            QVERIFY(pages.at(i).contains("Test Practice"));
            QCOMPARE(rowsShown(pages.at(i)), numbered(first, qMin(first + perPage - 1, rows)));
        }
        QCOMPARE(QFile::exists(pdf), !printed.isEmpty());
        if (!printed.isEmpty()) {
            QCOMPARE(PdfPages::info(pdf, "Title"), "Quorel_Report");
            QVERIFY(PdfPages::info(pdf, "Creator").startsWith("Quorel Admin"));
        }
    }

    // Print prints the page on show as a job of its own; a cancelled set-up prints nothing.
    void printShownPage_data()
    {
        QTest::addColumn<bool>("accepted");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }
    void printShownPage()
    {
        QFETCH(bool, accepted);
        settings->setValue("/Admin/QueryPrintLines", 2);
        setColumns(admin, {"Name|100|0"});
        addRows(admin, {{"0", "Bella"}, {"0", "Rex"}, {"0", "Łukasz Ōtsuka"}});
        admin->printQuery();
        admin->reportViewer()->next();
        const QString pdf = scratch.filePath(QTest::currentDataTag() + QString("-shown.pdf"));
        if (accepted)
            TestSupport::prompter()->answerPrinter(pdf);
        viewerButton(admin, "printButton")->click();
        QCOMPARE(TestSupport::prompter()->last().kind, "setupPrinter");
        QVERIFY(!admin->reportViewer()->printing());
        QCOMPARE(QFile::exists(pdf), accepted);
        if (accepted) {
            const QStringList pages = PdfPages::text(pdf);
            QCOMPARE(pages.size(), 1);
            QVERIFY(pages.at(0).contains("Łukasz Ōtsuka"));
            QVERIFY(!pages.at(0).contains("Bella"));
        }
    }

    void exportCsv_data()
    {
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QList<int>>("highlighted");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray header = "\"Name\",\"Total\",\"Note\"\n";
        QTest::newRow("numbers bare, texts quoted") << Rows{{"0", "Smith", "12.50", "-3"}} << QList<int>{0} << "a.csv"
                                                    << header + "\"Smith\",12.50,-3\n";
        QTest::newRow("a line break inside its quotes") << Rows{{"0", "Bella", "1", "first\nsecond"}} << QList<int>{0}
                                                        << "b.csv" << header + "\"Bella\",1,\"first\nsecond\"\n";
        QTest::newRow("names beyond Latin-1 in UTF-8") << Rows{{"0", "Łukasz Ōtsuka", "0", ""}} << QList<int>{0}
                                                       << "c.csv" << header + "\"\xc5\x81ukasz \xc5\x8ctsuka\",0,\"\"\n";
        QTest::newRow("quotes left as they are") << Rows{{"0", "The \"Best\" Vet", "1e3", "1,5"}} << QList<int>{0}
                                                 << "d.csv" << header + "\"The \"Best\" Vet\",1e3,\"1,5\"\n";
        QTest::newRow("highlighted rows only, in list order, .csv added")
            << Rows{{"0", "A", "1", ""}, {"0", "B", "2", ""}, {"0", "Total", "3", ""}} << QList<int>{1, 0} << "e"
            << header + "\"A\",1,\"\"\n\"B\",2,\"\"\n";
    }
    void exportCsv()
    {
        QFETCH(Rows, rows);
        QFETCH(QList<int>, highlighted);
        QFETCH(QString, name);
        QFETCH(QByteArray, expected);
        setColumns(admin, {"Name|100|0", "Total|50|" + QString::number(Qt::AlignRight), "Note|80|0"});
        addRows(admin, rows);
        select(admin, highlighted);
        TestSupport::prompter()->answerText(scratch.filePath(name));
        admin->exportQuery();
        QCOMPARE(messages(), QStringList());
        QFile file(scratch.filePath(name.endsWith(".csv") ? name : name + ".csv"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), expected);
    }

    void exportRefused_data()
    {
        QTest::addColumn<bool>("highlight");
        QTest::addColumn<QString>("name"); // relative to a fresh folder; empty: the dialog is cancelled
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing highlighted") << false << "x.csv" << "Export Results: You must highlight entries to export";
        QTest::newRow("no file chosen") << true << "" << "Export Results: Operation cancelled";
        QTest::newRow("a folder that does not exist") << true << "missing/x.csv" << "Quorel: Can't create %1";
        QTest::newRow("a file where the folder should be") << true << "plain/x.csv" << "Quorel: Can't create %1";
    }
    void exportRefused()
    {
        QFETCH(bool, highlight);
        QFETCH(QString, name);
        QFETCH(QString, expected);
        QTemporaryDir folder;
        QFile plain(folder.filePath("plain"));
        QVERIFY(plain.open(QIODevice::WriteOnly));
        plain.close();
        fillNumbered(admin, 3);
        if (highlight)
            select(admin, {1});
        TestSupport::prompter()->answerText(name.isEmpty() ? QString() : folder.filePath(name));
        admin->exportQuery();
        QCOMPARE(messages(), QStringList{expected.contains("%1") ? expected.arg(folder.filePath(name)) : expected});
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), QStringList{"plain"});
    }

    // The chart gets the title, the first period as its start, and six values for each highlighted row.
    void graph_data()
    {
        QTest::addColumn<int>("report");
        QTest::addColumn<QString>("period");  // the title of column 1
        QTest::addColumn<QList<int>>("highlighted");
        QTest::addColumn<QString>("message"); // empty: the chart is shown
        QTest::addColumn<QDate>("start");
        QTest::addColumn<bool>("daily");
        QTest::addColumn<QStringList>("legends");
        QTest::addColumn<QList<double>>("values");
        QTest::newRow("a report above index 9") << 10 << "2026-03" << QList<int>{0} << "Graph Results: It makes no sense to graph this report"
                                                << QDate() << false << QStringList() << QList<double>();
        QTest::newRow("nothing highlighted") << 0 << "2026-03" << QList<int>{} << "Graph Results: You must highlight entries to chart"
                                             << QDate() << false << QStringList() << QList<double>();
        QTest::newRow("daily") << 0 << "2026-03-05" << QList<int>{1} << "" << QDate(2026, 3, 5) << true
                               << QStringList{"Pill"} << QList<double>{0.5, 0, 0, 7, 8, 9};
        QTest::newRow("monthly, rows in list order") << 9 << "2025-12" << QList<int>{1, 0} << "" << QDate(2025, 12, 1) << false
                                                     << QStringList{"Bandage", "Pill"} << QList<double>{1, 2, 3, 4, 5, 6, 0.5, 0, 0, 7, 8, 9};
    }
    void graph()
    {
        QFETCH(int, report);
        QFETCH(QString, period);
        QFETCH(QList<int>, highlighted);
        QFETCH(QString, message);
        ReportPractice::choose(admin, report);
        admin->report.subtitle = " (X)";
        QStringList columns{"Product|100|0"};
        for (int month = 0; month < 7; ++month)
            columns << (month ? "later" : period) + "|40|" + QString::number(Qt::AlignRight);
        setColumns(admin, columns);
        addRows(admin, {{"0", "Bandage", "1", "2", "3", "4", "5", "6", "99"}, {"0", "Pill", "0.5", "x", "", "7", "8", "9", "99"}});
        select(admin, highlighted);
        QPointer<Plot> shown;
        Plot seen;
        TestSupport::prompter()->answerDialog([&](QDialog *dialog) {
            shown = qobject_cast<Plot *>(dialog);
            seen.setTitle(shown->title());
            seen.setStartDate(shown->startDate(), shown->isDaily());
            seen.setLegends(shown->legends());
            seen.setValues(shown->values());
            return int(QDialog::Accepted);
        });
        admin->graphQuery();
        QCOMPARE(messages(), message.isEmpty() ? QStringList() : QStringList{message});
        QCOMPARE(TestSupport::prompter()->last().kind, message.isEmpty() ? "exec" : "message");
        if (!message.isEmpty())
            return;
        QVERIFY(shown.isNull()); // deleted once closed
        QCOMPARE(seen.title(), "<b>Quorel<br>" + admin->ui.type_combo->currentText() + " (X)</B>");
        QTEST(seen.startDate(), "start");
        QTEST(seen.isDaily(), "daily");
        QTEST(seen.legends(), "legends");
        QTEST(seen.values(), "values");
    }
};

QTEST_MAIN(ReportOutputTest)
#include "tst_reportoutput.moc"
