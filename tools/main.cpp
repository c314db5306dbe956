// quorel-db: sets up a Quorel database. The connection comes from the suite's settings (the same
// keys the program reads), each one overridable on the command line.
#include "demodata.h"
#include "dialect.h"
#include "globals.h"
#include "schema.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <cstdio>

namespace {

struct Options {
    QString command;
    bool replace = false;
    int scale = 1;
};

void say(const QString &text)
{
    std::fprintf(stderr, "quorel-db: %s\n", qPrintable(text));
}

int failed(const QString &text)
{
    say(text);
    return 1;
}

QString setting(const QCommandLineParser &parser, const QString &option, const QString &key, const QString &fallback)
{
    return parser.isSet(option) ? parser.value(option) : settings->value(key, fallback).toString();
}

bool openDatabase(const QCommandLineParser &parser, QString *error)
{
    const QString driver = setting(parser, "driver", "/Global/DBDriver", "QMYSQL3");
    QSqlDatabase db = QSqlDatabase::addDatabase(Dialect::qtDriverName(driver));
    if (!db.isValid()) {
        *error = QString("Could not load the database driver %1").arg(driver);
        return false;
    }
    db.setHostName(setting(parser, "host", "/Global/DBServer", "localhost"));
    db.setDatabaseName(setting(parser, "database", "/Global/DBName", "Quorel"));
    db.setUserName(setting(parser, "user", "/Global/DBUser", "Quorel"));
    db.setPassword(setting(parser, "password", "/Global/DBPassword", "vmo"));
    bool ok = false;
    const int port = parser.isSet("port") ? parser.value("port").toInt(&ok) : settings->value("/Global/DBPort", 0).toInt(&ok);
    if (ok && (parser.isSet("port") || settings->contains("/Global/DBPort")))
        db.setPort(port);
    if (db.open())
        return true;
    *error = db.lastError().text();
    return false;
}

QStringList existingTables(const QSqlDatabase &db)
{
    QStringList found;
    const QStringList present = db.tables();
    for (const QString &table : Schema::tables()) {
        if (present.contains(table, Qt::CaseInsensitive))
            found << table;
    }
    return found;
}

bool createSchema(const Options &options, QString *error)
{
    QSqlDatabase db = QSqlDatabase::database();
    const Dialect::Engine engine = Dialect::connectedEngine();
    const QStringList present = existingTables(db);
    if (!present.isEmpty() && !options.replace) {
        *error = QString("the database already holds Quorel tables (%1); use --replace to drop them first")
                     .arg(present.join(", "));
        return false;
    }
    return (present.isEmpty() || Schema::dropAll(db, engine, error)) && Schema::create(db, engine, error);
}

int run(const Options &options)
{
    QElapsedTimer timer;
    timer.start();
    QString error;
    if (!createSchema(options, &error))
        return failed(error);
    if (options.command != "create") {
        const Shape shape = options.command == "demo" ? Shape::demo() : Shape::bench(options.scale);
        if (!writePractice(QSqlDatabase::database(), Dialect::connectedEngine(), shape, &error))
            return failed(error);
    }
    say(QString("%1 done in %2 s").arg(options.command).arg(timer.elapsed() / 1000.0, 0, 'f', 1));
    return 0;
}

bool parse(QCommandLineParser &parser, const QStringList &arguments, Options *options, QString *error)
{
    parser.setApplicationDescription("Creates the Quorel schema and fills it with a demo practice or benchmark data.");
    parser.addHelpOption();
    parser.addPositionalArgument("command", "create | demo | bench");
    parser.addOptions({{"driver", "Qt driver or setting value (QMYSQL3, QSQLITE, QPSQL7).", "name"},
                       {"host", "Database server.", "host"},
                       {"port", "Database port.", "port"},
                       {"database", "Database name (SQLite: the file).", "name"},
                       {"user", "Database user.", "user"},
                       {"password", "Database password.", "password"},
                       {"replace", "Drop the Quorel tables that exist first."},
                       {"scale", "bench: size factor (100 = about 1,000,000 invoice lines).", "N", "1"}});
    parser.process(arguments);
    const QStringList positional = parser.positionalArguments();
    options->command = positional.value(0);
    options->replace = parser.isSet("replace");
    bool ok = false;
    options->scale = parser.value("scale").toInt(&ok);
    if (positional.size() != 1 || !QStringList{"create", "demo", "bench"}.contains(options->command))
        *error = "expected one command: create, demo or bench (see --help)";
    else if (!ok || options->scale < 1)
        *error = "--scale takes a whole number of at least 1";
    return error->isEmpty();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("quorel-db");
    QSettings store("Zephron", "Quorel");
    settings = &store;
    QCommandLineParser parser;
    Options options;
    QString error;
    if (!parse(parser, QCoreApplication::arguments(), &options, &error) || !openDatabase(parser, &error))
        return failed(error);
    return run(options);
}
