// The report viewer and the chart on their own: the viewer's settings and a print job through
// Qt's own print dialog (read back from real PDFs), the chart's scale and drawing (checked in
// pixels where a fault would show), and the canvas on screen and under the mouse.
#include "globals.h"
#include "pdfpages.h"
#include "plot.h"
#include "testsupport.h"
#include "zrcanvas.h"
#include "zrrichtext.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

namespace {

// A chart drawn into a picture, with the plot's corners found where its axes are drawn.
struct Drawn {
    QImage image;
    int left = 100; // the value axis
    int top = 0;    // the highest value tick
    int bottom = 0; // the time axis
    int lastTick = 0;

    explicit Drawn(Plot &plot)
        : image(800, 600, QImage::Format_RGB32)
    {
        image.fill(Qt::magenta);
        QPainter painter(&image);
        plot.redraw(&painter);
        painter.end();
        // Only the axes' ticks stand just outside the plot: the highest tick left of the value
        // axis and the rightmost one below the time axis.
        bottom = image.height() - 100;
        for (top = 0; top < bottom && !isBlack(left - 5, top);)
            ++top;
        for (lastTick = image.width() - 1; lastTick > left && !isBlack(lastTick, bottom + 5);)
            --lastTick;
    }
    QColor at(int x, int y) const { return QColor(image.pixel(x, y)); }
    bool isBlack(int x, int y) const { return at(x, y) == QColor(Qt::black); }
    int x(int point) const { return left + int(point * ((lastTick - left) / 5.0)); }
    int y(double value, double scale) const { return bottom - int(((bottom - top) / scale) * value); }
};

QList<double> constantSeries(const QList<double> &levels)
{
    QList<double> values;
    for (double level : levels)
        values << QList<double>(Plot::Points, level);
    return values;
}

QStringList names(int count)
{
    QStringList legends;
    for (int s = 1; s <= count; ++s)
        legends << QString("Series %1").arg(s);
    return legends;
}

} // namespace

class ViewerChartTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    QTemporaryDir scratch;

    QString pdf() const { return scratch.filePath(QTest::currentTestFunction() + QString("-") + QTest::currentDataTag() + ".pdf"); }

