#include "benchsupport.h"

#include "connection.h"
#include "connectionoptions.h"
#include "dialect.h"
#include "globals.h"
#include "utility.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace BenchSupport {

namespace {
QTemporaryDir *scratch = nullptr;
}

QVariant Prompter::next(bool *ok)
{
    *ok = !answers.isEmpty();
    return *ok ? answers.takeFirst() : QVariant();
}

int Prompter::message(QWidget *, Icon, const QString &, const QString &text, const QStringList &, int, int)
{
    lastText = text;
    messages << text;
    return 0;
}

QString Prompter::getText(QWidget *, const QString &, const QString &, QLineEdit::EchoMode, const QString &, bool *ok)
{
    return next(ok).toString();
}

QString Prompter::getItem(QWidget *, const QString &, const QString &, const QStringList &, int, bool, bool *ok)
{
    return next(ok).toString();
}

int Prompter::getInt(QWidget *, const QString &, const QString &, int value, int, int, int, bool *ok)
{
    const QVariant answer = next(ok);
    return *ok ? answer.toInt() : value;
}

double Timing::median() const
{
    QList<double> sorted = ms;
    std::sort(sorted.begin(), sorted.end());
    const int n = sorted.size();
    if (n == 0)
        return 0.0;
    return n % 2 ? sorted[n / 2] : (sorted[n / 2 - 1] + sorted[n / 2]) / 2.0;
}

double Timing::min() const
{
    return ms.isEmpty() ? 0.0 : *std::min_element(ms.begin(), ms.end());
}

double Timing::max() const
{
    return ms.isEmpty() ? 0.0 : *std::max_element(ms.begin(), ms.end());
}

Timing measure(const QString &step, int runs, const std::function<void()> &prepare, const std::function<void()> &work)
{
    Timing timing{step, {}};
    for (int i = 0; i < runs; ++i) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        timing.ms << timer.nsecsElapsed() / 1e6;
    }
    return timing;
}

void addOptions(QCommandLineParser &parser, const QString &description)
{
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    parser.addOptions({{"settings", "Settings file (INI) with the /Global/DB* keys.", "file"},
                       {"runs", "Runs of each step (the median is shown).", "N", "5"}});
    ConnectionOptions::add(parser);
}

// The keys of the settings file, if one is given, with the options over them.
static QSettings *openSettings(const QCommandLineParser &parser)
{
    scratch = new QTemporaryDir;
    const QSettings source(parser.value("settings"), QSettings::IniFormat);
    return ConnectionOptions::effectiveSettings(parser, source, scratch->filePath("Quorel.conf"));
}

bool open(const QCommandLineParser &parser, QString *error)
{
    settings = openSettings(parser);
    if (!Connection::open(*settings, error)) {
        *error = "cannot connect: " + *error;
        return false;
    }
    utils = new Utility("Admin");
    if (!utils->initClass(false)) {
        *error = "the practice information could not be read";
        return false;
    }
    return true;
}

void close()
{
    delete utils;
    utils = nullptr;
    delete settings;
    settings = nullptr;
    delete scratch;
    scratch = nullptr;
}

int runs(const QCommandLineParser &parser)
{
    return qMax(1, parser.value("runs").toInt());
}

int fail(const char *program, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", program, qPrintable(text));
    return 1;
}

int exec(int argc, char **argv, const char *program, const QString &description,
         const std::function<void(QCommandLineParser &)> &moreOptions,
         const std::function<int(const QCommandLineParser &)> &body)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser parser;
    addOptions(parser, description);
    moreOptions(parser);
    parser.process(app);
    QString error;
    const int status = open(parser, &error) ? body(parser) : fail(program, error);
    close();
    return status;
}

long long number(const QString &sql)
{
    QSqlQuery query;
    return query.exec(sql) && query.next() ? query.value(0).toLongLong() : -1;
}

} // namespace BenchSupport
