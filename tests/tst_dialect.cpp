// What differs by engine: the rules chosen by the exact text of "/Global/DBDriver", the driver
// and connect options handed to Qt, and, on the live engine, that the chosen forms work there.
#include "dialect.h"
#include "globals.h"
#include "testsupport.h"

#include <QSettings>
#include <QSqlDatabase>
#include <QtTest>

namespace {
const QString driverKey = "/Global/DBDriver";
const QStringList titleParts{"'  '", "Title", "' '", "Initials"};
} // namespace

class DialectTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup();
    void cleanupTestCase() { TestSupport::finish(); }

    void rulesFollowTheSettingsExactText_data();
    void rulesFollowTheSettingsExactText();
    void noSettingsStoreMeansMySql();
    void connectOptionsGoToMySqlOnly_data();
    void connectOptionsGoToMySqlOnly();
    void connectedEngineFollowsTheConnection();
    void concatenationFormConcatenatesOnItsEngine_data();
    void concatenationFormConcatenatesOnItsEngine();
    void pipesConcatenateOnMySqlWhateverItsSqlMode();
    void lastTraceNumberIsTheNewMovement_data();
    void lastTraceNumberIsTheNewMovement();

private:
    QString engineSetting; // what initEngine() wrote, restored after every case
};

void DialectTest::initTestCase()
{
    QVERIFY(TestSupport::initEngine());
    engineSetting = settings->value(driverKey).toString();
    QVERIFY(!engineSetting.isEmpty());
}

void DialectTest::cleanup()
{
    settings->setValue(driverKey, engineSetting);
    TestSupport::cleanup();
}

void DialectTest::rulesFollowTheSettingsExactText_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<int>("engine");
    QTest::addColumn<QString>("concat");
    QTest::addColumn<QString>("lastKey");
    QTest::addColumn<QString>("qtDriver");

    const QString function = "CONCAT('  ',Title,' ',Initials)";
    const QString pipes = "'  '||Title||' '||Initials";
    const QString mysqlKey = "SELECT LAST_INSERT_ID()";
    const QString sqliteKey = "SELECT LAST_INSERT_ROWID()";
    const QString sequenceKey = "SELECT LAST_VALUE FROM stocktrace_seq";

    QTest::newRow("no entry") << false << "" << int(Dialect::MySQL) << function << mysqlKey << "QMYSQL";
    QTest::newRow("QMYSQL3") << true << "QMYSQL3" << int(Dialect::MySQL) << function << mysqlKey << "QMYSQL";
    QTest::newRow("QSQLITE") << true << "QSQLITE" << int(Dialect::SQLite) << pipes << sqliteKey << "QSQLITE";
    QTest::newRow("QPSQL7") << true << "QPSQL7" << int(Dialect::PostgreSQL) << pipes << sequenceKey << "QPSQL";
    QTest::newRow("QPSQL") << true << "QPSQL" << int(Dialect::PostgreSQL) << pipes << sequenceKey << "QPSQL";
    // Anything but the exact texts takes the PostgreSQL rules, Qt 6's own MySQL name included.
    QTest::newRow("QMYSQL") << true << "QMYSQL" << int(Dialect::PostgreSQL) << pipes << sequenceKey << "QMYSQL";
    QTest::newRow("lower case") << true << "qmysql3" << int(Dialect::PostgreSQL) << pipes << sequenceKey << "qmysql3";
    QTest::newRow("trailing blank") << true << "QSQLITE " << int(Dialect::PostgreSQL) << pipes << sequenceKey << "QSQLITE ";
    QTest::newRow("empty entry") << true << "" << int(Dialect::PostgreSQL) << pipes << sequenceKey << "";
}

void DialectTest::rulesFollowTheSettingsExactText()
{
    QFETCH(bool, present);
    QFETCH(QString, setting);
    QFETCH(int, engine);
    QFETCH(QString, concat);
    QFETCH(QString, lastKey);
    QFETCH(QString, qtDriver);

    if (present)
        settings->setValue(driverKey, setting);
    else
        settings->remove(driverKey);

    QCOMPARE(int(Dialect::engine()), engine);
    QCOMPARE(Dialect::isMySqlSetting(), engine == Dialect::MySQL);
    QCOMPARE(Dialect::concat(titleParts), concat);
    QCOMPARE(Dialect::lastTraceNumberQuery(), lastKey);
    QCOMPARE(Dialect::qtDriverName(Dialect::driverSetting()), qtDriver);
}

void DialectTest::noSettingsStoreMeansMySql()
{
    QSettings *kept = settings;
    settings = nullptr;
    const QString setting = Dialect::driverSetting();
    const QString concat = Dialect::concat(titleParts);
    settings = kept;
    QCOMPARE(setting, QString("QMYSQL3"));
    QCOMPARE(concat, QString("CONCAT('  ',Title,' ',Initials)"));
}

