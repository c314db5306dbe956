// The sales and performance reports: the nine category performance reports, client purchases,
// commission and personnel performance.
#include "admin.h"
#include "reportframe.h"

void Admin::processDispenseTotals(const char *, bool)
{
}

void Admin::processProductSales()
{
}

void Admin::processCommission()
{
}

void Admin::processPersonnelPerformance()
{
}
