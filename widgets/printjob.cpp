#include "printjob.h"

#include "prompter.h"

namespace PrintJob {

QString name()
{
    return QStringLiteral("Quorel_Report");
}

QString creator()
{
    return QStringLiteral("Quorel Admin 4 - Zephron veterinary practice administration");
}

QPrinter *make(QPrinter::PrinterMode mode)
{
    auto *printer = new QPrinter(mode);
    printer->setCreator(creator());
    // Named before the set-up, so that a print to file offers "Quorel_Report.pdf".
    printer->setDocName(name());
    // Room that any printer can print on: a PDF would otherwise run to the paper's edge.
    printer->setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
    return printer;
}

bool setUp(QPrinter *printer, QWidget *parent)
{
    return Prompter::current()->setupPrinter(printer, parent);
}

} // namespace PrintJob
