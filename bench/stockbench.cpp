// quorel-stockbench: times the stock work of the dispense tab on the connected practice, in the
// real window (offscreen): loading "Goods" with "Highlight Stock Inconsistencies" off and on,
// selecting the busiest product with "Analyse Stock On Select" on, and its stock level trace
// (answered "Close"). Each step runs several times; the table gives the median.
#include "admin.h"
#include "benchsupport.h"
#include "globals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSqlDatabase>
#include <QSettings>
#include <QSqlQuery>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>

namespace {

using BenchSupport::Timing;
using BenchSupport::measure;

int fail(const QString &text)
{
    return BenchSupport::fail("quorel-stockbench", text);
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

int runBench(int runs)
{
    BenchSupport::Prompter prompter;
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
                qPrintable(settings->value("/Global/DBDriver").toString()), int(BenchSupport::number("SELECT COUNT(*) FROM InvoiceItem")),
                goodsRows, qPrintable(busiest.table), qPrintable(busiest.code), busiest.lines);
    std::printf("%-40s %10s %10s %10s  (%d runs)\n", "step", "median ms", "min ms", "max ms", runs);
    for (const Timing &t : timings)
        std::printf("%-40s %10.1f %10.1f %10.1f\n", qPrintable(t.step), t.median(), t.min(), t.max());
    std::printf("trace box: %s\n", qPrintable(QString(prompter.lastText).replace('\n', " | ")));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    return BenchSupport::exec(argc, argv, "quorel-stockbench", "Times the dispense tab's stock work on a Quorel database.",
                              [](QCommandLineParser &) {},
                              [](const QCommandLineParser &parser) { return runBench(BenchSupport::runs(parser)); });
}
