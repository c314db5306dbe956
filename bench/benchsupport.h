#ifndef QUOREL_BENCHSUPPORT_H
#define QUOREL_BENCHSUPPORT_H

#include "prompter.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>

class QCommandLineParser;

// What the benchmarks share: the connection from a settings file or from options (as quorel-db
// takes them), a prompter that answers from a script, and the timing of repeated steps.
namespace BenchSupport {

// Answers the input dialogs from a queue (empty: cancelled), every message box with its first
// button, and rejects every dialog; keeps the last message so that it can be printed.
class Prompter : public ::Prompter
{
public:
    QString lastText;
    QStringList messages;
    QList<QVariant> answers; // texts for getItem/getText, ints for getInt, taken in order

    int message(QWidget *, Icon, const QString &, const QString &text, const QStringList &, int, int) override;
    QString getText(QWidget *, const QString &, const QString &, QLineEdit::EchoMode, const QString &,
                    bool *ok) override;
    QString getItem(QWidget *, const QString &, const QString &, const QStringList &, int, bool, bool *ok) override;
    int getInt(QWidget *, const QString &, const QString &, int value, int, int, int, bool *ok) override;
    QString getSaveFileName(QWidget *, const QString &, const QString &, const QString &) override { return {}; }
    int exec(QDialog *) override { return 0; }
    bool setupPrinter(QPrinter *, QWidget *) override { return false; }

private:
    QVariant next(bool *ok);
};

struct Timing {
    QString step;
    QList<double> ms;
    double median() const;
    double min() const;
    double max() const;
};

// Runs `prepare` untimed and `work` timed, `runs` times.
Timing measure(const QString &step, int runs, const std::function<void()> &prepare,
               const std::function<void()> &work);

// The connection options every benchmark takes, with --runs.
void addOptions(QCommandLineParser &parser, const QString &description);
// Sets `settings` from --settings or the options, opens the default connection as start-up does
// and makes `utils`. False with `error` set when that fails.
bool open(const QCommandLineParser &parser, QString *error);
void close();
int runs(const QCommandLineParser &parser);

int fail(const char *program, const QString &text);

// A benchmark program's life: offscreen unless a platform is named, the connection options and
// `moreOptions`, the connection and `utils`, then `body`, whose result is the exit status.
int exec(int argc, char **argv, const char *program, const QString &description,
         const std::function<void(QCommandLineParser &)> &moreOptions,
         const std::function<int(const QCommandLineParser &)> &body);
// The first value of a statement as a number (-1 when it fails).
long long number(const QString &sql);

} // namespace BenchSupport

#endif
