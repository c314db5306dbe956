#include "reporttool.h"

#include "admin.h"
#include "plot.h"
#include "reportprompter.h"
#include "zrrichtext.h"

#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryFile>
#include <QTreeWidget>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <sys/stat.h>

namespace ReportTool {

namespace {

const int Reports = 24;
const int StockLevels = 16;
const int DrugLevels = 23;
const QSize ChartImageSize(1200, 800);

bool isPerformance(int index)
{
    return index >= 0 && index <= 8;
}

Outcome refused(const QString &message)
{
    return {2, message};
}

QString nameOf(int index)
{
    return catalogue().value(index);
}

Outcome checkAnswers(const Request &request)
{
    // The name only for a refusal: reading the catalogue builds the window's form.
    if (isPerformance(request.index) && request.mode != "daily" && request.mode != "monthly")
        return refused(QString("%1 asks for a mode: give --mode daily or --mode monthly").arg(nameOf(request.index)));
    if (request.index == StockLevels && request.category.trimmed().isEmpty())
        return refused(QString("%1 asks for a category: give --category (Goods, Hospital, Lab, Medication, "
                               "Injection, Vaccination or another product table)").arg(nameOf(request.index)));
    if (request.index == DrugLevels && (request.schedule < 0 || request.schedule > 7))
        return refused(QString("%1 asks for the lowest schedule: give --schedule 0 to 7").arg(nameOf(request.index)));
    return {};
}

Outcome checkOutput(const QString &file)
{
    if (file.isEmpty())
        return {};
    const QFileInfo info(file);
    const QFileInfo folder(info.absolutePath());
    if (!folder.isDir())
        return refused(QString("cannot write %1: there is no folder %2").arg(file, folder.filePath()));
    if (!folder.isWritable())
        return refused(QString("cannot write %1: the folder %2 is not writable").arg(file, folder.filePath()));
    if (info.isDir())
        return refused(QString("cannot write %1: it is a folder").arg(file));
    return {};
}

Outcome checkOutputs(const Request &request)
{
    if (request.csv.isEmpty() && request.pdf.isEmpty() && request.chart.isEmpty())
        return refused("nothing to write: give --csv, --pdf or --chart");
    if (!request.chart.isEmpty()) {
        if (!charts(request.index))
            return refused(QString("%1 does not chart: --chart is for the performance reports and %2")
                               .arg(nameOf(request.index), nameOf(9)));
        const QString suffix = QFileInfo(request.chart).suffix().toLower();
        if (suffix != "png" && suffix != "pdf")
            return refused(QString("--chart writes a .png or a .pdf file, not %1").arg(request.chart));
    }
    for (const QString &file : {request.csv, request.pdf, request.chart}) {
        const Outcome outcome = checkOutput(file);
        if (outcome.status)
            return outcome;
    }
    return {};
}

// What the window said while it worked: a failed statement is the database's (1), any other box
// a refusal of the input (2).
Outcome outcomeOf(const ReportPrompter *prompter)
{
    if (!prompter->unanswered.isEmpty())
        return refused("the report asked what no option answers: " + prompter->unanswered.join("; "));
    for (const ReportPrompter::Said &box : prompter->said)
        if (box.icon == Prompter::Critical)
            return {1, box.text};
    if (!prompter->said.isEmpty())
        return refused(QString(prompter->said.first().text).replace('\n', ' ').simplified());
    return {};
}

// The window writes into a hidden file beside the target, which takes the target's place only once
// it is complete: a failed run leaves no half-written output, and an older output stays whole.
Outcome writeThrough(const QString &target, const QString &suffix, ReportPrompter *prompter,
                     const std::function<void(const QString &)> &write)
{
    const QFileInfo info(target);
    QTemporaryFile temporary(info.absolutePath() + "/." + info.fileName() + ".XXXXXX." + suffix);
    if (!temporary.open())
        return refused(QString("cannot write %1: %2").arg(target, temporary.errorString()));
    temporary.close();
    // A temporary file is the owner's alone; the report is a file like any other, readable as the
    // umask allows (a shared folder's readers need it).
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::chmod(QFile::encodeName(temporary.fileName()).constData(), 0666 & ~mask);
    prompter->said.clear();
    write(temporary.fileName());
    const Outcome outcome = outcomeOf(prompter);
    if (outcome.status)
        return outcome;
    if (QFileInfo(temporary.fileName()).size() == 0)
        return refused(QString("nothing was written to %1").arg(target));
    if (std::rename(QFile::encodeName(temporary.fileName()).constData(), QFile::encodeName(target).constData()) != 0)
        return refused(QString("cannot write %1: %2").arg(target, QString::fromLocal8Bit(std::strerror(errno))));
    temporary.setAutoRemove(false);
    return {};
}

// As a person highlights every row before Graph.
void highlightAll(Admin *admin)
{
    QTreeWidget *list = admin->ui.report_list;
    if (list->topLevelItemCount() > 0)
        list->setCurrentItem(list->topLevelItem(0));
    list->selectAll();
}

// Every row, as Export writes the highlighted ones; a report without rows gives its titles alone.
Outcome writeCsv(Admin *admin, ReportPrompter *prompter, const QString &target)
{
    return writeThrough(target, "csv", prompter, [&](const QString &file) {
        if (!admin->exportRows(file))
            prompter->said << ReportPrompter::Said{Prompter::Warning, QString(), QString("cannot write %1").arg(target)};
    });
}

Outcome writePdf(Admin *admin, ReportPrompter *prompter, const QString &target)
{
    return writeThrough(target, "pdf", prompter, [&](const QString &file) {
        admin->printQuery();
        prompter->pdfFileName = file;
        admin->reportViewer()->printAll();
        prompter->pdfFileName.clear();
    });
}

// The chart the window's Graph shows: a PDF through its own Print, a picture through the same
// drawing onto an image.
void saveChart(Plot *plot, ReportPrompter *prompter, const QString &file)
{
    if (file.endsWith(".pdf")) {
        prompter->pdfFileName = file;
        plot->print();
        prompter->pdfFileName.clear();
        return;
    }
    QImage image(ChartImageSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        plot->redraw(&painter);
    }
    image.save(file, "PNG");
}

Outcome writeChart(Admin *admin, ReportPrompter *prompter, const QString &target)
{
    const QString suffix = QFileInfo(target).suffix().toLower();
    return writeThrough(target, suffix, prompter, [&](const QString &file) {
        highlightAll(admin);
        prompter->dialogHandler = [&](QDialog *dialog) {
            if (auto *plot = qobject_cast<Plot *>(dialog))
                saveChart(plot, prompter, file);
            return int(QDialog::Accepted);
        };
        admin->graphQuery();
        prompter->dialogHandler = nullptr;
    });
}

void choose(Admin *admin, ReportPrompter *prompter, const Request &request)
{
    admin->ui.type_combo->setCurrentIndex(request.index);
    emit admin->ui.type_combo->activated(request.index);
    admin->ui.DateEdit1->setDate(request.from);
    admin->ui.DateEdit2->setDate(request.to);
    prompter->choice = isPerformance(request.index) ? QString(request.mode == "daily" ? "0" : "1") : request.category;
    prompter->number = request.schedule;
}

} // namespace

QStringList catalogue()
{
    QMainWindow holder;
    Ui::Admin form;
    form.setupUi(&holder);
    QStringList names;
    for (int i = 0; i < form.type_combo->count(); ++i)
        names << form.type_combo->itemText(i);
    return names;
}

int reportIndex(const QString &nameOrIndex)
{
    bool isNumber = false;
    const int index = nameOrIndex.trimmed().toInt(&isNumber);
    if (isNumber)
        return index >= 0 && index < Reports ? index : -1;
    const QStringList names = catalogue();
    for (int i = 0; i < names.size(); ++i)
        if (names.at(i).compare(nameOrIndex.trimmed(), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

bool charts(int index)
{
    return index >= 0 && index <= 9;
}

Outcome check(const Request &request)
{
    const Outcome answers = checkAnswers(request);
    return answers.status ? answers : checkOutputs(request);
}

Outcome run(Admin *admin, ReportPrompter *prompter, const Request &request)
{
    choose(admin, prompter, request);
    admin->processQuery();
    Outcome outcome = outcomeOf(prompter);
    if (outcome.status)
        return outcome;
    if (!request.csv.isEmpty())
        outcome = writeCsv(admin, prompter, request.csv);
    if (!outcome.status && !request.pdf.isEmpty())
        outcome = writePdf(admin, prompter, request.pdf);
    if (!outcome.status && !request.chart.isEmpty())
        outcome = writeChart(admin, prompter, request.chart);
    return outcome;
}

} // namespace ReportTool
