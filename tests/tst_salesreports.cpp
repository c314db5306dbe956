// The report writer's own part (the inputs each report takes, the list kept or emptied between
// reports, the questions reports ask) and the sales reports on the seeded practice: category
// performance by day and by month, client purchases, commission and personnel performance.
#include "admin.h"
#include "globals.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QSignalSpy>
#include <QStatusBar>
#include <QtTest>

using namespace ReportPractice;

namespace {

const QDate anchor(2024, 3, 4); // a leap year: the month before ends on the 29th
const QString oil = "Ölfilter 100% \"Shampoo\"";

// Of a patient without a client: a consultation of 2.5 (one line to count), an oil sold on the
// 9th of the month before, and a brush returned in February that cancels the one sold in March.
bool addSales()
{
    return insert("InvoiceItem", {"InvoiceNumber", "Petnumber", "MyDate", "Category", "Code", "Description", "Quantity"},
                  {{2001, 199, "2024-03-02", "Consult", "60", "Consultation", 2.5},
                   {2002, 199, "2024-02-09", "Goods", "5", oil, 1.5},
                   {2002, 199, "2024-02-10", "Goods", "6", "Zeta_Brush \\ O'Neil", -1.0}});
}

// The headings of a performance report: the description, then the six periods' titles.
QString periods(const QString &titles)
{
    return "Description|>" + titles.split(' ').join("|>");
}

// A category's performance as one statement per product and period gives it, the periods read
// back from the headings ("yyyy-MM-d" a day, "yyyy-MM" a month).
QStringList perProduct(const QStringList &periods, const QString &category, bool stocked)
{
    QStringList lines;
    for (const QStringList &product : TestSupport::rows("SELECT Description,Code FROM " + category
                                                        + " WHERE Active='Y' ORDER BY Description,Code")) {
        QString line = product[0];
        double total = 0.0;
        for (const QString &title : periods) {
            const QString date = title.size() == 7 ? "LIKE '" + title + "-%%'"
                                                   : "='" + QDate::fromString(title, "yyyy-MM-d").toString("yyyy-MM-dd") + "'";
            const double amount = TestSupport::value(QString("SELECT %1(Quantity) FROM InvoiceItem WHERE Category='%2' AND "
                                                             "Code='%3' AND MyDate %4")
                                                         .arg(stocked ? "SUM" : "COUNT", category,
                                                              utils->escapeSQL(product[1], false), date)).toDouble();
            total += amount;
            line += "|" + Utility::numStr(amount, 2);
        }
        if (total != 0.0)
            lines << line;
    }
    return lines;
}

} // namespace

class SalesReportsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    Admin *admin = nullptr;

