// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::newEntry()
{
}

void Admin::modifyEntry()
{
}

void Admin::modifyProduct()
{
}

void Admin::deleteEntry()
{
}

