#include "testsupport.h"

#include "admin.h"
#include "globals.h"
#include "schema.h"
#include "utility.h"

#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

namespace {
QTemporaryDir *scratch = nullptr;
Admin *window = nullptr;
TestSupport::ScriptedPrompter *scripted = nullptr;

QString serverVariable(const char *prefix, const char *key)
{
    return qEnvironmentVariable((QByteArray(prefix) + key).constData());
}

QString driverSettingOf(Dialect::Engine engine)
{
    switch (engine) {
    case Dialect::MySQL:
        return "QMYSQL3";
    case Dialect::PostgreSQL:
        return "QPSQL7";
    default:
        return "QSQLITE";
    }
}

// An unreachable server skips the suite on a developer's machine, and fails it in CI, where
// every engine must have run.
bool unreachable(const QString &why)
{
    const QByteArray text = why.toUtf8();
    if (qEnvironmentVariable("CI") == QLatin1String("true"))
        QTest::qFail(text.constData(), __FILE__, __LINE__);
    else
        QTest::qSkip(text.constData(), __FILE__, __LINE__);
    return false;
}

void configureServer(QSqlDatabase &db, const char *prefix)
{
    db.setHostName(serverVariable(prefix, "HOST"));
    db.setPort(serverVariable(prefix, "PORT").toInt());
    db.setUserName(serverVariable(prefix, "USER"));
    db.setPassword(serverVariable(prefix, "PASSWORD"));
    db.setDatabaseName(serverVariable(prefix, "DATABASE"));
}

// The suites trust the connection to be the engine they were asked for, and a MariaDB session to
// concatenate with || as the reports do; a connection that is not so would test something else.
bool sessionIsReady(const QSqlDatabase &db)
{
    if (Dialect::connectedEngine() != TestSupport::engine()) {
        QTest::qFail(qPrintable("connected through " + db.driverName() + ", not " + TestSupport::engineName()),
                     __FILE__, __LINE__);
        return false;
    }
    if (TestSupport::engine() != Dialect::MySQL)
        return true;
    QSqlQuery mode(db);
    if (mode.exec("SELECT @@SESSION.sql_mode") && mode.next()
        && mode.value(0).toString().contains(QLatin1String("PIPES_AS_CONCAT")))
        return true;
    QTest::qFail("the MariaDB session lacks PIPES_AS_CONCAT in its sql_mode", __FILE__, __LINE__);
    return false;
}

// The practice every test starts from: one tax named, the second without a name.
const char *const sysInfoRow =
    "INSERT INTO SysInfo (ALINE1, ALINE2, ALINE3, ALINE4, ALINE5, ALINE6, ALINE7, InvFooter, InvFooter1, "
    "RecFooter, StatementFooter1, StatementFooter2, StatementFooter3, HandOverFooter, LABEL2, LABEL3, "
    "Tax1Name, Tax2Name, Tax1, Tax2, ALINE1_A, ALINE2_A, ALINE3_A, ALINE4_A, ALINE5_A, ALINE6_A, ALINE7_A, "
    "InvFooter_A, InvFooter1_A, RecFooter_A, StatementFooter1_A, StatementFooter2_A, StatementFooter3_A, "
    "HandOverFooter_A, LABEL2_A, LABEL3_A, Tax1Name_A, Tax2Name_A) VALUES ("
    "'Test Practice', 'Line 2', 'Line 3', 'Line 4', 'Line 5', 'Line 6', 'Line 7', 'Invoice footer', "
    "'Invoice footer 1', 'Receipt footer', 'Statement 1', 'Statement 2', 'Statement 3', 'Hand over', "
    "'Label 2', 'Label 3', 'VAT', '', 0.15, 0, 'Test Practice (A)', 'Line 2 (A)', 'Line 3 (A)', "
    "'Line 4 (A)', 'Line 5 (A)', 'Line 6 (A)', 'Line 7 (A)', 'Invoice footer (A)', 'Invoice footer 1 (A)', "
    "'Receipt footer (A)', 'Statement 1 (A)', 'Statement 2 (A)', 'Statement 3 (A)', 'Hand over (A)', "
    "'Label 2 (A)', 'Label 3 (A)', 'VAT (A)', ' (A)')";
} // namespace

