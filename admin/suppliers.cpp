// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::refreshSuppliers()
{
}

void Admin::supplierSelected(QTreeWidgetItem *)
{
}

void Admin::clearSupply()
{
}

void Admin::newSupplier()
{
}

void Admin::updateSupplier()
{
}

void Admin::deleteSupplier()
{
}

