#include "connectionoptions.h"

#include <QCommandLineParser>
#include <QSettings>

namespace ConnectionOptions {

namespace {
const struct {
    const char *option;
    const char *key;
    const char *help;
    const char *value;
} options[] = {{"driver", "/Global/DBDriver", "Qt driver or setting value (QMYSQL3, QSQLITE, QPSQL7).", "name"},
               {"host", "/Global/DBServer", "Database server.", "host"},
               {"port", "/Global/DBPort", "Database port.", "port"},
               {"database", "/Global/DBName", "Database name (SQLite: the file).", "name"},
               {"user", "/Global/DBUser", "Database user.", "user"},
               {"password", "/Global/DBPassword", "Database password.", "password"}};
} // namespace

void add(QCommandLineParser &parser)
{
    for (const auto &o : options)
        parser.addOption({QString::fromLatin1(o.option), QString::fromLatin1(o.help), QString::fromLatin1(o.value)});
}

QSettings *effectiveSettings(const QCommandLineParser &parser, const QSettings &source, const QString &file)
{
    auto *store = new QSettings(file, QSettings::IniFormat);
    store->clear();
    for (const QString &key : source.allKeys())
        store->setValue(key, source.value(key));
    for (const auto &o : options)
        if (parser.isSet(QString::fromLatin1(o.option)))
            store->setValue(QString::fromLatin1(o.key), parser.value(QString::fromLatin1(o.option)));
    store->sync();
    return store;
}

} // namespace ConnectionOptions
