// The stock and activity reports on the seeded practice: stock levels against the stock trace,
// stock values, drug levels, pending invoices and the daily activity.
#include "admin.h"
#include "globals.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QRegularExpression>
#include <QSettings>
#include <QtTest>

using namespace ReportPractice;
using TestSupport::prompter;

namespace {

const QDate anchor(2024, 3, 4);
const QString oil = QString::fromUtf8("Ölfilter 100% \"Shampoo\"");
const QString brush = "Zeta_Brush \\ O'Neil";
const QStringList stockCategories{"Goods", "Hospital", "Lab", "Medication", "Injection", "Vaccination"};

enum Report { StockLevels = 16, StockValues = 17, DailyActivity = 18, PendingInvoices = 19, DrugLevels = 23 };

// 2.004 tins of cat food delivered: the tin's traced level of 1.004 shows as its stored 1.00.
const QString tinDelivery = "INSERT INTO StockTraceItem (TraceNumber, Category, Code, Quantity) VALUES (2,'Goods','4',2.004)";

} // namespace

class StockReportsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    void init()
    {
        EngineSuite::init();
        settings->remove("/Global/AnalyseProcessStock");
        settings->remove("/Global/Weight");
    }

    void reports_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QStringList>("setup");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("looks"); // empty: every row normal
        const QStringList goods{"1|Bone Treats|pack|20.00|10.00|5.00(3.00)|50.00", "3|Cat Food|bag|30.00|20.00|2.00(-1.00)|40.00",
                                "4|Cat Food|tin|31.00|21.00|1.00|21.00", "X'9\\_%|Odd Code|each|2.00|1.00|1.00(-4.00)|1.00",
                                "6|" + brush + "|each|5.00|2.00|0.00(-1.00)|0.00", "2|bone treats|pack|9.99|3.34|3.00(0.00)|10.01",
                                "5|" + oil + "|bottle|15.00|7.50|4.00(-2.00)|30.00"};
        QTest::newRow("stock levels: ties by code, equal to the cent not marked")
            << int(StockLevels) << QVariant("Goods") << anchor << anchor << QStringList{tinDelivery} << goods << "1101111";
        QStringList stored = goods;
        for (QString &row : stored)
            row.replace(QRegularExpression("\\(.*\\)"), "");
        QTest::newRow("stock levels without the trace") << int(StockLevels) << QVariant("Goods") << anchor << anchor
                                                        << QStringList{"/Global/AnalyseProcessStock=false"} << stored << "";
        QTest::newRow("stock levels: of an invoice's entries only the charge counts")
            << int(StockLevels) << QVariant("Medication") << anchor << anchor << QStringList{}
            << QStringList{"20|Amoxicillin 250mg|tab|3.00|1.50|40.00(0.00)|60.00", "24|Diazepam|tab|4.00|2.00|5.00(0.00)|10.00",
                           "21|Ketamine|ml|25.00|12.00|10.50(11.50)|126.00", "22|Morphine|amp|60.00|30.00|2.00(-1.00)|60.00",
                           "23|ketamine|ml|24.00|11.00|1.00(0.00)|11.00", QString::fromUtf8("25|Ölbad|ml|6.00|3.00|7.00(0.00)|21.00")}
            << "111111";
        QTest::newRow("stock values, a category without stock 0.00")
            << int(StockValues) << QVariant() << anchor << anchor << QStringList{}
            << QStringList{"Goods|152.01", "Hospital|0.00", "Lab|0.00", "Medication|288.00", "Injection|90.00", "Vaccination|480.00"}
            << "";
        const QStringList fromSix{"21|Ketamine|ml|6|10.50|", "23|ketamine|ml|6|1.00|", QString::fromUtf8("25|Ölbad|ml|6|7.00|"),
                                  "22|Morphine|amp|7|2.00|"};
        QTest::newRow("drug levels from 0: by schedule and name")
            << int(DrugLevels) << QVariant(0) << anchor << anchor << QStringList{}
            << QStringList{"20|Amoxicillin 250mg|tab|0|40.00|", "24|Diazepam|tab|5|5.00|"} + fromSix << "";
        QTest::newRow("drug levels from 7") << int(DrugLevels) << QVariant(7) << anchor << anchor << QStringList{} << fromSix.mid(3) << "";
        QTest::newRow("pending invoices: by account, a client without title, one of no account")
            << int(PendingInvoices) << QVariant() << anchor << anchor
            << QStringList{QString::fromUtf8("INSERT INTO Owner (AccountNumber, Title, Initials, Surname) VALUES "
                                             "(9, NULL, 'Q.', 'Abobql'), (10, 'Dr', 'Ж.', 'Πέτρος')"),
                           "INSERT INTO Invoice (MyNumber, AccountNumber, MyDate, Status) VALUES "
                           "(1011, 9, '2024-03-04', 'P'), (1012, 10, '2024-03-04', 'P'), (1013, 1, '2024-03-04', 'P'), "
                           "(1014, 10, '2024-03-04', 'I')"}
            << QStringList{"Smith  Mr J.|1|1009", "Smith  Mr J.|1|1013", "Nobody|9|1011",
                           QString::fromUtf8("Πέτρος  Dr Ж.|10|1012"), "|99|1008"}
            << "";
        QTest::newRow("daily activity: by date and number, lines by category and name")
            << int(DailyActivity) << QVariant() << QDate(2024, 2, 29) << QDate(2024, 3, 1) << QStringList{}
            << QStringList{QString::fromUtf8("2024-02-29|1003|Van Der Merwe  Dr K.|Ölli, 12.345 Kg, MN, Dachshund|||||"),
                           "||||AS|Goods|2.00|each|Odd Code", "||||AS|Goods|1.00|bottle|" + oil, "||||BB|Lab|1.00|test|Blood Panel",
                           "||||AS|Proc|1.00|each|Spay", "2024-02-29|1010|Smith  Mr A.|Tom, 5 Kg, M, Tabby|||||",
                           "||||BB|Goods|2.00|bag|Cat Food", "2024-03-01|1002|van der Merwe  Mrs A.B.|Misty, 4.25 Kg, F, Siamese|||||",
                           "||||BB|Goods|1.00|tin|Cat Food", "||||BB|Goods|3.00|pack|bone treats",
                           "||||AS|Vaccination|1.00|dose|DHPP", "Invoices|3|||||||"}
            << "200002020000";
        QTest::newRow("daily activity: one day, an invoice without a client, the weight unit set")
            << int(DailyActivity) << QVariant() << anchor << anchor << QStringList{"/Global/Weight=lb"}
            << QStringList{"2024-03-04|1001|Smith  Mr J.|Rex, 32.5 lb, M, Labrador|||||", "||||AS|Consult|1.00|each|Consultation",
                           "||||AS|Goods|2.00|pack|Bone Treats", "||||AS|Goods|1.00|bag|Cat Food", "||||BB|Medication|0.50|ml|Ketamine",
                           "2024-03-04|1008||Stray, 6 lb, F, Unknown|||||", "||||AS|Goods|1.00|each|" + brush, "Invoices|2|||||||"}
            << "20000200";
        QTest::newRow("daily activity: end before start")
            << int(DailyActivity) << QVariant() << anchor.addDays(1) << anchor << QStringList{} << QStringList{"Invoices|0|||||||"} << "";
    }

    void reports()
    {
        QFETCH(int, index);
        QFETCH(QVariant, answer);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QStringList, setup);
        QFETCH(QStringList, rows);
        QFETCH(QString, looks);
        QVERIFY(seed(anchor) && prepare(setup));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, start, end, answer.isValid() ? QVariantList{answer} : QVariantList{});
        const QMap<int, QString> layouts{
            {StockLevels, "Code/50/auto|Item/285/auto|UOM/100/auto|Price/80/right|Cost/80/right|Quantity/80/right|Value OH/80/right"},
            {StockValues, "Category/100/auto|Value OH/100/right"},
            {DailyActivity, "Date/90/auto|Invoice No./80/auto|Client/200/auto|Patient/250/auto|Vet/50/auto|Category/90/auto|"
                            "Quantity/70/right|UOM/70/auto|Description/285/auto"},
            {PendingInvoices, "Client/200/auto|Acc No./80/auto|Invoice No./80/auto"},
            {DrugLevels, "Code/50/auto|Item/285/auto|UOM/100/auto|Schedule/80/auto|Quantity/80/right|Value OH/80/right"}};
        QCOMPARE(columns(admin).join('|'), layouts.value(index));
        QCOMPARE(ReportPractice::rows(admin), table(rows));
        QCOMPARE(lookDigits(admin), looks.isEmpty() ? QString(rows.size(), '0') : looks);
        QCOMPARE(admin->report.subtitle, index == StockLevels ? " (" + answer.toString() + " )" : QString());
        QVERIFY(!QApplication::overrideCursor());
    }

    // Codes that differ by case or a trailing blank (one code on MariaDB), and a quoted code.
    void stockLevelsAreTheTraceOfEachProduct()
    {
        QVERIFY(seed(anchor) && prepare({tinDelivery}));
        QVERIFY(insert("StockTraceItem", {"TraceNumber", "Category", "Code", "Quantity"},
                    {{3, "Goods", "1 ", 7.0}, {3, "Goods", "x'9\\_%", 5.0}, {3, "Medication", "22 ", 3.0}}));
        QVERIFY(insert("InvoiceItem", {"InvoiceNumber", "Category", "Code", "Quantity"},
                    {{1002, "Goods", "3 ", 0.5}, {1003, "Goods", "X'9\\_%", 1.25}, {1009, "Injection", "30", 1.0}}));
        Admin *admin = TestSupport::makeAdmin();
        for (const QString &category : stockCategories) {
            process(admin, StockLevels, anchor, anchor, {category});
            QList<QStringList> expected;
            for (const QStringList &row : TestSupport::rows("SELECT Code, Quantity FROM " + category
                                                            + " WHERE Active='Y' AND ReOrder <> -1 ORDER BY Description,Code")) {
                bool ok = true;
                const QString traced = Utility::numStr(utils->getStockLevelFromTrace(row[0], category, &ok), 2);
                const QString stored = Utility::numStr(row[1].toDouble(), 2);
                QVERIFY(ok);
                expected << QStringList{row[0], stored == traced ? stored : stored + "(" + traced + ")"};
            }
            QList<QStringList> shown;
            for (const QStringList &row : ReportPractice::rows(admin))
                shown << QStringList{row[0], row[5]};
            QCOMPARE(shown, expected);
        }
    }

    void stockLevelCategory_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("caption"); // of the one box shown
        const QString refused = "Quorel Stock Levels";
        QTest::newRow("a second statement") << "Goods; DROP TABLE Goods" << refused;
        QTest::newRow("a condition") << "Goods WHERE 1=1 --" << refused;
        QTest::newRow("quoted") << "\"Goods\"" << refused;
        QTest::newRow("leading digit") << "1Goods" << refused;
        QTest::newRow("beyond ASCII") << QString::fromUtf8("Gööds") << refused;
        QTest::newRow("empty") << "" << refused;
        QTest::newRow("no such table") << "NoSuchTable" << "Quorel Database Error";
    }

    // Refused before any statement, or the database's error: either way the list stays empty.
    void stockLevelCategory()
    {
        QFETCH(QString, typed);
        QFETCH(QString, caption);
        QVERIFY(seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, StockLevels, anchor, anchor, {typed});
        QCOMPARE(prompter()->messageTexts().size(), 1);
        QCOMPARE(prompter()->last().caption, caption);
        QVERIFY(caption != "Quorel Stock Levels" || prompter()->last().text.contains(typed));
        QVERIFY(ReportPractice::rows(admin).isEmpty() && titles(admin).size() == 7 && !QApplication::overrideCursor());
        QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Goods").toInt(), 9);
    }

    void cancelled_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<QString>("dialog"); // kind, caption, label, items, current, editable, value range
        QTest::addColumn<bool>("kept");
        QTest::newRow("drug levels keep the list") << int(DrugLevels) << QVariant(7)
                                                   << "getInt|Drug Report|Enter minimum Schedule no.||-1|0|6,0,7,1" << true;
        QTest::newRow("stock levels leave it empty")
            << int(StockLevels) << QVariant("Injection")
            << "getItem|Quorel Stock Levels|Choose a category|" + stockCategories.join(',') + "|0|1|" << false;
    }

    void cancelled()
    {
        QFETCH(int, index);
        QFETCH(QVariant, first);
        QFETCH(QString, dialog);
        QFETCH(bool, kept);
        QVERIFY(seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, anchor, anchor, {first});
        const QList<QStringList> before = ReportPractice::rows(admin);
        process(admin, index, anchor, anchor, {QVariant()});
        const TestSupport::ScriptedPrompter::Call asked = prompter()->last();
        QStringList range;
        for (int value : asked.range)
            range << QString::number(value);
        QCOMPARE(QStringList({asked.kind, asked.caption, asked.text, asked.buttons.join(','), QString::number(asked.defaultIndex),
                              QString::number(asked.editable), range.join(',')}).join('|'), dialog);
        QVERIFY(before.size() == 1 && !QApplication::overrideCursor());
        QCOMPARE(ReportPractice::rows(admin), kept ? before : QList<QStringList>{});
        QCOMPARE(titles(admin).size(), kept ? 6 : 7);
    }

    void failedStatement_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<QString>("dropped");
        QTest::addColumn<QStringList>("rows"); // after the second run
        QTest::newRow("stock values: the categories before stay") << int(StockValues) << QVariant() << "Lab"
                                                                  << QStringList{"Goods|152.01", "Hospital|0.00"};
        QTest::newRow("stock levels: the trace") << int(StockLevels) << QVariant("Goods") << "StockTraceItem" << QStringList{};
        QTest::newRow("drug levels") << int(DrugLevels) << QVariant(7) << "Medication" << QStringList{};
        QTest::newRow("daily activity") << int(DailyActivity) << QVariant() << "InvoiceItem" << QStringList{};
        QTest::newRow("pending invoices: the list untouched")
            << int(PendingInvoices) << QVariant() << "Owner" << QStringList{"Smith  Mr J.|1|1009", "|99|1008"};
    }

    // Run once, then again with a table gone: the error is shown, the report stops where it was,
    // and the cursor is back.
    void failedStatement()
    {
        QFETCH(int, index);
        QFETCH(QVariant, answer);
        QFETCH(QString, dropped);
        QFETCH(QStringList, rows);
        QVERIFY(seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        const QVariantList answers = answer.isValid() ? QVariantList{answer} : QVariantList{};
        process(admin, index, anchor, anchor, answers);
        QVERIFY(!ReportPractice::rows(admin).isEmpty() && TestSupport::exec("DROP TABLE " + dropped));
        process(admin, index, anchor, anchor, answers);
        QCOMPARE(prompter()->last().caption, QString("Quorel Database Error"));
        QCOMPARE(ReportPractice::rows(admin), table(rows));
        QVERIFY(!titles(admin).isEmpty() && !QApplication::overrideCursor());
    }
};

QTEST_MAIN(StockReportsTest)
#include "tst_stockreports.moc"
