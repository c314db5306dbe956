// The report writer. The reports are built in a later step; until then the slots do nothing.
#include "admin.h"

void Admin::clearList(int)
{
}

void Admin::processQuery()
{
}

void Admin::printQuery()
{
}

void Admin::exportQuery()
{
}

void Admin::graphQuery()
{
}

void Admin::processDispenseTotals(const char *, bool)
{
}

void Admin::processNewOwners()
{
}

void Admin::processNewOwnersDetailed()
{
}

void Admin::processProductSales()
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

void Admin::processStock()
{
}

void Admin::processStockValues()
{
}

void Admin::processDailyActivity()
{
}

void Admin::processPendingInvoices()
{
}

void Admin::processAllOwners()
{
}

void Admin::processCommission()
{
}

void Admin::processPersonnelPerformance()
{
}

void Admin::processDrugs()
{
}

void Admin::tableViewLoad()
{
}

void Admin::tableViewAction(void *)
{
}

void Admin::reportMode(int)
{
}

