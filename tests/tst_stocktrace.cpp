// The stock level trace of the dispense tab: its figures against the journal rule computed line
// by line, the two boxes, "Adjust", "Trace", and the highlighting switch.
#include "admin.h"
#include "demodata.h"
#include "globals.h"
#include "productfixtures.h"
#include "stockfixtures.h"
#include "testsupport.h"
#include "traceaudit.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QDialog>
#include <QSqlDatabase>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using namespace ProductFixtures;
using TestSupport::ScriptedPrompter;

namespace {
Product stocked(const QString &code, const QString &description, double quantity)
{
    Product p = product(code, description);
    p.quantity = quantity;
    return p;
}

// Goods 7 "Bandage" with 10 received and paid lines of 3 and 2: on hand 5.
bool bandagePractice(double storedQuantity)
{
    using namespace StockFixtures;
    return insertProduct("Goods", stocked("7", "Bandage", storedQuantity)) && received(1, "Goods", "7", 10)
        && invoice(201, "P") && line(201, "Goods", "7", 3) && invoice(202, "") && line(202, "Goods", "7", 2)
        && journal(202, "I");
}

Admin *showProduct(const QString &table, const QString &code)
{
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, table);
    return selectRow(admin, code) ? admin : nullptr;
}
} // namespace

class StockTraceTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void figuresEqualTheLineByLineJournalRule_data();
    void figuresEqualTheLineByLineJournalRule();
    void everyProductOfAPracticeAgrees();
    void boxFollowsTheShownStockLevel_data();
    void boxFollowsTheShownStockLevel();
    void adjustWritesOnlyThatProductsQuantity();
    void closeChangesNothing();
    void traceOpensTheAuditOfTheProduct();
    void nothingWithoutACurrentRow();
    void highlightSwitchReloadsTheList();
};

void StockTraceTest::figuresEqualTheLineByLineJournalRule_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("code");
    QTest::addColumn<double>("received");
    QTest::addColumn<double>("dispensed");
    QTest::newRow("pending, I twice, RF, ignored kinds") << "Goods" << "1" << 12.5 << 12.0;
    QTest::newRow("no trace lines") << "Goods" << "2" << 0.0 << 3.0;
    QTest::newRow("nothing dispensed") << "Goods" << "3" << 4.0 << 0.0;
    QTest::newRow("same code in another table") << "Medication" << "1" << 100.0 << 1.0;
    QTest::newRow("no movement at all") << "Goods" << "99" << 0.0 << 0.0;
}

// The one statement must give what the journal query per unpaid line gives, on every engine;
// getStockLevelFromTrace and the trace's box show the same figures.
void StockTraceTest::figuresEqualTheLineByLineJournalRule()
{
    QFETCH(QString, table);
    QFETCH(QString, code);
    QFETCH(double, received);
    QFETCH(double, dispensed);
    QVERIFY(StockFixtures::trickyPractice());
    double loopIn = -1, loopOut = -1;
    QVERIFY(StockFixtures::describedLoop(code, table, &loopIn, &loopOut));
    QCOMPARE(loopIn, received);
    QCOMPARE(loopOut, dispensed);

    QSqlQuery query;
    double setIn = -1, setOut = -1;
    QVERIFY2(Utility::stockFigures(query, code, table, &setIn, &setOut), qPrintable(query.lastError().text()));
    QCOMPARE(setIn, loopIn);
    QCOMPARE(setOut, loopOut);
    bool ok = true;
    QCOMPARE(utils->getStockLevelFromTrace(code, table, &ok), loopIn - loopOut);
    QVERIFY(ok);

    Product p = stocked(code, "Traced", 0);
    QVERIFY(insertProduct(table, p));
    Admin *admin = showProduct(table, code);
    QVERIFY(admin);
    admin->stockLevelTrace();
    const ScriptedPrompter::Call &box = TestSupport::prompter()->last();
    QVERIFY(box.text.endsWith(QString("Received: %1\nDispensed: %2\nOn Hand: %3")
                                  .arg(Utility::numStr(received, 2), Utility::numStr(dispensed, 2),
                                       Utility::numStr(received - dispensed, 2))));
}

// Over a whole generated practice: for every listed product the trace's box, the silent level that
// the highlighting uses and the journal query per line give the same stock on hand.
void StockTraceTest::everyProductOfAPracticeAgrees()
{
    QVERIFY(TestSupport::exec("DELETE FROM SysInfo"));
    QString error;
    QVERIFY2(writePractice(QSqlDatabase::database(), TestSupport::engine(), Shape::demo(), &error), qPrintable(error));
    Admin *admin = TestSupport::makeAdmin();
    ScriptedPrompter *prompter = TestSupport::prompter();
    int checked = 0;
    for (const QString &table : Utility::categories()) {
        showCategory(admin, table);
        for (const QString &code : listColumn(admin, 0)) {
            QVERIFY(selectRow(admin, code));
            prompter->answer(0);
            admin->stockLevelTrace();
            const QString shown = prompter->last().text.section("On Hand: ", 1);
            bool ok = true;
            const double level = utils->getStockLevelFromTrace(code, table, &ok);
            double received = 0, dispensed = 0;
            QVERIFY(StockFixtures::describedLoop(code, table, &received, &dispensed));
            QCOMPARE(Utility::numStr(level, 2), shown);
            QCOMPARE(Utility::numStr(received - dispensed, 2), shown);
            ++checked;
        }
    }
    QVERIFY(checked > 50);
}

