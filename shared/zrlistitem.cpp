#include "zrlistitem.h"

#include <QBrush>
#include <QFont>
#include <QTreeWidget>

ZrListItem::ZrListItem() = default;

ZrListItem::ZrListItem(QTreeWidget *list)
    : QTreeWidgetItem(list)
{
}

ZrListItem::ZrListItem(QTreeWidget *list, QTreeWidgetItem *after)
    : QTreeWidgetItem(list, after)
{
}

void ZrListItem::setAltVisual(int variant)
{
    look = (variant == 1 || variant == 2) ? variant : 0;
    if (treeWidget())
        emitDataChanged();
}

QVariant ZrListItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        if (!multiLines) {
            const QVariant value = QTreeWidgetItem::data(column, role);
            if (value.userType() == QMetaType::QString && value.toString().contains(QLatin1Char('\n')))
                return value.toString().replace(QLatin1Char('\n'), QLatin1Char(' '));
            return value;
        }
        break;
    case Qt::ForegroundRole:
        if (look == 1)
            return QBrush(QColor(128, 128, 128));
        if (look == 2)
            return QBrush(QColor(140, 0, 0));
        break;
    case Qt::BackgroundRole:
        if (look == 2)
            return QBrush(QColor(255, 205, 205));
        break;
    case Qt::FontRole:
        if (look != 0) {
            QFont font = treeWidget() ? treeWidget()->font() : QFont();
            font.setItalic(look == 1);
            font.setBold(look == 2);
            return font;
        }
        break;
    default:
        break;
    }
    return QTreeWidgetItem::data(column, role);
}
