// The stock and activity reports on the seeded practice: stock levels against the stock trace,
// stock values, drug levels, pending invoices and the daily activity.
#include "admin.h"
#include "globals.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QSettings>
#include <QtTest>

using Rows = QList<QStringList>;
using TestSupport::prompter;

namespace {

const QDate anchor(2024, 3, 4);
const QString oil = QString::fromUtf8("Ölfilter 100% \"Shampoo\"");
const QString brush = "Zeta_Brush \\ O'Neil";
const QStringList stockCategories{"Goods", "Hospital", "Lab", "Medication", "Injection", "Vaccination"};

enum Report { StockLevels = 16, StockValues = 17, DailyActivity = 18, PendingInvoices = 19, DrugLevels = 23 };

// Chooses the report with the two dates, queues the answers (a number, a text, or an invalid value
// to cancel) and presses Process.
void process(Admin *admin, int index, const QVariantList &answers = {}, const QDate &start = anchor,
             const QDate &end = anchor)
{
    ReportPractice::choose(admin, index, start, end);
    for (const QVariant &answer : answers) {
        if (!answer.isValid())
            prompter()->cancel();
        else if (answer.typeId() == QMetaType::Int)
            prompter()->answerInt(answer.toInt());
        else
            prompter()->answerText(answer.toString());
    }
    admin->ui.PushButton13->click();
}

// A delivery of 2.004 tins of cat food: the tin's traced level of 1.004 shows as its stored 1.00.
bool addTinDelivery()
{
    return ReportPractice::add("StockTraceItem", {"TraceNumber", "Category", "Code", "Quantity"},
                               {{2, "Goods", "4", 2.004}});
}

QStringList heading(const QString &date, const QString &number, const QString &client, const QString &patient)
{
    return QStringList{date, number, client, patient} + QStringList(5, QString());
}

QStringList line(const QString &vet, const QString &category, const QString &quantity, const QString &unit,
                 const QString &description)
{
    return QStringList(4, QString()) + QStringList{vet, category, quantity, unit, description};
}

QStringList invoices(int count)
{
    return QStringList{"Invoices", QString::number(count)} + QStringList(7, QString());
}

// The client as the owner query of one account gives it.
QString clientOf(const QString &account)
{
    const QStringList owner = TestSupport::rows("SELECT Surname, Title, Initials FROM Owner WHERE AccountNumber="
                                                + account).value(0);
    if (owner.isEmpty())
        return QString();
    const QVariant title = TestSupport::value("SELECT Title FROM Owner WHERE AccountNumber=" + account);
    return Utility::rot13(owner[0]) + (title.isNull() ? QString() : "  " + owner[1] + " " + owner[2]);
}

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

