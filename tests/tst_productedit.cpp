// Adding, modifying and deleting products: code allocation, the checks and confirmations, the
// statements' effect on the category table, the cascade into the copying tables, the stock trace
// of a deletion and the re-selection afterwards.
#include "admin.h"
#include "globals.h"
#include "productfixtures.h"
#include "testsupport.h"
#include "utility.h"

#include <QDate>
#include <QtTest>

using namespace ProductFixtures;
using TestSupport::ScriptedPrompter;

namespace {

enum Answer { Yes = 0, No = 1 };

const QString NoSupplierText = "<font color=\"red\">No supplier has been selected.</font><p>This is not "
                               "recommended and may cause problems with reports and orders.<p>Do you wish "
                               "to continue ?";

// The form of a new product, as typed.
void typeNewProduct(Admin *admin, const QString &code, const QString &description, const QString &supplier)
{
    Ui::Admin &ui = admin->ui;
    ui.code_tf->setText(code);
    ui.description_tf->setText(description);
    ui.uom_tf->setText("tube");
    ui.markup_tf->setText("2");
    ui.cost_tf->setText("4.5");
    ui.level_tf->setText("3");
    ui.toqty_tf->setText("12");
    ui.onorder_tf->setText("5");
    ui.description_A_tf->setText(description + " (A)");
    ui.uom_A_tf->setText("buis");
    ui.schedule_combo->setCurrentIndex(4);
    ui.supplier_combo->setCurrentIndex(ui.supplier_combo->findText(supplier));
}

QList<QStringList> productRow(const QString &table, const QString &code)
{
    return TestSupport::rows("SELECT Code,Description,Schedule,UnitOfMeasure,Price,MarkUp,Cost,Quantity,ReOrder,"
                             "ToQuantity,OnOrder,Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active "
                             "FROM " + table + " WHERE Code='" + utils->escapeSQL(code, false) + "'");
}

int count(const QString &table)
{
    return TestSupport::value("SELECT COUNT(*) FROM " + table).toInt();
}

// Captions and texts of every box shown so far.
QStringList boxes()
{
    QStringList shown;
    for (const ScriptedPrompter::Call &call : TestSupport::prompter()->calls)
        shown << call.caption + ": " + call.text;
    return shown;
}

bool seedHistory()
{
    return TestSupport::exec("INSERT INTO AutoProc (Description) VALUES ('Spay')")
        && TestSupport::exec("INSERT INTO AutoProcContents (ProcId,Category,Code,Quantity) VALUES "
                             "(1,'Goods','100',1),(1,'Medication','100',2),(1,'Goods','101',3)")
        && TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity,UnitOfMeasure,"
                             "Description,Schedule,Batch) VALUES "
                             "(1,'Goods','100',5,'each','Wormer',1,'B1'),"
                             "(2,'Goods','100',6,'each','Old wormer name',1,'B2'),"
                             "(3,'Medication','100',7,'each','Wormer',1,'B3')")
        && TestSupport::exec("INSERT INTO InvoiceItem (InvoiceNumber,Petnumber,MyDate,Vet,Category,Code,"
                             "Description,Quantity,Price,UnitOfMeasure) VALUES "
                             "(1,1,'2026-02-01','AB','Goods','100','Wormer',1,17.25,'each'),"
                             "(2,1,'2026-02-02','AB','Goods','100','Old wormer name',1,17.25,'each'),"
                             "(3,1,'2026-02-03','AB','Medication','100','Wormer',1,17.25,'each')");
}

QStringList historyCodes()
{
    QStringList codes;
    for (const QString &sql : {QString("SELECT Category,Code FROM AutoProcContents ORDER BY id"),
                               QString("SELECT Category,Code,Description,Schedule,UnitOfMeasure FROM "
                                       "StockTraceItem ORDER BY Batch"),
                               QString("SELECT Category,Code,Description,UnitOfMeasure FROM InvoiceItem "
                                       "ORDER BY InvoiceNumber")})
        for (const QStringList &row : TestSupport::rows(sql))
            codes << row.join('/');
    return codes;
}

} // namespace

class ProductEditTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void codeAllocation_data();
    void codeAllocation();
    void newEntryWritesTheFormWithNoStock();
    void takenCodeIsRefused();
    void declinedOrClosedChangesNothing_data();
    void declinedOrClosedChangesNothing();
    void supplierQuestionOnlyForStockCategories_data();
    void supplierQuestionOnlyForStockCategories();
    void daysToReminderIsWritten_data();
    void daysToReminderIsWritten();
    void modificationWritesTheFormButNotTheStock();
    void modificationCascades_data();
    void modificationCascades();
    void modifyNeedsHighlightAndCodeAndDescription_data();
    void modifyNeedsHighlightAndCodeAndDescription();
    void failedCascadeStopsThere();
    void deletionIsTracedForStockCategories_data();
    void deletionIsTracedForStockCategories();
    void deleteNeedsHighlight();
    void vanishedRowIsNoCrash();
};

void ProductEditTest::codeAllocation_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("allocated");
    QTest::newRow("empty table") << QStringList() << "1";
    QTest::newRow("one above the largest") << QStringList({"7", "1234", "300"}) << "1235";
    QTest::newRow("nine-digit code ignored") << QStringList({"1234", "123456789"}) << "1235";
    QTest::newRow("100000 and above ignored") << QStringList({"5", "100000"}) << "6";
    QTest::newRow("99999 gives 100000") << QStringList({"99999"}) << "100000";
    QTest::newRow("text codes count by their leading number") << QStringList({"abc", "12x", "9"}) << "13";
    QTest::newRow("only text codes") << QStringList({"abc"}) << "1";
}

void ProductEditTest::codeAllocation()
{
    QFETCH(QStringList, codes);
    QFETCH(QString, allocated);
    for (const QString &code : codes)
        QVERIFY(insertProduct("Goods", product(code, "Item " + code)));
    QVERIFY(insertSupplier("Acme Vet"));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    typeNewProduct(admin, QString(), "Fresh item", "Acme Vet");
    TestSupport::prompter()->answer(Yes);

    admin->newEntry();

    QCOMPARE(boxes(), QStringList({"New Entry: Confirm you wish to add product Fresh item with code " + allocated}));
    QCOMPARE(TestSupport::value("SELECT Code FROM Goods WHERE Description='Fresh item'").toString(), allocated);
    QCOMPARE(currentCode(admin), allocated);
    QCOMPARE(admin->ui.code_tf->text(), allocated);
}

void ProductEditTest::newEntryWritesTheFormWithNoStock()
{
    QVERIFY(insertSupplier("O'Hara \\ Sons"));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Medication");
    typeNewProduct(admin, "M'1\\", "Ear drops 'n' wipes \\", "O'Hara \\ Sons");
    admin->ui.quantity_tf->setText("7");
    admin->ui.level_tf->setText("lots"); // no number: written as 0, never as ''
    admin->ui.Tax1_checkBox->setChecked(true);
    admin->ui.active_tb->setChecked(false);
    QCOMPARE(admin->ui.sell_tf->text(), QString("10.35")); // 4.5 x 2 plus VAT
    TestSupport::prompter()->answer(Yes);

    admin->newEntry();

    QCOMPARE(TestSupport::prompter()->calls.size(), 1);
    QCOMPARE(productRow("Medication", "M'1\\"),
             QList<QStringList>({{"M'1\\", "Ear drops 'n' wipes \\", "4", "tube", "10.35", "2", "4.5", "0", "0",
                                  "12", "5", "O'Hara \\ Sons", "Ear drops 'n' wipes \\ (A)", "buis", "Y", "N", "",
                                  "N"}}));
    QCOMPARE(currentCode(admin), QString("M'1\\"));
    QCOMPARE(admin->ui.description_tf->text(), QString("Ear drops 'n' wipes \\"));
}

