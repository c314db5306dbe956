#ifndef QUOREL_CONNECTIONOPTIONS_H
#define QUOREL_CONNECTIONOPTIONS_H

#include <QString>

class QCommandLineParser;
class QSettings;

// The connection options of the suite's command-line tools (quorel-db, quorel-report, the
// benchmarks): each one overrides a /Global/DB* key of the settings.
namespace ConnectionOptions {

// --driver, --host, --port, --database, --user, --password.
void add(QCommandLineParser &parser);

// The settings a tool works with: every key of `source` copied into the INI file `file`, with the
// options written over the /Global/DB* keys, so that everything that reads the settings (the SQL
// dialect, the window's reports) sees the connection that is actually used.
QSettings *effectiveSettings(const QCommandLineParser &parser, const QSettings &source, const QString &file);

} // namespace ConnectionOptions

#endif
