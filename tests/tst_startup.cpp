// Start-up, run in-process: the settings are $XDG_CONFIG_HOME/Zephron/Quorel.conf, written before
// each run, and the login dialog and messages are answered by a scripted prompter. Runs that get in
// use the registered engine; the cases about reading the settings use a SQLite file, where a
// made-up host or port does no harm.
#include "globals.h"
#include "logindialog.h"
#include "startup.h"
#include "testsupport.h"
#include "utility.h"
#include "zrtranslator.h"

#include <QApplication>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>
#include <memory>

using Settings = QVariantMap;

namespace {
QString sandbox;

Settings sqlite(const QString &file, Settings more = {})
{
    more.insert({{"/Global/DBDriver", "QSQLITE"}, {"/Global/DBName", sandbox + "/" + file}});
    return more;
}
} // namespace

class StartupTest : public QObject
{
    Q_OBJECT
public:
    explicit StartupTest(QApplication &app) : app(app) {}

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase() { TestSupport::finish(); }
    void runs_data();
    void runs();
    void settingsReachTheConnectionAndStyle_data();
    void settingsReachTheConnectionAndStyle();

private:
    QApplication &app;
    std::unique_ptr<TestSupport::ScriptedPrompter> prompter;
    QStringList transcript; // each login dialog's message and each message box, in order
    QStringList shown;      // the main window's name, caption and tabs, once its loop ran
    Settings live;          // the engine's test database

    int run(const Settings &keys, QStringList logins, int loopExit = -1);
};

// The engine's test database with the operators "admin", "bob" and "Admin" (each with its name as
// code), and a SQLite file that holds a practice and nothing else.
void StartupTest::initTestCase()
{
    QVERIFY(TestSupport::initEngine() && TestSupport::freshSchema());
    QVERIFY(TestSupport::exec("INSERT INTO Operators (Operator, id) VALUES ('admin', 'admin'), ('bob', 'bob'), ('Admin', 'Admin')"));
    {
        const QSqlDatabase db = QSqlDatabase::database();
        live = {{"/Global/DBDriver", settings->value("/Global/DBDriver")}, {"/Global/DBServer", db.hostName()},
                {"/Global/DBPort", db.port()}, {"/Global/DBUser", db.userName()},
                {"/Global/DBPassword", db.password()}, {"/Global/DBName", db.databaseName()}};
        QSqlDatabase file = QSqlDatabase::addDatabase("QSQLITE", "file");
        file.setDatabaseName(sandbox + "/practice.sqlite");
        QVERIFY(file.open() && QSqlQuery(file).exec("CREATE TABLE SysInfo AS SELECT 'P' AS ALINE1, 'VAT' AS Tax1Name, "
                                                    "0.15 AS Tax1, '' AS Tax2Name, 0 AS Tax2"));
    }
    QSqlDatabase::removeDatabase("file");
    cleanup(); // start-up makes its own settings, connection and helper
}

// What a run leaves to process exit, removed so that the next case starts as a new process would.
void StartupTest::cleanup()
{
    delete utils;
    utils = nullptr;
    delete settings;
    settings = nullptr;
    QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
    qDeleteAll(app.findChildren<ZrTranslator *>(QString(), Qt::FindDirectChildrenOnly));
}

