#ifndef QUOREL_ZRCANVAS_H
#define QUOREL_ZRCANVAS_H

#include <QFrame>
#include <QPixmap>

class QMouseEvent;
class QPainter;

// A drawing surface that leaves the drawing to its owner: it paints through an off-screen
// buffer (no flicker, and a partial repaint only copies the buffer), asks for the picture through
// redraw(), and hands its mouse input on as signals. A release reaches listeners as a move
// without buttons, so that one slot can follow a drag to its end.
class ZrCanvas : public QFrame
{
    Q_OBJECT
public:
    explicit ZrCanvas(QWidget *parent = nullptr, const char *name = nullptr);

    const QPixmap &buffer() const { return pixmap; }

signals:
    void mousePress(QMouseEvent *event);
    void mouseMove(QMouseEvent *event);
    void redraw(QPainter *painter);

protected:
    // Draws the picture on the buffer; by default the owner does it through redraw().
    virtual void drawContents(QPainter *painter);

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void clearBuffer();

    QPixmap pixmap;
};

#endif