void ProductEditTest::takenCodeIsRefused()
{
    QVERIFY(insertProduct("Goods", product("1234", "Old pills")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    typeNewProduct(admin, "1234", "New pills", QString(" "));

    admin->newEntry();

    QCOMPARE(TestSupport::prompter()->calls.size(), 1);
    QCOMPARE(TestSupport::prompter()->last().icon, int(Prompter::Warning));
    QCOMPARE(boxes(), QStringList({"New Entry: The product Old pills is already allocated Code 1234"}));
    QCOMPARE(count("Goods"), 1);
}

void ProductEditTest::declinedOrClosedChangesNothing_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("shown");

    const QString add = "New Entry: Confirm you wish to add product Chew toy with code 77";
    const QString modify = "Modify Entry: Confirm that you will update the highlighted entry\nChew toy, Code 77\n"
                           "with the values shown ?";
    const QString remove = "Delete Entry: Confirm that you will delete the highlighted entry\nBone, Code 5\n"
                           "from the system?";
    QTest::newRow("new, declined") << "newEntry" << QList<int>{No}
                                   << QStringList({add, "New Entry: Operation cancelled"});
    QTest::newRow("new, closed") << "newEntry" << QList<int>{}
                                 << QStringList({add, "New Entry: Operation cancelled"});
    QTest::newRow("new, no supplier declined")
        << "newEntry" << QList<int>{Yes, No}
        << QStringList({add, "New Entry: " + NoSupplierText, "New Entry: Operation cancelled"});
    QTest::newRow("modify, declined") << "modifyEntry" << QList<int>{No}
                                      << QStringList({modify, "Modify Entry: Operation cancelled"});
    QTest::newRow("modify, no supplier declined")
        << "modifyEntry" << QList<int>{Yes, No}
        << QStringList({modify, "Modify Entry: " + NoSupplierText, "Modify Entry: Operation cancelled"});
    QTest::newRow("delete, declined") << "deleteEntry" << QList<int>{No}
                                      << QStringList({remove, "Delete Entry: Operation cancelled"});
}

void ProductEditTest::declinedOrClosedChangesNothing()
{
    QFETCH(QString, operation);
    QFETCH(QList<int>, answers);
    QFETCH(QStringList, shown);
    QVERIFY(insertProduct("Goods", product("5", "Bone")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "5"));
    if (operation != "deleteEntry")
        typeNewProduct(admin, "77", "Chew toy", " ");
    const QList<QStringList> before = productRow("Goods", "5");
    for (int answer : answers)
        TestSupport::prompter()->answer(answer);

    QVERIFY(QMetaObject::invokeMethod(admin, operation.toLatin1().constData()));

    QCOMPARE(boxes(), shown);
    QCOMPARE(TestSupport::prompter()->last().icon, int(Prompter::Information));
    QCOMPARE(count("Goods"), 1);
    QCOMPARE(productRow("Goods", "5"), before);
    QCOMPARE(count("StockTrace"), 0);
}

void ProductEditTest::supplierQuestionOnlyForStockCategories_data()
{
    QTest::addColumn<QString>("table");
    for (const QString &table : Utility::categories())
        QTest::newRow(qPrintable(table)) << table;
}

void ProductEditTest::supplierQuestionOnlyForStockCategories()
{
    QFETCH(QString, table);
    const bool service = table == "Consult" || table == "Diagnosis" || table == "Proc";
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, table);
    typeNewProduct(admin, "77", "Chew toy", " ");
    TestSupport::prompter()->answer(Yes);
    TestSupport::prompter()->answer(Yes);

    admin->newEntry();

    QStringList expected{"New Entry: Confirm you wish to add product Chew toy with code 77"};
    if (!service)
        expected << "New Entry: " + NoSupplierText;
    QCOMPARE(boxes(), expected);
    QCOMPARE(TestSupport::value("SELECT Supplier FROM " + table + " WHERE Code='77'").toString(), QString(" "));
}

