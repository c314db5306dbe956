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

const QString Right = QString::number(Qt::AlignRight);

// Each column is "title|width|alignment" (alignment as a number, 0 automatic); each row is its look
// (ZrListItem::altVisual) followed by its cells.
void fill(Admin *admin, const QStringList &columns, const Rows &rows)
{
    QTreeWidget *list = admin->ui.report_list;
    for (int c = 0; c < columns.size(); ++c) {
        const QStringList f = columns.at(c).split('|');
        list->headerItem()->setText(c, f.at(0));
        list->setColumnWidth(c, f.at(1).toInt());
        list->headerItem()->setData(c, Qt::TextAlignmentRole, f.at(2).toInt());
    }
    for (const QStringList &row : rows) {
        auto *item = new ZrListItem(list, list->topLevelItem(list->topLevelItemCount() - 1));
        item->setAltVisual(row.at(0).toInt());
        for (int c = 1; c < row.size(); ++c)
            item->setText(c - 1, row.at(c));
    }
}

// "Row 1" to "Row n" with an amount beside each, `lines` to a page (0: the setting is absent).
void fillNumbered(Admin *admin, int rows, int lines)
{
    if (lines)
        settings->setValue("/Admin/QueryPrintLines", lines);
    Rows made;
    for (int i = 1; i <= rows; ++i)
        made << QStringList{"0", QString("Row %1").arg(i), QString::number(i)};
    fill(admin, {"Name|120|0", "Amount|60|" + Right}, made);
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
    for (const QRegularExpressionMatch &m : QRegularExpression("\\bRow (\\d+)\\b").globalMatch(page))
        names << m.captured();
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
        QLocale::setDefault(QLocale::c());
        admin = TestSupport::makeAdmin();
        ReportPractice::choose(admin, 16, QDate(2026, 3, 1), QDate(2026, 3, 31));
    }

    // Page p holds rows p*L+1 to (p+1)*L; a list that fills its pages exactly has one more, empty
    // page. Next walks through them; at the last page Next does nothing at all (no new page, the
    // viewer neither shown again nor its buttons touched), and Prev goes back a page, if any.
    void pagesOfTheList_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lines");
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
        fillNumbered(admin, rows, lines);
        ZrRichText *viewer = admin->reportViewer();
        QVERIFY(!viewer->isVisible());
        admin->printQuery();
        const int last = int(perPage.size()) - 1;
        QCOMPARE(admin->report.lastPage, last);
        QList<int> firstRow{1};
        for (int page = 0; page <= last; ++page) {
            QVERIFY(viewer->isVisible());
            QCOMPARE(admin->report.currentPage, page);
            QCOMPARE(rowsShown(viewer->text()), numbered(firstRow.at(page), firstRow.at(page) + perPage.at(page) - 1));
            QCOMPARE(viewerButton(admin, "prevButton")->isEnabled(), page > 0);
            QCOMPARE(viewerButton(admin, "nextButton")->isEnabled(), page < last);
            firstRow << firstRow.at(page) + perPage.at(page);
            if (page < last)
                viewerButton(admin, "nextButton")->click();
        }
        const QString shown = viewer->text();
        viewer->hide();
        viewer->setButtons(true, true);
        viewerButton(admin, "nextButton")->click();
        QCOMPARE(admin->report.currentPage, last);
        QVERIFY(!viewer->isVisible() && viewerButton(admin, "nextButton")->isEnabled());
        QCOMPARE(viewer->text(), shown);
        viewerButton(admin, "prevButton")->click(); // on the first page too, when there is only one
        const int back = qMax(0, last - 1);
        QCOMPARE(admin->report.currentPage, back);
        QCOMPARE(viewer->isVisible(), last > 0);
        QCOMPARE(rowsShown(viewer->text()), numbered(firstRow.at(back), firstRow.at(back) + perPage.at(back) - 1));
    }

    void pageHtml_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QString>("subtitle");
        QTest::addColumn<QString>("expected");
        const QString heading = "<center><h2>Quorel<br>Test Practice<br>Stock Levels%1 - %2 1 2026</h2></center>"
                                "<table BORDER=0 CELLSPACING=0 CELLPADDING=0 WIDTH=\"100%\"><tr>";
        QTest::newRow("marked row, multi-line cell, subtitle")
            << "C" << QStringList{"Name|150|0", "Level|50|" + Right, "Remark|100|" + QString::number(Qt::AlignLeft)}
            << Rows{{"2", "Łukasz Ōtsuka", "3.00", "first\nsecond"}, {"1", "Bella", "12.50", ""}} << " (Goods )"
            << heading.arg(" (Goods )", "Sun Mar") + "<th align=auto width=50%><b>Name</b></th><th align=right "
                   "width=16%><b>Level</b></th><th align=left width=33%><b>Remark</b></th><tr BGCOLOR=\"#FFCCCC\">"
                   "<td align=auto>Łukasz Ōtsuka</td><td align=right>3.00</td><td align=left>first<br>second</td></tr>"
                   "<tr><td align=auto>Bella</td><td align=right>12.50</td><td align=left></td></tr></table>";
        QTest::newRow("untitled columns left out, other alignments centred")
            << "C" << QStringList{"Code|60|" + QString::number(Qt::AlignHCenter | Qt::AlignVCenter), "|0|0",
                                  "Sum|40|" + QString::number(Qt::AlignRight | Qt::AlignVCenter), "|0|0",
                                  "Note|0|" + QString::number(Qt::AlignJustify)}
            << Rows{{"0", "7", "hidden", "1.00", "", "x"}} << ""
            << heading.arg("", "Sun Mar") + "<th align=center width=60%><b>Code</b></th><th align=right width=40%>"
                   "<b>Sum</b></th><th align=center width=0%><b>Note</b></th><tr><td align=center>7</td>"
                   "<td align=right>1.00</td><td align=center>x</td></tr></table>";
        QTest::newRow("no rows, the date in the window's language") << "af" << QStringList{"Name|10|0"} << Rows{} << ""
            << heading.arg("", "So. Mrt.") + "<th align=auto width=100%><b>Name</b></th></table>";
    }
    void pageHtml()
    {
        QFETCH(QString, locale);
        QFETCH(Rows, rows);
        QFETCH(QString, subtitle);
        QFETCH(QString, expected);
        QFETCH(QStringList, columns);
        QLocale::setDefault(QLocale(locale));
        fill(admin, columns, rows);
        admin->report.subtitle = subtitle;
        admin->printQuery();
        QCOMPARE(admin->tableViewLoad(), expected);
        QCOMPARE(admin->reportViewer()->text(), expected);
        for (const QStringList &row : rows) // names beyond Latin-1 are shown as the list shows them
            QVERIFY(admin->reportViewer()->view()->toPlainText().contains(row.at(1)));
    }

    // Print All prints the chosen pages of the report as one PDF, each with its own rows as text;
    // Print prints the page on show. Either leaves the viewer as it was.
    void printPages_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("fromPage");
        QTest::addColumn<int>("toPage");
        QTest::addColumn<QString>("offered");
        QTest::addColumn<QList<int>>("printed");
        const int all = TestSupport::ScriptedPrompter::AllPages;
        const QString printAll = "printAllButton";
        QTest::newRow("the range as offered") << printAll << 17 << 5 << 0 << 0 << "1-4" << QList<int>{1, 2, 3, 4};
        QTest::newRow("pages 2 to 3") << printAll << 17 << 5 << 2 << 3 << "1-4" << QList<int>{2, 3};
        QTest::newRow("a range past the end") << printAll << 17 << 5 << 3 << 9 << "1-4" << QList<int>{3, 4};
        QTest::newRow("All chosen") << printAll << 17 << 5 << all << 0 << "1-4" << QList<int>{1, 2, 3, 4};
        QTest::newRow("53 rows fit on a sheet") << printAll << 60 << 0 << 0 << 0 << "1-2" << QList<int>{1, 2};
        QTest::newRow("set-up cancelled") << printAll << 17 << 5 << Cancelled << 0 << "1-4" << QList<int>{};
        QTest::newRow("the page on show") << "printButton" << 17 << 5 << 0 << 0 << "" << QList<int>{2};
        QTest::newRow("its set-up cancelled") << "printButton" << 17 << 5 << Cancelled << 0 << "" << QList<int>{};
    }
    void printPages()
    {
        QFETCH(int, rows);
        QFETCH(int, lines);
        QFETCH(int, fromPage);
        QFETCH(int, toPage);
        QFETCH(QString, button);
        QFETCH(QList<int>, printed);
        fillNumbered(admin, rows, lines);
        admin->printQuery();
        admin->reportViewer()->next();
        const QString shown = admin->reportViewer()->text();
        const QString pdf = scratch.filePath(QTest::currentDataTag() + QString(".pdf"));
        if (fromPage == Cancelled)
            TestSupport::prompter()->answerPrinter(false);
        else
            TestSupport::prompter()->answerPrinter(pdf, fromPage, toPage);
        viewerButton(admin, qPrintable(button))->click();

        const auto &setup = TestSupport::prompter()->last();
        QCOMPARE(setup.kind, "setupPrinter");
        QCOMPARE(setup.caption, "Quorel_Report"); // the job's name, and the PDF's title
        QVERIFY(setup.text.startsWith("Quorel Admin"));
        QTEST(setup.pages, "offered");
        QVERIFY(!admin->reportViewer()->printing());
        QCOMPARE(admin->report.currentPage, 1);
        QCOMPARE(admin->reportViewer()->text(), shown);
        QCOMPARE(QFile::exists(pdf), !printed.isEmpty());
        const QStringList pages = PdfPages::text(pdf);
        QCOMPARE(pages.size(), printed.size());
        const int perPage = lines ? lines : 53;
        for (int i = 0; i < printed.size(); ++i) {
            const int first = (printed.at(i) - 1) * perPage + 1;
            QVERIFY(pages.at(i).contains("Test Practice"));
            QCOMPARE(rowsShown(pages.at(i)), numbered(first, qMin(first + perPage - 1, rows)));
        }
    }

    // The highlighted rows to a file of the chosen name, or a refusal that leaves the folder as it was.
    void exportCsv_data()
    {
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QList<int>>("highlighted");
        QTest::addColumn<QString>("name"); // in a fresh folder; empty: the dialog is cancelled
        QTest::addColumn<QString>("message");
        QTest::addColumn<QByteArray>("csv");
        const QByteArray header = "\"Name\",\"Total\",\"Note\"\n";
        const Rows bella{{"0", "Bella", "1", "first\nsecond"}};
        QTest::newRow("numbers bare, texts quoted")
            << Rows{{"0", "Smith", "12.50", "-3"}} << QList<int>{0} << "a.csv" << "" << header + "\"Smith\",12.50,-3\n";
        QTest::newRow("a line break inside its quotes")
            << bella << QList<int>{0} << "b.csv" << "" << header + "\"Bella\",1,\"first\nsecond\"\n";
        QTest::newRow("names beyond Latin-1 in UTF-8") << Rows{{"0", "Łukasz Ōtsuka", "0", ""}} << QList<int>{0}
            << "c.csv" << "" << header + "\"\xc5\x81ukasz \xc5\x8ctsuka\",0,\"\"\n";
        QTest::newRow("quotes left as they are") << Rows{{"0", "The \"Best\" Vet", "1e3", "1,5"}} << QList<int>{0}
            << "d.csv" << "" << header + "\"The \"Best\" Vet\",1e3,\"1,5\"\n";
        QTest::newRow("highlighted rows only, in list order, .csv added")
            << Rows{{"0", "A", "1", ""}, {"0", "B", "2", ""}, {"0", "Total", "3", ""}} << QList<int>{1, 0} << "e" << ""
            << header + "\"A\",1,\"\"\n\"B\",2,\"\"\n";
        QTest::newRow("nothing highlighted") << bella << QList<int>{} << "x.csv"
                                             << "Export Results: You must highlight entries to export" << QByteArray();
        QTest::newRow("no file chosen")
            << bella << QList<int>{0} << "" << "Export Results: Operation cancelled" << QByteArray();
        QTest::newRow("a folder that does not exist")
            << bella << QList<int>{0} << "missing/x.csv" << "Quorel: Can't create %1" << QByteArray();
    }
    void exportCsv()
    {
        QFETCH(Rows, rows);
        QFETCH(QList<int>, highlighted);
        QFETCH(QString, name);
        QFETCH(QString, message);
        QFETCH(QByteArray, csv);
        QTemporaryDir folder;
        fill(admin, {"Name|100|0", "Total|50|" + Right, "Note|80|0"}, rows);
        select(admin, highlighted);
        TestSupport::prompter()->answerText(name.isEmpty() ? QString() : folder.filePath(name));
        admin->exportQuery();
        message.replace("%1", folder.filePath(name));
        QCOMPARE(messages(), message.isEmpty() ? QStringList() : QStringList{message});
        const QString written = name.endsWith(".csv") ? name : name + ".csv";
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 csv.isEmpty() ? QStringList() : QStringList{written});
        QFile file(folder.filePath(written));
        QCOMPARE(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), csv);
    }

    // The chart gets the title, the first period as its start, and six values for each highlighted
    // row, in list order (a value that is not a number counts as none).
    void graph_data()
    {
        QTest::addColumn<int>("report");
        QTest::addColumn<QString>("period"); // the title of column 1
        QTest::addColumn<QList<int>>("highlighted");
        QTest::addColumn<QString>("outcome"); // the message, or the chart's start, legends and values
        QTest::newRow("a report above index 9")
            << 10 << "2026-03" << QList<int>{0} << "Graph Results: It makes no sense to graph this report";
        QTest::newRow("nothing highlighted")
            << 0 << "2026-03" << QList<int>{} << "Graph Results: You must highlight entries to chart";
        QTest::newRow("daily") << 0 << "2026-03-05" << QList<int>{1} << "daily from 2026-03-05, Pill: 0.5 0 0 7 8 9";
        QTest::newRow("monthly, rows in list order") << 9 << "2025-12" << QList<int>{1, 0}
            << "monthly from 2025-12-01, Bandage|Pill: 1 2 3 4 5 6 0.5 0 0 7 8 9";
    }
    void graph()
    {
        QFETCH(int, report);
        QFETCH(QString, period);
        QFETCH(QList<int>, highlighted);
        QFETCH(QString, outcome);
        ReportPractice::choose(admin, report);
        admin->report.subtitle = " (X)";
        QStringList columns{"Product|100|0"};
        for (int month = 0; month < 7; ++month)
            columns << (month ? "later" : period) + "|40|" + Right;
        fill(admin, columns, {{"0", "Bandage", "1", "2", "3", "4", "5", "6", "99"},
                              {"0", "Pill", "0.5", "x", "", "7", "8", "9", "99"}});
        select(admin, highlighted);
        QPointer<Plot> shown;
        QString title;
        QStringList heard;
        TestSupport::prompter()->answerDialog([&](QDialog *dialog) {
            shown = qobject_cast<Plot *>(dialog);
            title = shown->title();
            QStringList values;
            for (double value : shown->values())
                values << QString::number(value);
            heard << QString("%1 from %2, %3: %4").arg(shown->isDaily() ? "daily" : "monthly",
                                                        shown->startDate().toString(Qt::ISODate),
                                                        shown->legends().join('|'), values.join(' '));
            return int(QDialog::Accepted);
        });
        admin->graphQuery();
        QCOMPARE(messages() + heard, QStringList{outcome});
        QVERIFY(shown.isNull()); // deleted once closed
        if (!heard.isEmpty())
            QCOMPARE(title, "<b>Quorel<br>" + admin->ui.type_combo->currentText() + " (X)</B>");
    }
};

QTEST_MAIN(ReportOutputTest)
#include "tst_reportoutput.moc"
