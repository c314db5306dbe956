// Not built yet: the slots of this tab do nothing until its step lands.
#include "admin.h"

void Admin::reloadData()
{
}

void Admin::userSelected(const QString &)
{
}

void Admin::deleteUser()
{
}

void Admin::newUser()
{
}

void Admin::deletePermission()
{
}

void Admin::newPermission()
{
}

void Admin::classChanged(int)
{
}

void Admin::updateUserId()
{
}

