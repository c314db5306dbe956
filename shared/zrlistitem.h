#ifndef QUOREL_ZRLISTITEM_H
#define QUOREL_ZRLISTITEM_H

#include <QTreeWidgetItem>

// A row of the suite's lists. Rows are appended after a given row so that they keep the order
// in which they were added; setAltVisual marks rows that are to stand out.
class ZrListItem : public QTreeWidgetItem
{
public:
    // A row not yet in a list, for adding many rows at once (QTreeWidget::addTopLevelItems).
    ZrListItem();
    explicit ZrListItem(QTreeWidget *list);
    ZrListItem(QTreeWidget *list, QTreeWidgetItem *after);

    // 0 normal; 1 subdued (grey italic, e.g. an inactive product); 2 alarm (bold dark red on pink,
    // e.g. a stock level that disagrees with its trace).
    void setAltVisual(int look);
    int altVisual() const { return look; }

    // With multi-line display off, line breaks in a cell show as blanks.
    void setMultiLinesEnabled(bool on) { multiLines = on; }
    bool multiLinesEnabled() const { return multiLines; }

    QVariant data(int column, int role) const override;

private:
    int look = 0;
    bool multiLines = false;
};

#endif
