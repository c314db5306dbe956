// The generated practices of quorel-db, written on each engine: what the program's features and
// the benchmark count on finding in them.
#include "demodata.h"
#include "dialect.h"
#include "globals.h"
#include "schema.h"
#include "testsupport.h"
#include "utility.h"

#include <QSqlDatabase>
#include <QtTest>

namespace {

bool writeShape(const Shape &shape)
{
    // The practice brings its own SysInfo row.
    if (!TestSupport::exec("DELETE FROM SysInfo"))
        return false;
    QString error;
    if (writePractice(QSqlDatabase::database(), TestSupport::engine(), shape, &error))
        return true;
    qWarning("%s", qPrintable(error));
    return false;
}

} // namespace

class DemoDataTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void storedStockIsTheTraceExceptTheSpoiltProducts();
    void practiceAndAdministratorAreThere();
    void everyReferenceResolves_data();
    void everyReferenceResolves();
    void everyJournalKindOccurs();
    void programKeysFollowTheGeneratedRows();
    void benchmarkProductWithMostLinesIsStocked();
    void sameDataEveryRun();
};

void DemoDataTest::storedStockIsTheTraceExceptTheSpoiltProducts()
{
    QVERIFY(writeShape(Shape::demo()));
    QStringList mismatches;
    for (const QString &table : Utility::categories()) {
        for (const QStringList &row : TestSupport::rows("SELECT Code, Quantity FROM " + table)) {
            bool ok = true;
            const double level = utils->getStockLevelFromTrace(row[0], table, &ok);
            QVERIFY(ok);
            if (Utility::numStr(level, 2) != Utility::numStr(row[1].toDouble(), 2))
                mismatches << table + " " + row[0];
        }
    }
    QCOMPARE(mismatches.size(), Shape::demo().wrongStock);
}

void DemoDataTest::practiceAndAdministratorAreThere()
{
    QVERIFY(writeShape(Shape::demo()));
    QVERIFY(utils->initClass(true));
    QCOMPARE(utils->getTax1Name(), QString("VAT"));
    QCOMPARE(utils->getTax1(), 0.15);
    QCOMPARE(utils->getTax2Name(), QString());
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM SysInfo").toInt(), 1);
    QCOMPARE(TestSupport::value("SELECT Tax1Name_A FROM SysInfo").toString(), QString("BTW"));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Operators WHERE Operator='admin' AND id='admin'").toInt(), 1);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Supply WHERE Lab='Y'").toInt(), 1);
}

void DemoDataTest::everyReferenceResolves_data()
{
    QTest::addColumn<QString>("orphans"); // counts rows that refer to nothing

    QTest::newRow("line's vet is an operator's initials")
        << "SELECT COUNT(*) FROM InvoiceItem WHERE Vet NOT IN (SELECT Initials FROM Operators)";
    QTest::newRow("line's invoice") << "SELECT COUNT(*) FROM InvoiceItem WHERE InvoiceNumber NOT IN (SELECT MyNumber FROM Invoice)";
    QTest::newRow("line's product")
        << "SELECT COUNT(*) FROM InvoiceItem i WHERE NOT EXISTS (SELECT 1 FROM Goods p WHERE i.Category='Goods' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Medication p WHERE i.Category='Medication' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Consult p WHERE i.Category='Consult' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Injection p WHERE i.Category='Injection' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Vaccination p WHERE i.Category='Vaccination' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Lab p WHERE i.Category='Lab' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Proc p WHERE i.Category='Proc' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Diagnosis p WHERE i.Category='Diagnosis' AND p.Code=i.Code "
           "UNION ALL SELECT 1 FROM Hospital p WHERE i.Category='Hospital' AND p.Code=i.Code)";
    QTest::newRow("line's animal") << "SELECT COUNT(*) FROM InvoiceItem WHERE Petnumber NOT IN (SELECT PetNumber FROM Patient)";
    QTest::newRow("animal's owner") << "SELECT COUNT(*) FROM Patient WHERE AccountNumber NOT IN (SELECT AccountNumber FROM Owner)";
    QTest::newRow("animal's breed") << "SELECT COUNT(*) FROM Patient WHERE Breed NOT IN (SELECT Description FROM breeds)";
    QTest::newRow("invoice before its client") << "SELECT COUNT(*) FROM Invoice, Owner WHERE Invoice.AccountNumber="
                                                  "Owner.AccountNumber AND Invoice.MyDate < Owner.Created";
    QTest::newRow("trace line's head")
        << "SELECT COUNT(*) FROM StockTraceItem WHERE TraceNumber NOT IN (SELECT TraceNumber FROM StockTrace)";
    QTest::newRow("product's supplier") << "SELECT COUNT(*) FROM Medication WHERE Supplier NOT IN (SELECT Company FROM Supply)";
    QTest::newRow("procedure item's procedure")
        << "SELECT COUNT(*) FROM AutoProcContents WHERE ProcId NOT IN (SELECT Code FROM AutoProc)";
    QTest::newRow("operator's permissions") << "SELECT COUNT(*) FROM Operators WHERE Operator NOT IN "
                                               "(SELECT Operator FROM Permissions WHERE Class='Dispense')";
}

