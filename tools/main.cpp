// quorel-db: sets up a Quorel database. The connection comes from the suite's settings (the same
// keys the program reads), each one overridable on the command line.
#include "connection.h"
#include "connectionoptions.h"
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
#include <QSqlQuery>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

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

// After a bulk load the servers plan from statistics of the empty tables: PostgreSQL has none and
// no visibility map yet, so it cannot read from indexes alone until autovacuum comes by; MariaDB
// recounts a table only some time after a tenth of it changed, and meanwhile took every patient to
// have one invoice line (Client Purchases walked all patients' lines instead of the period's, 3 s
// instead of 0.9 s). A database in use has both up to date; so that the practice behaves (and
// measures) like one from the start, it is analysed here (and vacuumed, on PostgreSQL).
bool settle(QString *error)
{
    const QString tables = Schema::tables().join(',');
    QSqlQuery query;
    switch (Dialect::connectedEngine()) {
    case Dialect::PostgreSQL:
        if (query.exec("VACUUM ANALYZE " + tables))
            return true;
        break;
    case Dialect::MySQL:
        if (query.exec("ANALYZE TABLE " + tables))
            return true;
        break;
    default:
        return true;
    }
    *error = query.lastError().text();
    return false;
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
        if (!writePractice(QSqlDatabase::database(), Dialect::connectedEngine(), shape, &error)
            || !settle(&error))
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
    ConnectionOptions::add(parser);
    parser.addOptions({{"replace", "Drop the Quorel tables that exist first."},
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
    QCommandLineParser parser;
    Options options;
    QString error;
    if (!parse(parser, QCoreApplication::arguments(), &options, &error))
        return failed(error);
    // The suite's settings with the options over them, so that the dialect follows the driver used.
    const QSettings store("Zephron", "Quorel");
    QTemporaryDir scratch;
    std::unique_ptr<QSettings> effective(
        ConnectionOptions::effectiveSettings(parser, store, scratch.filePath("Quorel.conf")));
    settings = effective.get();
    const int status = Connection::open(*settings, &error) ? run(options) : failed(error);
    settings = nullptr;
    return status;
}
