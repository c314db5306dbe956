// The sales and performance reports on the seeded practice: category performance by day and by
// month, client purchases, commission and personnel performance.
#include "admin.h"
#include "globals.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QSqlQuery>
#include <QtTest>

using Rows = QList<QStringList>;
using TestSupport::prompter;

namespace {

// A leap year: the month before the anchor ends on the 29th.
const QDate anchor(2024, 3, 4);
const QString oil = QString::fromUtf8("Ölfilter 100% \"Shampoo\"");
const QString brush = "Zeta_Brush \\ O'Neil";

// Chooses report `index` with the two dates, queues the answers (a text, or an invalid value to
// cancel) and presses Process.
void process(Admin *admin, int index, const QDate &start, const QDate &end, const QVariantList &answers = {})
{
    ReportPractice::choose(admin, index, start, end);
    for (const QVariant &answer : answers)
        answer.isValid() ? prompter()->answerText(answer.toString()) : prompter()->cancel();
    admin->ui.PushButton13->click();
}

// A consultation of 2.5 (counted as one line), an oil sold on the 9th of the month before, and a
// brush returned in February that cancels the one sold in March.
bool addSales()
{
    return ReportPractice::add("InvoiceItem", {"InvoiceNumber", "Petnumber", "MyDate", "Vet", "Category", "Code",
                                               "Description", "Quantity", "Price"},
                               {{2001, 101, "2024-03-02", "AS", "Consult", "60", "Consultation", 2.5, 45.0},
                                {2002, 104, "2024-02-09", "AS", "Goods", "5", oil, 1.5, 22.5},
                                {2002, 104, "2024-02-10", "AS", "Goods", "6", brush, -1.0, -5.0}});
}

QStringList zeros(int before, const QString &amount, int after)
{
    return QStringList(before, "0.00") << amount << QStringList(after, "0.00");
}

// What the report's six columns select, read back from their titles: a day "yyyy-MM-d" or a
// month "yyyy-MM".
QStringList periodConditions(Admin *admin)
{
    QStringList conditions;
    for (const QString &title : ReportPractice::titles(admin).mid(1)) {
        const QStringList parts = title.split('-');
        conditions << (parts.size() == 2 ? "MyDate LIKE '" + title + "-%%'"
                                          : "MyDate='" + QDate(parts[0].toInt(), parts[1].toInt(), parts[2].toInt())
                                                             .toString("yyyy-MM-dd") + "'");
    }
    return conditions;
}

// The rows of a category's performance as one statement per product and period gives them.
Rows perProductRows(Admin *admin, const QString &category, bool stocked)
{
    Rows rows;
    for (const QStringList &product : TestSupport::rows("SELECT Description,Code FROM " + category
                                                        + " WHERE Active='Y' ORDER BY Description,Code")) {
        QStringList cells{product[0]};
        double total = 0.0;
        for (const QString &period : periodConditions(admin)) {
            const double amount = TestSupport::value(QString("SELECT %1(Quantity) FROM InvoiceItem WHERE Category='%2' "
                                                             "AND Code='%3' AND %4")
                                                         .arg(stocked ? "SUM" : "COUNT", category,
                                                              utils->escapeSQL(product[1], false), period))
                                      .toDouble();
            total += amount;
            cells << Utility::numStr(amount, 2);
        }
        if (total != 0.0)
            rows << cells;
    }
    return rows;
}

} // namespace

class SalesReportsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    void performancePeriods_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("daily on the 3rd: the same days of the month before")
            << QDate(2024, 3, 3) << "Daily"
            << QStringList{"2024-02-3", "2024-02-4", "2024-02-5", "2024-02-6", "2024-02-7", "2024-02-8"};
        QTest::newRow("daily on January 5th: December of the year before")
            << QDate(2024, 1, 5) << "Daily"
            << QStringList{"2023-12-5", "2023-12-6", "2023-12-7", "2023-12-8", "2023-12-9", "2023-12-10"};
        QTest::newRow("daily on the 6th: the 1st to the 6th")
            << QDate(2024, 3, 6) << "Daily"
            << QStringList{"2024-03-1", "2024-03-2", "2024-03-3", "2024-03-4", "2024-03-5", "2024-03-6"};
        QTest::newRow("monthly in February: from September of the year before")
            << QDate(2024, 2, 29) << "Monthly"
            << QStringList{"2023-09", "2023-10", "2023-11", "2023-12", "2024-01", "2024-02"};
        QTest::newRow("monthly in June: January to June")
            << QDate(2024, 6, 30) << "Monthly"
            << QStringList{"2024-01", "2024-02", "2024-03", "2024-04", "2024-05", "2024-06"};
    }

    void performancePeriods()
    {
        QFETCH(QDate, start);
        QFETCH(QString, mode);
        QFETCH(QStringList, titles);
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 7, start, start, {mode});
        QStringList columns{"Description/270/auto"};
        for (const QString &title : titles)
            columns << title + "/70/right";
        QCOMPARE(ReportPractice::columns(admin), columns);
        const TestSupport::ScriptedPrompter::Call asked = prompter()->last();
        QCOMPARE(QStringList({asked.kind, asked.caption, asked.text}),
                 QStringList({"getItem", "Quorel Reports", "Select mode for Report"}));
        QVERIFY(asked.buttons == QStringList({"Daily", "Monthly"}) && asked.defaultIndex == 0 && !asked.editable);
    }

    void performanceRows_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<Rows>("rows");
        QTest::newRow("goods by month: ties by code, a product without sales and one whose months add up to 0 left out")
            << 0 << "Monthly" << anchor
            << Rows{QStringList{"Bone Treats", "0.00", "0.00", "0.00", "3.00", "1.00", "3.00"},
                    QStringList{"Cat Food"} + zeros(4, "2.00", 0) << "1.00", QStringList{"Cat Food"} + zeros(5, "1.00", 0),
                    QStringList{"Odd Code"} + zeros(4, "2.00", 1), QStringList{"bone treats"} + zeros(5, "3.00", 0),
                    QStringList{oil} + zeros(4, "2.50", 1)};
        QTest::newRow("goods by day from the 4th: the month before")
            << 0 << "Daily" << anchor << Rows{QStringList{oil} + zeros(5, "1.50", 0)};
        QTest::newRow("goods by day from the 6th")
            << 0 << "Daily" << QDate(2024, 3, 6)
            << Rows{QStringList{"Bone Treats", "0.00", "0.00", "1.00", "2.00", "0.00", "0.00"},
                    QStringList{"Cat Food"} + zeros(3, "1.00", 2), QStringList{"Cat Food"} + zeros(0, "1.00", 5),
                    QStringList{brush} + zeros(3, "1.00", 2), QStringList{"bone treats"} + zeros(0, "3.00", 5)};
        QTest::newRow("consultations are counted")
            << 2 << "Daily" << QDate(2024, 3, 6)
            << Rows{QStringList{"Consultation", "0.00", "1.00", "0.00", "1.00", "0.00", "0.00"}};
        QTest::newRow("medication is summed") << 6 << "Daily" << QDate(2024, 3, 6)
                                              << Rows{QStringList{"Ketamine"} + zeros(3, "0.50", 2)};
        QTest::newRow("procedures by month") << 7 << "Monthly" << anchor
                                             << Rows{QStringList{"Spay"} + zeros(4, "1.00", 1)};
    }

    void performanceRows()
    {
        QFETCH(int, index);
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor) && addSales());
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, start, start, {mode});
        QCOMPARE(ReportPractice::rows(admin), rows);
        QVERIFY(!QApplication::overrideCursor());
    }

    void performanceIsTheSameAsPerProductStatements_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::newRow("daily") << "Daily" << QDate(2024, 3, 6);
        QTest::newRow("monthly") << "Monthly" << anchor;
    }

    // Every category, with codes that differ only by case or a trailing blank (one code on MariaDB)
    // and a code holding LIKE's wildcards.
    void performanceIsTheSameAsPerProductStatements()
    {
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QVERIFY(ReportPractice::seed(anchor) && addSales());
        QVERIFY(ReportPractice::add("InvoiceItem", {"InvoiceNumber", "MyDate", "Category", "Code", "Quantity"},
                                    {{3001, "2024-03-04", "Goods", "3 ", 4.0}, {3001, "2024-03-02", "Goods", "4 ", 64.0},
                                     {3001, "2024-03-04", "Goods", "x'9\\_%", 8.0},
                                     {3001, "2024-03-02", "Goods", "X'9\\__", 16.0}, {3001, "2024-03-04", "Lab", "50", 0.25},
                                     {3001, "2024-03-02 10:00", "Medication", "21", 32.0}}));
        Admin *admin = TestSupport::makeAdmin();
        const QList<bool> stocked{true, true, false, false, true, true, true, false, true};
        for (int index = 0; index < 9; ++index) {
            process(admin, index, start, start, {mode});
            const QString category = Utility::categories().at(index);
            QCOMPARE(ReportPractice::rows(admin), perProductRows(admin, category, stocked[index]));
        }
    }

    void modeCancelledKeepsTheList()
    {
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 0, QDate(2024, 3, 6), anchor, {"Daily"});
        const Rows before = ReportPractice::rows(admin);
        const QStringList columns = ReportPractice::columns(admin);
        process(admin, 0, anchor, anchor, {QVariant()});
        QVERIFY(before.size() == 5 && !QApplication::overrideCursor());
        QCOMPARE(ReportPractice::rows(admin), before);
        QCOMPARE(ReportPractice::columns(admin), columns);
    }

    void clientPurchases_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<bool>("invoiced"); // the journal holds 'I' and 'RF' entries
        QTest::addColumn<Rows>("rows");
        const QString smith = "Smith  Mr J.";
        const QString merwe = "van der Merwe  Mrs A.B.";
        const QString doctor = "Van Der Merwe  Dr K.";
        QTest::newRow("the start day left out, a client's lines of a description added up")
            << QDate(2024, 3, 1) << anchor << true
            << Rows{{smith, "1", "Goods", "Bone Treats", "3"}, {smith, "1", "Goods", "Cat Food", "1"},
                    {smith, "1", "Medication", "Ketamine", "0.5"}};
        const QString osterreich = QString::fromUtf8("Östreich  Ms Ö.");
        QTest::newRow("by description and quantity, ties by account")
            << QDate(2024, 1, 18) << anchor << true
            << Rows{{doctor, "3", "Lab", "Blood Panel", "1"}, {"Taba  Mr T.", "7", "Goods", "Bone Treats", "1"},
                    {smith, "1", "Goods", "Bone Treats", "3"}, {osterreich, "4", "Goods", "Bone Treats", "3"},
                    {smith, "1", "Goods", "Cat Food", "1"}, {merwe, "2", "Goods", "Cat Food", "1"},
                    {"Smith  Mr A.", "8", "Goods", "Cat Food", "2"}, {merwe, "2", "Vaccination", "DHPP", "1"},
                    {smith, "1", "Medication", "Ketamine", "0.5"}, {doctor, "3", "Goods", "Odd Code", "2"},
                    {osterreich, "4", "Injection", "Rabies Inj", "1"}, {merwe, "2", "Goods", "bone treats", "3"},
                    {doctor, "3", "Goods", oil, "1"}};
        QTest::newRow("no invoice in the journal") << QDate(2024, 2, 28) << anchor << false << Rows{};
        QTest::newRow("end before start") << anchor << QDate(2024, 2, 28) << true << Rows{};
    }

    void clientPurchases()
    {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(bool, invoiced);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        QVERIFY(invoiced || TestSupport::exec("DELETE FROM Journal WHERE Description IN ('I','RF')"));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 11, start, end);
        QCOMPARE(ReportPractice::columns(admin), QStringList({"Client/200/auto", "Acc No./80/auto", "Category/80/auto",
                                                             "Description/300/auto", "Quantity/120/right"}));
        QCOMPARE(ReportPractice::rows(admin), rows);
    }

    void commission_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<Rows>("rows");
        // An invoice with an 'I' and an 'RF' entry counts twice; pending invoices and an unknown vet not at all.
        QTest::newRow("everything") << QDate(2023, 10, 1) << anchor
                                    << Rows{{QString::fromUtf8("Ännie Smit"), "148.00", "14.80"},
                                            {"Bob O'Brien", "100.99", "12.62"}};
        QTest::newRow("both dates included") << QDate(2024, 3, 1) << anchor
                                             << Rows{{QString::fromUtf8("Ännie Smit"), "50.00", "5.00"},
                                                     {"Bob O'Brien", "40.99", "5.12"}};
        QTest::newRow("end before start") << anchor << QDate(2024, 3, 1) << Rows{};
    }

    void commission()
    {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 21, start, end);
        QCOMPARE(ReportPractice::columns(admin),
                 QStringList({"Sales Person/150/auto", "Total Sales./150/auto", "Commission/150/right"}));
        QCOMPARE(ReportPractice::rows(admin), rows);
    }

    void personnelPerformance_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<Rows>("rows");
        const QStringList empty(9, QString());
        QTest::newRow("by name, then the grand total")
            << QDate(2023, 10, 1) << anchor
            << Rows{{"Bob O'Brien", "100.99", "0.00", "0.00", "0.00", "35.00", "500.00", "85.01", "0.00", "0.00", "721.00"},
                    {QString::fromUtf8("Ännie Smit"), "148.00", "80.00", "45.00", "120.00", "0.00", "0.00", "0.00",
                     "1800.00", "90.00", "2283.00"},
                    QStringList{"Grand Total"} + empty << "3004.00"};
        QTest::newRow("no sales") << QDate(2020, 1, 1) << QDate(2020, 12, 31)
                                  << Rows{QStringList{"Grand Total"} + empty << "0.00"};
        QTest::newRow("end before start") << anchor << QDate(2023, 10, 1)
                                          << Rows{QStringList{"Grand Total"} + empty << "0.00"};
    }

    void personnelPerformance()
    {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 22, start, end);
        QStringList columns{"Personnel/100/auto", "Goods/75/auto"};
        for (const QString &category : Utility::categories().mid(1))
            columns << category + "/75/right";
        QCOMPARE(ReportPractice::columns(admin), columns << "Total Sales./80/right");
        QCOMPARE(ReportPractice::rows(admin), rows);
    }

    void failedStatement_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("dropped");
        QTest::newRow("performance: the sales") << 0 << "Monthly" << "InvoiceItem";
        QTest::newRow("client purchases") << 11 << "" << "Patient";
        QTest::newRow("commission") << 21 << "" << "Operators";
        QTest::newRow("personnel performance") << 22 << "" << "Journal";
    }

    // The error is shown, the report keeps its titles and stops, and the cursor is back.
    void failedStatement()
    {
        QFETCH(int, index);
        QFETCH(QString, mode);
        QFETCH(QString, dropped);
        QVERIFY(ReportPractice::seed(anchor) && TestSupport::exec("DROP TABLE " + dropped));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, QDate(2023, 10, 1), anchor, mode.isEmpty() ? QVariantList() : QVariantList{mode});
        QCOMPARE(prompter()->last().caption, QString("Quorel Database Error"));
        QVERIFY(!ReportPractice::titles(admin).isEmpty());
        QCOMPARE(ReportPractice::rows(admin), Rows{});
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(SalesReportsTest)
#include "tst_salesreports.moc"