void DemoDataTest::everyReferenceResolves()
{
    QFETCH(QString, orphans);

    QVERIFY(writeShape(Shape::demo()));
    QCOMPARE(TestSupport::value(orphans).toInt(), 0);
}

void DemoDataTest::everyJournalKindOccurs()
{
    QVERIFY(writeShape(Shape::demo()));
    const QList<QStringList> kinds = TestSupport::rows("SELECT DISTINCT Description FROM Journal ORDER BY Description");
    QCOMPARE(kinds, (QList<QStringList>{{"I"}, {"Q"}, {"R"}, {"RF"}, {"VR"}}));
    QVERIFY(TestSupport::value("SELECT COUNT(*) FROM Invoice WHERE Status='P'").toInt() > 0);
    QVERIFY(TestSupport::value("SELECT COUNT(*) FROM Owner WHERE BadDebt='Y'").toInt() > 0);
    QVERIFY(TestSupport::value("SELECT COUNT(*) FROM AutoProcContents WHERE Charge='N'").toInt() > 0);
    // Invoices run up to the last few days (a quiet Sunday may have none).
    const QString last = TestSupport::value("SELECT MAX(MyDate) FROM Invoice").toString();
    QVERIFY(last <= QDate::currentDate().toString("yyyy-MM-dd"));
    QVERIFY(last >= QDate::currentDate().addDays(-7).toString("yyyy-MM-dd"));
}

// The generated rows carry their keys; what the program inserts afterwards must still get fresh ones.
void DemoDataTest::programKeysFollowTheGeneratedRows()
{
    QVERIFY(writeShape(Shape::demo()));
    const int traces = TestSupport::value("SELECT MAX(TraceNumber) FROM StockTrace").toInt();
    const int procs = TestSupport::value("SELECT MAX(Code) FROM AutoProc").toInt();
    QVERIFY(traces > 0 && procs > 0);

    QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                              "VALUES ('2026-03-01','Admin','Deletion of item from stock.','','','Y')"));
    QCOMPARE(TestSupport::value(Dialect::lastTraceNumberQuery()).toInt(), traces + 1);
    QVERIFY(TestSupport::exec("INSERT INTO  AutoProc (Description) VALUES ('Kitten First Visit')"));
    QCOMPARE(TestSupport::value("SELECT Code from AutoProc WHERE Description='Kitten First Visit'").toInt(), procs + 1);
}

void DemoDataTest::benchmarkProductWithMostLinesIsStocked()
{
    QVERIFY(writeShape(Shape::bench(1)));
    const int lines = TestSupport::value("SELECT COUNT(*) FROM InvoiceItem").toInt();
    QVERIFY2(lines > 9000 && lines < 11000, qPrintable(QString::number(lines)));
    const QList<QStringList> top = TestSupport::rows("SELECT Category, Code, COUNT(*) FROM InvoiceItem "
                                                     "GROUP BY Category, Code ORDER BY COUNT(*) DESC");
    QVERIFY(top.size() > 1);
    QCOMPARE(top[0].mid(0, 2), (QStringList{"Medication", "1"}));
    QVERIFY(top[0][2].toInt() > top[1][2].toInt());
    QVERIFY(TestSupport::value("SELECT ReOrder FROM Medication WHERE Code='1'").toDouble() >= 0);
    QVERIFY(TestSupport::value("SELECT COUNT(*) FROM StockTraceItem WHERE Category='Medication' AND Code='1'").toInt() > 1);
}

void DemoDataTest::sameDataEveryRun()
{
    const QString digest = "SELECT COUNT(*), SUM(Quantity), SUM(Price), MIN(MyDate) FROM InvoiceItem";
    QVERIFY(writeShape(Shape::demo()));
    const QList<QStringList> first = TestSupport::rows(digest);
    QString error;
    QVERIFY2(Schema::dropAll(QSqlDatabase::database(), TestSupport::engine(), &error)
                 && Schema::create(QSqlDatabase::database(), TestSupport::engine(), &error),
             qPrintable(error));
    QVERIFY(writeShape(Shape::demo()));
    QCOMPARE(TestSupport::rows(digest), first);
}

QTEST_MAIN(DemoDataTest)
#include "tst_demodata.moc"
