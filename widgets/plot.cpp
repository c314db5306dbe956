#include "plot.h"

#include "printjob.h"
#include "zrcanvas.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QLocale>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <cmath>
#include <memory>

namespace {

const int TimeTicks = 6;   // one per point
const int ValueSteps = 10; // eleven ticks from 0 to the scale's maximum

// Rich text laid out for `painter`'s device, at `width` or at its natural width.
std::unique_ptr<QTextDocument> richText(QPainter *painter, const QString &html, const QFont &font, qreal width = -1)
{
    auto document = std::make_unique<QTextDocument>();
    document->documentLayout()->setPaintDevice(painter->device());
    document->setDocumentMargin(2);
    document->setDefaultFont(font);
    document->setHtml(html);
    document->setTextWidth(width > 0 ? width : document->idealWidth());
    return document;
}

void drawRichText(QPainter *painter, QTextDocument &document, int x, int y)
{
    painter->save();
    painter->translate(x, y);
    document.drawContents(painter);
    painter->restore();
}

void drawLine(QPainter *painter, const QColor &colour, int x1, int y1, int x2, int y2)
{
    painter->setPen(QPen(colour));
    painter->drawLine(x1, y1, x2, y2);
}

// The grid's first line is an axis.
QColor gridColour(int tick)
{
    return tick > 0 ? QColor(Qt::gray) : QColor(Qt::black);
}

// A distance in pixels; values far off the scale (negative or not finite) must not overflow.
int pixels(double distance)
{
    if (std::isnan(distance))
        return 0;
    return int(qBound(-1.0e6, distance, 1.0e6));
}

// 1, 2, 5 or 10 times the power of ten that `maximum` lies in, the first not below it. Values of
// 1 or less keep the scale at 1.
double roundScale(double maximum)
{
    const double exponent = std::floor(std::log10(maximum));
    const double power = std::pow(10.0, exponent);
    const double leading = maximum / power * (1.0 - 1e-12); // 2.0000000000000004 is still 2
    const double step = leading <= 1 ? 1 : leading <= 2 ? 2 : leading <= 5 ? 5 : 10;
    return step * power;
}

} // namespace

Plot::Plot(QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setObjectName(name ? QString::fromLatin1(name) : QStringLiteral("Plot"));
    setModal(modal);
    auto *layout = new QGridLayout(this);
    layout->setObjectName("PlotLayout");
    layout->setContentsMargins(11, 11, 11, 11);
    layout->setSpacing(6);

    plotCanvas = new ZrCanvas(this, "Canvas");
    plotCanvas->setMinimumSize(400, 300);
    layout->addWidget(plotCanvas, 0, 0, 1, 3);
    auto *line = new QFrame(this);
    line->setObjectName("Frame3");
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout->addWidget(line, 1, 0, 1, 3);
    printButton = new QPushButton(this);
    printButton->setObjectName("PushButton1");
    layout->addWidget(printButton, 2, 0);
    layout->addItem(new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum), 2, 1);
    closeButton = new QPushButton(this);
    closeButton->setObjectName("PushButton2");
    layout->addWidget(closeButton, 2, 2);

    connect(printButton, &QPushButton::clicked, this, &Plot::print);
    connect(closeButton, &QPushButton::clicked, this, &Plot::accept);
    connect(plotCanvas, &ZrCanvas::redraw, this, &Plot::redraw);
    languageChange();
    init();
    resize(760, 560);
}

const QStringList &Plot::seriesColours()
{
    static const QStringList colours{"black",   "red",     "green",     "blue",     "magenta", "cyan",
                                     "darkGray", "darkRed", "darkGreen", "darkBlue", "darkCyan"};
    return colours;
}

void Plot::init()
{
    valueList.clear();
    legendList.clear();
    start = QDate::currentDate();
    daily = false;
    titleText = "Quorel";
    scaleMax = 5.0;
    legendsDrawn = 0;
}

void Plot::languageChange()
{
    setWindowTitle(tr("Results"));
    printButton->setText(tr("Print"));
    closeButton->setText(tr("Close"));
}

void Plot::setValues(QList<double> values)
{
    valueList = values;
    double maximum = 1.0;
    for (double v : values)
        if (std::isfinite(v) && v > maximum)
            maximum = v;
    scaleMax = roundScale(maximum);
}

void Plot::setLegends(QStringList legends)
{
    legendList = legends;
}

void Plot::setStartDate(QDate date)
{
    setStartDate(date, false);
}

void Plot::setStartDate(QDate date, bool dailyPoints)
{
    start = date;
    daily = dailyPoints;
}

void Plot::setTitle(QString title)
{
    titleText = title;
}

// A series short of values draws its missing points with the first value.
double Plot::value(int index) const
{
    return index < valueList.size() ? valueList.at(index) : valueList.value(0);
}

