// The automated procedures tab: named bundles of products (AutoProc) and their composition
// (AutoProcContents), with each item's charge and the procedure's tax-exclusive total.
#include "admin.h"
#include "globals.h"
#include "prompter.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QSignalBlocker>
#include <QSqlQuery>

using namespace TabSupport;

namespace {

// What a list item keeps of its AutoProcContents row besides the texts: the row's id (two items
// may look alike, and a quantity shown with two decimals finds no row) and the quantity as stored.
constexpr int LineRole = Qt::UserRole;
constexpr int QuantityRole = Qt::UserRole + 1;

// A procedure's name fits its column.
bool nameFits(Admin *admin, const QString &caption, const QString &name)
{
    return textsFit(admin, caption, "AutoProc", {{"Description", name}});
}

// The quantity typed for a composition item is a number.
bool quantityRead(Admin *admin, const QString &caption)
{
    return numbersRead(admin, caption, {{Admin::tr("quantity"), admin->ui.auto_qty_tf->text()}});
}

QString procedureName(const Admin *admin, int row)
{
    const QListWidgetItem *item = admin->ui.proc_list->item(row);
    return item ? item->text() : QString();
}

QString currentProcedure(const Admin *admin)
{
    return procedureName(admin, admin->ui.proc_list->currentRow());
}

// Procedures are found by name. An unknown name gives code 0, which no procedure has, so the
// statements that follow touch nothing. False: a failed lookup is to stop the caller.
bool procedureCode(const QString &name, int *code)
{
    QSqlQuery query;
    if (!run(query, "SELECT Code from AutoProc WHERE Description='" + escaped(name) + "'"))
        return false;
    *code = query.next() ? query.value(0).toInt() : 0;
    return true;
}

// The product table of the category auto_combo shows: the untranslated word, whatever language
// the window speaks (the combo lists the categories in the suite's order).
QString chosenCategory(const Admin *admin)
{
    return Utility::categories().value(admin->ui.auto_combo->currentIndex());
}

// The code of the product chosen in auto_combo and auto_desc_combo (empty when there is none).
bool chosenProductCode(const Admin *admin, QString *code)
{
    QSqlQuery query;
    if (!run(query, "SELECT Code FROM " + chosenCategory(admin) + " WHERE Description='"
                        + escaped(admin->ui.auto_desc_combo->currentText()) + "'"))
        return false;
    *code = query.next() ? query.value(0).toString() : QString();
    return true;
}

// A composition row as shown: the product's description and unit price come from its table; an
// item is charged unless its Charge is "N", at the price without tax.
bool addContentItem(Admin *admin, const QSqlQuery &row, double *total)
{
    const double quantity = row.value(0).toDouble();
    const QString category = row.value(1).toString();
    const QString code = row.value(2).toString();
    const QString charge = row.value(3).toString();
    const QVariant line = row.value(4);
    QSqlQuery product;
    if (!run(product, "SELECT Description, Price,Tax1,Tax2 FROM " + category + " WHERE Code='" + escaped(code) + "'"))
        return false;
    const bool found = product.next();
    const double price = found ? product.value(1).toDouble() : 0.0;
    const double itemCharge = charge == "N" ? 0.0 : price * quantity;
    // Rows are read newest first; each goes on top, so the list ends oldest first.
    QTreeWidget *list = admin->ui.auto_list;
    auto *item = new ZrListItem(list);
    list->insertTopLevelItem(0, list->takeTopLevelItem(list->topLevelItemCount() - 1));
    const QStringList texts{category, Utility::numStr(quantity, 2), found ? product.value(0).toString() : QString(),
                            code, Utility::numStr(price, 2), Utility::numStr(itemCharge, 2), charge};
    for (int column = 0; column < texts.size(); ++column)
        item->setText(column, texts.at(column));
    item->setData(0, LineRole, line);
    item->setData(0, QuantityRole, quantity);
    *total += itemCharge;
    return true;
}

// Redraws the procedure shown, after a change of its composition.
void showCurrentProcedure(Admin *admin)
{
    admin->autoProcSelected(admin->ui.proc_list->currentRow());
}

// Makes `row` current without the list announcing it; the caller shows the procedure itself.
void makeCurrentRow(Admin *admin, int row)
{
    const QSignalBlocker blocker(admin->ui.proc_list);
    admin->ui.proc_list->setCurrentRow(row);
}

} // namespace

