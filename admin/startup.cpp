#include "startup.h"

#include "admin.h"
#include "connection.h"
#include "dialect.h"
#include "globals.h"
#include "prompter.h"
#include "utility.h"
#include "zrtranslator.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QPixmap>
#include <QScreen>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QStyleFactory>
#include <memory>

namespace {
QWidget *theMainWindow = nullptr;

void preparePersonalFolder()
{
    QDir home(qEnvironmentVariable("HOME"));
    if (home.exists()) {
        home.mkdir(".Zephron");
        home.mkdir(".Zephron/Quorel");
    }
}

void applyStyle(QApplication &app)
{
    if (settings->value("/Reception/GUIStyle").toString() != QLatin1String("Default")) {
        if (QStyle *style = QStyleFactory::create(settings->value("/Reception/GUIStyle").toString()))
            app.setStyle(style);
    }
}

QWidget *showSplash(QApplication &app, const QString &installDir)
{
    auto *splash = new QWidget(nullptr, Qt::CustomizeWindowHint | Qt::FramelessWindowHint | Qt::Tool);
    splash->setObjectName("Quorel");
    const QPixmap picture(installDir + "/share/Quorel/splash.png");
    splash->setFixedSize(picture.size());
    const QRect desk = QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->geometry() : QRect();
    splash->move((desk.left() + desk.right()) / 2 - (splash->width() - 1) / 2,
                 (desk.top() + desk.bottom()) / 2 - (splash->height() - 1) / 2);
    QPalette palette = splash->palette();
    palette.setBrush(QPalette::Window, QBrush(picture));
    splash->setPalette(palette);
    splash->setAutoFillBackground(true);
    splash->show();
    app.processEvents();
    return splash;
}

void installTranslator(QApplication &app, const QString &file)
{
    auto *translator = new ZrTranslator(nullptr, nullptr);
    translator->setParent(&app); // lives until the end of the program
    (void)translator->load(file);
    app.installTranslator(translator);
}

// Steps 9 to 11: the default connection, opened. False: the failure has been shown.
bool openDatabase()
{
    const Connection::Parameters parameters = Connection::read(*settings);
    QSqlDatabase db = Connection::add(parameters);
    if (!db.isValid()) {
        Prompter::critical(nullptr, QCoreApplication::translate("Startup", "Quorel"),
                           QCoreApplication::translate("Startup", "Could not load the database driver %1")
                               .arg(parameters.driver));
        return false;
    }
    if (!db.open()) {
        Prompter::critical(nullptr, "Quorel Open Database",
                           "Driver: " + parameters.driver + "\n" + db.lastError().driverText() + " "
                               + db.lastError().databaseText());
        return false;
    }
    Dialect::prepareSession(db);
    return true;
}

void dropConnection()
{
    const QString name = QLatin1String(QSqlDatabase::defaultConnection);
    { QSqlDatabase::database(name, false).close(); }
    QSqlDatabase::removeDatabase(name);
}

// Step 13: only "admin" gets in; anyone else is asked again. False: cancelled.
bool login()
{
    for (;;) {
        const int result = utils->validateLoginId();
        if (result == 2)
            return false;
        if (result == 0 && utils->getLogin() == QLatin1String("admin"))
            return true;
    }
}
} // namespace

namespace Startup {

QWidget *mainWindow()
{
    return theMainWindow;
}

void installLanguage(QApplication &app)
{
    const QString installDir = settings->value("/Global/InstallDir", "/opt/zephron").toString();
    const QString lang = settings->value("/Personal/Lang", "").toString();
    installTranslator(app, installDir + "/i18n/Quorel/qrlib." + lang + ".qm");
    installTranslator(app, installDir + "/i18n/Quorel/admin." + lang + ".qm");
    // Month and day names (a chart's axis, a report's month) in the catalogues' language too.
    QLocale::setDefault(lang.isEmpty() ? QLocale::system() : QLocale(lang));
}

int run(QApplication &app)
{
    preparePersonalFolder();
    settings = new QSettings("Zephron", "Quorel");
    const QString installDir = settings->value("/Global/InstallDir", "/opt/zephron").toString();
    app.addLibraryPath(installDir + "/lib");
    applyStyle(app);
    std::unique_ptr<QWidget> splash(showSplash(app, installDir));
    installLanguage(app);

    if (!openDatabase()) {
        app.quit();
        return -1;
    }
    utils = new Utility("Admin");
    if (!utils->initClass(false)) {
        dropConnection();
        return -1;
    }
    if (!login()) {
        delete utils;
        utils = nullptr;
        return -1;
    }
    auto *admin = new Admin(nullptr, "admin", Qt::Window);
    theMainWindow = admin;
    admin->setWindowTitle("Quorel - Admin");
    admin->show();
    QCoreApplication::processEvents(QEventLoop::AllEvents, 9000);
    splash.reset();
    app.exec();
    theMainWindow = nullptr;
    delete admin;
    delete settings;
    settings = nullptr;
    return 0;
}

} // namespace Startup
