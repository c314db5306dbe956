// The stock and activity reports: stock levels and values, drug levels, pending invoices and the
// daily activity.
#include "admin.h"
#include "reportframe.h"

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

void Admin::processDrugs()
{
}
