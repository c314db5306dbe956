// The output of whatever the report list holds: paged HTML for the viewer and the printer, a
// comma-separated file of the highlighted rows, and the chart of a performance report. All of it
// reads the list itself: its column titles, widths and alignments, and its rows.
#include "admin.h"
#include "globals.h"
#include "plot.h"
#include "prompter.h"
#include "reportframe.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"
#include "zrrichtext.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QSettings>

namespace {

const int ChartReports = 10; // the performance reports and the new clients history

// The wait cursor for the life of a block.
struct Waiting {
    Waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Waiting() { QApplication::restoreOverrideCursor(); }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;
};

// Read afresh each time, so that a changed setting takes effect with the next page. A setting
// below one line would make no page at all.
int linesPerPage()
{
    const int lines = settings ? settings->value("/Admin/QueryPrintLines", 53).toInt() : 53;
    return qMax(1, lines);
}

QString alignmentWord(int alignment)
{
    switch (alignment & Qt::AlignHorizontal_Mask) {
    case 0:
        return QStringLiteral("auto");
    case Qt::AlignRight:
        return QStringLiteral("right");
    case Qt::AlignLeft:
        return QStringLiteral("left");
    default:
        return QStringLiteral("center");
    }
}

// A column that takes part in the output: one with a title.
struct Column {
    int index;
    QString title;
    int width;
    QString align;
};

QList<Column> titledColumns(const QTreeWidget *list)
{
    QList<Column> columns;
    const QTreeWidgetItem *header = list->headerItem();
    for (int c = 0; c < ReportFrame::Columns; ++c)
        if (!header->text(c).isEmpty())
            columns << Column{c, header->text(c), list->columnWidth(c), alignmentWord(header->textAlignment(c))};
    return columns;
}

bool isMarked(const QTreeWidgetItem *item)
{
    const auto *row = dynamic_cast<const ZrListItem *>(item);
    return row && row->altVisual() == 2;
}

// The rows, or only the highlighted ones, in list order.
QList<const QTreeWidgetItem *> listRows(const QTreeWidget *list, bool highlightedOnly)
{
    QList<const QTreeWidgetItem *> rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (!highlightedOnly || list->topLevelItem(i)->isSelected())
            rows << list->topLevelItem(i);
    return rows;
}

// The shape of Qt's text date ("Sun Mar 1 2026"), with the day and month names of the window's
// language: Qt's own text date is English whatever the language.
const char *const TextDateForm = "ddd MMM d yyyy";

QString pageHeading(const Admin *admin)
{
    return "<center><h2>Quorel<br>" + admin->ui.ALINE1->text() + "<br>" + admin->ui.type_combo->currentText()
           + admin->report.subtitle + " - " + QLocale().toString(admin->ui.DateEdit1->date(), TextDateForm)
           + "</h2></center>";
}

QString tableHeader(const QList<Column> &columns)
{
    int total = 0;
    for (const Column &c : columns)
        total += c.width;
    QString html = "<tr>";
    for (const Column &c : columns)
        html += "<th align=" + c.align + " width=" + QString::number(total ? c.width * 100 / total : 0) + "%><b>"
                + c.title + "</b></th>";
    return html;
}

QString tableRow(const QTreeWidgetItem *item, const QList<Column> &columns)
{
    QString html = isMarked(item) ? "<tr BGCOLOR=\"#FFCCCC\">" : "<tr>";
    for (const Column &c : columns)
        html += "<td align=" + c.align + ">" + TabSupport::cell(item, c.index).replace('\n', "<br>") + "</td>";
    return html + "</tr>";
}

// A cell of the file: numbers as they stand, any other text between double quotes.
QString csvCell(const QString &text)
{
    bool number = false;
    Utility::strNum(text, &number);
    return number ? text : '"' + text + '"';
}

QByteArray csvHeader(const QList<Column> &columns)
{
    QString line;
    for (const Column &c : columns)
        line += (c.index == 0 ? "" : ",") + ('"' + c.title + '"');
    return (line + '\n').toUtf8();
}

// The row's first `count` cells.
QByteArray csvRow(const QTreeWidgetItem *item, int count)
{
    QString line;
    for (int c = 0; c < count; ++c)
        line += (c == 0 ? "" : ",") + csvCell(TabSupport::cell(item, c));
    return (line + '\n').toUtf8();
}

// Written through a temporary file that replaces the target only once complete, so that a
// failure leaves nothing half-written.
bool writeCsv(const QString &name, const QTreeWidget *list, const QList<const QTreeWidgetItem *> &rows)
{
    const QFileInfo target(name);
    if (target.exists() && (!target.isFile() || !target.isWritable()))
        return false;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(csvHeader(titledColumns(list)));
    // A row's cells go up to the first column without a title.
    int count = 0;
    while (count < ReportFrame::Columns && !list->headerItem()->text(count).isEmpty())
        ++count;
    for (const QTreeWidgetItem *row : rows)
        file.write(csvRow(row, count));
    return file.commit();
}

// Shows the viewer with Prev and Next as the current page allows, with the page's HTML anew when
// `reload`.
void showViewer(Admin *admin, bool reload)
{
    ZrRichText *viewer = admin->reportViewer();
    if (reload)
        viewer->setText(admin->tableViewLoad());
    viewer->setButtons(admin->report.currentPage >= 1, admin->report.currentPage < admin->report.lastPage);
    viewer->show();
}

// Every page as one job; the set-up's range decides which are printed. Pages the job will not
// print are not even made, and the window is repainted between pages, as a long report takes a
// while.
void printAllPages(Admin *admin)
{
    Admin::ReportState &state = admin->report;
    ZrRichText *viewer = admin->reportViewer();
    const qint32 shown = state.currentPage;
    state.currentPage = 0;
    viewer->beginPrintAll(state.lastPage + 1);
    for (qint32 page = 0; page <= state.lastPage && viewer->printing(); ++page) {
        if (!viewer->wantsPage(page + 1))
            continue;
        state.currentPage = page;
        viewer->printPage(page + 1, admin->tableViewLoad());
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    state.currentPage = shown;
}

// The first period column's title: "yyyy-MM-dd" for a daily report, "yyyy-MM" for a monthly one.
void setChartStart(Plot *plot, const QString &title)
{
    const QStringList parts = title.split('-');
    const bool daily = title.count('-') == 2;
    plot->setStartDate(QDate(parts.value(0).toInt(), parts.value(1).toInt(), daily ? parts.value(2).toInt() : 1), daily);
}

void fillChart(Plot *plot, const QList<const QTreeWidgetItem *> &rows)
{
    QStringList legends;
    QList<double> values;
    values.reserve(rows.size() * Plot::Points);
    for (const QTreeWidgetItem *row : rows) {
        legends << TabSupport::cell(row, 0);
        for (int c = 1; c <= Plot::Points; ++c)
            values << Utility::strNum(TabSupport::cell(row, c), nullptr);
    }
    plot->setLegends(legends);
    plot->setValues(values);
}

} // namespace

void Admin::printQuery()
{
    report.currentPage = 0;
    // A list that fills its pages exactly gets one more, empty page.
    report.lastPage = ui.report_list->topLevelItemCount() / linesPerPage();
    showViewer(this, true);
}

QString Admin::tableViewLoad()
{
    Waiting waiting;
    const QTreeWidget *list = ui.report_list;
    const QList<Column> columns = titledColumns(list);
    const int lines = linesPerPage();
    const qint64 first = qint64(report.currentPage) * lines;
    const int end = int(qMin<qint64>(first + lines, list->topLevelItemCount()));
    QString html = pageHeading(this) + "<table BORDER=0 CELLSPACING=0 CELLPADDING=0 WIDTH=\"100%\">"
                   + tableHeader(columns);
    // Straight to the page's first row: a long report is not walked from its top for each page.
    for (int i = int(qMax<qint64>(first, 0)); i < end; ++i)
        html += tableRow(list->topLevelItem(i), columns);
    return html + "</table>";
}

void Admin::tableViewAction(void *action)
{
    switch (quintptr(action)) {
    case ZrRichText::PrevPage:
        if (report.currentPage < 1)
            return;
        --report.currentPage;
        showViewer(this, true);
        break;
    case ZrRichText::NextPage:
        if (report.currentPage >= report.lastPage)
            return;
        ++report.currentPage;
        showViewer(this, true);
        break;
    case ZrRichText::PrintAll:
        printAllPages(this);
        showViewer(this, false);
        break;
    default:
        break;
    }
}

void Admin::exportQuery()
{
    const QString caption = tr("Export Results");
    const QList<const QTreeWidgetItem *> rows = listRows(ui.report_list, true);
    if (rows.isEmpty()) {
        Prompter::warn(this, caption, tr("You must highlight entries to export"));
        return;
    }
    QString name = Prompter::current()->getSaveFileName(this, caption, QString(), "*.csv");
    if (name.isEmpty()) {
        TabSupport::cancelled(this, caption);
        return;
    }
    if (!name.endsWith(".csv"))
        name += ".csv";
    if (!exportRows(name, rows))
        Prompter::warn(this, tr("Quorel"), tr("Can't create %1").arg(name));
}

bool Admin::exportRows(const QString &fileName, const QList<const QTreeWidgetItem *> &rows)
{
    Waiting waiting;
    return writeCsv(fileName, ui.report_list, rows);
}

bool Admin::exportRows(const QString &fileName)
{
    return exportRows(fileName, listRows(ui.report_list, false));
}

void Admin::graphQuery()
{
    const QString caption = tr("Graph Results");
    if (ui.type_combo->currentIndex() >= ChartReports) {
        Prompter::inform(this, caption, tr("It makes no sense to graph this report"));
        return;
    }
    if (!ui.report_list->currentItem()) {
        Prompter::warn(this, caption, tr("You must highlight entries to chart"));
        return;
    }
    auto *plot = new Plot(this);
    {
        Waiting waiting;
        plot->setTitle("<b>Quorel<br>" + ui.type_combo->currentText() + report.subtitle + "</B>");
        setChartStart(plot, ui.report_list->headerItem()->text(1));
        fillChart(plot, listRows(ui.report_list, true));
    }
    Prompter::current()->exec(plot);
    delete plot;
}
