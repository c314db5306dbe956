#ifndef QUOREL_PRODUCTFORM_H
#define QUOREL_PRODUCTFORM_H

#include <QColor>
#include <QList>
#include <QString>

class Admin;
class QLineEdit;
class QTreeWidgetItem;
class QWidget;

// Helpers shared by the sources of the dispense tab (products, pricing, product editing).
namespace ProductForm {

// The fields that an inactive product shows greyed; only active_tb stays usable.
QList<QWidget *> activeDependentWidgets(Admin *admin);
void setActiveDependentEnabled(Admin *admin, bool enabled);

// The title's background marks an unsaved change (yellow) or none (the normal colour).
void setTitleColour(Admin *admin, const QColor &colour);
QColor normalTitleColour();
// A line edit's background colour (the stock level field's trace colours).
void setFieldBackground(QLineEdit *field, const QColor &colour);

// supplier_combo: a single blank first, then every Company that `sql` returns. False when a
// failed statement is to stop the caller.
bool refillSuppliers(Admin *admin, const QString &sql);

// "Consult", "Diagnosis" and "Proc" have no supplier and no stock.
bool isServiceCategory(const QString &table);

// Makes `item` the current and only selected row of the product list and scrolls to it.
void selectItem(Admin *admin, QTreeWidgetItem *item);
// The same for the row whose column 0 is `code`; false when no row has it.
bool selectCode(Admin *admin, const QString &code);

// The search looks for the code when the code field has the focus, or, with the focus elsewhere
// (on the search button itself, once clicked), when it was the last of the code and description
// fields the user was in; otherwise for the description.
void followSearchFields(Admin *admin);
bool searchByCode(Admin *admin);

// The DTR field exists only for the category that has DaysToReminder; it is hidden (not merely
// off screen) for the others.
bool dtrShown(Admin *admin);

} // namespace ProductForm

#endif