void ProductEditTest::daysToReminderIsWritten_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("stored");
    QTest::newRow("days") << "42" << 42;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("fraction") << "30.6" << 31;
}

void ProductEditTest::daysToReminderIsWritten()
{
    QFETCH(QString, typed);
    QFETCH(int, stored);
    QVERIFY(insertSupplier("Acme Vet"));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Vaccination");
    typeNewProduct(admin, "9", "Rabies", "Acme Vet");
    admin->ui.dtr_tf->setText(typed);
    TestSupport::prompter()->answer(Yes);

    admin->newEntry();

    QCOMPARE(TestSupport::value("SELECT DaysToReminder FROM Vaccination WHERE Code='9'").toInt(), stored);
    QCOMPARE(currentCode(admin), QString("9"));

    admin->ui.dtr_tf->setText("7");
    TestSupport::prompter()->answer(Yes);
    admin->modifyEntry();
    QCOMPARE(TestSupport::value("SELECT DaysToReminder FROM Vaccination WHERE Code='9'").toInt(), 7);
    QCOMPARE(TestSupport::prompter()->messageTexts().size(), 2);
}

void ProductEditTest::modificationWritesTheFormButNotTheStock()
{
    QVERIFY(insertSupplier("Acme Vet"));
    Product p = product("100", "Wormer");
    p.quantity = 6;
    p.remarks = "Give with food";
    QVERIFY(insertProduct("Goods", p));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "100"));
    typeNewProduct(admin, "100", "Wormer 'plus'", "Acme Vet");
    admin->ui.quantity_tf->setText("50");
    admin->ui.onorder_tf->setText("");
    admin->ui.Tax1_checkBox->setChecked(false);
    TestSupport::prompter()->answer(Yes);

    admin->modifyEntry();

    QCOMPARE(boxes(), QStringList({"Modify Entry: Confirm that you will update the highlighted entry\n"
                                   "Wormer 'plus', Code 100\nwith the values shown ?"}));
    QCOMPARE(productRow("Goods", "100"),
             QList<QStringList>({{"100", "Wormer 'plus'", "4", "tube", "9", "2", "4.5", "6", "3", "12", "0",
                                  "Acme Vet", "Wormer 'plus' (A)", "buis", "N", "N", "Give with food", "Y"}}));
    QCOMPARE(currentCode(admin), QString("100"));
    QCOMPARE(admin->ui.description_tf->text(), QString("Wormer 'plus'"));
}

void ProductEditTest::modificationCascades_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("history");

    // Each row: AutoProcContents, then StockTraceItem, then InvoiceItem.
    QTest::newRow("only the price changed")
        << "100" << "Wormer"
        << QStringList({"Goods/100", "Medication/100", "Goods/101", "Goods/100/Wormer/1/each",
                        "Goods/100/Old wormer name/1/each", "Medication/100/Wormer/1/each", "Goods/100/Wormer/each",
                        "Goods/100/Old wormer name/each", "Medication/100/Wormer/each"});
    QTest::newRow("code and description changed")
        << "200" << "Wormer XL"
        << QStringList({"Goods/200", "Medication/100", "Goods/101", "Goods/200/Wormer XL/1/each",
                        "Goods/100/Old wormer name/1/each", "Medication/100/Wormer/1/each",
                        "Goods/200/Wormer XL/each", "Goods/100/Old wormer name/each",
                        "Medication/100/Wormer/each"});
}

void ProductEditTest::modificationCascades()
{
    QFETCH(QString, code);
    QFETCH(QString, description);
    QFETCH(QStringList, history);
    QVERIFY(insertSupplier("Acme Vet"));
    Product p = product("100", "Wormer");
    p.schedule = 1;
    p.supplier = "Acme Vet";
    QVERIFY(insertProduct("Goods", p));
    QVERIFY(insertProduct("Goods", product("101", "Zinc paste")));
    QVERIFY(seedHistory());
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "100"));
    admin->ui.code_tf->setText(code);
    admin->ui.description_tf->setText(description);
    admin->ui.sell_tf->setText("19.99");
    TestSupport::prompter()->answer(Yes);

    admin->modifyEntry();

    QCOMPARE(TestSupport::prompter()->calls.size(), 1);
    QCOMPARE(historyCodes(), history);
    QCOMPARE(TestSupport::value("SELECT Price FROM Goods WHERE Code='" + code + "'").toDouble(), 19.99);
    QCOMPARE(count("Goods"), 2);
    QCOMPARE(currentCode(admin), code);
    QCOMPARE(listColumn(admin, 1), QStringList({description, "Zinc paste"}));
}

