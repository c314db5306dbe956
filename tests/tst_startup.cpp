// Start-up, run in-process: the settings come from $XDG_CONFIG_HOME/Zephron/Quorel.conf, written
// for each case before Startup::run(); the messages and the login dialog are answered by a scripted
// prompter. The successful paths run on SQLite files made here, whatever engine the suite is
// registered for: start-up itself does not depend on the engine.
#include "globals.h"
#include "logindialog.h"
#include "schema.h"
#include "startup.h"
#include "testsupport.h"
#include "utility.h"
#include "zrtranslator.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>

using TestSupport::ScriptedPrompter;
using Settings = QVariantMap;

namespace {
const QString wrongCodeMessage = "The login id or code is not correct. Try again.";
const QStringList englishTabs{"&SysInfo", "&Dispense", "&Permissions", "&Reports", "&Breeds", "&Suppliers", "&AutoProc"};
const QStringList afrikaansTabs{"&Stelselinligting", "&Uitreiking", "&Toestemmings", "&Verslae", "&Rasse",
                                "Ver&skaffers", "&Outoprosedures"};

QSqlDatabase defaultConnection()
{
    return QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
}

QWidget *visibleMainWindow()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->objectName() == QLatin1String("admin") && w->isVisible())
            return w;
    }
    return nullptr;
}

QStringList tabCaptions(QWidget *window)
{
    QStringList captions;
    if (auto *tabs = window->findChild<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            captions << tabs->tabText(i);
    }
    return captions;
}

// The folder holding i18n/Quorel/admin.af.qm: the build folder, laid out like an installation.
QString buildInstallDir()
{
    QDir dir(QCoreApplication::applicationDirPath());
    for (int up = 0; up < 4; ++up) {
        if (dir.exists("i18n/Quorel/admin.af.qm"))
            return dir.absolutePath();
        dir.cdUp();
    }
    return QString();
}

// Waits for the event loop of the main window, lets `inspect` look at the window, then ends the
// loop: by closing the window, or with exit(code) when `exitCode` is set. A watchdog ends a run
// that never shows the window.
class WindowCloser : public QObject
{
public:
    std::function<void(QWidget *)> inspect;
    int exitCode = -1;
    QString caption;
    bool done = false;
    bool timedOut = false;

    WindowCloser()
    {
        connect(&poll, &QTimer::timeout, this, &WindowCloser::check);
        poll.start(20);
        watchdog.setSingleShot(true);
        connect(&watchdog, &QTimer::timeout, this, [this] {
            timedOut = true;
            QCoreApplication::exit(1);
        });
        watchdog.start(60000);
    }

private:
    QTimer poll;
    QTimer watchdog;

    void check()
    {
        QWidget *window = visibleMainWindow();
        if (!window || QThread::currentThread()->loopLevel() == 0)
            return; // not yet in the event loop: closing now would leave it running
        poll.stop();
        caption = window->windowTitle();
        if (inspect)
            inspect(window);
        done = true;
        if (exitCode >= 0)
            QCoreApplication::exit(exitCode);
        else
            window->close();
    }
};
} // namespace

class StartupTest : public QObject
{
    Q_OBJECT
public:
    StartupTest(QApplication &app, const QString &sandbox) : app(app), sandbox(sandbox) {}

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void failuresEndWithMinusOne_data();
    void failuresEndWithMinusOne();
    void normalRunEndsWithZero_data();
    void normalRunEndsWithZero();
    void nonAdminLoginIsAskedAgainWithoutMessage();
    void wrongCodeIsSaidOnTheNextDialog();
    void defaultsWithNoSettings();
    void portIsSetOnlyWhenNumeric_data();
    void portIsSetOnlyWhenNumeric();
    void guiStyle_data();
    void guiStyle();
    void afrikaansShowsTranslatedCaptions();
    void personalFolderIsMadeInHome();

private:
    QApplication &app;
    QString sandbox;
    QString goodDatabase;
    QString noSysInfoDatabase;
    std::unique_ptr<ScriptedPrompter> prompter;

    Settings sqlite(const QString &file) const;
    int runWith(const Settings &keys);
    void answerLogin(const QString &id, const QString &code, QStringList *messages);
    void cancelLogin(QStringList *messages);
    QList<ScriptedPrompter::Call> messages() const;
};

