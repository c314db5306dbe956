// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

QString Admin::currentCategoryTable()
{
    return QString();
}

bool Admin::checkStockLevel()
{
    return false;
}

void Admin::categorySelected(const QString &)
{
}

void Admin::itemSelected(QTreeWidgetItem *)
{
}

void Admin::clear()
{
}

void Admin::seachDispense()
{
}

void Admin::active_tb_clicked()
{
}

void Admin::dispense_entry_changed()
{
}