void ProductEditTest::modifyNeedsHighlightAndCodeAndDescription_data()
{
    QTest::addColumn<bool>("highlight");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("shown");
    QTest::newRow("nothing highlighted") << false << "5" << "Bone" << int(Prompter::Warning)
                                         << "Modify Entry: You must highlight an entry to modify";
    QTest::newRow("blank code") << true << QString() << "Bone" << int(Prompter::Critical)
                                << "Modify Entry: You may not have a blank Code or Description";
    QTest::newRow("blank description") << true << "5" << QString() << int(Prompter::Critical)
                                       << "Modify Entry: You may not have a blank Code or Description";
}

void ProductEditTest::modifyNeedsHighlightAndCodeAndDescription()
{
    QFETCH(bool, highlight);
    QFETCH(QString, code);
    QFETCH(QString, description);
    QFETCH(int, icon);
    QFETCH(QString, shown);
    QVERIFY(insertProduct("Goods", product("5", "Bone")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    if (highlight)
        QVERIFY(selectRow(admin, "5"));
    admin->ui.code_tf->setText(code);
    admin->ui.description_tf->setText(description);
    const QList<QStringList> before = productRow("Goods", "5");

    admin->modifyEntry();

    QCOMPARE(boxes(), QStringList({shown}));
    QCOMPARE(TestSupport::prompter()->last().icon, icon);
    QCOMPARE(productRow("Goods", "5"), before);
}

// There are no transactions: what was written stays, nothing after the failure runs.
void ProductEditTest::failedCascadeStopsThere()
{
    QVERIFY(insertSupplier("Acme Vet"));
    Product p = product("100", "Wormer");
    p.schedule = 1;
    p.supplier = "Acme Vet";
    QVERIFY(insertProduct("Goods", p));
    QVERIFY(seedHistory());
    QVERIFY(TestSupport::exec("DROP TABLE StockTraceItem"));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "100"));
    admin->ui.code_tf->setText("200");
    TestSupport::prompter()->answer(Yes);

    admin->modifyEntry();

    ScriptedPrompter *prompter = TestSupport::prompter();
    QCOMPARE(prompter->calls.size(), 2);
    QCOMPARE(prompter->last().icon, int(Prompter::Critical));
    QVERIFY(prompter->last().text.contains("UPDATE StockTraceItem SET Code='200'"));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Goods WHERE Code='200'").toInt(), 1);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM AutoProcContents WHERE Code='200'").toInt(), 1);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM InvoiceItem WHERE Code='200'").toInt(), 0);
    QCOMPARE(listColumn(admin, 0), QStringList({"100"})); // not reloaded
}

void ProductEditTest::deletionIsTracedForStockCategories_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("deleted");
    QTest::addColumn<QString>("reselected");
    QTest::addColumn<bool>("traced");
    QTest::newRow("Goods, the row below is selected") << "Goods" << "2" << "3" << true;
    QTest::newRow("Goods, the last row: the one above") << "Goods" << "3" << "2" << true;
    QTest::newRow("Vaccination") << "Vaccination" << "1" << "2" << true;
    QTest::newRow("Consult: no stock trace") << "Consult" << "2" << "3" << false;
    QTest::newRow("Diagnosis: no stock trace") << "Diagnosis" << "2" << "3" << false;
}

