// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::stockLevelTrace()
{
}

void Admin::stockLevelCheck(bool)
{
}