// Runs start-up on `keys`, answering the login dialogs with `logins` ("id/code"), then cancelling.
// Once the main window's event loop runs, it ends by closing the window, or by exit(loopExit) when
// that is not negative.
int StartupTest::run(const Settings &keys, QStringList logins, int loopExit)
{
    {
        QSettings file("Zephron", "Quorel");
        file.clear();
        for (auto it = keys.cbegin(); it != keys.cend(); ++it)
            file.setValue(it.key(), it.value());
    }
    prompter.reset(new TestSupport::ScriptedPrompter);
    Prompter::install(prompter.get());
    transcript.clear();
    shown.clear();
    for (const QString &login : logins << "-") {
        prompter->answerDialog([this, login](QDialog *dialog) {
            auto *box = qobject_cast<LoginDialog *>(dialog);
            transcript << "login: " + box->message();
            if (login == QLatin1String("-"))
                return int(QDialog::Rejected);
            box->setLoginId(login.section('/', 0, 0));
            box->setCode(login.section('/', 1));
            return int(QDialog::Accepted);
        });
    }
    QTimer poll;
    connect(&poll, &QTimer::timeout, [&] {
        QWidget *window = Startup::mainWindow();
        if (!window || !window->isVisible() || QThread::currentThread()->loopLevel() == 0)
            return; // closed before the loop runs, the loop would run on
        poll.stop();
        shown << window->objectName() + ": " + window->windowTitle();
        auto *tabs = window->findChild<QTabWidget *>();
        for (int i = 0; tabs && i < tabs->count(); ++i)
            shown << tabs->tabText(i);
        if (loopExit < 0)
            window->close();
        else
            QCoreApplication::exit(loopExit);
    });
    poll.start(20);
    QTimer::singleShot(60000, &poll, [] { QCoreApplication::exit(1); }); // a window that never shows
    const int status = Startup::run(app);
    for (const TestSupport::ScriptedPrompter::Call &call : prompter->calls) {
        if (call.kind == QLatin1String("message"))
            transcript << (call.icon == Prompter::Critical ? "critical " : "other ") + call.caption + ": " + call.text;
    }
    return status;
}

void StartupTest::runs_data()
{
    QTest::addColumn<Settings>("keys");
    QTest::addColumn<QStringList>("logins");
    QTest::addColumn<int>("loopExit");
    QTest::addColumn<QStringList>("said");   // %1: the connection's driver and database error texts
    QTest::addColumn<QStringList>("window"); // empty: none was shown, and the run fails with -1
    QTest::addColumn<QString>("left");       // what the run leaves behind

    const QString caption = "admin: Quorel - Admin", normalExit = "utils connection";
    const QStringList english{caption, "&SysInfo", "&Dispense", "&Permissions", "&Reports", "&Breeds", "&Suppliers", "&AutoProc"};
    QDir installDir(QCoreApplication::applicationDirPath()); // the build is laid out as an installation
    while (!installDir.exists("i18n/Quorel/admin.af.qm") && installDir.cdUp()) {}
    Settings afrikaans = live;
    afrikaans.insert(Settings{{"/Global/InstallDir", installDir.absolutePath()}, {"/Personal/Lang", "af"}});

    QTest::newRow("driver cannot be loaded") << Settings{{"/Global/DBDriver", "QNOSUCH"}} << QStringList{} << -1
        << QStringList{"critical Quorel: Could not load the database driver QNOSUCH"} << QStringList{} << "settings connection";
    for (const QString driver : {"QMYSQL3", "QPSQL7"})
        QTest::addRow("%s server unreachable", qPrintable(driver))
            << Settings{{"/Global/DBDriver", driver}, {"/Global/DBServer", "127.0.0.1"}, {"/Global/DBPort", "1"}}
            << QStringList{} << -1 << QStringList{"critical Quorel Open Database: Driver: " + driver + "\n%1"}
            << QStringList{} << "settings connection";
    QTest::newRow("SysInfo missing") << sqlite("empty.sqlite") << QStringList{} << -1
        << QStringList{"critical Quorel: The practice information could not be read from the table SysInfo:\n"
                       "no such table: SysInfo Unable to execute statement"} << QStringList{} << "settings utils";
    QTest::newRow("login cancelled") << live << QStringList{} << -1 << QStringList{"login: "} << QStringList{}
        << "settings connection";
    QTest::newRow("admin, window closed") << live << QStringList{"admin/admin"} << -1 << QStringList{"login: "}
        << english << normalExit;
    QTest::newRow("event loop returns 5") << live << QStringList{"admin/admin"} << 5 << QStringList{"login: "}
        << english << normalExit;
    QTest::newRow("others are asked again")
        << live << QStringList{"bob/bob", "bob/bob", "Admin/Admin", "admin/bob", "admin/admin"} << -1
        << QStringList{"login: ", "login: ", "login: ", "login: ", "login: The login id or code is not correct. Try again."}
        << english << normalExit;
    QTest::newRow("Afrikaans") << afrikaans << QStringList{"admin/wrong", "admin/admin"} << -1
        << QStringList{"login: ", "login: Die aanmeld-ID of kode is nie korrek nie. Probeer weer."}
        << QStringList{caption, "&Stelselinligting", "&Uitreiking", "&Toestemmings", "&Verslae", "&Rasse",
                       "Ver&skaffers", "&Outoprosedures"} << normalExit;
}

