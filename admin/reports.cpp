// The report writer: the catalogue of `type_combo`, its dispatch to the generators, the inputs
// each report uses, and the list reset between reports. The generators live in salesreports.cpp,
// clientreports.cpp and stockreports.cpp, the output in reportoutput.cpp; all of them run in the
// frame of reportframe.h.
#include "admin.h"
#include "reportframe.h"

namespace {

// The nine performance reports, indices 0 to 8: the category's table and whether its products
// are stock items (summed quantities) or services (counted lines).
const struct {
    const char *category;
    bool stocked;
} performance[] = {{"Goods", true},      {"Hospital", true}, {"Consult", false},
                   {"Diagnosis", false}, {"Injection", true}, {"Lab", true},
                   {"Medication", true}, {"Proc", false},    {"Vaccination", true}};

// Indices 9 to 23, in the catalogue's order.
void (Admin::*const generators[])() = {
    &Admin::processNewOwners,            // 9 New Clients History
    &Admin::processNewOwnersDetailed,    // 10 New Clients Detailed
    &Admin::processProductSales,         // 11 Client Purchases
    &Admin::processOwnerExpenditure,     // 12 Monthly Client Expenditure
    &Admin::processFullOwnerExpenditure, // 13 Full Client Expenditure
    &Admin::processOwnerDebt,            // 14 Client Debt/Credit
    &Admin::processBadDebtors,           // 15 Bad Debtors
    &Admin::processStock,                // 16 Stock Levels
    &Admin::processStockValues,          // 17 Stock Values
    &Admin::processDailyActivity,        // 18 Daily Activity
    &Admin::processPendingInvoices,      // 19 Pending Invoices
    &Admin::processAllOwners,            // 20 All Clients
    &Admin::processCommission,           // 21 Commission
    &Admin::processPersonnelPerformance, // 22 Personnel Performance
    &Admin::processDrugs,                // 23 Drug Levels
};

const int PerformanceReports = int(sizeof performance / sizeof performance[0]);
const int Reports = PerformanceReports + int(sizeof generators / sizeof generators[0]);

} // namespace

void Admin::processQuery()
{
    report.subtitle.clear();
    const int index = ui.type_combo->currentIndex();
    if (index < 0 || index >= Reports)
        return;
    if (index < PerformanceReports)
        processDispenseTotals(performance[index].category, performance[index].stocked);
    else
        (this->*generators[index - PerformanceReports])();
}

void Admin::reportMode(int index)
{
    ui.PushButton15->setEnabled(index <= 9);
    ui.DateEdit1->setEnabled(index <= 13 || index == 18 || index == 21 || index == 22);
    ui.DateEdit2->setEnabled(index == 10 || index == 11 || index == 18 || index == 21 || index == 22);
}

void Admin::clearList(int index)
{
    if (index == report.clearedIndex)
        return;
    ui.report_list->clear();
    report.clearedIndex = index;
    ReportFrame::resetColumns(ui.report_list);
}
