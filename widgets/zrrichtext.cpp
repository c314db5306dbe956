#include "zrrichtext.h"

#include "globals.h"
#include "printjob.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QHBoxLayout>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

void *actionCode(ZrRichText::Action action)
{
    return reinterpret_cast<void *>(quintptr(action));
}

QVariant setting(const char *key, const QVariant &fallback)
{
    return settings ? settings->value(QLatin1String(key), fallback) : fallback;
}

QColor textColour()
{
    const QColor colour(setting("/Global/TextColor", "#000000").toString());
    return colour.isValid() ? colour : QColor(Qt::black);
}

} // namespace

ZrRichText::ZrRichText(QWidget *parent, const char *name, bool modal)
    : QDialog(parent)
{
    setObjectName(name ? QString::fromLatin1(name) : QStringLiteral("ZrRichText"));
    setModal(modal);
    setWindowTitle(tr("Quorel Report"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    textView = new QTextEdit(this);
    textView->setObjectName("textView");
    textView->setReadOnly(true);
    textView->setFont(QFont("Sans", 16));
    textView->zoomIn(setting("/Admin/QueryPrintZoom", 1).toInt());
    QPalette colours = textView->palette();
    colours.setColor(QPalette::Text, textColour());
    textView->setPalette(colours);
    layout->addWidget(textView);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(5, 5, 5, 5);
    layout->addLayout(row);
    row->addStretch();
    row->addWidget(addButton("printButton", QT_TR_NOOP("&Print"), &ZrRichText::print));
    row->addStretch();
    row->addStretch();
    row->addWidget(addButton("printAllButton", QT_TR_NOOP("Print All"), &ZrRichText::printAll));
    row->addStretch();
    row->addWidget(addButton("closeButton", QT_TR_NOOP("&Close"), &ZrRichText::close));
    row->addStretch();
    prevButton = addButton("prevButton", QT_TR_NOOP("&Prev"), &ZrRichText::prev);
    row->addWidget(prevButton);
    row->addStretch();
    nextButton = addButton("nextButton", QT_TR_NOOP("&Next"), &ZrRichText::next);
    row->addWidget(nextButton);
    row->addStretch();

    resize(setting("/Admin/QueryPrintWidth", 652).toInt(), setting("/Admin/QueryPrintHeight", 702).toInt());
}

ZrRichText::~ZrRichText()
{
    endJob();
}

QPushButton *ZrRichText::addButton(const char *objectName, const char *caption, void (ZrRichText::*slot)())
{
    auto *button = new QPushButton(tr(caption), this);
    button->setObjectName(objectName);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void ZrRichText::setText(const QString &page)
{
    html = page;
    textView->setHtml(page);
}

void ZrRichText::setButtons(bool prevEnabled, bool nextEnabled)
{
    prevButton->setEnabled(prevEnabled);
    nextButton->setEnabled(nextEnabled);
}

void ZrRichText::adjustSize()
{
    const QSize contents = textView->document()->size().toSize();
    resize(contents.width() + 60, contents.height() + 60);
}

// A new printer through the set-up; false (and no printer) when the set-up was cancelled or the
// printer cannot be drawn on (a file that cannot be written, say).
bool ZrRichText::openPrinter()
{
    if (!PrintJob::setUp(printer, this) || !painter.begin(printer)) {
        endJob();
        return false;
    }
    return true;
}

void ZrRichText::endJob()
{
    if (painter.isActive())
        painter.end();
    delete printer;
    printer = nullptr;
    jobPages = 0;
}

void ZrRichText::print()
{
    endJob();
    printer = PrintJob::make(QPrinter::HighResolution);
    if (!openPrinter())
        return;
    render(html);
    endJob();
}

void ZrRichText::beginPrintAll(int pages)
{
    endJob();
    printer = PrintJob::make(QPrinter::HighResolution);
    jobPages = qMax(1, pages);
    // The whole report is offered as the range, so that a set-up that leaves it prints all pages.
    printer->setPrintRange(QPrinter::PageRange);
    printer->setFromTo(1, jobPages);
    openPrinter(); // the job stays open for printPage()
}

// The range's end, but never beyond the report: a range reaching past the last page would
// otherwise leave the job open.
int ZrRichText::lastPageOfJob() const
{
    const int to = printer->printRange() == QPrinter::PageRange ? printer->toPage() : 0;
    return to > 0 && to < jobPages ? to : jobPages;
}

bool ZrRichText::wantsPage(int page) const
{
    if (!printer)
        return false;
    const int from = printer->printRange() == QPrinter::PageRange ? printer->fromPage() : 0;
    return page >= qMax(1, from) && page <= lastPageOfJob();
}

void ZrRichText::printPage(int page, const QString &pageHtml)
{
    if (!wantsPage(page))
        return;
    render(pageHtml);
    if (page >= lastPageOfJob())
        endJob();
    else
        printer->newPage();
}

// Draws a page through the text layout, so that a PDF keeps it as text. A page must fit on one
// sheet: one that is laid out taller than the sheet is drawn smaller rather than cut off.
void ZrRichText::render(const QString &page)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QRectF body(0, 0, printer->width(), printer->height());
    QTextDocument document;
    document.documentLayout()->setPaintDevice(printer);
    document.setDefaultFont(textView->font());
    document.setDefaultStyleSheet("a { color: #000000; text-decoration: none; }");
    document.setHtml(page);
    document.setTextWidth(body.width());
    qreal scale = 1.0;
    if (document.size().height() > body.height()) {
        scale = body.height() / document.size().height();
        document.setTextWidth(body.width() / scale);
    }

    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    context.palette.setColor(QPalette::Text, textColour());
    context.clip = QRectF(body.topLeft(), body.size() / scale);
    painter.save();
    painter.scale(scale, scale);
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
    QApplication::restoreOverrideCursor();
}

void ZrRichText::printAll()
{
    emit printAllPages(actionCode(PrintAll));
}

void ZrRichText::close()
{
    QDialog::close();
}

void ZrRichText::prev()
{
    emit prevPage(actionCode(PrevPage));
}

void ZrRichText::next()
{
    emit nextPage(actionCode(NextPage));
}