void DialectTest::connectOptionsGoToMySqlOnly_data()
{
    QTest::addColumn<QString>("qtDriver");
    QTest::addColumn<QString>("options");

    QTest::newRow("QMYSQL") << "QMYSQL" << "CLIENT_SSL;CLIENT_IGNORE_SPACE";
    // Qt 6's PostgreSQL driver refuses the MySQL flags as connection info.
    QTest::newRow("QPSQL") << "QPSQL" << "";
    QTest::newRow("QSQLITE") << "QSQLITE" << "";
}

void DialectTest::connectOptionsGoToMySqlOnly()
{
    QFETCH(QString, qtDriver);
    QFETCH(QString, options);

    QCOMPARE(Dialect::connectOptions(qtDriver), options);
}

void DialectTest::connectedEngineFollowsTheConnection()
{
    for (const char *setting : {"QMYSQL3", "QSQLITE", "QPSQL7", "QMYSQL"}) {
        settings->setValue(driverKey, QString::fromLatin1(setting));
        QCOMPARE(int(Dialect::connectedEngine()), int(TestSupport::engine()));
    }
}

void DialectTest::concatenationFormConcatenatesOnItsEngine_data()
{
    QTest::addColumn<QString>("setting");

    // The settings an installation on this engine may carry.
    switch (TestSupport::engine()) {
    case Dialect::MySQL:
        QTest::newRow("QMYSQL3") << "QMYSQL3";
        QTest::newRow("QMYSQL") << "QMYSQL"; // || form: needs PIPES_AS_CONCAT
        break;
    case Dialect::SQLite:
        QTest::newRow("QSQLITE") << "QSQLITE";
        break;
    case Dialect::PostgreSQL:
        QTest::newRow("QPSQL7") << "QPSQL7";
        QTest::newRow("QPSQL") << "QPSQL";
        break;
    }
}

void DialectTest::concatenationFormConcatenatesOnItsEngine()
{
    QFETCH(QString, setting);
    settings->setValue(driverKey, setting);

    QVERIFY(TestSupport::exec("INSERT INTO Owner (AccountNumber, Title, Initials, Surname) "
                              "VALUES (7, 'Dr', 'J.K.', 'Fzvgu')"));
    const QList<QStringList> rows =
        TestSupport::rows("SELECT Surname," + Dialect::concat(titleParts) + " FROM Owner");
    QCOMPARE(rows, QList<QStringList>({{"Fzvgu", "  Dr J.K."}}));
    QCOMPARE(TestSupport::value("SELECT " + Dialect::concat({"'a'", "'1'", "'b'"})).toString(), QString("a1b"));
}

// The session is prepared whatever sql_mode the server starts it with, an empty one included,
// and keeps the modes it had.
void DialectTest::pipesConcatenateOnMySqlWhateverItsSqlMode()
{
    if (TestSupport::engine() != Dialect::MySQL) {
        QCOMPARE(TestSupport::value("SELECT 'a'||'b'").toString(), QString("ab"));
        return;
    }
    const QString original = TestSupport::value("SELECT @@SESSION.sql_mode").toString();
    QSqlDatabase db = QSqlDatabase::database();
    for (const QString mode : {"", "STRICT_TRANS_TABLES", "PIPES_AS_CONCAT"}) {
        QVERIFY(TestSupport::exec("SET SESSION sql_mode='" + mode + "'"));
        Dialect::prepareSession(db);
        QCOMPARE(TestSupport::value("SELECT 'a'||'b'").toString(), QString("ab"));
        QVERIFY(TestSupport::value("SELECT @@SESSION.sql_mode").toString().contains(mode));
    }
    QVERIFY(TestSupport::exec("SET SESSION sql_mode='" + original + "'"));
}

void DialectTest::lastTraceNumberIsTheNewMovement_data()
{
    QTest::addColumn<int>("movements");
    QTest::newRow("first") << 1;
    QTest::newRow("third") << 3;
}

void DialectTest::lastTraceNumberIsTheNewMovement()
{
    QFETCH(int, movements);

    for (int i = 0; i < movements; ++i) {
        QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate, SP, Notes, Adjustment) "
                                  "VALUES ('2026-03-01', 'Admin', 'Count', 'Y')"));
        const QVariant last = TestSupport::value(Dialect::lastTraceNumberQuery());
        QVERIFY(last.isValid());
        QCOMPARE(last.toLongLong(), TestSupport::value("SELECT MAX(TraceNumber) FROM StockTrace").toLongLong());
    }
    QCOMPARE(TestSupport::value("SELECT COUNT(DISTINCT TraceNumber) FROM StockTrace").toInt(), movements);
}

QTEST_MAIN(DialectTest)
#include "tst_dialect.moc"
