#ifndef QUOREL_PRINTJOB_H
#define QUOREL_PRINTJOB_H

#include <QPrinter>
#include <QString>

class QWidget;

// What every printout of the program has in common: the job name the spooler and a PDF show,
// and the creator line that says which program made it.
namespace PrintJob {

QString name();    // "Quorel_Report"
QString creator(); // the program's identification line

// A printer named and signed as above, not yet set up (the caller owns it).
QPrinter *make(QPrinter::PrinterMode mode);

// The set-up through the current prompter; false when the user cancelled it.
bool setUp(QPrinter *printer, QWidget *parent);

} // namespace PrintJob

#endif