void Admin::reloadAutoProcs()
{
    QSqlQuery query;
    if (!run(query, "SELECT Description FROM AutoProc ORDER BY Description"))
        return;
    {
        const QSignalBlocker blocker(ui.proc_list);
        ui.proc_list->clear();
        while (query.next())
            ui.proc_list->addItem(query.value(0).toString());
    }
    autoProcSelected(0);
    makeCurrentRow(this, 0);
}

void Admin::autoProcSelected(int index)
{
    const QString name = procedureName(this, index);
    ui.proc_tf->setText(name);
    int code = 0;
    if (!procedureCode(name, &code))
        return;
    QSqlQuery contents;
    if (!run(contents, QString("SELECT Quantity,Category,Code,Charge,id from AutoProcContents") + "  WHERE ProcId="
                           + QString::number(code) + " ORDER BY id Desc"))
        return;
    ui.auto_list->clear();
    double total = 0.0;
    while (contents.next())
        if (!addContentItem(this, contents, &total))
            return;
    ui.autoTotal_tf->setText(Utility::numStr(total, 2));
}

// Called with the stored word of an item's category, or with the text auto_combo shows for it.
void Admin::autoCategorySelected(const QString &category)
{
    int index = Utility::categories().indexOf(category);
    if (index < 0)
        index = ui.auto_combo->findText(category, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0)
        return;
    ui.auto_combo->setCurrentIndex(index);
    QSqlQuery query;
    if (!run(query, "SELECT Description FROM " + chosenCategory(this) + " ORDER BY Description"))
        return;
    ui.auto_desc_combo->clear();
    while (query.next())
        ui.auto_desc_combo->addItem(query.value(0).toString());
}