void StartupTest::runs()
{
    QFETCH(Settings, keys);
    QFETCH(QStringList, logins);
    QFETCH(int, loopExit);
    QFETCH(QStringList, said);
    QFETCH(QStringList, window);
    QFETCH(QString, left);

    QCOMPARE(run(keys, logins, loopExit), window.isEmpty() ? -1 : 0);
    const QSqlError error = QSqlDatabase::database(QSqlDatabase::defaultConnection, false).lastError();
    QCOMPARE(transcript, said.replaceInStrings("%1", error.driverText() + " " + error.databaseText()));
    QCOMPARE(shown, window);
    QVERIFY(!Startup::mainWindow());
    QStringList kept;
    for (const auto &[name, there] : {std::pair{"settings", bool(settings)}, {"utils", bool(utils)},
                                      {"connection", QSqlDatabase::contains(QSqlDatabase::defaultConnection)}})
        if (there)
            kept << QString::fromLatin1(name);
    QCOMPARE(kept.join(' '), left);
    if (utils && !window.isEmpty())
        QCOMPARE(utils->getLogin(), QString("admin"));
}

void StartupTest::settingsReachTheConnectionAndStyle_data()
{
    QTest::addColumn<Settings>("keys");
    QTest::addColumn<QStringList>("connection"); // driver, host, database, user, password, port, options
    QTest::addColumn<QString>("style");

    const QString file = sandbox + "/practice.sqlite";
    const Settings vet{{"/Global/DBServer", "db.example"}, {"/Global/DBUser", "vet"}, {"/Global/DBPassword", " Pa'ss\\ "}};
    auto withVet = [&](Settings more) {
        more.insert(vet);
        return sqlite("practice.sqlite", more);
    };
    QTest::newRow("no settings") << Settings{}
        << QStringList{"QMYSQL", "localhost", "Quorel", "Quorel", "vmo", "-1", "CLIENT_SSL;CLIENT_IGNORE_SPACE"} << "windows";
    QTest::newRow("port, Fusion") << withVet({{"/Global/DBPort", "3307"}, {"/Reception/GUIStyle", "Fusion"}})
        << QStringList{"QSQLITE", "db.example", file, "vet", " Pa'ss\\ ", "3307", ""} << "fusion";
    QTest::newRow("port not a number, Default") << withVet({{"/Global/DBPort", "33o7"}, {"/Reception/GUIStyle", "Default"}})
        << QStringList{"QSQLITE", "db.example", file, "vet", " Pa'ss\\ ", "-1", ""} << "windows";
    QTest::newRow("unknown style") << withVet({{"/Reception/GUIStyle", "NoSuchStyle"}})
        << QStringList{"QSQLITE", "db.example", file, "vet", " Pa'ss\\ ", "-1", ""} << "windows";
}

// Each run ends at the connection (nothing answers for the defaults here) or the cancelled login.
void StartupTest::settingsReachTheConnectionAndStyle()
{
    QFETCH(Settings, keys);
    QFETCH(QStringList, connection);
    QFETCH(QString, style);

    QDir home(sandbox + "/home");
    QVERIFY(home.removeRecursively() && QDir().mkpath(home.path()));
    QApplication::setStyle(QStyleFactory::create("Windows"));
    QCOMPARE(run(keys, {}), -1);

    const QSqlDatabase db = QSqlDatabase::database(QSqlDatabase::defaultConnection, false);
    QCOMPARE(QStringList({db.driverName(), db.hostName(), db.databaseName(), db.userName(), db.password(),
                          QString::number(db.port()), db.connectOptions()}), connection);
    QCOMPARE(QApplication::style()->name().toLower(), style);
    QVERIFY(QFileInfo(home.filePath(".Zephron/Quorel")).isDir());
}

int main(int argc, char **argv)
{
    // QSettings reads XDG_CONFIG_HOME once, so the sandbox must be in place before the application.
    QTemporaryDir dir;
    sandbox = dir.path();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath("config")));
    qputenv("HOME", QFile::encodeName(dir.filePath("home")));
    QApplication app(argc, argv);
    StartupTest test(app);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
