#include "rights.h"

namespace Rights {

const QStringList &classNames()
{
    static const QStringList names{"Dispense", "Utility", "Schedule", "Procedure Schedule",
                                   "Hospital Schedule", "Stock Schedule", "Stock"};
    return names;
}

// "Overide" is the spelling the other programs of the suite look for.
QStringList dispense(bool taxed)
{
    QStringList rights;
    if (taxed)
        rights << "Tax Controls" << "Price Overide" << "Discount Overide";
    return rights << "Goods" << "Hospital" << "Consult" << "Diagnosis" << "Injection" << "Lab"
                  << "Medication" << "Proc" << "AutoProc" << "Vaccination" << "Remarks" << "Notes";
}

const QStringList &utility()
{
    static const QStringList rights{
        "Transfer Patient", "Merge Client", "Purge Client", "Purge Patient", "Backup", "Full History",
        "Vaccination", "Hospital", "Anaesthetic", "Euthanasia", "Medical", "Statement", "Audit", "Journal",
        "Order Forms", "Input Stock", "Stock Trace", "Drug Report", "Period Performance", "Month End",
        "Cash Up", "Cash Date", "Debtors", "Statements", "Reminders", "News Letter", "Merge Patients",
        "Email Msg", "Price Lists", "Barcode Labels", "Specimen", "Label", "Document", "Attachments",
        "Search Invoice", "Bulk SMS", "Client SMS"};
    return rights;
}

} // namespace Rights
