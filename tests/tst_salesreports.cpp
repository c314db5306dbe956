// The sales and performance reports on the seeded practice: category performance by day and by
// month, client purchases, commission and personnel performance.
#include "admin.h"
#include "globals.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QtTest>

using namespace ReportPractice;
using Rows = QList<QStringList>;

namespace {

const QDate anchor(2024, 3, 4); // a leap year: the month before ends on the 29th
const QString oil = QString::fromUtf8("Ölfilter 100% \"Shampoo\"");

// Of a patient without a client: a consultation of 2.5 (one line to count), an oil sold on the
// 9th of the month before, and a brush returned in February that cancels the one sold in March.
bool addSales()
{
    return insert("InvoiceItem", {"InvoiceNumber", "Petnumber", "MyDate", "Category", "Code", "Description", "Quantity"},
               {{2001, 199, "2024-03-02", "Consult", "60", "Consultation", 2.5},
                {2002, 199, "2024-02-09", "Goods", "5", oil, 1.5},
                {2002, 199, "2024-02-10", "Goods", "6", "Zeta_Brush \\ O'Neil", -1.0}});
}

// A category's performance as one statement per product and period gives it, the periods read
// back from the titles ("yyyy-MM-d" a day, "yyyy-MM" a month).
Rows perProductRows(Admin *admin, const QString &category, bool stocked)
{
    QStringList periods;
    for (const QString &title : titles(admin).mid(1))
        periods << (title.size() == 7 ? "MyDate LIKE '" + title + "-%%'"
                                      : "MyDate='" + QDate::fromString(title, "yyyy-MM-d").toString("yyyy-MM-dd") + "'");
    Rows rows;
    for (const QStringList &product : TestSupport::rows("SELECT Description,Code FROM " + category
                                                        + " WHERE Active='Y' ORDER BY Description,Code")) {
        QStringList cells{product[0]};
        double total = 0.0;
        for (const QString &period : periods) {
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
    void periods_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("titles");
        QTest::newRow("daily on the 3rd: the same days of the month before")
            << QDate(2024, 3, 3) << "Daily" << "2024-02-3|2024-02-4|2024-02-5|2024-02-6|2024-02-7|2024-02-8";
        QTest::newRow("daily on January 5th: December before")
            << QDate(2024, 1, 5) << "Daily" << "2023-12-5|2023-12-6|2023-12-7|2023-12-8|2023-12-9|2023-12-10";
        QTest::newRow("daily on the 6th") << QDate(2024, 3, 6) << "Daily"
                                          << "2024-03-1|2024-03-2|2024-03-3|2024-03-4|2024-03-5|2024-03-6";
        QTest::newRow("monthly in February: from September before")
            << QDate(2024, 2, 29) << "Monthly" << "2023-09|2023-10|2023-11|2023-12|2024-01|2024-02";
        QTest::newRow("monthly in June") << QDate(2024, 6, 30) << "Monthly"
                                         << "2024-01|2024-02|2024-03|2024-04|2024-05|2024-06";
    }

    void periods()
    {
        QFETCH(QDate, start);
        QFETCH(QString, mode);
        QFETCH(QString, titles);
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 7, start, start, {mode});
        QCOMPARE(columns(admin).join('|'), "Description/270/auto|" + titles.split('|').join("/70/right|") + "/70/right");
        const TestSupport::ScriptedPrompter::Call asked = TestSupport::prompter()->last();
        QCOMPARE(QStringList({asked.kind, asked.caption, asked.text, asked.buttons.join('|')}),
                 QStringList({"getItem", "Quorel Reports", "Select mode for Report", "Daily|Monthly"}));
        QVERIFY(asked.defaultIndex == 0 && !asked.editable);
    }

    void reports_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QStringList>("rows");
        const QDate all(2023, 10, 1);
        QTest::newRow("goods by month: a product without sales, and one whose months add up to 0, left out")
            << 0 << "Monthly" << anchor << anchor << ""
            << QStringList{"Bone Treats|0.00|0.00|0.00|3.00|1.00|3.00", "Cat Food|0.00|0.00|0.00|0.00|2.00|1.00",
                           "Cat Food|0.00|0.00|0.00|0.00|0.00|1.00", "Odd Code|0.00|0.00|0.00|0.00|2.00|0.00",
                           "bone treats|0.00|0.00|0.00|0.00|0.00|3.00", oil + "|0.00|0.00|0.00|0.00|2.50|0.00"};
        QTest::newRow("goods by day from the 4th") << 0 << "Daily" << anchor << anchor << ""
                                                   << QStringList{oil + "|0.00|0.00|0.00|0.00|0.00|1.50"};
        QTest::newRow("goods by day from the 6th")
            << 0 << "Daily" << QDate(2024, 3, 6) << anchor << ""
            << QStringList{"Bone Treats|0.00|0.00|1.00|2.00|0.00|0.00", "Cat Food|0.00|0.00|0.00|1.00|0.00|0.00",
                           "Cat Food|1.00|0.00|0.00|0.00|0.00|0.00", "Zeta_Brush \\ O'Neil|0.00|0.00|0.00|1.00|0.00|0.00",
                           "bone treats|3.00|0.00|0.00|0.00|0.00|0.00"};
        QTest::newRow("consultations counted") << 2 << "Daily" << QDate(2024, 3, 6) << anchor << ""
                                               << QStringList{"Consultation|0.00|1.00|0.00|1.00|0.00|0.00"};
        QTest::newRow("medication summed") << 6 << "Daily" << QDate(2024, 3, 6) << anchor << ""
                                           << QStringList{"Ketamine|0.00|0.00|0.00|0.50|0.00|0.00"};
        QTest::newRow("purchases: the start day left out, a client's lines added up")
            << 11 << "" << QDate(2024, 3, 1) << anchor << ""
            << QStringList{"Smith  Mr J.|1|Goods|Bone Treats|3", "Smith  Mr J.|1|Goods|Cat Food|1",
                           "Smith  Mr J.|1|Medication|Ketamine|0.5"};
        const QString doctor = "Van Der Merwe  Dr K.|3|";
        const QString merwe = "van der Merwe  Mrs A.B.|2|";
        const QString austria = QString::fromUtf8("Östreich  Ms Ö.|4|");
        QTest::newRow("purchases: by description and quantity, ties by account")
            << 11 << "" << QDate(2024, 1, 18) << anchor << ""
            << QStringList{doctor + "Lab|Blood Panel|1", "Taba  Mr T.|7|Goods|Bone Treats|1", "Smith  Mr J.|1|Goods|Bone Treats|3",
                           austria + "Goods|Bone Treats|3", "Smith  Mr J.|1|Goods|Cat Food|1", merwe + "Goods|Cat Food|1",
                           "Smith  Mr A.|8|Goods|Cat Food|2", merwe + "Vaccination|DHPP|1", "Smith  Mr J.|1|Medication|Ketamine|0.5",
                           doctor + "Goods|Odd Code|2", austria + "Injection|Rabies Inj|1", merwe + "Goods|bone treats|3",
                           doctor + "Goods|" + oil + "|1"};
        QTest::newRow("purchases: no invoice in the journal") << 11 << "" << all << anchor
                                                              << "DELETE FROM Journal WHERE Description IN ('I','RF')"
                                                              << QStringList{};
        QTest::newRow("purchases: end before start") << 11 << "" << anchor << all << "" << QStringList{};
        // An invoice with an 'I' and an 'RF' entry counts twice; pending invoices and unknown vets not at all.
        QTest::newRow("commission") << 21 << "" << all << anchor << ""
                                    << QStringList{QString::fromUtf8("Ännie Smit|148.00|14.80"), "Bob O'Brien|100.99|12.62"};
        QTest::newRow("commission: both dates included")
            << 21 << "" << QDate(2024, 3, 1) << anchor << ""
            << QStringList{QString::fromUtf8("Ännie Smit|50.00|5.00"), "Bob O'Brien|40.99|5.12"};
        QTest::newRow("personnel by name, then the grand total")
            << 22 << "" << all << anchor << ""
            << QStringList{"Bob O'Brien|100.99|0.00|0.00|0.00|35.00|500.00|85.01|0.00|0.00|721.00",
                           QString::fromUtf8("Ännie Smit|148.00|80.00|45.00|120.00|0.00|0.00|0.00|1800.00|90.00|2283.00"),
                           "Grand Total||||||||||3004.00"};
        QTest::newRow("personnel: end before start") << 22 << "" << anchor << all << ""
                                                     << QStringList{"Grand Total||||||||||0.00"};
    }

