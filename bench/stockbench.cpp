// quorel-stockbench: times the stock work of the dispense tab on the connected practice, in the
// real window (offscreen): loading "Goods" with "Highlight Stock Inconsistencies" off and on,
// selecting the busiest product with "Analyse Stock On Select" on, and its stock level trace
// (answered "Close"). Each step runs several times; the table gives the median.
#include "admin.h"
#include "connection.h"
#include "dialect.h"
#include "globals.h"
#include "prompter.h"
#include "utility.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

// Answers every box with its first button ("Close" for the trace) and rejects every dialog;
// keeps the last message so the figures can be printed.
class BenchPrompter : public Prompter
{
public:
    QString lastText;
    int message(QWidget *, Icon, const QString &, const QString &text, const QStringList &, int, int) override
    {
        lastText = text;
        return 0;
    }
    QString getText(QWidget *, const QString &, const QString &, QLineEdit::EchoMode, const QString &,
                    bool *ok) override
    {
        *ok = false;
        return {};
    }
    QString getItem(QWidget *, const QString &, const QString &, const QStringList &, int, bool, bool *ok) override
    {
        *ok = false;
        return {};
    }
    int getInt(QWidget *, const QString &, const QString &, int value, int, int, int, bool *ok) override
    {
        *ok = false;
        return value;
    }
    QString getSaveFileName(QWidget *, const QString &, const QString &, const QString &) override { return {}; }
    int exec(QDialog *) override { return 0; }
    bool setupPrinter(QPrinter *, QWidget *) override { return false; }
};

int fail(const QString &text)
{
    std::fprintf(stderr, "quorel-stockbench: %s\n", qPrintable(text));
    return 1;
}

// The suite's own keys, from a settings file or written from the options into a temporary one.
QSettings *openSettings(const QCommandLineParser &parser, const QTemporaryDir &dir)
{
    if (parser.isSet("settings"))
        return new QSettings(parser.value("settings"), QSettings::IniFormat);
    auto *store = new QSettings(dir.filePath("Quorel.conf"), QSettings::IniFormat);
    const QList<QPair<QString, QString>> keys{{"driver", "/Global/DBDriver"}, {"host", "/Global/DBServer"},
                                              {"port", "/Global/DBPort"},     {"database", "/Global/DBName"},
                                              {"user", "/Global/DBUser"},     {"password", "/Global/DBPassword"}};
    for (const auto &key : keys)
        if (parser.isSet(key.first))
            store->setValue(key.second, parser.value(key.first));
    return store;
}

// Opened as the program opens it at start-up.
bool openDatabase(QString *error)
{
    QSqlDatabase db = Connection::add(Connection::read(*settings));
    if (!db.open()) {
        *error = db.lastError().text();
        return false;
    }
    Dialect::prepareSession(db);
    return true;
}

struct Timing {
    QString step;
    QList<double> ms;
    double median() const
    {
        QList<double> sorted = ms;
        std::sort(sorted.begin(), sorted.end());
        const int n = sorted.size();
        return n % 2 ? sorted[n / 2] : (sorted[n / 2 - 1] + sorted[n / 2]) / 2.0;
    }
};

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

void setBox(QCheckBox *box, bool on)
{
    const bool blocked = box->blockSignals(true); // no reload of its own: the step reloads
    box->setChecked(on);
    box->blockSignals(blocked);
}

void showCategory(Admin *admin, const QString &table)
{
    admin->ui.category_combo->setCurrentIndex(admin->ui.category_combo->findText(Admin::tr(table.toLatin1())));
    admin->categorySelected(admin->ui.category_combo->currentText());
}

QTreeWidgetItem *row(Admin *admin, const QString &code)
{
    const QList<QTreeWidgetItem *> found = admin->ui.list->findItems(code, Qt::MatchExactly, 0);
    return found.value(0);
}

struct Busiest {
    QString table;
    QString code;
    int lines = 0;
};

bool busiestProduct(Busiest *busiest)
{
    QSqlQuery query;
    if (!query.exec("SELECT Category, Code, COUNT(*) FROM InvoiceItem GROUP BY Category, Code "
                    "ORDER BY COUNT(*) DESC") || !query.next())
        return false;
    *busiest = {query.value(0).toString(), query.value(1).toString(), query.value(2).toInt()};
    return true;
}

int count(const QString &sql)
{
    QSqlQuery query;
    return query.exec(sql) && query.next() ? query.value(0).toInt() : -1;
}

int runBench(int runs)
{
    BenchPrompter prompter;
    Prompter::install(&prompter);
    Admin admin;
    Busiest busiest;
    if (!busiestProduct(&busiest))
        return fail("the practice has no invoice lines");
    QList<Timing> timings;
    Admin *a = &admin;
    timings << measure("Goods, highlighting off", runs, [a] { setBox(a->ui.checkBox9, false); },
                       [a] { showCategory(a, "Goods"); });
    const int goodsRows = admin.ui.list->topLevelItemCount();
    timings << measure("Goods, highlighting on", runs, [a] { setBox(a->ui.checkBox9, true); },
                       [a] { showCategory(a, "Goods"); });
    setBox(a->ui.checkBox9, false);
    setBox(a->ui.checkBox10, true);
    showCategory(a, busiest.table);
    QTreeWidgetItem *item = row(a, busiest.code);
    if (!item)
        return fail("the busiest product is not listed (inactive?)");
    timings << measure(QString("select %1 %2, analyse on").arg(busiest.table, busiest.code), runs,
                       [a] { a->ui.list->clearSelection(); },
                       [a, item] { a->ui.list->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect); });
    timings << measure(QString("stock trace of %1 %2").arg(busiest.table, busiest.code), runs, [] {},
                       [a] { a->stockLevelTrace(); });
    Prompter::install(nullptr);

    std::printf("engine %s: %d invoice lines, %d products in Goods listed, busiest product %s %s with %d lines\n",
                qPrintable(settings->value("/Global/DBDriver").toString()), count("SELECT COUNT(*) FROM InvoiceItem"),
                goodsRows, qPrintable(busiest.table), qPrintable(busiest.code), busiest.lines);
    std::printf("%-40s %10s %10s %10s  (%d runs)\n", "step", "median ms", "min ms", "max ms", runs);
    for (const Timing &t : timings)
        std::printf("%-40s %10.1f %10.1f %10.1f\n", qPrintable(t.step), t.median(),
                    *std::min_element(t.ms.begin(), t.ms.end()), *std::max_element(t.ms.begin(), t.ms.end()));
    std::printf("trace box: %s\n", qPrintable(QString(prompter.lastText).replace('\n', " | ")));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Times the dispense tab's stock work on a Quorel database.");
    parser.addHelpOption();
    parser.addOptions({{"settings", "Settings file (INI) with the /Global/DB* keys.", "file"},
                       {"driver", "QSQLITE, QMYSQL3 or QPSQL7.", "name"},
                       {"host", "Database server.", "host"},
                       {"port", "Database port.", "port"},
                       {"database", "Database name (SQLite: the file).", "name"},
                       {"user", "Database user.", "user"},
                       {"password", "Database password.", "password"},
                       {"runs", "Runs of each step (the median is shown).", "N", "5"}});
    parser.process(app);
    QTemporaryDir dir;
    settings = openSettings(parser, dir);
    QString error;
    if (!openDatabase(&error))
        return fail("cannot connect: " + error);
    utils = new Utility("Admin");
    if (!utils->initClass(false))
        return fail("the practice information could not be read");
    const int status = runBench(qMax(1, parser.value("runs").toInt()));
    delete utils;
    utils = nullptr;
    delete settings;
    settings = nullptr;
    return status;
}