void ProductEditTest::deletionIsTracedForStockCategories()
{
    QFETCH(QString, table);
    QFETCH(QString, deleted);
    QFETCH(QString, reselected);
    QFETCH(bool, traced);
    QVERIFY(insertSupplier("Acme Vet"));
    for (const QString code : {"1", "2", "3"}) {
        Product p = product(code, "Product " + QString(code));
        p.schedule = 2;
        p.unit = "vial";
        p.supplier = "Acme Vet";
        p.quantity = 4;
        QVERIFY(insertProduct(table, p));
    }
    // Earlier movements, so that the key read back is not simply 1.
    QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate,SP,Notes) VALUES ('2026-01-01','Rec','x'),"
                              "('2026-01-02','Rec','y')"));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, table);
    QVERIFY(selectRow(admin, deleted));
    TestSupport::prompter()->answer(Yes);

    admin->deleteEntry();

    QCOMPARE(boxes(), QStringList({"Delete Entry: Confirm that you will delete the highlighted entry\nProduct "
                                   + deleted + ", Code " + deleted + "\nfrom the system?"}));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM " + table + " WHERE Code='" + deleted + "'").toInt(), 0);
    QCOMPARE(count(table), 2);
    QCOMPARE(currentCode(admin), reselected);
    QCOMPARE(admin->ui.code_tf->text(), reselected);
    if (!traced) {
        QCOMPARE(count("StockTrace"), 2);
        QCOMPARE(count("StockTraceItem"), 0);
        return;
    }
    const QList<QStringList> head = TestSupport::rows(
        "SELECT TraceNumber,MyDate,SP,Notes,Supplier,InvoiceNumber,Adjustment FROM StockTrace WHERE SP='Admin'");
    QCOMPARE(head.size(), 1);
    QCOMPARE(head[0].mid(1), QStringList({QDate::currentDate().toString("yyyy-MM-dd"), "Admin",
                                          "Deletion of item from stock.", "Acme Vet", "", "Y"}));
    QCOMPARE(head[0][0], TestSupport::value("SELECT MAX(TraceNumber) FROM StockTrace").toString());
    QCOMPARE(head[0][0], QString("3"));
    // The statement names no Code column: the line carries category, quantity, unit, name and schedule.
    QCOMPARE(TestSupport::rows("SELECT TraceNumber,Category,Code,Quantity,UnitOfMeasure,Description,Schedule,"
                               "Batch FROM StockTraceItem"),
             QList<QStringList>({{head[0][0], table, "", "0", "vial", "Product " + deleted, "2", ""}}));
}

void ProductEditTest::deleteNeedsHighlight()
{
    QVERIFY(insertProduct("Goods", product("5", "Bone")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");

    admin->deleteEntry();

    QCOMPARE(boxes(), QStringList({"Delete Entry: You must highlight an entry to delete"}));
    QCOMPARE(TestSupport::prompter()->last().icon, int(Prompter::Warning));
    QCOMPARE(count("Goods"), 1);
}

// Another program removed the row after it was listed: the statements affect nothing and the list
// is reloaded without it.
void ProductEditTest::vanishedRowIsNoCrash()
{
    QVERIFY(insertProduct("Goods", product("5", "Bone")));
    QVERIFY(insertProduct("Goods", product("6", "Chew")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "5"));
    admin->ui.supplier_combo->setCurrentIndex(0);
    QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='5'"));
    TestSupport::prompter()->answer(Yes);
    TestSupport::prompter()->answer(Yes);

    admin->modifyEntry();

    QCOMPARE(listColumn(admin, 0), QStringList({"6"}));
    QCOMPARE(currentCode(admin), QString());
    QCOMPARE(count("Goods"), 1);

    QVERIFY(selectRow(admin, "6"));
    QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='6'"));
    TestSupport::prompter()->answer(Yes);
    admin->deleteEntry();
    QCOMPARE(admin->ui.list->topLevelItemCount(), 0);
    QCOMPARE(TestSupport::prompter()->pending(), 0);
}

QTEST_MAIN(ProductEditTest)
#include "tst_productedit.moc"
