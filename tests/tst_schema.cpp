// What the program relies on in the schema of each engine: generated keys, column defaults, the
// column name forms its statements use, numbers written as quoted text, text kept exactly, and a
// drop-and-create that leaves every table empty.
#include "dialect.h"
#include "globals.h"
#include "schema.h"
#include "testsupport.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>
#include <QtTest>

namespace {

const QStringList categories = {"Goods", "Hospital", "Consult", "Diagnosis", "Injection",
                                "Lab", "Medication", "Proc", "Vaccination"};

// The product insert of the entry form, with the values of one product.
QString insertProduct(const QString &table, const QString &code, const QString &description)
{
    return "INSERT INTO " + table + " (Code,Description,Schedule,UnitOfMeasure,"
           "Price,MarkUp,Cost,Quantity,ReOrder,ToQuantity,OnOrder,"
           "Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active) "
           "VALUES ('" + code + "','" + description + "','4','Tablet','11.50','1.5','6.67','0','5','15','0',"
           "'Afrivet Distributors','" + description + " (A)','Tablet','Y','N','','Y')";
}

QStringList presentTables()
{
    QStringList found;
    const QStringList present = QSqlDatabase::database().tables();
    for (const QString &table : Schema::tables()) {
        if (present.contains(table, Qt::CaseInsensitive))
            found << table;
    }
    return found;
}

} // namespace

class SchemaTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void generatedKeysAscendInInsertionOrder_data();
    void generatedKeysAscendInInsertionOrder();
    void traceNumberReadBackIsTheNewHead();
    void newCompositionItemIsChargedByDefault();
    void markupNamesTheMarkUpColumn_data();
    void markupNamesTheMarkUpColumn();
    void daysToReminderOnlyInVaccination_data();
    void daysToReminderOnlyInVaccination();
    void quotedNumbersCompareAsNumbers_data();
    void quotedNumbersCompareAsNumbers();
    void textIsKeptExactly_data();
    void textIsKeptExactly();
    void breedsTakeRowsFromATableModel();
    void dropAllLeavesNoTable();
    void dropAndCreateLeaveAnEmptySchemaNumberingFromOne();
};

void SchemaTest::generatedKeysAscendInInsertionOrder_data()
{
    QTest::addColumn<QString>("insert"); // %1: a text that tells the rows apart
    QTest::addColumn<QString>("keys");   // the keys ordered by that text

    QTest::newRow("StockTrace") << "INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                                   "VALUES ('2026-03-01','Admin','%1','','','Y')"
                                << "SELECT TraceNumber FROM StockTrace ORDER BY Notes";
    QTest::newRow("Permissions") << "INSERT INTO Permissions (Operator, Class, Description) VALUES ('Sarah', 'Utility', '%1')"
                                 << "SELECT keynum FROM Permissions ORDER BY Description";
    QTest::newRow("Supply") << "INSERT INTO  Supply (Company, Contact, Email, Tel, Fax, Cell, PostalAddr, PhysicalAddr, Lab) "
                               "values ('%1','','','','','','','','N')"
                            << "SELECT keynum FROM Supply ORDER BY Company";
    QTest::newRow("AutoProc") << "INSERT INTO  AutoProc (Description) VALUES ('%1')"
                              << "SELECT Code FROM AutoProc ORDER BY Description";
    QTest::newRow("AutoProcContents") << "INSERT into AutoProcContents (Quantity, Category, Code, ProcId) "
                                         "VALUES ('1', 'Goods', '%1', '1')"
                                      << "SELECT id FROM AutoProcContents ORDER BY Code";
    QTest::newRow("breeds") << "INSERT INTO breeds (Description, Description_A) VALUES ('%1', '')"
                            << "SELECT keynum FROM breeds ORDER BY Description";
}

void SchemaTest::generatedKeysAscendInInsertionOrder()
{
    QFETCH(QString, insert);
    QFETCH(QString, keys);

    for (const char *tag : {"a", "b", "c"})
        QVERIFY(TestSupport::exec(insert.arg(tag)));
    const QList<QStringList> rows = TestSupport::rows(keys);
    QCOMPARE(rows.size(), 3);
    QVERIFY(!rows[0][0].isEmpty());
    QVERIFY(rows[0][0].toLongLong() < rows[1][0].toLongLong());
    QVERIFY(rows[1][0].toLongLong() < rows[2][0].toLongLong());
}

