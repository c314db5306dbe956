// quorel-reportbench: runs every report of the catalogue in the real window (offscreen) on the
// connected practice, as a person would from the Reports tab, and prints per report the rows it
// listed, the median time of its runs and, on MariaDB, the number of statements it sent (the
// session's Questions counter before and after one more run). The inputs: performance reports
// monthly from today, date ranges over the last month, Client Purchases over the last year,
// Stock Levels on Goods, Drug Levels from schedule 0. With --export each run also writes every
// row as Export does, which is what quorel-report --csv does after the report.
#include "admin.h"
#include "benchsupport.h"
#include "dialect.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDate>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <cstdio>

namespace {

const int Reports = 24;

struct Inputs {
    QDate start, end;
    QList<QVariant> answers;
};

Inputs inputsOf(int index)
{
    const QDate today = QDate::currentDate();
    if (index <= 8)
        return {today, today, {"Monthly"}};
    if (index == 11)
        return {today.addYears(-1), today, {}};
    if (index == 10 || index == 18 || index == 21 || index == 22)
        return {today.addMonths(-1), today, {}};
    if (index == 16)
        return {today, today, {"Goods"}};
    if (index == 23)
        return {today, today, {0}};
    return {today, today, {}};
}

// As a person chooses a report: the combo's activation sets the inputs and clears the list.
void prepare(Admin *admin, BenchSupport::Prompter *prompter, int index)
{
    const Inputs inputs = inputsOf(index);
    admin->ui.type_combo->setCurrentIndex(index);
    emit admin->ui.type_combo->activated(index);
    admin->ui.DateEdit1->setDate(inputs.start);
    admin->ui.DateEdit2->setDate(inputs.end);
    prompter->answers = inputs.answers;
}

// MariaDB counts the statements a session sent; the SHOW itself is one of them.
long long questions()
{
    QSqlQuery query;
    return query.exec("SHOW SESSION STATUS LIKE 'Questions'") && query.next() ? query.value(1).toLongLong() : -1;
}

QString statementsOf(Admin *admin, BenchSupport::Prompter *prompter, int index)
{
    if (Dialect::connectedEngine() != Dialect::MySQL)
        return "-";
    prepare(admin, prompter, index);
    const long long before = questions();
    admin->processQuery();
    const long long after = questions();
    return before < 0 || after < 0 ? QString("?") : QString::number(after - before - 1);
}

QList<int> chosenReports(const QCommandLineParser &parser)
{
    QList<int> chosen;
    for (const QString &value : parser.values("report"))
        chosen << value.toInt();
    if (chosen.isEmpty())
        for (int index = 0; index < Reports; ++index)
            chosen << index;
    return chosen;
}

void printPractice()
{
    std::printf("engine %s: %lld invoice lines, %lld journal entries, %lld clients, %lld Goods products\n",
                qPrintable(QSqlDatabase::database().driverName()),
                BenchSupport::number("SELECT COUNT(*) FROM InvoiceItem"),
                BenchSupport::number("SELECT COUNT(*) FROM Journal"), BenchSupport::number("SELECT COUNT(*) FROM Owner"),
                BenchSupport::number("SELECT COUNT(*) FROM Goods"));
}


int runBench(const QCommandLineParser &parser)
{
    BenchSupport::Prompter prompter;
    Prompter::install(&prompter);
    Admin admin;
    const int runs = BenchSupport::runs(parser);
    printPractice();
    std::printf("%3s %-28s %8s %10s %10s %10s %11s  (%d runs)\n", "#", "report", "rows", "median ms", "min ms",
                "max ms", "statements", runs);
    int failures = 0;
    QTemporaryDir scratch;
    const QString csv = parser.isSet("export") ? scratch.filePath("report.csv") : QString();
    for (int index : chosenReports(parser)) {
        Admin *a = &admin;
        prompter.messages.clear();
        const BenchSupport::Timing timing = BenchSupport::measure(
            admin.ui.type_combo->itemText(index), runs, [&] { prepare(a, &prompter, index); }, [a, &csv] {
                a->processQuery();
                if (!csv.isEmpty())
                    a->exportRows(csv);
            });
        const int rows = admin.ui.report_list->topLevelItemCount();
        const QString statements = statementsOf(a, &prompter, index);
        std::printf("%3d %-28s %8d %10.1f %10.1f %10.1f %11s\n", index, qPrintable(timing.step), rows,
                    timing.median(), timing.min(), timing.max(), qPrintable(statements));
        for (const QString &message : qAsConst(prompter.messages)) {
            std::printf("    message: %s\n", qPrintable(QString(message).replace('\n', " | ")));
            ++failures;
        }
        std::fflush(stdout);
    }
    Prompter::install(nullptr);
    return failures ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    return BenchSupport::exec(
        argc, argv, "quorel-reportbench", "Runs every report of the Reports tab on a Quorel database and times it.",
        [](QCommandLineParser &parser) {
            parser.addOption({"report", "Only this catalogue index (may be repeated).", "index"});
            parser.addOption({"export", "Each run also exports every row, as quorel-report --csv does."});
        },
        runBench);
}
