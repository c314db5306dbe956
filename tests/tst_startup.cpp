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

private:
    QApplication &app;
    std::unique_ptr<TestSupport::ScriptedPrompter> prompter;
    QStringList transcript; // each login dialog's message and each message box, in order
    QStringList shown;      // the main window's name, caption, login and tabs, once its loop ran
    Settings live;          // the engine's test database

    // Runs start-up on `keys`, answering the login dialogs with `logins` ("id/code"), then cancelling.
    // Once the main window's event loop runs, it ends by closing the window (with the help window open
    // beside it when loopExit is -2), or by exit(loopExit) when that is not negative. A loop still
    // running 5 s after the window closed is ended, and said so in `shown`.
    int run(const Settings &keys, QStringList logins, int loopExit = -1)
    {
        QSettings file("Zephron", "Quorel");
        file.clear();
        for (const QString &key : keys.keys())
            file.setValue(key, keys[key]);
        file.sync();
        prompter.reset(new TestSupport::ScriptedPrompter);
        Prompter::install(prompter.get());
        transcript = shown = QStringList();
        for (const QString &login : logins << "-")
            prompter->answerDialog([this, login](QDialog *dialog) {
                auto *box = qobject_cast<LoginDialog *>(dialog);
                transcript << "login: " + box->message();
                box->setLoginId(login.section('/', 0, 0));
                box->setCode(login.section('/', 1));
                return int(login == QLatin1String("-") ? QDialog::Rejected : QDialog::Accepted);
            });
        QTimer poll;
        connect(&poll, &QTimer::timeout, [&] {
            QWidget *window = Startup::mainWindow();
            if (!window || !window->isVisible() || QThread::currentThread()->loopLevel() == 0)
                return; // closed before the loop runs, the loop would run on
            poll.stop();
            shown << window->objectName() + ": " + window->windowTitle() + " by " + utils->getLogin();
            auto *tabs = window->findChild<QTabWidget *>();
            for (int i = 0; tabs && i < tabs->count(); ++i)
                shown << tabs->tabText(i);
            if (loopExit == -2)
                utils->showHelp();
            QTimer::singleShot(5000, &poll, [this] {
                shown << "still running";
                QCoreApplication::exit(1);
            });
            loopExit < 0 ? void(window->close()) : QCoreApplication::exit(loopExit);
        });
        poll.start(20);
        QTimer::singleShot(60000, &poll, [] { QCoreApplication::exit(1); }); // a window that never shows
        const int status = Startup::run(app);
        for (const TestSupport::ScriptedPrompter::Call &call : prompter->calls)
            if (call.kind == QLatin1String("message"))
                transcript << (call.icon == Prompter::Critical ? "critical " : "other ") + call.caption + ": " + call.text;
        return status;
    }

