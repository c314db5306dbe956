// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::updateSell(const QString &)
{
}

void Admin::forceSell()
{
}

void Admin::taxingChanged()
{
}

void Admin::checkSellPrice()
{
}