    void stockLevels_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<bool>("analyse");
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QList<int>>("looks");
        QTest::newRow("goods against the trace: ties by code, equal to the cent not marked")
            << "Goods" << true
            << Rows{{"1", "Bone Treats", "pack", "20.00", "10.00", "5.00(3.00)", "50.00"},
                    {"3", "Cat Food", "bag", "30.00", "20.00", "2.00(-1.00)", "40.00"},
                    {"4", "Cat Food", "tin", "31.00", "21.00", "1.00", "21.00"},
                    {"X'9\\_%", "Odd Code", "each", "2.00", "1.00", "1.00(-4.00)", "1.00"},
                    {"6", brush, "each", "5.00", "2.00", "0.00(-1.00)", "0.00"},
                    {"2", "bone treats", "pack", "9.99", "3.34", "3.00(0.00)", "10.01"},
                    {"5", oil, "bottle", "15.00", "7.50", "4.00(-2.00)", "30.00"}}
            << QList<int>{1, 1, 0, 1, 1, 1, 1};
        QTest::newRow("goods without the trace")
            << "Goods" << false
            << Rows{{"1", "Bone Treats", "pack", "20.00", "10.00", "5.00", "50.00"},
                    {"3", "Cat Food", "bag", "30.00", "20.00", "2.00", "40.00"},
                    {"4", "Cat Food", "tin", "31.00", "21.00", "1.00", "21.00"},
                    {"X'9\\_%", "Odd Code", "each", "2.00", "1.00", "1.00", "1.00"},
                    {"6", brush, "each", "5.00", "2.00", "0.00", "0.00"},
                    {"2", "bone treats", "pack", "9.99", "3.34", "3.00", "10.01"},
                    {"5", oil, "bottle", "15.00", "7.50", "4.00", "30.00"}}
            << QList<int>{0, 0, 0, 0, 0, 0, 0};
        QTest::newRow("medication: of an invoice's entries only the charge counts")
            << "Medication" << true
            << Rows{{"20", "Amoxicillin 250mg", "tab", "3.00", "1.50", "40.00(0.00)", "60.00"},
                    {"24", "Diazepam", "tab", "4.00", "2.00", "5.00(0.00)", "10.00"},
                    {"21", "Ketamine", "ml", "25.00", "12.00", "10.50(11.50)", "126.00"},
                    {"22", "Morphine", "amp", "60.00", "30.00", "2.00(-1.00)", "60.00"},
                    {"23", "ketamine", "ml", "24.00", "11.00", "1.00(0.00)", "11.00"},
                    {"25", QString::fromUtf8("Ölbad"), "ml", "6.00", "3.00", "7.00(0.00)", "21.00"}}
            << QList<int>{1, 1, 1, 1, 1, 1};
    }

    void stockLevels()
    {
        QFETCH(QString, category);
        QFETCH(bool, analyse);
        QFETCH(Rows, rows);
        QFETCH(QList<int>, looks);
        QVERIFY(ReportPractice::seed(anchor) && addTinDelivery());
        settings->setValue("/Global/AnalyseProcessStock", analyse);
        Admin *admin = TestSupport::makeAdmin();
        process(admin, StockLevels, {category});
        const TestSupport::ScriptedPrompter::Call asked = prompter()->last();
        QCOMPARE(QStringList({asked.kind, asked.caption, asked.text}),
                 QStringList({"getItem", "Quorel Stock Levels", "Choose a category"}));
        QVERIFY(asked.buttons == stockCategories && asked.defaultIndex == 0 && asked.editable);
        QCOMPARE(ReportPractice::columns(admin),
                 QStringList({"Code/50/auto", "Item/285/auto", "UOM/100/auto", "Price/80/right", "Cost/80/right",
                              "Quantity/80/right", "Value OH/80/right"}));
        QCOMPARE(ReportPractice::rows(admin), rows);
        QCOMPARE(ReportPractice::looks(admin), looks);
        QCOMPARE(admin->report.subtitle, " (" + category + " )");
    }

    // Codes that differ by case or a trailing blank (one code on MariaDB) and a quoted code.
    void stockLevelsAreTheTraceOfEachProduct()
    {
        QVERIFY(ReportPractice::seed(anchor) && addTinDelivery());
        QVERIFY(ReportPractice::add("StockTraceItem", {"TraceNumber", "Category", "Code", "Quantity"},
                                    {{3, "Goods", "1 ", 7.0}, {3, "Goods", "x'9\\_%", 5.0}, {3, "Lab", "50", 3.0}}));
        QVERIFY(ReportPractice::add("InvoiceItem", {"InvoiceNumber", "Category", "Code", "Quantity"},
                                    {{1002, "Goods", "3 ", 0.5}, {1003, "Goods", "X'9\\_%", 1.25}, {1009, "Lab", "50", 1.0}}));
        Admin *admin = TestSupport::makeAdmin();
        for (const QString &category : stockCategories) {
            process(admin, StockLevels, {category});
            Rows expected;
            for (QStringList row : TestSupport::rows("SELECT Code, Quantity FROM " + category
                                                     + " WHERE Active='Y' AND ReOrder <> -1 ORDER BY Description,Code")) {
                bool ok = true;
                const QString traced = Utility::numStr(utils->getStockLevelFromTrace(row[0], category, &ok), 2);
                const QString stored = Utility::numStr(row[1].toDouble(), 2);
                QVERIFY(ok);
                expected << QStringList{row[0], stored == traced ? stored : stored + "(" + traced + ")"};
            }
            Rows shown;
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
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, StockLevels, {typed});
        QCOMPARE(prompter()->messageTexts().size(), 1);
        QCOMPARE(prompter()->last().caption, caption);
        QVERIFY(caption != "Quorel Stock Levels" || prompter()->last().text.contains(typed));
        QCOMPARE(ReportPractice::rows(admin), Rows{});
        QCOMPARE(ReportPractice::titles(admin).size(), 7);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Goods").toInt(), 9);
    }

    void stockValues()
    {
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, StockValues);
        QCOMPARE(ReportPractice::columns(admin), QStringList({"Category/100/auto", "Value OH/100/right"}));
        QCOMPARE(ReportPractice::rows(admin), (Rows{{"Goods", "152.01"}, {"Hospital", "0.00"}, {"Lab", "0.00"},
                                                    {"Medication", "288.00"}, {"Injection", "90.00"},
                                                    {"Vaccination", "480.00"}}));
    }

    void drugLevels_data()
    {
        QTest::addColumn<int>("schedule");
        QTest::addColumn<Rows>("rows");
        const Rows six{{"21", "Ketamine", "ml", "6", "10.50", ""}, {"23", "ketamine", "ml", "6", "1.00", ""},
                       {"25", QString::fromUtf8("Ölbad"), "ml", "6", "7.00", ""}, {"22", "Morphine", "amp", "7", "2.00", ""}};
        QTest::newRow("from 0: every active one, by schedule and name")
            << 0 << Rows{{"20", "Amoxicillin 250mg", "tab", "0", "40.00", ""}, {"24", "Diazepam", "tab", "5", "5.00", ""}} + six;
        QTest::newRow("from 6") << 6 << six;
        QTest::newRow("from 7") << 7 << six.mid(3);
    }

    void drugLevels()
    {
        QFETCH(int, schedule);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, DrugLevels, {schedule});
        const TestSupport::ScriptedPrompter::Call asked = prompter()->last();
        QCOMPARE(QStringList({asked.kind, asked.caption, asked.text}),
                 QStringList({"getInt", "Drug Report", "Enter minimum Schedule no."}));
        QCOMPARE(asked.range, QList<int>({6, 0, 7, 1}));
        QCOMPARE(ReportPractice::columns(admin), QStringList({"Code/50/auto", "Item/285/auto", "UOM/100/auto",
                                                             "Schedule/80/auto", "Quantity/80/right", "Value OH/80/right"}));
        QCOMPARE(ReportPractice::rows(admin), rows);
    }

    void cancelled_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<bool>("kept");
        QTest::newRow("drug levels keep the list") << int(DrugLevels) << QVariant(7) << true;
        QTest::newRow("stock levels leave it empty") << int(StockLevels) << QVariant("Injection") << false;
    }

    void cancelled()
    {
        QFETCH(int, index);
        QFETCH(QVariant, first);
        QFETCH(bool, kept);
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, index, {first});
        const Rows before = ReportPractice::rows(admin);
        process(admin, index, {QVariant()});
        QVERIFY(before.size() == 1 && !QApplication::overrideCursor());
        QCOMPARE(ReportPractice::rows(admin), kept ? before : Rows{});
        QCOMPARE(ReportPractice::titles(admin).size(), kept ? 6 : 7);
    }

    void pendingInvoices()
    {
        QVERIFY(ReportPractice::seed(anchor));
        QVERIFY(ReportPractice::add("Owner", {"AccountNumber", "Title", "Initials", "Surname"},
                                    {{9, QVariant(), "Q.", "Abobql"}, {10, "Dr", QString::fromUtf8("Ж."), "Πέτρος"}}));
        QVERIFY(ReportPractice::add("Invoice", {"MyNumber", "AccountNumber", "MyDate", "Status"},
                                    {{1011, 9, "2024-03-04", "P"}, {1012, 10, "2024-03-04", "P"}, {1013, 1, "2024-03-04", "P"},
                                     {1014, 10, "2024-03-04", "I"}}));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, PendingInvoices);
        QCOMPARE(ReportPractice::columns(admin), QStringList({"Client/200/auto", "Acc No./80/auto", "Invoice No./80/auto"}));
        const Rows rows = ReportPractice::rows(admin);
        QCOMPARE(rows, (Rows{{"Smith  Mr J.", "1", "1009"}, {"Smith  Mr J.", "1", "1013"}, {"Nobody", "9", "1011"},
                             {QString::fromUtf8("Πέτρος  Dr Ж."), "10", "1012"}, {"", "99", "1008"}}));
        Rows perInvoice;
        for (const QStringList &invoice : TestSupport::rows("SELECT DISTINCT AccountNumber,MyNumber FROM Invoice "
                                                            "WHERE Status='P' ORDER BY AccountNumber,MyNumber"))
            perInvoice << QStringList{clientOf(invoice[0]), invoice[0], invoice[1]};
        QCOMPARE(rows, perInvoice);
    }

    void dailyActivity_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QString>("unit"); // of "/Global/Weight", when set
        QTest::addColumn<Rows>("rows");
        QTest::newRow("by date and number, lines by category and name")
            << QDate(2024, 2, 29) << QDate(2024, 3, 1) << ""
            << Rows{heading("2024-02-29", "1003", "Van Der Merwe  Dr K.", QString::fromUtf8("Ölli, 12.345 Kg, MN, Dachshund")),
                    line("AS", "Goods", "2.00", "each", "Odd Code"), line("AS", "Goods", "1.00", "bottle", oil),
                    line("BB", "Lab", "1.00", "test", "Blood Panel"), line("AS", "Proc", "1.00", "each", "Spay"),
                    heading("2024-02-29", "1010", "Smith  Mr A.", "Tom, 5 Kg, M, Tabby"),
                    line("BB", "Goods", "2.00", "bag", "Cat Food"),
                    heading("2024-03-01", "1002", "van der Merwe  Mrs A.B.", "Misty, 4.25 Kg, F, Siamese"),
                    line("BB", "Goods", "1.00", "tin", "Cat Food"), line("BB", "Goods", "3.00", "pack", "bone treats"),
                    line("AS", "Vaccination", "1.00", "dose", "DHPP"), invoices(3)};
        QTest::newRow("one day, an invoice without a client")
            << anchor << anchor << ""
            << Rows{heading("2024-03-04", "1001", "Smith  Mr J.", "Rex, 32.5 Kg, M, Labrador"),
                    line("AS", "Consult", "1.00", "each", "Consultation"), line("AS", "Goods", "2.00", "pack", "Bone Treats"),
                    line("AS", "Goods", "1.00", "bag", "Cat Food"), line("BB", "Medication", "0.50", "ml", "Ketamine"),
                    heading("2024-03-04", "1008", "", "Stray, 6 Kg, F, Unknown"), line("AS", "Goods", "1.00", "each", brush),
                    invoices(2)};
        QTest::newRow("the weight unit of the settings")
            << QDate(2024, 3, 3) << QDate(2024, 3, 3) << "lb"
            << Rows{heading("2024-03-03", "1009", "Smith  Mr J.", "Rex, 32.5 lb, M, Labrador"),
                    line("BB", "Goods", "1.00", "pack", "Bone Treats"), invoices(1)};
        QTest::newRow("end before start") << anchor << QDate(2024, 3, 3) << "" << Rows{invoices(0)};
    }

    void dailyActivity()
    {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QString, unit);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        if (!unit.isEmpty())
            settings->setValue("/Global/Weight", unit);
        Admin *admin = TestSupport::makeAdmin();
        process(admin, DailyActivity, {}, start, end);
        QCOMPARE(ReportPractice::columns(admin),
                 QStringList({"Date/90/auto", "Invoice No./80/auto", "Client/200/auto", "Patient/250/auto", "Vet/50/auto",
                              "Category/90/auto", "Quantity/70/right", "UOM/70/auto", "Description/285/auto"}));
        QCOMPARE(ReportPractice::rows(admin), rows);
        QList<int> looks;
        for (const QStringList &row : rows)
            looks << (row[1].isEmpty() || row[0] == "Invoices" ? 0 : 2);
        QCOMPARE(ReportPractice::looks(admin), looks);
    }

    // Every invoice of the practice with its client, patient and lines, one statement each.
    void dailyActivityIsThePerInvoiceStatements()
    {
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        process(admin, DailyActivity, {}, QDate(2021, 1, 1), anchor);
        Rows expected;
        const Rows all = TestSupport::rows("SELECT MyNumber, PetNumber, AccountNumber, MyDate FROM Invoice "
                                           "WHERE MyDate>='2021-01-01' AND MyDate<='2024-03-04' ORDER BY MyDate, MyNumber");
        for (const QStringList &invoice : all) {
            const QStringList pet = TestSupport::rows("SELECT Name,Weight,Sex,Breed FROM Patient WHERE PetNumber="
                                                      + invoice[1]).value(0);
            const QString patient = pet.isEmpty() ? QString()
                                                  : QStringList{pet[0], QString::number(pet[1].toDouble()) + " Kg",
                                                                pet[2], pet[3]}.join(", ");
            expected << heading(invoice[3], invoice[0], clientOf(invoice[2]), patient);
            for (const QStringList &item : TestSupport::rows("SELECT Vet, Category, Quantity, UnitOfMeasure, Description "
                                                             "FROM InvoiceItem WHERE InvoiceNumber=" + invoice[0]
                                                             + " ORDER BY MyDate, Category, Description, Code"))
                expected << line(item[0], item[1], Utility::numStr(item[2].toDouble(), 2), item[3], item[4]);
        }
        QCOMPARE(ReportPractice::rows(admin), expected << invoices(all.size()));
    }

    void failedStatement_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<QString>("dropped");
        QTest::addColumn<Rows>("rows"); // after the second run
        QTest::newRow("stock values: the categories before stay") << int(StockValues) << QVariant() << "Lab"
                                                                  << Rows{{"Goods", "152.01"}, {"Hospital", "0.00"}};
        QTest::newRow("stock levels: the trace") << int(StockLevels) << QVariant("Goods") << "StockTraceItem" << Rows{};
        QTest::newRow("drug levels") << int(DrugLevels) << QVariant(7) << "Medication" << Rows{};
        QTest::newRow("daily activity") << int(DailyActivity) << QVariant() << "InvoiceItem" << Rows{};
        QTest::newRow("pending invoices: the list untouched")
            << int(PendingInvoices) << QVariant() << "Owner" << Rows{{"Smith  Mr J.", "1", "1009"}, {"", "99", "1008"}};
    }

    // Run once, then again with a table gone: the error is shown, the report stops where it was,
    // and the cursor is back.
    void failedStatement()
    {
        QFETCH(int, index);
        QFETCH(QVariant, answer);
        QFETCH(QString, dropped);
        QFETCH(Rows, rows);
        QVERIFY(ReportPractice::seed(anchor));
        Admin *admin = TestSupport::makeAdmin();
        const QVariantList answers = answer.isValid() ? QVariantList{answer} : QVariantList{};
        process(admin, index, answers);
        QVERIFY(!ReportPractice::rows(admin).isEmpty() && TestSupport::exec("DROP TABLE " + dropped));
        process(admin, index, answers);
        QCOMPARE(prompter()->last().caption, QString("Quorel Database Error"));
        QCOMPARE(ReportPractice::rows(admin), rows);
        QVERIFY(!ReportPractice::titles(admin).isEmpty());
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(StockReportsTest)
#include "tst_stockreports.moc"