private slots:
    void initTestCase()
    {
        EngineSuite::initTestCase();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    // The viewer's size and zoom, and the colour of the text it prints, come from the settings.
    void viewerFollowsSettings()
    {
        const QVariantMap given{{"/Admin/QueryPrintWidth", 500}, {"/Admin/QueryPrintHeight", 400},
                                {"/Admin/QueryPrintZoom", 3}, {"/Global/TextColor", "#cc0000"}};
        for (auto s = given.cbegin(); s != given.cend(); ++s)
            settings->setValue(s.key(), s.value());
        ZrRichText viewer;
        QCOMPARE(viewer.size(), QSize(500, 400));
        QCOMPARE(viewer.view()->font().pointSize(), 16 + 3);
        viewer.setText("<p>Bella Ōtsuka</p>");
        TestSupport::prompter()->answerPrinter(pdf());
        viewer.print();
        for (const QString &key : given.keys())
            settings->remove(key);
        QCOMPARE(PdfPages::text(pdf()).value(0).trimmed(), "Bella Ōtsuka");
        const QImage page = PdfPages::image(pdf(), 1);
        int red = 0;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x) {
                const QColor c = page.pixelColor(x, y);
                if (c.red() - qMax(c.green(), c.blue()) > 100)
                    ++red;
            }
        QVERIFY2(red > 20, qPrintable(QString::number(red)));
    }

    // The program's own print set-up is Qt's print dialog: it offers the report's pages, and the
    // range chosen in it is what reaches the PDF file.
    void printDialogPrintsARange()
    {
        Prompter::install(nullptr);
        int offered = 0;
        QTimer::singleShot(0, [&] {
            auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto *printers = dialog->findChild<QComboBox *>("printers");
            printers->setCurrentIndex(printers->findText(QPrintDialog::tr("Print to File (PDF)")));
            dialog->findChild<QLineEdit *>("filename")->setText(pdf());
            offered = dialog->findChild<QSpinBox *>("to")->maximum();
            dialog->findChild<QRadioButton *>("printRange")->setChecked(true);
            dialog->findChild<QSpinBox *>("from")->setValue(2);
            dialog->findChild<QSpinBox *>("to")->setValue(3);
            dialog->accept();
        });
        ZrRichText viewer;
        viewer.beginPrintAll(3);
        for (int page = 1; page <= 3; ++page)
            viewer.printPage(page, QString("<h1>Page %1</h1>").arg(page));
        QCOMPARE(offered, 3);
        QVERIFY(!viewer.printing());
        QStringList titles;
        for (const QString &page : PdfPages::text(pdf()))
            titles << page.trimmed();
        QCOMPARE(titles, QStringList({"Page 2", "Page 3"}));
    }

    // The value axis ends at 1, 2, 5 or 10 times a power of ten, the first not below the largest
    // value; at least 1. Without series nothing but the axes (black), the grid (grey) and the labels
    // is drawn, whatever the values; with them, values far off any scale still draw.
    void scale_data()
    {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<double>("scale");
        QTest::newRow("empty") << QList<double>() << 1.0;
        QTest::newRow("0.3") << QList<double>{0.3} << 1.0;
        QTest::newRow("negative") << QList<double>{-40} << 1.0;
        QTest::newRow("2 stays 2") << QList<double>{2} << 2.0;
        QTest::newRow("7") << QList<double>{7} << 10.0;
        QTest::newRow("12") << QList<double>{3, 12} << 20.0;
        QTest::newRow("50 stays 50") << QList<double>{50} << 50.0;
        QTest::newRow("450") << constantSeries({3, 450}) << 500.0;
        QTest::newRow("1000001") << QList<double>{1000001} << 2000000.0;
        QTest::newRow("far off any scale") << QList<double>{-1e300, 1e300, qQNaN(), qInf(), -qInf()} << 1e300;
    }
    void scale()
    {
        QFETCH(QList<double>, values);
        Plot plot;
        plot.setValues(values);
        QTEST(plot.scaleMaximum(), "scale");
        const Drawn drawn(plot);
        QVERIFY(drawn.bottom - drawn.top > 200 && drawn.lastTick > 500);
        const int between = (drawn.y(1, 10) + drawn.y(2, 10)) / 2; // between two value ticks
        QVERIFY(drawn.isBlack(drawn.left, between));
        QVERIFY(drawn.isBlack((drawn.x(1) + drawn.x(2)) / 2, drawn.bottom));
        QCOMPARE(drawn.at(drawn.x(3), between), QColor(Qt::gray));
        QCOMPARE(drawn.at(drawn.x(3) + 5, drawn.y(7, 10)), QColor(Qt::gray));
        for (int y = drawn.top + 2; y < drawn.bottom; y += 3)
            for (int x = drawn.left + 1; x < drawn.lastTick; x += 3)
                QVERIFY2(QList<QColor>({Qt::white, Qt::gray}).contains(drawn.at(x, y)), qPrintable(QString("%1,%2").arg(x).arg(y)));
        plot.setLegends(names(14));
        QCOMPARE(Drawn(plot).at(0, 0), QColor(Qt::white));
    }

    // Each series in its colour at its level; a series short of values draws them at the first value.
    void seriesDrawn_data()
    {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<int>("series");
        QTest::addColumn<int>("segment"); // between point k and k + 1
        QTest::addColumn<double>("level");
        QTest::addColumn<QString>("colour");
        const QList<double> twelve = constantSeries({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
        const QStringList colours = Plot::seriesColours();
        for (int s : {0, 1, 6, 10})
            QTest::addRow("series %d of 12", s + 1) << twelve << 12 << 2 << double(s + 1) << colours.at(s);
        QTest::newRow("twelfth is black again") << twelve << 12 << 0 << 12.0 << "black";
        const QList<double> short_ = constantSeries({5}) << 1 << 1 << 1;
        QTest::newRow("present points of a short series") << short_ << 2 << 0 << 1.0 << "red";
        QTest::newRow("missing points at the first value") << short_ << 2 << 4 << 5.0 << "red";
        QTest::newRow("below 1 on a scale of 1") << constantSeries({0.2, 0.9}) << 2 << 1 << 0.9 << "red";
    }
    void seriesDrawn()
    {
        QFETCH(QList<double>, values);
        QFETCH(int, series);
        QFETCH(int, segment);
        QFETCH(double, level);
        QFETCH(QString, colour);
        Plot plot;
        plot.setValues(values);
        plot.setLegends(names(series));
        const Drawn drawn(plot);
        const int x = (drawn.x(segment) + drawn.x(segment + 1)) / 2;
        QCOMPARE(drawn.at(x, drawn.y(level, plot.scaleMaximum())).name(), QColor(colour).name());
        QCOMPARE(plot.legendCount(), series);
    }

    // The printed chart keeps its texts: title, legends and the labels of the time axis.
    void printedLabels_data()
    {
        QTest::addColumn<bool>("daily");
        QTest::addColumn<bool>("backToMonths");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("months across a year") << false << false << QStringList{"Nov", "2025", "Dec", "Jan", "2026", "Apr"};
        QTest::newRow("days across a month") << true << false << QStringList{"Thu", "27 Nov", "Sun", "30 Nov", "Mon", "1 Dec", "Tue", "2 Dec"};
        QTest::newRow("months again after a daily start") << true << true << QStringList{"Nov", "2025", "Apr", "2026"};
    }
    void printedLabels()
    {
        QFETCH(bool, daily);
        QFETCH(bool, backToMonths);
        QFETCH(QStringList, labels);
        Plot plot;
        plot.setTitle("<b>Quorel<br>Goods Performance</B>");
        plot.setLegends({"Bandage", "Łukasz"});
        plot.setValues(constantSeries({3, 7}));
        plot.setStartDate(QDate(2025, 11, 27), daily);
        if (backToMonths)
            plot.setStartDate(QDate(2025, 11, 27));
        TestSupport::prompter()->answerPrinter(pdf());
        plot.findChild<QPushButton *>("PushButton1")->click();
        const QString text = PdfPages::text(pdf()).join('\f');
        for (const QString &word : labels + QStringList{"Quorel", "Goods Performance", "Bandage", "Łukasz", "10"})
            QVERIFY2(text.contains(word), qPrintable(word + " not in:\n" + text));
        QCOMPARE(text.contains("Thu"), daily && !backToMonths);
    }

    // On screen the canvas shows the chart; a press is heard as a press, a release as a move
    // without buttons.
    void canvas()
    {
        Plot plot;
        plot.setLegends({"Bandage"});
        plot.setValues(constantSeries({4}));
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
        ZrCanvas *canvas = plot.findChild<ZrCanvas *>("Canvas");
        QCOMPARE(QColor(canvas->grab().toImage().pixel(100, canvas->height() - 100)), QColor(Qt::black));
        QStringList heard;
        auto record = [&heard](const char *signal) {
            return [&heard, signal](QMouseEvent *e) {
                heard << QString("%1 %2 %3 %4 %5,%6").arg(signal).arg(int(e->type())).arg(int(e->button()))
                             .arg(int(e->buttons())).arg(e->position().x()).arg(e->position().y());
            };
        };
        connect(canvas, &ZrCanvas::mousePress, this, record("mousePress"));
        connect(canvas, &ZrCanvas::mouseMove, this, record("mouseMove"));
        QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(30, 40));
        QTest::mouseRelease(canvas, Qt::LeftButton, {}, QPoint(31, 42));
        QCOMPARE(heard, QStringList({"mousePress 2 1 1 30,40", "mouseMove 3 0 0 31,42"}));
    }
};

QTEST_MAIN(ViewerChartTest)
#include "tst_viewerchart.moc"