private slots:
    void init()
    {
        EngineSuite::init();
        QVERIFY(seed(anchor) && addSales());
        admin = TestSupport::makeAdmin();
    }

    // Per report: the Graph button, the start date and the end date, on (1) or off (0). Walked up
    // the catalogue and back down, so that each input is turned both on and off.
    void inputs()
    {
        const QStringList rules = QString("110 110 110 110 110 110 110 110 110 110 011 011 010 010 000 000 000 000 011 "
                                          "000 000 011 011 000").split(' ');
        QStringList seen, expected;
        for (int step = 0; step < 2 * rules.size(); ++step) {
            const int index = step < rules.size() ? step : 2 * rules.size() - 1 - step;
            choose(admin, index);
            seen << QString("%1: %2%3%4").arg(index).arg(admin->ui.PushButton15->isEnabled())
                        .arg(admin->ui.DateEdit1->isEnabled()).arg(admin->ui.DateEdit2->isEnabled());
            expected << QString("%1: %2").arg(index).arg(rules.at(index));
        }
        QCOMPARE(seen, expected);
    }

    // Choosing the report just run again keeps its rows; choosing another empties the list and
    // resets every column: no title, width 0, automatic alignment.
    void clearList()
    {
        process(admin, 21, QDate(2023, 10, 1), anchor);
        const QStringList commission = shown(admin);
        choose(admin, 21);
        QCOMPARE(shown(admin), commission);
        choose(admin, 17);
        QTreeWidget *list = admin->ui.report_list;
        QStringList columns;
        for (int c = 0; c < 11; ++c)
            columns << QString("%1/%2/%3").arg(list->headerItem()->text(c)).arg(list->columnWidth(c))
                           .arg(list->headerItem()->textAlignment(c));
        QCOMPARE(columns, QStringList(11, "/0/0"));
        QVERIFY(commission.size() == 3 && list->topLevelItemCount() == 0);
    }

    // Every report's column widths, and the progress it shows in the status bar while it runs: the
    // performance reports name each product, the expenditure reports warn that they take a while.
    void widthsAndProgress()
    {
        const QString months = "270 70 70 70 70 70 70", phones = " 92 92 92";
        const QStringList widths{months, months, months, months, months, months, months, months, months, months,
                                 "150 55 78" + phones + " 170", "200 80 80 300 120", "200 80 170", "200 80 170",
                                 "190 55 85 80 80 80 80 80", "55 150 75 107" + phones + " 120 100 150",
                                 "50 285 100 80 80 80 80", "100 100", "90 80 200 250 50 90 70 70 285", "200 80 80",
                                 "150 48 107" + phones + " 120 100 140 78", "150 150 150",
                                 "100 75 75 75 75 75 75 75 75 75 80", "50 285 100 80 80 80"};
        const QMap<int, QVariant> answers{{16, "Goods"}, {23, 7}};
        QSignalSpy messages(admin->statusBar(), &QStatusBar::messageChanged);
        for (int index = 0; index < widths.size(); ++index) {
            messages.clear();
            process(admin, index, QDate(2024, 3, 1), anchor, {answers.value(index, "Monthly")});
            QStringList seen, expected;
            for (const QString &column : columns(admin))
                seen << column.section('/', -1);
            for (const QList<QVariant> &message : messages)
                if (!message.at(0).toString().isEmpty())
                    seen << message.at(0).toString();
            expected << widths.at(index).split(' ');
            const auto shows = [&expected](const QString &text) { // the same text again is no change
                if (expected.last() != text)
                    expected << text;
            };
            if (index < 9) {
                for (const QStringList &product : TestSupport::rows("SELECT Description FROM " + Utility::categories().at(index)
                                                                    + " WHERE Active='Y' ORDER BY Description,Code"))
                    shows("Processing " + product.first());
            } else if (index == 12) {
                shows("Processing Owner Expenditure, this could take a while, please wait..");
            } else if (index == 13) {
                shows("Processing Full Owner Expenditure, this will take a while, please wait..");
            }
            QCOMPARE(QString::number(index) + ": " + seen.join(" | "), QString::number(index) + ": " + expected.join(" | "));
        }
    }

    void reports_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QStringList>("lines"); // the headings, then the rows
        const QDate all(2023, 10, 1);
        QTest::newRow("goods by month: a product without sales, and one whose months add up to 0, left out")
            << 0 << "Monthly" << anchor << anchor << ""
            << QStringList{periods("2023-10 2023-11 2023-12 2024-01 2024-02 2024-03"),
                           "Bone Treats|0.00|0.00|0.00|3.00|1.00|3.00", "Cat Food|0.00|0.00|0.00|0.00|2.00|1.00",
                           "Cat Food|0.00|0.00|0.00|0.00|0.00|1.00", "Odd Code|0.00|0.00|0.00|0.00|2.00|0.00",
                           "bone treats|0.00|0.00|0.00|0.00|0.00|3.00", oil + "|0.00|0.00|0.00|0.00|2.50|0.00"};
        QTest::newRow("by month in February: from September before")
            << 3 << "Monthly" << QDate(2024, 2, 29) << anchor << ""
            << QStringList{periods("2023-09 2023-10 2023-11 2023-12 2024-01 2024-02"), "X-ray|0.00|1.00|0.00|0.00|0.00|0.00"};
        QTest::newRow("by month in May: lines counted")
            << 2 << "Monthly" << QDate(2024, 5, 15) << anchor << ""
            << QStringList{periods("2023-12 2024-01 2024-02 2024-03 2024-04 2024-05"),
                           "Consultation|0.00|0.00|0.00|2.00|0.00|0.00"};
        QTest::newRow("by day on the 4th: the same days of the month before")
            << 0 << "Daily" << anchor << anchor << ""
            << QStringList{periods("2024-02-4 2024-02-5 2024-02-6 2024-02-7 2024-02-8 2024-02-9"),
                           oil + "|0.00|0.00|0.00|0.00|0.00|1.50"};
        QTest::newRow("by day on January 5th: December before")
            << 0 << "Daily" << QDate(2024, 1, 5) << anchor << ""
            << QStringList{periods("2023-12-5 2023-12-6 2023-12-7 2023-12-8 2023-12-9 2023-12-10")};
        QTest::newRow("by day on the 6th: from the 1st") << 0 << "Daily" << QDate(2024, 3, 6) << anchor << ""
            << QStringList{periods("2024-03-1 2024-03-2 2024-03-3 2024-03-4 2024-03-5 2024-03-6"), "Bone Treats|0.00|0.00|1.00|2.00|0.00|0.00",
                           "Cat Food|0.00|0.00|0.00|1.00|0.00|0.00", "Cat Food|1.00|0.00|0.00|0.00|0.00|0.00",
                           "Zeta_Brush \\ O'Neil|0.00|0.00|0.00|1.00|0.00|0.00", "bone treats|3.00|0.00|0.00|0.00|0.00|0.00"};
        const QString purchases = "Client|Acc No.|Category|Description|>Quantity";
        QTest::newRow("purchases: the start day left out, a client's lines added up")
            << 11 << "" << QDate(2024, 3, 1) << anchor << ""
            << QStringList{purchases, "Smith  Mr J.|1|Goods|Bone Treats|3", "Smith  Mr J.|1|Goods|Cat Food|1",
                           "Smith  Mr J.|1|Medication|Ketamine|0.5"};
        const QString doctor = "Van Der Merwe  Dr K.|3|", merwe = "van der Merwe  Mrs A.B.|2|", austria = "Östreich  Ms Ö.|4|";
        QTest::newRow("purchases: by description and quantity, ties by account")
            << 11 << "" << QDate(2024, 1, 18) << anchor << ""
            << QStringList{purchases, doctor + "Lab|Blood Panel|1", "Taba  Mr T.|7|Goods|Bone Treats|1",
                           "Smith  Mr J.|1|Goods|Bone Treats|3", austria + "Goods|Bone Treats|3",
                           "Smith  Mr J.|1|Goods|Cat Food|1", merwe + "Goods|Cat Food|1", "Smith  Mr A.|8|Goods|Cat Food|2",
                           merwe + "Vaccination|DHPP|1", "Smith  Mr J.|1|Medication|Ketamine|0.5", doctor + "Goods|Odd Code|2",
                           austria + "Injection|Rabies Inj|1", merwe + "Goods|bone treats|3", doctor + "Goods|" + oil + "|1"};
        QTest::newRow("purchases: no invoice in the journal")
            << 11 << "" << all << anchor << "DELETE FROM Journal WHERE Description IN ('I','RF')" << QStringList{purchases};
        QTest::newRow("purchases: end before start") << 11 << "" << anchor << all << "" << QStringList{purchases};
        // An invoice with an 'I' and an 'RF' entry counts twice; pending invoices and unknown vets not at all.
        const QString commission = "Sales Person|Total Sales.|>Commission";
        QTest::newRow("commission") << 21 << "" << all << anchor << ""
                                    << QStringList{commission, "Ännie Smit|148.00|14.80", "Bob O'Brien|100.99|12.62"};
        QTest::newRow("commission: both dates included")
            << 21 << "" << QDate(2024, 3, 1) << anchor << ""
            << QStringList{commission, "Ännie Smit|50.00|5.00", "Bob O'Brien|40.99|5.12"};
        const QString personnel = "Personnel|Goods|>Hospital|>Consult|>Diagnosis|>Injection|>Lab|>Medication|>Proc|"
                                  ">Vaccination|>Total Sales.";
        QTest::newRow("personnel by name, then the grand total")
            << 22 << "" << all << anchor << ""
            << QStringList{personnel, "Bob O'Brien|100.99|0.00|0.00|0.00|35.00|500.00|85.01|0.00|0.00|721.00",
                           "Ännie Smit|148.00|80.00|45.00|120.00|0.00|0.00|0.00|1800.00|90.00|2283.00",
                           "Grand Total||||||||||3004.00"};
        QTest::newRow("personnel: end before start") << 22 << "" << anchor << all << ""
                                                     << QStringList{personnel, "Grand Total||||||||||0.00"};
    }
    void reports()
    {
        QFETCH(int, index);
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QString, setup);
        QFETCH(QStringList, lines);
        QVERIFY(setup.isEmpty() || TestSupport::exec(setup));
        process(admin, index, start, end, mode.isEmpty() ? QVariantList() : QVariantList{mode});
        QCOMPARE(shown(admin), lines);
        QVERIFY(!QApplication::overrideCursor());
    }

    void performanceIsThePerProductStatements_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::newRow("daily") << "Daily" << QDate(2024, 3, 6);
        QTest::newRow("monthly") << "Monthly" << anchor;
    }
    // Every category, with quantities that tell a sum from a count, codes that differ only by case
    // or a trailing blank (one code on MariaDB), codes holding LIKE's wildcards, and a date with a time.
    void performanceIsThePerProductStatements()
    {
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QVERIFY(insert("InvoiceItem", {"InvoiceNumber", "MyDate", "Category", "Code", "Quantity"},
                       {{3001, "2024-03-04", "Goods", "3 ", 4.0}, {3001, "2024-03-02", "Goods", "4 ", 64.0},
                        {3001, "2024-03-04", "Goods", "x'9\\_%", 8.0}, {3001, "2024-03-02", "Goods", "X'9\\__", 16.0},
                        {3001, "2024-03-04", "Lab", "50", 0.25}, {3001, "2024-03-02 10:00", "Medication", "21", 32.0},
                        {3001, "2024-03-03", "Diagnosis", "70", 2.0}, {3001, "2024-03-03", "Proc", "80", 3.0},
                        {3001, "2024-03-03", "Injection", "30", 0.5}, {3001, "2024-03-03", "Vaccination", "40", 2.0}}));
        for (int index = 0; index < 9; ++index) {
            process(admin, index, start, start, {mode});
            const QString category = Utility::categories().at(index);
            const bool counted = QStringList{"Consult", "Diagnosis", "Proc"}.contains(category);
            const QStringList listed = shown(admin);
            QCOMPARE(listed.mid(1), perProduct(QString(listed.first()).remove('>').split('|').mid(1), category, !counted));
        }
    }

    // Every report run once, then again stopped part way: its question cancelled, a category
    // refused, or a statement the database refuses (a table gone). At most one message says why;
    // the list keeps its headings and what was listed before the stop, and nothing else ran.
    void stopped_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariantList>("answers"); // to the question of the first run and of the second
        QTest::addColumn<QString>("dropped");      // before the second run
        QTest::addColumn<QString>("message");      // the caption of the one message box
        QTest::addColumn<QStringList>("rows");     // after the second run; "kept": the list of the first run
        const QStringList kept{"kept"};
        QTest::newRow("performance: cancelled") << 0 << QVariantList{"Monthly", QVariant()} << "" << "" << kept;
        QTest::newRow("drug levels: cancelled") << 23 << QVariantList{7, QVariant()} << "" << "" << kept;
        QTest::newRow("stock levels: cancelled, the columns shown first")
            << 16 << QVariantList{"Injection", QVariant()} << "" << "" << QStringList{};
        for (const QString &typed : QStringList{"Goods; DROP TABLE Goods", "\"Goods\"", "1Goods", "Gööds", ""})
            QTest::newRow(qPrintable("stock levels: refused " + typed))
                << 16 << QVariantList{"Goods", typed} << "" << "Quorel Stock Levels" << QStringList{};
        const QString error = "Quorel Database Error";
        QTest::newRow("stock levels: no such table") << 16 << QVariantList{"Goods", "NoSuchTable"} << "" << error
                                                     << QStringList{};
        const QMap<int, QVariant> answer{{0, "Monthly"}, {16, "Goods"}, {23, 7}};
        const auto failed = [&](const char *name, int index, const QString &table, const QStringList &rows = {}) {
            const QVariantList answers = answer.contains(index) ? QVariantList{answer[index], answer[index]} : QVariantList{};
            QTest::newRow(name) << index << answers << table << error << rows;
        };
        failed("performance", 0, "InvoiceItem");
        failed("new clients history", 9, "Owner", {"New Clients||||||"});
        failed("new clients detailed", 10, "Owner");
        failed("client purchases", 11, "Patient");
        failed("monthly expenditure", 12, "Journal", kept);
        failed("full expenditure", 13, "Journal", kept);
        failed("debt and credit", 14, "Journal");
        failed("bad debtors", 15, "Journal");
        failed("stock levels", 16, "StockTraceItem");
        failed("stock values: the categories before stay", 17, "Lab", {"Goods|152.01", "Hospital|0.00"});
        failed("daily activity", 18, "InvoiceItem");
        failed("pending invoices", 19, "Owner", kept);
        failed("all clients", 20, "Journal");
        failed("commission", 21, "Operators");
        failed("personnel performance", 22, "Journal");
        failed("drug levels", 23, "Medication");
    }
    void stopped()
    {
        QFETCH(int, index);
        QFETCH(QVariantList, answers);
        QFETCH(QString, dropped);
        QFETCH(QString, message);
        QFETCH(QStringList, rows);
        // The question each report asks: kind|items|current|editable|value range.
        const QMap<int, QString> questions{{0, "getItem|Daily,Monthly|0|0|"}, {23, "getInt||-1|0|6,0,7,1"},
                                           {16, "getItem|Goods,Hospital,Lab,Medication,Injection,Vaccination|0|1|"}};
        TestSupport::ScriptedPrompter *prompter = TestSupport::prompter();
        process(admin, index, QDate(2024, 3, 1), anchor, answers.mid(0, 1));
        const QStringList before = shown(admin);
        QVERIFY(before.size() > 1 && (dropped.isEmpty() || TestSupport::exec("DROP TABLE " + dropped)));
        prompter->calls.clear();
        process(admin, index, QDate(2024, 3, 1), anchor, answers.mid(1));
        QStringList question;
        if (!prompter->calls.isEmpty() && prompter->calls.first().kind != "message") {
            const TestSupport::ScriptedPrompter::Call &call = prompter->calls.first();
            for (int value : call.range)
                question << QString::number(value);
            question = QStringList{call.kind, call.buttons.join(','), QString::number(call.defaultIndex),
                                   QString::number(call.editable), question.join(',')};
        }
        QCOMPARE(question.join('|'), questions.value(index));
        QCOMPARE(prompter->messageTexts().size(), int(!message.isEmpty()));
        QVERIFY(message.isEmpty() || prompter->last().caption == message);
        QVERIFY(message != "Quorel Stock Levels" || prompter->last().text.contains(answers.last().toString()));
        QCOMPARE(shown(admin), rows == QStringList{"kept"} ? before : QStringList{before.first()} + rows);
        QVERIFY(!QApplication::overrideCursor() && admin->statusBar()->currentMessage().isEmpty());
        QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Goods").toInt(), 9);
    }
};

QTEST_MAIN(SalesReportsTest)
#include "tst_salesreports.moc"
