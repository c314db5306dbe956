#ifndef QUOREL_PLOT_H
#define QUOREL_PLOT_H

#include <QDate>
#include <QDialog>
#include <QList>
#include <QStringList>

class QPainter;
class QPushButton;
class ZrCanvas;

// The chart of a report: any number of series of six values over six consecutive months (or
// days) from a start date, with a title, a legend in the series' colours and a value axis scaled
// to a round number above the largest value. The caller sets everything, then shows the dialog;
// the setters do not repaint.
class Plot : public QDialog
{
    Q_OBJECT
public:
    // Points per series.
    static const int Points = 6;

    explicit Plot(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                  Qt::WindowFlags flags = {});

    // The series' colours by name, in order; series s takes entry s modulo their number.
    static const QStringList &seriesColours();

    QList<double> values() const { return valueList; }
    QStringList legends() const { return legendList; }
    QDate startDate() const { return start; }
    bool isDaily() const { return daily; }
    QString title() const { return titleText; }
    double scaleMaximum() const { return scaleMax; }
    int legendCount() const { return legendsDrawn; }
    ZrCanvas *canvas() const { return plotCanvas; }

public slots:
    virtual void print();
    virtual void redraw(QPainter *painter);
    virtual void setValues(QList<double> values);
    virtual void setLegends(QStringList legends);
    virtual void setStartDate(QDate date);
    virtual void setStartDate(QDate date, bool dailyPoints);
    virtual void setTitle(QString title);
    virtual void init();

protected slots:
    virtual void languageChange();

private:
    struct Area {
        int left, top, right, bottom;
    };
    int drawTitle(QPainter *painter, const QRect &area) const;
    int drawLegend(QPainter *painter, const QRect &area, int top) const;
    void drawTimeAxis(QPainter *painter, const Area &plot) const;
    void drawValueAxis(QPainter *painter, const Area &plot) const;
    void drawSeries(QPainter *painter, const Area &plot) const;
    QString timeLabel(int point) const;
    double value(int index) const;

    ZrCanvas *plotCanvas;
    QPushButton *printButton;
    QPushButton *closeButton;

    QList<double> valueList;
    QStringList legendList;
    QDate start;
    bool daily = false;
    QString titleText;
    double scaleMax = 5.0;
    int legendsDrawn = 0;
};

#endif
