// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::reloadAutoProcs()
{
}

void Admin::autoProcSelected(int)
{
}

void Admin::newAutoProc()
{
}

void Admin::updateAutoProc()
{
}

void Admin::deleteAutoProc()
{
}

void Admin::autoProcContSelected(QTreeWidgetItem *)
{
}

void Admin::autoCategorySelected(const QString &)
{
}

void Admin::newAutoProcContents()
{
}

void Admin::updateAutoProcContents()
{
}

void Admin::deleteAutoProcContents()
{
}

