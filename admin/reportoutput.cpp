// The output of whatever the report list holds: paged HTML for the viewer and the printer, a
// comma-separated file of the highlighted rows, and the chart of a performance report.
#include "admin.h"

void Admin::printQuery()
{
}

QString Admin::tableViewLoad()
{
    return QString();
}

void Admin::tableViewAction(void *)
{
}

void Admin::exportQuery()
{
}

void Admin::graphQuery()
{
}
