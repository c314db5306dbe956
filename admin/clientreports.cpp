// The client reports: new clients by month and in detail, monthly and full expenditure, debt and
// credit, bad debtors and the list of all clients.
#include "admin.h"
#include "reportframe.h"

void Admin::processNewOwners()
{
}

void Admin::processNewOwnersDetailed()
{
}

void Admin::processOwnerExpenditure()
{
}

void Admin::processFullOwnerExpenditure()
{
}

void Admin::processOwnerDebt()
{
}

void Admin::processBadDebtors()
{
}

void Admin::processAllOwners()
{
}
