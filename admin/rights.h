#ifndef QUOREL_RIGHTS_H
#define QUOREL_RIGHTS_H

#include <QStringList>

// The rights of the suite as the other programs look for them in Permissions: a class (the
// Permissions column Class) and, per class, the descriptions it knows.
namespace Rights {

// The classes, in the order the permissions tab offers them.
const QStringList &classNames();
// The rights of "Dispense"; the three tax rights only for a practice that charges a first tax.
QStringList dispense(bool taxed);
// The rights of "Utility".
const QStringList &utility();

} // namespace Rights

#endif