void StockTraceTest::boxFollowsTheShownStockLevel_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("buttons");
    QTest::newRow("agrees") << 5.0 << int(Prompter::Information)
                            << "7 - Bandage \nReceived: 10.00\nDispensed: 5.00\nOn Hand: 5.00"
                            << QStringList{"Close", "Trace"};
    QTest::newRow("differs") << 6.0 << int(Prompter::Warning)
                             << "Stock Level Calculation Mismatch\n7 - Bandage \nReceived: 10.00\n"
                                "Dispensed: 5.00\nOn Hand: 5.00"
                             << QStringList{"Close", "Trace", "Adjust"};
}

void StockTraceTest::boxFollowsTheShownStockLevel()
{
    QFETCH(double, stored);
    QFETCH(int, icon);
    QFETCH(QString, text);
    QFETCH(QStringList, buttons);
    QVERIFY(bandagePractice(stored));
    Admin *admin = showProduct("Goods", "7");
    QVERIFY(admin);
    ScriptedPrompter *prompter = TestSupport::prompter();
    const int before = prompter->calls.size();
    prompter->answer(0);
    admin->stockLevelTrace();
    QCOMPARE(prompter->calls.size(), before + 1);
    const ScriptedPrompter::Call &box = prompter->last();
    QCOMPARE(box.kind, QString("message"));
    QCOMPARE(box.icon, icon);
    QCOMPARE(box.caption, QString("Stock level Calculation"));
    QCOMPARE(box.text, text);
    QCOMPARE(box.buttons, buttons);
    QCOMPARE(box.defaultIndex, 0);
    QVERIFY(!QApplication::overrideCursor());
}

void StockTraceTest::adjustWritesOnlyThatProductsQuantity()
{
    QVERIFY(bandagePractice(8));
    QVERIFY(insertProduct("Goods", stocked("8", "Gauze", 8)));
    QVERIFY(insertProduct("Medication", stocked("7", "Same code elsewhere", 8)));
    Admin *admin = showProduct("Goods", "7");
    QVERIFY(admin);
    TestSupport::prompter()->answer(2);
    admin->stockLevelTrace();
    QCOMPARE(admin->ui.quantity_tf->text(), QString("5.00"));
    QCOMPARE(baseColour(admin->ui.quantity_tf), QColor(0, 0, 255));
    auto goods = [](const QString &column, const QString &code) {
        return TestSupport::value("SELECT " + column + " FROM Goods WHERE Code='" + code + "'");
    };
    QCOMPARE(goods("Quantity", "7").toDouble(), 5.0);
    QCOMPARE(goods("Price", "7").toDouble(), 17.25);
    QCOMPARE(goods("Cost", "7").toDouble(), 10.0);
    QCOMPARE(goods("Description", "7").toString(), QString("Bandage"));
    QCOMPARE(goods("Quantity", "8").toDouble(), 8.0);
    QCOMPARE(TestSupport::value("SELECT Quantity FROM Medication WHERE Code='7'").toDouble(), 8.0);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM StockTrace").toInt(), 1); // no trace record for it
}

void StockTraceTest::closeChangesNothing()
{
    QVERIFY(bandagePractice(8));
    Admin *admin = showProduct("Goods", "7");
    QVERIFY(admin);
    TestSupport::prompter()->answer(0);
    admin->stockLevelTrace();
    QCOMPARE(admin->ui.quantity_tf->text(), QString("8.00"));
    QCOMPARE(TestSupport::value("SELECT Quantity FROM Goods WHERE Code='7'").toDouble(), 8.0);
}

void StockTraceTest::traceOpensTheAuditOfTheProduct()
{
    QVERIFY(bandagePractice(5));
    Admin *admin = showProduct("Goods", "7");
    QVERIFY(admin);
    ScriptedPrompter *prompter = TestSupport::prompter();
    prompter->answer(1);
    QStringList totals;
    int rowCount = -1;
    prompter->answerDialog([&](QDialog *dialog) {
        rowCount = dialog->findChild<QTreeWidget *>("audit_list")->topLevelItemCount();
        for (const char *name : {"received_lab", "dispensed_lab", "onhand_lab"})
            totals << dialog->findChild<QLabel *>(name)->text();
        return int(QDialog::Rejected);
    });
    admin->stockLevelTrace();
    QCOMPARE(prompter->last().kind, QString("exec"));
    QCOMPARE(prompter->last().dialogName, QString("TraceAudit"));
    QCOMPARE(rowCount, 3);
    QCOMPARE(totals, (QStringList{"Received: 10.00", "Dispensed: 5.00", "On Hand: 5.00"}));
}

void StockTraceTest::nothingWithoutACurrentRow()
{
    QVERIFY(bandagePractice(5));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    admin->ui.list->setCurrentItem(nullptr);
    const int before = TestSupport::prompter()->calls.size();
    admin->stockLevelTrace();
    QCOMPARE(TestSupport::prompter()->calls.size(), before);
}

// The box reloads the category at once: a product added meanwhile appears, and the looks follow
// the box (2 marks a stock level that disagrees with the trace).
void StockTraceTest::highlightSwitchReloadsTheList()
{
    QVERIFY(bandagePractice(8));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.checkBox9->setChecked(false);
    showCategory(admin, "Goods");
    QCOMPARE(listColumn(admin, 0), QStringList{"7"});
    QVERIFY(insertProduct("Goods", stocked("9", "Zinc cream", 0)));
    admin->ui.checkBox9->setChecked(true);
    QCOMPARE(listColumn(admin, 0), (QStringList{"7", "9"}));
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "7"))->altVisual(), 2);
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "9"))->altVisual(), 0);
    admin->ui.checkBox9->setChecked(false);
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "7"))->altVisual(), 0);
}

QTEST_MAIN(StockTraceTest)
#include "tst_stocktrace.moc"