// The deletion of a product writes a stock movement head and then its line under the key read
// back by the engine's rule; the line must land under the head just written.
void SchemaTest::traceNumberReadBackIsTheNewHead()
{
    QVERIFY(TestSupport::exec(insertProduct("Medication", "7", "Carprofen 50mg Tabs")));
    QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                              "VALUES ('2026-02-01','Thandi','Stock received','Afrivet Distributors','INV1','N')"));
    QVERIFY(TestSupport::exec("DELETE FROM Medication WHERE Code='7'"));
    QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                              "VALUES ('2026-03-01','Admin','Deletion of item from stock.','Afrivet Distributors','','Y')"));
    const QVariant number = TestSupport::value(Dialect::lastTraceNumberQuery());
    QVERIFY(number.isValid());
    QVERIFY(TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber, Category,Quantity, UnitOfMeasure, Description, "
                              "Schedule, Batch) VALUES ('" + number.toString() + "','Medication','0','Tablet',"
                              "'Carprofen 50mg Tabs','4','')"));
    QCOMPARE(TestSupport::value("SELECT Notes FROM StockTrace WHERE TraceNumber=" + number.toString()).toString(),
             QString("Deletion of item from stock."));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM StockTrace, StockTraceItem "
                                "WHERE StockTrace.TraceNumber=StockTraceItem.TraceNumber AND Adjustment='Y'").toInt(), 1);
}

// A new composition item leaves Charge to the column's default.
void SchemaTest::newCompositionItemIsChargedByDefault()
{
    QVERIFY(TestSupport::exec("INSERT into AutoProcContents (Quantity, Category, Code, ProcId) VALUES ('2', 'Goods', '5', '1')"));
    QCOMPARE(TestSupport::value("SELECT Charge FROM AutoProcContents").toString(), QString("Y"));
}

void SchemaTest::markupNamesTheMarkUpColumn_data()
{
    QTest::addColumn<QString>("table");
    for (const QString &table : categories)
        QTest::newRow(qPrintable(table)) << table;
}

void SchemaTest::markupNamesTheMarkUpColumn()
{
    QFETCH(QString, table);

    QVERIFY(TestSupport::exec(insertProduct(table, "12", "Meloxicam 5mg/ml")));
    QVERIFY(TestSupport::exec("UPDATE " + table + " SET Code='12',Description='Meloxicam 5mg/ml',Schedule='3',"
                              "Price='20.70',Markup='1.800000',Cost='10.00',Active='Y' WHERE Code='12'"));
    QCOMPARE(TestSupport::value("SELECT MarkUp FROM " + table + " WHERE Code='12'").toDouble(), 1.8);
    QCOMPARE(TestSupport::value("SELECT Schedule FROM " + table + " WHERE Code='12'").toInt(), 3);
}

void SchemaTest::daysToReminderOnlyInVaccination_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("has");
    for (const QString &table : categories)
        QTest::newRow(qPrintable(table)) << table << (table == "Vaccination");
}

void SchemaTest::daysToReminderOnlyInVaccination()
{
    QFETCH(QString, table);
    QFETCH(bool, has);

    // The columns as a query sees them (QPSQL's record(table) does not fold the name's case).
    QSqlQuery columns;
    QVERIFY(columns.exec("SELECT * FROM " + table + " WHERE 1=0"));
    QCOMPARE(columns.record().contains("DaysToReminder"), has);
    if (!has)
        return;
    QVERIFY(TestSupport::exec(insertProduct(table, "3", "Rabies Vaccine")));
    // The modify form's statement, without a blank before WHERE.
    QVERIFY(TestSupport::exec("UPDATE Vaccination SET DaysToReminder='1095'WHERE Code='3'"));
    QCOMPARE(TestSupport::value("SELECT DaysToReminder FROM Vaccination WHERE Code='3'").toInt(), 1095);
}

void SchemaTest::quotedNumbersCompareAsNumbers_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("count");

    // The composition item is found by its quantity as the list shows it, with two decimals.
    QTest::newRow("quantity shown with two decimals")
        << "SELECT COUNT(*) FROM AutoProcContents WHERE ProcId=4 AND Category='Goods' AND Quantity='2.00' AND Code='5'" << 1;
    QTest::newRow("quantity of another value")
        << "SELECT COUNT(*) FROM AutoProcContents WHERE ProcId=4 AND Quantity='2.50'" << 0;
    QTest::newRow("invoice number quoted")
        << "SELECT COUNT(*) FROM Journal WHERE MyNumber='10001'" << 2;
    QTest::newRow("invoice number joined to its lines")
        << "SELECT COUNT(*) FROM InvoiceItem,Invoice WHERE Category='Goods' AND Code='5'AND Invoice.Mynumber=InvoiceNumber"
        << 1;
    QTest::newRow("account number quoted")
        << "SELECT COUNT(*) FROM Owner WHERE AccountNumber='42'" << 1;
}