    void reports()
    {
        QFETCH(int, index);
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QString, setup);
        QFETCH(QStringList, rows);
        QVERIFY(seed(anchor) && addSales() && prepare(setup.isEmpty() ? QStringList() : QStringList{setup}));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, start, end, mode.isEmpty() ? QVariantList() : QVariantList{mode});
        const QMap<int, QString> layouts{
            {11, "Client/200/auto|Acc No./80/auto|Category/80/auto|Description/300/auto|Quantity/120/right"},
            {21, "Sales Person/150/auto|Total Sales./150/auto|Commission/150/right"},
            {22, "Personnel/100/auto|Goods/75/auto|Hospital/75/right|Consult/75/right|Diagnosis/75/right|"
                 "Injection/75/right|Lab/75/right|Medication/75/right|Proc/75/right|Vaccination/75/right|"
                 "Total Sales./80/right"}};
        QCOMPARE(columns(admin).join('|'), layouts.value(index, columns(admin).join('|')));
        QCOMPARE(ReportPractice::rows(admin), table(rows));
        QVERIFY(!QApplication::overrideCursor());
    }

    void performanceIsThePerProductStatements_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QDate>("start");
        QTest::newRow("daily") << "Daily" << QDate(2024, 3, 6);
        QTest::newRow("monthly") << "Monthly" << anchor;
    }

    // Every category, with codes that differ only by case or a trailing blank (one code on
    // MariaDB), codes holding LIKE's wildcards, and a date with a time.
    void performanceIsThePerProductStatements()
    {
        QFETCH(QString, mode);
        QFETCH(QDate, start);
        QVERIFY(seed(anchor) && addSales());
        QVERIFY(insert("InvoiceItem", {"InvoiceNumber", "MyDate", "Category", "Code", "Quantity"},
                    {{3001, "2024-03-04", "Goods", "3 ", 4.0}, {3001, "2024-03-02", "Goods", "4 ", 64.0},
                     {3001, "2024-03-04", "Goods", "x'9\\_%", 8.0}, {3001, "2024-03-02", "Goods", "X'9\\__", 16.0},
                     {3001, "2024-03-04", "Lab", "50", 0.25}, {3001, "2024-03-02 10:00", "Medication", "21", 32.0}}));
        Admin *admin = TestSupport::makeAdmin();
        for (int index = 0; index < 9; ++index) {
            process(admin, index, start, start, {mode});
            const QString category = Utility::categories().at(index);
            const bool counted = QStringList{"Consult", "Diagnosis", "Proc"}.contains(category);
            QCOMPARE(ReportPractice::rows(admin), perProductRows(admin, category, !counted));
        }
    }

    void failedStatement_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("dropped");
        QTest::newRow("performance") << 0 << "InvoiceItem";
        QTest::newRow("client purchases") << 11 << "Patient";
        QTest::newRow("commission") << 21 << "Operators";
        QTest::newRow("personnel performance") << 22 << "Journal";
    }

    // The error is shown, the report keeps its titles and stops, and the cursor is back.
    void failedStatement()
    {
        QFETCH(int, index);
        QFETCH(QString, dropped);
        QVERIFY(seed(anchor) && TestSupport::exec("DROP TABLE " + dropped));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, anchor, anchor, {"Monthly"});
        QCOMPARE(TestSupport::prompter()->last().caption, QString("Quorel Database Error"));
        QVERIFY(!titles(admin).isEmpty() && ReportPractice::rows(admin).isEmpty() && !QApplication::overrideCursor());
    }

    void modeCancelledKeepsTheList()
    {
        QVERIFY(seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, 0, QDate(2024, 3, 6), anchor, {"Daily"});
        const Rows before = ReportPractice::rows(admin);
        const QStringList layout = columns(admin);
        process(admin, 0, anchor, anchor, {QVariant()});
        QVERIFY(before.size() == 5 && !QApplication::overrideCursor());
        QCOMPARE(ReportPractice::rows(admin), before);
        QCOMPARE(columns(admin), layout);
    }
};

QTEST_MAIN(SalesReportsTest)
#include "tst_salesreports.moc"