void Plot::redraw(QPainter *painter)
{
    painter->save();
    painter->setWindow(0, 0, 100, 100);
    const QRect area = painter->combinedTransform().mapRect(QRect(0, 0, 100, 100));
    painter->setPen(Qt::black);
    painter->setBrush(Qt::white);
    painter->fillRect(QRect(0, 0, 100, 100), painter->brush());
    painter->setViewTransformEnabled(false);

    const int titleHeight = drawTitle(painter, area);
    const int legendWidth = drawLegend(painter, area, titleHeight);
    // The plot's corners are measured from the area's size, not its position.
    const Area plot{100, titleHeight, area.right() - area.left() - legendWidth - 9, area.bottom() - area.top() - 99};
    drawTimeAxis(painter, plot);
    drawValueAxis(painter, plot);
    drawSeries(painter, plot);
    legendsDrawn = legendList.size();
    painter->restore();
}

int Plot::drawTitle(QPainter *painter, const QRect &area) const
{
    auto title = richText(painter, "<center>" + titleText + "</center>", QFont("Charter", 18),
                          area.right() - area.left() + 1);
    drawRichText(painter, *title, area.left(), area.top());
    return int(title->size().height());
}

// The legend at the right edge below the title, each line in its series' colour; returns its width.
int Plot::drawLegend(QPainter *painter, const QRect &area, int top) const
{
    QString html;
    for (int s = 0; s < legendList.size(); ++s)
        html += "<nobr><font size=\"1\" color=\"" + seriesColours().at(s % seriesColours().size()) + "\">"
                + legendList.at(s).toHtmlEscaped() + "</font></nobr><br>";
    auto legend = richText(painter, html, QFont("Charter", 14));
    const int width = int(std::ceil(legend->size().width()));
    drawRichText(painter, *legend, area.right() - area.left() + 1 - width, top);
    return width;
}

QString Plot::timeLabel(int point) const
{
    // Month and day names in the user's language.
    const QLocale locale;
    if (daily) {
        const QDate day = start.addDays(point);
        return "<center>" + locale.toString(day, "ddd") + "<br>" + locale.toString(day, "d MMM") + "</center>";
    }
    const QDate month = start.addMonths(point);
    return "<center>" + locale.toString(month, "MMM") + "<br>" + locale.toString(month, "yyyy") + "</center>";
}

void Plot::drawTimeAxis(QPainter *painter, const Area &plot) const
{
    const double spacing = (plot.right - plot.left + 1) / double(TimeTicks - 1);
    for (int i = 0; i < TimeTicks; ++i) {
        const int x = plot.left + int(i * spacing);
        drawLine(painter, gridColour(i), x, plot.top, x, plot.bottom);
        drawLine(painter, Qt::black, x, plot.bottom, x, plot.bottom + 10);
        auto label = richText(painter, timeLabel(i), font());
        drawRichText(painter, *label, x - int(label->size().width()) / 2, plot.bottom + 10);
    }
}

void Plot::drawValueAxis(QPainter *painter, const Area &plot) const
{
    const double spacing = (plot.bottom - plot.top + 1) / double(ValueSteps);
    double tickValue = 0.0;
    for (int i = 0; i <= ValueSteps; ++i) {
        const int y = plot.bottom - int(i * spacing);
        drawLine(painter, gridColour(i), plot.left, y, plot.right, y);
        drawLine(painter, Qt::black, plot.left - 10, y, plot.left, y);
        auto label = richText(painter, "<right>" + QString::number(tickValue, 'g', 6) + "</right>", font());
        drawRichText(painter, *label, plot.left - 10 - int(label->size().width()),
                     y - int(label->size().height()) / 2);
        tickValue += scaleMax / ValueSteps;
    }
}

void Plot::drawSeries(QPainter *painter, const Area &plot) const
{
    const double spacing = (plot.right - plot.left + 1) / double(TimeTicks - 1);
    const double perUnit = (plot.bottom - plot.top + 1) / scaleMax;
    for (int s = 0; s < legendList.size(); ++s) {
        painter->setPen(QPen(QColor(seriesColours().at(s % seriesColours().size())), 3, Qt::SolidLine));
        QPolygon line;
        for (int k = 0; k < Points; ++k)
            line << QPoint(plot.left + int(spacing * k), plot.bottom - pixels(perUnit * value(Points * s + k)));
        painter->drawPolyline(line);
    }
}

void Plot::print()
{
    std::unique_ptr<QPrinter> printer(PrintJob::make(QPrinter::ScreenResolution));
    printer->setPageOrientation(QPageLayout::Landscape);
    printer->setColorMode(QPrinter::Color);
    if (!PrintJob::setUp(printer.get(), this))
        return;
    QPainter painter;
    if (!painter.begin(printer.get()))
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // The set-up dialog's place on screen is painted over before the long drawing starts.
    repaint();
    QCoreApplication::processEvents();
    redraw(&painter);
    painter.end();
    QApplication::restoreOverrideCursor();
}
