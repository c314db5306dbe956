#include "remarksicons.h"

#include <QPainter>
#include <QPixmap>

namespace {

const int IconSize = 22;

void drawNotePaper(QPainter &p)
{
    p.setPen(QColor(80, 80, 80));
    p.setBrush(QColor(255, 250, 205));
    p.drawRect(QRectF(4.5, 2.5, 13, 17));
    p.setPen(QColor(70, 110, 200));
    for (int y = 6; y <= 16; y += 3)
        p.drawLine(QPointF(6.5, y + 0.5), QPointF(15.5, y + 0.5));
}

void drawRedDisc(QPainter &p)
{
    p.setPen(QColor(140, 0, 0));
    p.setBrush(QColor(220, 0, 0));
    p.drawEllipse(QRectF(3.5, 3.5, 15, 15));
}

} // namespace

QIcon remarksIcon(RemarksIcon kind)
{
    QPixmap pixmap(IconSize, IconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (kind == RemarksIcon::Present)
        drawNotePaper(painter);
    else if (kind == RemarksIcon::NotAvailable)
        drawRedDisc(painter);
    painter.end();
    return QIcon(pixmap);
}
