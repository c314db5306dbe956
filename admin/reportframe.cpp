#include "reportframe.h"

#include "admin.h"
#include "dialect.h"
#include "globals.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QApplication>
#include <QDate>
#include <QHeaderView>
#include <QLocale>
#include <QSqlQuery>
#include <QStatusBar>
#include <cmath>

ReportFrame::ReportFrame(Admin *owner)
    : admin(owner), list(owner->ui.report_list)
{
}

ReportFrame::~ReportFrame()
{
    flush();
    if (statusShown)
        admin->statusBar()->clearMessage();
    if (waiting)
        QApplication::restoreOverrideCursor();
}

void ReportFrame::wait()
{
    if (waiting)
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    waiting = true;
}

void ReportFrame::status(const QString &text)
{
    admin->statusBar()->showMessage(text);
    statusShown = true;
}

void ReportFrame::resetColumns(QTreeWidget *list)
{
    // A width of 0 must stay 0 (the output leaves such columns out), and the last column must not
    // stretch over the rest of the list.
    list->header()->setMinimumSectionSize(0);
    list->header()->setStretchLastSection(false);
    QTreeWidgetItem *header = list->headerItem();
    for (int column = 0; column < Columns; ++column) {
        list->setColumnWidth(column, 0);
        header->setText(column, QString());
        header->setData(column, Qt::TextAlignmentRole, QVariant());
    }
}

void ReportFrame::reset()
{
    qDeleteAll(pending);
    pending.clear();
    rightAligned.clear();
    list->clear();
    resetColumns(list);
}

void ReportFrame::setColumns(const QList<Column> &columns)
{
    reset();
    QTreeWidgetItem *header = list->headerItem();
    for (int column = 0; column < columns.size() && column < Columns; ++column) {
        const Column &c = columns.at(column);
        header->setText(column, c.title);
        list->setColumnWidth(column, c.width);
        if (c.right)
            header->setTextAlignment(column, Qt::AlignRight);
        rightAligned << c.right;
    }
}

ZrListItem *ReportFrame::addRow(const QStringList &cells)
{
    auto *item = new ZrListItem;
    for (int column = 0; column < cells.size() && column < Columns; ++column) {
        item->setText(column, cells.at(column));
        if (rightAligned.value(column))
            item->setTextAlignment(column, Qt::AlignRight);
    }
    pending << item;
    return item;
}

void ReportFrame::flush()
{
    if (pending.isEmpty())
        return;
    // One insertion for the lot: appending thousands of rows one by one makes the list search for
    // its last row and update the view each time.
    QList<QTreeWidgetItem *> items;
    items.reserve(pending.size());
    for (ZrListItem *item : qAsConst(pending))
        items << item;
    pending.clear();
    list->addTopLevelItems(items);
}

// Through the tabs' statement runner, so that a report after the server came back runs on the
// connection opened again, as every other statement does.
bool ReportFrame::run(QSqlQuery &query, const QString &sql)
{
    query.setForwardOnly(true);
    return TabSupport::run(query, sql);
}

QDate ReportFrame::start() const
{
    return admin->ui.DateEdit1->date();
}

QDate ReportFrame::end() const
{
    return admin->ui.DateEdit2->date();
}

QString ReportFrame::sqlDate(const QDate &date)
{
    return QString::asprintf("%04d-%02d-%02d", date.year(), date.month(), date.day());
}

QString ReportFrame::client(const QVariant &surname, const QVariant &titleAndInitials)
{
    return Utility::rot13(surname.toString()) + titleAndInitials.toString();
}

QString ReportFrame::titleAndInitials(const QString &table)
{
    return Dialect::concat({"'  '", table + ".Title", "' '", table + ".Initials"});
}

QString ReportFrame::codeKey(const QString &code)
{
    if (Dialect::connectedEngine() != Dialect::MySQL)
        return code;
    QString key = code;
    while (key.endsWith(QLatin1Char(' ')))
        key.chop(1);
    return key;
}

QString ReportFrame::plainNumber(double value)
{
    // Six decimals are more than any quantity or weight is typed with.
    const double rounded = std::abs(value) < 1e9 ? std::round(value * 1e6) / 1e6 : value;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'g', QLocale::FloatingPointShortest);
}