namespace {
// A SQLite file with the schema, the practice row and the operators "admin", "bob" and "Admin" (each
// with its name as code); without SysInfo when `sysInfo` is false.
bool makeDatabase(const QString &file, bool sysInfo)
{
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "setup");
        db.setDatabaseName(file);
        QString error;
        ok = db.open() && Schema::create(db, Dialect::SQLite, &error);
        QSqlQuery query(db);
        const QStringList rows{
            "INSERT INTO SysInfo (ALINE1, Tax1Name, Tax1, Tax2Name, Tax2) VALUES ('Test Practice', 'VAT', 0.15, '', 0)",
            "INSERT INTO Operators (Operator, id) VALUES ('admin', 'admin')",
            "INSERT INTO Operators (Operator, id) VALUES ('bob', 'bob')",
            "INSERT INTO Operators (Operator, id) VALUES ('Admin', 'Admin')",
            sysInfo ? QString() : QString("DROP TABLE SysInfo")};
        for (const QString &row : rows) {
            if (ok && !row.isEmpty())
                ok = query.exec(row);
        }
        if (!ok)
            qWarning() << "test database" << file << error << query.lastError().text();
        db.close();
    }
    QSqlDatabase::removeDatabase("setup");
    return ok;
}

void writeSettings(const Settings &keys)
{
    QSettings file("Zephron", "Quorel");
    file.clear();
    for (auto it = keys.cbegin(); it != keys.cend(); ++it)
        file.setValue(it.key(), it.value());
    file.sync();
}
} // namespace

void StartupTest::initTestCase()
{
    QCOMPARE(QSettings("Zephron", "Quorel").fileName(), sandbox + "/config/Zephron/Quorel.conf");
    goodDatabase = sandbox + "/quorel.sqlite";
    noSysInfoDatabase = sandbox + "/nosysinfo.sqlite";
    QVERIFY(makeDatabase(goodDatabase, true));
    QVERIFY(makeDatabase(noSysInfoDatabase, false));
}

void StartupTest::init()
{
    prompter = std::make_unique<ScriptedPrompter>();
    Prompter::install(prompter.get());
}

// What a run leaves to process exit, removed so that the next case starts as a new process would.
void StartupTest::cleanup()
{
    delete utils;
    utils = nullptr;
    delete settings;
    settings = nullptr;
    if (QSqlDatabase::contains(QLatin1String(QSqlDatabase::defaultConnection))) {
        defaultConnection().close();
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
    qDeleteAll(app.findChildren<ZrTranslator *>(QString(), Qt::FindDirectChildrenOnly));
    Prompter::install(nullptr);
    prompter.reset();
}

Settings StartupTest::sqlite(const QString &file) const
{
    return Settings{{"/Global/DBDriver", "QSQLITE"}, {"/Global/DBName", file}};
}

int StartupTest::runWith(const Settings &keys)
{
    writeSettings(keys);
    return Startup::run(app);
}

// Queues an answer to the next login dialog; `messages` (may be null) gets what it said.
void StartupTest::answerLogin(const QString &id, const QString &code, QStringList *messages)
{
    prompter->answerDialog([=](QDialog *dialog) {
        auto *login = qobject_cast<LoginDialog *>(dialog);
        if (!login)
            return int(QDialog::Rejected);
        if (messages)
            messages->append(login->message());
        login->setLoginId(id);
        login->setCode(code);
        return int(QDialog::Accepted);
    });
}

void StartupTest::cancelLogin(QStringList *messages)
{
    prompter->answerDialog([=](QDialog *dialog) {
        if (auto *login = qobject_cast<LoginDialog *>(dialog); login && messages)
            messages->append(login->message());
        return int(QDialog::Rejected);
    });
}

QList<ScriptedPrompter::Call> StartupTest::messages() const
{
    QList<ScriptedPrompter::Call> boxes;
    for (const ScriptedPrompter::Call &call : prompter->calls) {
        if (call.kind == QLatin1String("message"))
            boxes << call;
    }
    return boxes;
}

void StartupTest::failuresEndWithMinusOne_data()
{
    QTest::addColumn<Settings>("keys");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("text");   // exact, or the start of it when `composed`
    QTest::addColumn<bool>("composed");  // "Driver: ...\n" + driver text + " " + database text
    QTest::addColumn<int>("logins");

    QTest::newRow("driver cannot be loaded")
        << Settings{{"/Global/DBDriver", "QNOSUCH"}} << "Quorel" << "Could not load the database driver QNOSUCH"
        << false << 0;
    QTest::newRow("MySQL server unreachable")
        << Settings{{"/Global/DBDriver", "QMYSQL3"}, {"/Global/DBServer", "127.0.0.1"}, {"/Global/DBPort", "1"}}
        << "Quorel Open Database" << "Driver: QMYSQL3\n" << true << 0;
    QTest::newRow("PostgreSQL server unreachable")
        << Settings{{"/Global/DBDriver", "QPSQL7"}, {"/Global/DBServer", "127.0.0.1"}, {"/Global/DBPort", "1"}}
        << "Quorel Open Database" << "Driver: QPSQL7\n" << true << 0;
    QTest::newRow("SysInfo missing") << sqlite(noSysInfoDatabase) << "Quorel" << "SysInfo" << false << 0;
    QTest::newRow("login cancelled") << sqlite(goodDatabase) << "" << "" << false << 1;
}

void StartupTest::failuresEndWithMinusOne()
{
    QFETCH(Settings, keys);
    QFETCH(QString, caption);
    QFETCH(QString, text);
    QFETCH(bool, composed);
    QFETCH(int, logins);

    WindowCloser closer;
    QCOMPARE(runWith(keys), -1);
    QVERIFY(!closer.done);
    QVERIFY(!Startup::mainWindow());

    const QList<ScriptedPrompter::Call> boxes = messages();
    QCOMPARE(prompter->calls.size(), boxes.size() + logins);
    if (caption.isEmpty()) {
        QVERIFY(boxes.isEmpty());
        QVERIFY(!utils); // the cancelled login deletes the helper
        return;
    }
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].icon, int(Prompter::Critical));
    QCOMPARE(boxes[0].caption, caption);
    if (composed) {
        const QSqlError error = defaultConnection().lastError();
        QVERIFY(!error.databaseText().isEmpty());
        QCOMPARE(boxes[0].text, text + error.driverText() + " " + error.databaseText());
    } else if (text == QLatin1String("SysInfo")) {
        QVERIFY2(boxes[0].text.contains(text), qPrintable(boxes[0].text));
        // The connection is given up with the helper's failure.
        QVERIFY(!QSqlDatabase::contains(QLatin1String(QSqlDatabase::defaultConnection)));
    } else {
        QCOMPARE(boxes[0].text, text);
    }
}