namespace TestSupport {

QString engineName()
{
    const QString name = qEnvironmentVariable("QUOREL_TEST_ENGINE");
    return name.isEmpty() ? QString("sqlite") : name;
}

Dialect::Engine engine()
{
    const QString name = engineName();
    if (name == QLatin1String("mariadb"))
        return Dialect::MySQL;
    if (name == QLatin1String("postgres"))
        return Dialect::PostgreSQL;
    return Dialect::SQLite;
}

bool initEngine()
{
    scratch = new QTemporaryDir;
    settings = new QSettings(scratch->filePath("Quorel.ini"), QSettings::IniFormat);
    const QString setting = driverSettingOf(engine());
    settings->setValue("/Global/DBDriver", setting);
    QSqlDatabase db = QSqlDatabase::addDatabase(Dialect::qtDriverName(setting));
    db.setConnectOptions(Dialect::connectOptions(db.driverName()));
    if (engine() == Dialect::SQLite)
        db.setDatabaseName(scratch->filePath("quorel.sqlite"));
    else
        configureServer(db, engine() == Dialect::MySQL ? "QUOREL_MARIADB_" : "QUOREL_PG_");
    settings->setValue("/Global/DBName", db.databaseName());
    if (engine() != Dialect::SQLite && db.hostName().isEmpty())
        return unreachable(engineName() + ": no server configured (run the tests through scripts/test.sh)");
    if (!db.open())
        return unreachable(engineName() + ": " + db.lastError().text());
    Dialect::prepareSession(db);
    return sessionIsReady(db);
}

bool freshSchema()
{
    QString error;
    QSqlDatabase db = QSqlDatabase::database();
    if (!Schema::dropAll(db, engine(), &error) || !Schema::create(db, engine(), &error)) {
        qWarning("schema: %s", qPrintable(error));
        return false;
    }
    if (!exec(sysInfoRow))
        return false;
    delete utils;
    utils = new Utility("Admin");
    delete scripted;
    scripted = new ScriptedPrompter;
    Prompter::install(scripted);
    return utils->initClass(false);
}

void cleanup()
{
    delete window;
    window = nullptr;
    delete utils;
    utils = nullptr;
    Prompter::install(nullptr);
    delete scripted;
    scripted = nullptr;
}

void finish()
{
    cleanup();
    const QString name = QLatin1String(QSqlDatabase::defaultConnection);
    { QSqlDatabase::database(name, false).close(); }
    QSqlDatabase::removeDatabase(name);
    delete settings;
    settings = nullptr;
    delete scratch;
    scratch = nullptr;
}

bool exec(const QString &sql)
{
    QSqlQuery query;
    if (query.exec(sql))
        return true;
    qWarning("%s\n  -> %s", qPrintable(sql), qPrintable(query.lastError().text()));
    return false;
}

QVariant value(const QString &sql)
{
    QSqlQuery query;
    if (!query.exec(sql)) {
        qWarning("%s\n  -> %s", qPrintable(sql), qPrintable(query.lastError().text()));
        return {};
    }
    return query.next() ? query.value(0) : QVariant();
}

QList<QStringList> rows(const QString &sql)
{
    QList<QStringList> result;
    QSqlQuery query;
    if (!query.exec(sql)) {
        qWarning("%s\n  -> %s", qPrintable(sql), qPrintable(query.lastError().text()));
        return result;
    }
    while (query.next()) {
        QStringList row;
        for (int column = 0; column < query.record().count(); ++column)
            row << query.value(column).toString();
        result << row;
    }
    return result;
}

bool insert(const QString &table, const QString &columns, const QVariantList &values)
{
    QSqlQuery query;
    query.prepare("INSERT INTO " + table + " (" + columns + ") VALUES (" + QStringList(values.size(), "?").join(',') + ")");
    for (const QVariant &value : values)
        query.addBindValue(value);
    if (query.exec())
        return true;
    qWarning("insert into %s: %s", qPrintable(table), qPrintable(query.lastError().text()));
    return false;
}

Admin *openCategory(const QString &table, const QString &code)
{
    Admin *admin = makeAdmin();
    admin->ui.category_combo->setCurrentText(table);
    admin->categorySelected(admin->ui.category_combo->currentText());
    if (!code.isNull())
        admin->ui.list->setCurrentItem(admin->ui.list->findItems(code, Qt::MatchExactly).value(0), 0,
                                       QItemSelectionModel::ClearAndSelect);
    return admin;
}

Admin *makeAdmin()
{
    delete window;
    window = new Admin(nullptr, "admin", Qt::Window);
    return window;
}

ScriptedPrompter *prompter()
{
    return scripted;
}

} // namespace TestSupport

void TestSupport::EngineSuite::initTestCase() { QVERIFY(initEngine()); }
void TestSupport::EngineSuite::init() { QVERIFY(freshSchema()); }
void TestSupport::EngineSuite::cleanup() { TestSupport::cleanup(); }
void TestSupport::EngineSuite::cleanupTestCase() { finish(); }
