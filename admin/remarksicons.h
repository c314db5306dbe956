#ifndef QUOREL_REMARKSICONS_H
#define QUOREL_REMARKSICONS_H

#include <QIcon>

// The three looks of the remarks button on the dispense tab, 22x22 pixels each.
enum class RemarksIcon {
    Present,      // the product has remarks: a sheet of note paper with lines
    Blank,        // no remarks: fully transparent
    NotAvailable  // remarks cannot be edited for what the form shows: a red disc
};

QIcon remarksIcon(RemarksIcon kind);

#endif