void StartupTest::normalRunEndsWithZero_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::newRow("window closed") << -1;
    QTest::newRow("event loop returns 5") << 5;
}

void StartupTest::normalRunEndsWithZero()
{
    QFETCH(int, exitCode);

    answerLogin("admin", "admin", nullptr);
    WindowCloser closer;
    closer.exitCode = exitCode;
    QPointer<QWidget> window;
    QStringList tabs;
    closer.inspect = [&](QWidget *w) {
        window = w;
        tabs = tabCaptions(w);
        QCOMPARE(Startup::mainWindow(), w);
    };
    QCOMPARE(runWith(sqlite(goodDatabase)), 0);

    QVERIFY(!closer.timedOut);
    QVERIFY(closer.done);
    QCOMPARE(closer.caption, QString("Quorel - Admin"));
    QCOMPARE(tabs, englishTabs);
    QVERIFY(!window);               // deleted by start-up
    QVERIFY(!Startup::mainWindow());
    QVERIFY(!settings);             // deleted on a normal exit
    QVERIFY(utils);                 // left to process exit
    QCOMPARE(utils->getLogin(), QString("admin"));
    QCOMPARE(prompter->calls.size(), 1); // the login, and no message
    QCOMPARE(prompter->calls[0].kind, QString("exec"));
}

// A valid login that is not "admin" is simply asked again, as often as it happens.
void StartupTest::nonAdminLoginIsAskedAgainWithoutMessage()
{
    QStringList seen;
    for (int i = 0; i < 3; ++i)
        answerLogin("bob", "bob", &seen);
    answerLogin("Admin", "Admin", &seen); // "admin" only, exactly
    answerLogin("admin", "admin", &seen);
    WindowCloser closer;
    QCOMPARE(runWith(sqlite(goodDatabase)), 0);

    QVERIFY(closer.done);
    QCOMPARE(seen, QStringList({"", "", "", "", ""}));
    QCOMPARE(prompter->calls.size(), 5);
    QVERIFY(messages().isEmpty());
    QCOMPARE(prompter->pending(), 0);
}

void StartupTest::wrongCodeIsSaidOnTheNextDialog()
{
    QStringList seen;
    answerLogin("admin", "bob", &seen);
    answerLogin("bob", "bob", &seen);
    cancelLogin(&seen);
    WindowCloser closer;
    QCOMPARE(runWith(sqlite(goodDatabase)), -1);

    QVERIFY(!closer.done);
    QCOMPARE(seen, QStringList({"", wrongCodeMessage, ""}));
    QVERIFY(messages().isEmpty());
}

void StartupTest::defaultsWithNoSettings()
{
    QCOMPARE(runWith(Settings{}), -1); // nothing answers as user Quorel on localhost here

    const QList<ScriptedPrompter::Call> boxes = messages();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].caption, QString("Quorel Open Database"));
    QVERIFY(boxes[0].text.startsWith("Driver: QMYSQL3\n"));
    const QSqlDatabase db = defaultConnection();
    QCOMPARE(db.driverName(), QString("QMYSQL"));
    QCOMPARE(db.hostName(), QString("localhost"));
    QCOMPARE(db.databaseName(), QString("Quorel"));
    QCOMPARE(db.userName(), QString("Quorel"));
    QCOMPARE(db.password(), QString("vmo"));
    QCOMPARE(db.port(), -1);
    QCOMPARE(db.connectOptions(), QString("CLIENT_SSL;CLIENT_IGNORE_SPACE"));
}