void SchemaTest::quotedNumbersCompareAsNumbers()
{
    QFETCH(QString, query);
    QFETCH(int, count);

    QVERIFY(TestSupport::exec("INSERT into AutoProcContents (Quantity, Category, Code, ProcId) VALUES ('2', 'Goods', '5', '4')"));
    QVERIFY(TestSupport::exec("INSERT INTO Owner (AccountNumber, Surname, Created) VALUES (42, 'Obgun', '2025-01-10')"));
    QVERIFY(TestSupport::exec("INSERT INTO Invoice (MyNumber, AccountNumber, PetNumber, MyDate, Status) "
                              "VALUES (10001, 42, 1, '2026-03-02', 'C')"));
    QVERIFY(TestSupport::exec("INSERT INTO InvoiceItem (InvoiceNumber, Petnumber, MyDate, Vet, Category, Code, Description, "
                              "Quantity, Price, UnitOfMeasure) VALUES (10001, 1, '2026-03-02', 'SJ', 'Goods', '5', "
                              "'Nylon Lead 1.2m', 1, 65.55, 'Each')"));
    QVERIFY(TestSupport::exec("INSERT INTO Journal (MyNumber, AccountNumber, MyDate, Description, Amount, Rounding) "
                              "VALUES (10001, 42, '2026-03-02', 'I', 65.55, 0.05), (10001, 42, '2026-03-02', 'R', -65.50, 0)"));
    QCOMPARE(TestSupport::value(query).toInt(), count);
}

void SchemaTest::textIsKeptExactly_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<int>("count");

    QTest::newRow("accents and a four-byte character")
        << QString::fromUtf8("Bêre koel — én 🐾") << QString::fromUtf8("Bêre koel — én 🐾") << 1;
    QTest::newRow("letter case differs") << "Consultation" << "consultation" << 0;
    QTest::newRow("accent differs") << QString::fromUtf8("Chloé") << "Chloe" << 0;
}

void SchemaTest::textIsKeptExactly()
{
    QFETCH(QString, stored);
    QFETCH(QString, asked);
    QFETCH(int, count);

    QVERIFY(TestSupport::exec(insertProduct("Goods", "1", stored)));
    QCOMPARE(TestSupport::value("SELECT Description FROM Goods WHERE Code='1'").toString(), stored);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Goods WHERE Description='" + asked + "'").toInt(), count);
}

// The breeds tab edits the table through a table model: new rows leave the key to the database,
// and edits find their row again.
void SchemaTest::breedsTakeRowsFromATableModel()
{
    QSqlTableModel model;
    model.setTable("breeds");
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());
    const int description = model.fieldIndex("Description");
    QVERIFY(description >= 0);
    QVERIFY(model.insertRows(0, 1));
    QVERIFY(model.setData(model.index(0, description), "Boerboel"));
    QVERIFY2(model.submitAll(), qPrintable(model.lastError().text()));
    QVERIFY(!TestSupport::value("SELECT keynum FROM breeds WHERE Description='Boerboel'").isNull());

    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(0, model.fieldIndex("Description_A")), "Boerboel (SA)"));
    QVERIFY2(model.submitAll(), qPrintable(model.lastError().text()));
    QCOMPARE(TestSupport::rows("SELECT Description, Description_A FROM breeds"),
             (QList<QStringList>{{"Boerboel", "Boerboel (SA)"}}));
}

void SchemaTest::dropAllLeavesNoTable()
{
    QString error;
    QVERIFY2(Schema::dropAll(QSqlDatabase::database(), TestSupport::engine(), &error), qPrintable(error));
    QCOMPARE(presentTables(), QStringList());
    if (TestSupport::engine() == Dialect::PostgreSQL)
        QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM pg_class WHERE relname='stocktrace_seq'").toInt(), 0);
    QVERIFY2(Schema::dropAll(QSqlDatabase::database(), TestSupport::engine(), &error), qPrintable(error));
    QVERIFY2(Schema::create(QSqlDatabase::database(), TestSupport::engine(), &error), qPrintable(error));
}

void SchemaTest::dropAndCreateLeaveAnEmptySchemaNumberingFromOne()
{
    const QString movement = "INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                             "VALUES ('2026-03-01','Admin','Count','','','Y')";
    QVERIFY(TestSupport::exec(movement));
    QVERIFY(TestSupport::exec(movement));
    QVERIFY(TestSupport::exec(insertProduct("Goods", "1", "Nylon Lead 1.2m")));
    QVERIFY(TestSupport::exec("INSERT INTO breeds (Description, Description_A) VALUES ('Pug', 'Mopshond')"));

    QString error;
    QVERIFY2(Schema::dropAll(QSqlDatabase::database(), TestSupport::engine(), &error), qPrintable(error));
    QVERIFY2(Schema::create(QSqlDatabase::database(), TestSupport::engine(), &error), qPrintable(error));

    QCOMPARE(presentTables(), Schema::tables());
    for (const QString &table : Schema::tables())
        QVERIFY2(TestSupport::value("SELECT COUNT(*) FROM " + table).toInt() == 0, qPrintable(table));
    QVERIFY(TestSupport::exec(movement));
    QCOMPARE(TestSupport::value(Dialect::lastTraceNumberQuery()).toInt(), 1);
}

QTEST_MAIN(SchemaTest)
#include "tst_schema.moc"