private slots:
    void cleanupTestCase() { TestSupport::finish(); }

    // The engine's test database with the operators "admin", "bob" and "Admin" (each with its name as
    // code), and a SQLite file that holds a practice and nothing else.
    void initTestCase()
    {
        QVERIFY(TestSupport::initEngine() && TestSupport::freshSchema());
        QVERIFY(TestSupport::exec("INSERT INTO Operators (Operator, id) VALUES ('admin', 'admin'), ('bob', 'bob'), ('Admin', 'Admin')"));
        {
            const QSqlDatabase db = QSqlDatabase::database();
            live = {{"/Global/DBDriver", settings->value("/Global/DBDriver")}, {"/Global/DBServer", db.hostName()},
                    {"/Global/DBPort", db.port()}, {"/Global/DBUser", db.userName()},
                    {"/Global/DBPassword", db.password()}, {"/Global/DBName", db.databaseName()}};
        }
        QSqlDatabase::addDatabase("QSQLITE", "file").setDatabaseName(sandbox + "/practice.sqlite");
        QVERIFY(QSqlQuery(QSqlDatabase::database("file")).exec("CREATE TABLE SysInfo AS SELECT 'P' AS ALINE1, 'VAT' "
                                                               "AS Tax1Name, 0.15 AS Tax1, '' AS Tax2Name, 0 AS Tax2"));
        QSqlDatabase::removeDatabase("file");
        cleanup(); // start-up makes its own settings, connection and helper
    }

    // What a run leaves to process exit, removed so that the next case starts as a new process would.
    void cleanup()
    {
        delete std::exchange(utils, nullptr);
        delete std::exchange(settings, nullptr);
        QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
        qDeleteAll(app.findChildren<ZrTranslator *>(QString(), Qt::FindDirectChildrenOnly));
    }

    void runs_data()
    {
        QTest::addColumn<Settings>("keys");
        QTest::addColumn<QStringList>("logins");
        QTest::addColumn<int>("loopExit");
        QTest::addColumn<QStringList>("said");   // %1: the connection's driver and database error texts
        QTest::addColumn<QStringList>("window"); // empty: none was shown, and the run fails with -1
        QTest::addColumn<QString>("left");       // what the run leaves behind

        const QString caption = "admin: Quorel - Admin by admin", ran = "utils connection";
        const QStringList none, asked{"login: "}, admin{"admin/admin"};
        const QStringList english{caption, "&SysInfo", "&Dispense", "&Permissions", "&Reports", "&Breeds", "&Suppliers", "&AutoProc"};
        QDir installDir(QCoreApplication::applicationDirPath()); // the build is laid out as an installation
        while (!installDir.exists("i18n/Quorel/admin.af.qm") && installDir.cdUp()) {}
        Settings afrikaans = live;
        afrikaans.insert(Settings{{"/Global/InstallDir", installDir.absolutePath()}, {"/Personal/Lang", "af"}});

        QTest::newRow("driver cannot be loaded") << Settings{{"/Global/DBDriver", "QNOSUCH"}} << none << -1
            << QStringList{"critical Quorel: Could not load the database driver QNOSUCH"} << none << "settings connection";
        for (const QString driver : {"QMYSQL3", "QPSQL7"})
            QTest::addRow("%s server unreachable", qPrintable(driver))
                << Settings{{"/Global/DBDriver", driver}, {"/Global/DBServer", "127.0.0.1"}, {"/Global/DBPort", "1"}}
                << none << -1 << QStringList{"critical Quorel Open Database: Driver: " + driver + "\n%1"} << none
                << "settings connection";
        QTest::newRow("SysInfo missing") << sqlite("empty.sqlite") << none << -1
            << QStringList{"critical Quorel: The practice information could not be read from the table SysInfo:\n"
                           "no such table: SysInfo Unable to execute statement"} << none << "settings utils";
        QTest::newRow("login cancelled") << live << none << -1 << asked << none << "settings connection";
        QTest::newRow("admin, window closed") << live << admin << -1 << asked << english << ran;
        QTest::newRow("event loop returns 5") << live << admin << 5 << asked << english << ran;
        QTest::newRow("admin, window closed beside the help") << live << admin << -2 << asked << english << ran;
        QTest::newRow("others are asked again")
            << live << QStringList{"bob/bob", "bob/bob", "Admin/Admin", "admin/bob", "admin/admin"} << -1
            << QStringList{"login: ", "login: ", "login: ", "login: ", "login: The login id or code is not correct. Try again."}
            << english << ran;
        QTest::newRow("Afrikaans") << afrikaans << QStringList{"admin/wrong", "admin/admin"} << -1
            << QStringList{"login: ", "login: Die aanmeld-ID of kode is nie korrek nie. Probeer weer."}
            << QStringList{caption, "&Stelselinligting", "&Uitreiking", "&Toestemmings", "&Verslae", "&Rasse",
                           "V&erskaffers", "&Outoprosedures"} << ran;
    }

    void runs()
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
        if (keys.contains("/Personal/Lang")) // month names follow the language, as the texts do
            QCOMPARE(QLocale().toString(QDate(2026, 10, 1), "MMMM yyyy"), QString("Oktober 2026"));
        QVERIFY(!Startup::mainWindow());
        const QString kept = QString(settings ? "settings " : "") + (utils ? "utils " : "")
                             + (QSqlDatabase::contains(QSqlDatabase::defaultConnection) ? "connection" : "");
        QCOMPARE(kept.trimmed(), left);
    }

    void settingsReachTheConnectionAndStyle_data()
    {
        QTest::addColumn<Settings>("keys");
        QTest::addColumn<QStringList>("connection"); // driver, host, database, user, password, port, options
        QTest::addColumn<QString>("style");

        auto vet = [](const QString &port, const QString &style) { // the practice file, reached as the vet
            return sqlite("practice.sqlite", {{"/Global/DBServer", "db.example"}, {"/Global/DBUser", "vet"},
                                              {"/Global/DBPassword", " Pa'ss\\ "}, {"/Global/DBPort", port},
                                              {"/Reception/GUIStyle", style}});
        };
        auto asVet = [](const QString &port) {
            return QStringList{"QSQLITE", "db.example", sandbox + "/practice.sqlite", "vet", " Pa'ss\\ ", port, ""};
        };
        QTest::newRow("no settings") << Settings{}
            << QStringList{"QMYSQL", "localhost", "Quorel", "Quorel", "vmo", "-1", "CLIENT_SSL;CLIENT_IGNORE_SPACE"} << "windows";
        QTest::newRow("port, Fusion") << vet("3307", "Fusion") << asVet("3307") << "fusion";
        QTest::newRow("port not a number, Default") << vet("33o7", "Default") << asVet("-1") << "windows";
        QTest::newRow("unknown style") << vet("3307", "NoSuchStyle") << asVet("3307") << "windows";
    }

    // Each run ends at the connection (nothing answers for the defaults here) or the cancelled login.
    void settingsReachTheConnectionAndStyle()
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
};

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