void Admin::autoProcContSelected(QTreeWidgetItem *item)
{
    if (!item)
        return;
    ui.auto_list->setCurrentItem(item);
    autoCategorySelected(cell(item, 0));
    const int index = ui.auto_desc_combo->findText(cell(item, 2), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        ui.auto_desc_combo->setCurrentIndex(index);
    // The quantity as stored: an update that changes only the charge must not round it to what the list shows.
    ui.auto_qty_tf->setText(QString::number(item->data(0, QuantityRole).toDouble(), 'g', 15));
    ui.checkBox8->setChecked(cell(item, 6) == "Y");
}

// The list is sorted by name: the procedure selected afterwards is the alphabetically last one,
// which is the new one only when its name sorts last.
void Admin::newAutoProc()
{
    const QString caption = tr("New Auto Procedure");
    bool ok = false;
    const QString name = Prompter::current()->getText(this, caption, tr("Enter the new Auto Procedure name"),
                                                      QLineEdit::Normal, QString(), &ok);
    if (!ok || name.isEmpty()) {
        cancelled(this, caption);
        return;
    }
    if (!nameFits(this, caption, name))
        return;
    if (!run("INSERT INTO  AutoProc (Description) VALUES ('" + escaped(name) + "')"))
        return;
    reloadAutoProcs();
    const int last = ui.proc_list->count() - 1;
    autoProcSelected(last);
    makeCurrentRow(this, last);
}

void Admin::updateAutoProc()
{
    const QString current = currentProcedure(this);
    if (!nameFits(this, tr("Update Automated Procedure"), ui.proc_tf->text()))
        return;
    if (!confirmed(this, tr("Update Automated Procedure"),
                   tr("Confirm that you wish to rename the Automated Procedure '%1' to '%2'")
                       .arg(current, ui.proc_tf->text())))
        return;
    int code = 0;
    if (!procedureCode(current, &code)
        || !run("UPDATE AutoProc SET Description='" + escaped(ui.proc_tf->text()) + "' WHERE Code="
                + QString::number(code)))
        return;
    reloadAutoProcs();
}

// The composition goes first.
void Admin::deleteAutoProc()
{
    const QString current = currentProcedure(this);
    if (!confirmed(this, tr("Delete Automated Procedure"),
                   tr("Confirm that you wish to delete the Automated Procedure '%1' from the system").arg(current)))
        return;
    // The procedure goes with its composition, or both stay.
    inOneTransaction([&] {
        int code = 0;
        return procedureCode(current, &code) && run("DELETE from AutoProcContents WHERE ProcId=" + QString::number(code))
            && run("DELETE from AutoProc WHERE Code=" + QString::number(code));
    });
    reloadAutoProcs();
}

// Charge is left to the column's default; the flag is set afterwards with an update.
void Admin::newAutoProcContents()
{
    const QString caption = tr("New Procedure Composition");
    if (!quantityRead(this, caption)
        || !confirmed(this, caption,
                      tr("Confirm that you wish to add the Automated Procedure Composition '%1'")
                          .arg(ui.auto_desc_combo->currentText())))
        return;
    int procedure = 0;
    QString product;
    if (!procedureCode(currentProcedure(this), &procedure) || !chosenProductCode(this, &product))
        return;
    if (!run(QString("INSERT into AutoProcContents (Quantity, Category, Code, ProcId) ") + "VALUES ('"
             + numberText(ui.auto_qty_tf->text()) + "', '" + chosenCategory(this) + "', '" + escaped(product) + "', '"
             + QString::number(procedure) + "')"))
        return;
    showCurrentProcedure(this);
}

namespace {

// The highlighted composition item, or the warning under `caption`.
QTreeWidgetItem *highlightedContent(Admin *admin, const QString &caption, const QString &warning)
{
    QTreeWidgetItem *item = admin->ui.auto_list->currentItem();
    if (!item)
        Prompter::warn(admin, caption, warning);
    return item;
}

} // namespace

// The item is changed by its line: the row the list shows, whatever its quantity looks like. A
// line removed meanwhile (the list is out of date) is not written.
void Admin::updateAutoProcContents()
{
    const QTreeWidgetItem *item =
        highlightedContent(this, tr("Update Composition"), tr("You must highlight a Composition entry to Update"));
    const QString caption = tr("Update Procedure Composition");
    if (!item || !quantityRead(this, caption)
        || !confirmed(this, caption,
                      tr("Confirm that you wish to update the Automated Procedure Composition '%1'").arg(item->text(2))))
        return;
    QString product;
    if (!chosenProductCode(this, &product)
        || !run("UPDATE AutoProcContents Set Category='" + chosenCategory(this) + "', Quantity='"
                + numberText(ui.auto_qty_tf->text()) + "', Code='" + escaped(product) + "', Charge='"
                + flag(ui.checkBox8) + "' WHERE id=" + QString::number(item->data(0, LineRole).toLongLong())))
        return;
    showCurrentProcedure(this);
}

// Every item of the procedure with that category and product goes, whatever its quantity.
void Admin::deleteAutoProcContents()
{
    const QTreeWidgetItem *item =
        highlightedContent(this, tr("Delete Composition"), tr("You must highlight a Composition entry to delete"));
    if (!item
        || !confirmed(this, tr("Delete Procedure Composition"),
                      tr("Confirm that you wish to delete the Automated Procedure Composition '%1' from the "
                         "Procedure")
                          .arg(item->text(2))))
        return;
    int procedure = 0;
    if (!procedureCode(currentProcedure(this), &procedure)
        || !run("DELETE FROM AutoProcContents WHERE ProcId=" + QString::number(procedure) + " AND Category='"
                + escaped(cell(item, 0)) + "' AND Code='" + escaped(cell(item, 3)) + "'"))
        return;
    showCurrentProcedure(this);
}
