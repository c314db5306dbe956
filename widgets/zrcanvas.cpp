#include "zrcanvas.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

ZrCanvas::ZrCanvas(QWidget *parent, const char *name)
    : QFrame(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setFrameStyle(QFrame::NoFrame);
    setLineWidth(0);
    // The buffer covers every pixel: nothing needs to be cleared underneath.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ZrCanvas::drawContents(QPainter *painter)
{
    emit redraw(painter);
}

void ZrCanvas::clearBuffer()
{
    if (pixmap.size() != size()) // the fill below covers every pixel of one of the same size
        pixmap = QPixmap(size());
    if (pixmap.isNull())
        return;
    pixmap.fill(palette().color(backgroundRole()));
    const QBrush background = palette().brush(backgroundRole());
    if (!background.texture().isNull()) {
        QPainter tiles(&pixmap);
        tiles.drawTiledPixmap(pixmap.rect(), background.texture());
    }
}

void ZrCanvas::paintEvent(QPaintEvent *event)
{
    // A repaint of the whole width redraws the picture; a smaller one only copies the buffer.
    if (event->rect().width() >= width() || pixmap.size() != size()) {
        clearBuffer();
        QPainter painter(&pixmap);
        drawContents(&painter);
        drawFrame(&painter);
    }
    QPainter screen(this);
    screen.drawPixmap(0, 0, pixmap);
}

void ZrCanvas::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    clearBuffer();
}

void ZrCanvas::mousePressEvent(QMouseEvent *event)
{
    emit mousePress(event);
}

void ZrCanvas::mouseMoveEvent(QMouseEvent *event)
{
    emit mouseMove(event);
}

void ZrCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    QMouseEvent move(QEvent::MouseButtonRelease, event->position(), event->scenePosition(),
                     event->globalPosition(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    emit mouseMove(&move);
}