void StartupTest::portIsSetOnlyWhenNumeric_data()
{
    QTest::addColumn<QVariant>("port"); // invalid: no entry
    QTest::addColumn<int>("expected");

    QTest::newRow("number") << QVariant("3307") << 3307;
    QTest::newRow("not a number") << QVariant("33o7") << -1;
    QTest::newRow("empty") << QVariant("") << -1;
    QTest::newRow("no entry") << QVariant() << -1;
}

void StartupTest::portIsSetOnlyWhenNumeric()
{
    QFETCH(QVariant, port);
    QFETCH(int, expected);

    Settings keys = sqlite(goodDatabase);
    keys["/Global/DBServer"] = "db.example";
    keys["/Global/DBUser"] = "vet";
    keys["/Global/DBPassword"] = " Pa'ss\\ ";
    if (port.isValid())
        keys["/Global/DBPort"] = port;
    QCOMPARE(runWith(keys), -1); // the login is cancelled; the connection stays behind

    const QSqlDatabase db = defaultConnection();
    QCOMPARE(db.port(), expected);
    QCOMPARE(db.hostName(), QString("db.example"));
    QCOMPARE(db.userName(), QString("vet"));
    QCOMPARE(db.password(), QString(" Pa'ss\\ ")); // as stored
    QCOMPARE(db.connectOptions(), QString());      // MySQL flags go to MySQL only
}

void StartupTest::guiStyle_data()
{
    QTest::addColumn<QVariant>("style"); // invalid: no entry
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("Default") << QVariant("Default") << "Windows" << "windows";
    QTest::newRow("unknown") << QVariant("NoSuchStyle") << "Windows" << "windows";
    QTest::newRow("no entry") << QVariant() << "Windows" << "windows";
    QTest::newRow("Fusion") << QVariant("Fusion") << "Windows" << "fusion";
    QTest::newRow("windows, any case") << QVariant("windows") << "Fusion" << "windows";
}

void StartupTest::guiStyle()
{
    QFETCH(QVariant, style);
    QFETCH(QString, before);
    QFETCH(QString, after);

    QApplication::setStyle(QStyleFactory::create(before));
    Settings keys = sqlite(goodDatabase);
    if (style.isValid())
        keys["/Reception/GUIStyle"] = style;
    QCOMPARE(runWith(keys), -1); // the login is cancelled
    QCOMPARE(QApplication::style()->name().toLower(), after);
}

void StartupTest::afrikaansShowsTranslatedCaptions()
{
    const QString installDir = buildInstallDir();
    QVERIFY2(!installDir.isEmpty(), "the build has not made i18n/Quorel/admin.af.qm");
    QVERIFY(QFile::exists(installDir + "/i18n/Quorel/qrlib.af.qm"));

    QStringList seen;
    answerLogin("admin", "wrong", &seen);
    answerLogin("admin", "admin", &seen);
    WindowCloser closer;
    QStringList tabs;
    QStringList confirmButtons;
    closer.inspect = [&](QWidget *window) {
        tabs = tabCaptions(window);
        Prompter::confirm(window, "Quorel", "?");
        confirmButtons = prompter->last().buttons;
    };
    Settings keys = sqlite(goodDatabase);
    keys["/Global/InstallDir"] = installDir;
    keys["/Personal/Lang"] = "af";
    QCOMPARE(runWith(keys), 0);

    QVERIFY(closer.done);
    QCOMPARE(tabs, afrikaansTabs);
    QCOMPARE(closer.caption, QString("Quorel - Admin"));
    QCOMPARE(confirmButtons, QStringList({"&Ja", "&Nee"}));
    QCOMPARE(seen, QStringList({"", "Die aanmeld-ID of kode is nie korrek nie. Probeer weer."}));
    // The window's own common message, from the program's catalogue.
    QCOMPARE(QCoreApplication::translate("Admin", "Operation cancelled"), QString("Handeling gekanselleer"));
}

void StartupTest::personalFolderIsMadeInHome()
{
    QDir home(sandbox + "/home");
    QVERIFY(home.removeRecursively() && QDir().mkpath(home.path()));
    QCOMPARE(runWith(sqlite(goodDatabase)), -1);
    QVERIFY(QFileInfo(home.filePath(".Zephron/Quorel")).isDir());
}

int main(int argc, char **argv)
{
    // QSettings reads XDG_CONFIG_HOME once, so the sandbox must be in place before the application.
    QTemporaryDir sandbox;
    if (!sandbox.isValid())
        return 1;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(sandbox.filePath("config")));
    qputenv("HOME", QFile::encodeName(sandbox.filePath("home")));
    QDir().mkpath(sandbox.filePath("home"));
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    StartupTest test(app, sandbox.path());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
