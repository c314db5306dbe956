// The dispense tab's product list and entry form: loading a category, showing a product,
// clearing the form, searching, and the active/inactive handling.
#include "admin.h"
#include "globals.h"
#include "productform.h"
#include "prompter.h"
#include "remarksicons.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QSqlQuery>

using namespace ProductForm;

namespace {

// Columns of the product query of itemSelected, in the order it selects them.
enum ProductColumn {
    PCode, PDescription, PSchedule, PUnit, PPrice, PMarkUp, PCost, PQuantity, PReOrder,
    PToQuantity, POnOrder, PSupplier, PDescriptionA, PUnitA, PTax1, PTax2, PRemarks, PActive,
    PDaysToReminder
};

const QColor UnsavedColour(Qt::yellow);
const QColor UncheckedLevelColour(0, 128, 128);
const QColor MismatchColour(255, 0, 0);
const QColor AgreedColour(0, 0, 255);

// A disabled tax box (no tax of that name in the practice) is never checked.
void showTaxFlag(QCheckBox *box, const QString &flag)
{
    box->setChecked(box->isEnabled() && flag == QLatin1String("Y"));
}

void showRemarksIcon(Admin *admin, bool hasRemarks)
{
    admin->ui.pushButton30->setIconSize(QSize(22, 22));
    admin->ui.pushButton30->setIcon(remarksIcon(hasRemarks ? RemarksIcon::Present : RemarksIcon::Blank));
}

void selectSupplier(QComboBox *combo, const QString &supplier)
{
    for (int i = 0; i < combo->count(); ++i) {
        if (combo->itemText(i) == supplier) {
            combo->setCurrentIndex(i);
            return;
        }
    }
}

QString productQuery(Admin *admin, const QString &code)
{
    QString sql = "SELECT Code, Description, Schedule, UnitOfMeasure, Price, MarkUp, Cost, Quantity, "
                  "ReOrder, ToQuantity, OnOrder, Supplier, Description_A, UnitOfMeasure_A,Tax1,Tax2,"
                  "Remarks,Active";
    if (dtrShown(admin))
        sql += ", DaysToReminder";
    return sql + " From " + admin->currentCategoryTable() + " where Code = '" + TabSupport::escaped(code) + "'";
}

// Fills the fields in this order on purpose: cost and mark-up are connected to updateSell, so
// sell_tf holds the calculated price once both are in.
void fillEntryFields(Admin *admin, const QSqlQuery &row)
{
    Ui::Admin &ui = admin->ui;
    ui.code_tf->setText(row.value(PCode).toString());
    ui.description_tf->setText(row.value(PDescription).toString());
    ui.schedule_combo->setCurrentIndex(row.value(PSchedule).toInt());
    ui.uom_tf->setText(row.value(PUnit).toString());
    ui.markup_tf->setText(Utility::numStr(row.value(PMarkUp).toDouble(), 6));
    ui.cost_tf->setText(Utility::numStr(row.value(PCost).toDouble(), 2));
    ui.quantity_tf->setText(Utility::numStr(row.value(PQuantity).toDouble(), 2));
    ui.level_tf->setText(Utility::numStr(row.value(PReOrder).toDouble(), 2));
    ui.toqty_tf->setText(Utility::numStr(row.value(PToQuantity).toDouble(), 2));
    ui.onorder_tf->setText(Utility::numStr(row.value(POnOrder).toDouble(), 2));
    ui.description_A_tf->setText(row.value(PDescriptionA).toString());
    ui.uom_A_tf->setText(row.value(PUnitA).toString());
}

// The stored price always stands in the field; the warning colour says that it is not what cost,
// mark-up and taxes give.
void showStoredPrice(Admin *admin, double price)
{
    if (price == Utility::strNum(admin->ui.sell_tf->text(), nullptr)) {
        admin->ui.sell_tf->setPalette(Utility::normalPalette());
        return;
    }
    admin->ui.sell_tf->setText(Utility::numStr(price, 2));
    admin->ui.sell_tf->setPalette(Utility::warningPalette());
}

void showProduct(Admin *admin, const QSqlQuery &row)
{
    Ui::Admin &ui = admin->ui;
    fillEntryFields(admin, row);
    showTaxFlag(ui.Tax1_checkBox, row.value(PTax1).toString());
    showTaxFlag(ui.Tax2_checkBox, row.value(PTax2).toString());
    showRemarksIcon(admin, !row.value(PRemarks).toString().isEmpty());
    const bool active = row.value(PActive).toString() == QLatin1String("Y");
    ui.active_tb->setChecked(active);
    setActiveDependentEnabled(admin, active);
    if (dtrShown(admin))
        ui.dtr_tf->setText(row.value(PDaysToReminder).toString());
    showStoredPrice(admin, row.value(PPrice).toDouble());
    selectSupplier(ui.supplier_combo, row.value(PSupplier).toString());
}

// Loads one row of the category list. An active row goes through the form fields first, which are
// the working input of the stock check.
void addListRow(Admin *admin, ZrListItem *item, const QSqlQuery &row)
{
    Ui::Admin &ui = admin->ui;
    if (row.value(9).toString() == QLatin1String("N")) {
        item->setAltVisual(1);
    } else {
        ui.code_tf->setText(row.value(0).toString());
        ui.description_tf->setText(row.value(1).toString());
        ui.schedule_combo->setCurrentIndex(row.value(2).toInt());
        ui.quantity_tf->setText(Utility::numStr(row.value(6).toDouble(), 2));
        if (ui.checkBox9->isChecked() && admin->checkStockLevel())
            item->setAltVisual(2);
    }
    for (int column = 0; column < 10; ++column)
        item->setText(column, row.value(column).toString());
}

} // namespace

QString Admin::currentCategoryTable()
{
    const QString shown = ui.category_combo->currentText();
    for (const QString &table : Utility::categories()) {
        if (tr(table.toLatin1().constData()) == shown)
            return table;
    }
    return QString();
}

bool Admin::checkStockLevel()
{
    bool ok = true;
    const double level = utils->getStockLevelFromTrace(ui.code_tf->text(), currentCategoryTable(), &ok);
    if (!ok)
        return false;
    const bool mismatch = Utility::numStr(level, 2) != ui.quantity_tf->text();
    setFieldBackground(ui.quantity_tf, mismatch ? MismatchColour : AgreedColour);
    return mismatch;
}

void Admin::categorySelected(const QString &)
{
    setTitleColour(this, normalTitleColour());
    ui.Tax1_checkBox->setChecked(!ui.Tax1Name->text().isEmpty());
    ui.Tax2_checkBox->setChecked(!ui.Tax2Name->text().isEmpty());
    const QString table = currentCategoryTable();
    const bool vaccination = table == QLatin1String("Vaccination");
    ui.dtr_tf->setVisible(vaccination);
    ui.dtr_lab->setVisible(vaccination);

    QSqlQuery query;
    if (!TabSupport::run(query, "SELECT  Code, Description, Schedule, UnitOfMeasure, Cost, Price, Quantity, "
                                "OnOrder, OrderDate,Active FROM " + table + " ORDER BY Active='N',Description"))
        return;
    ui.list->clear();
    ui.list->setSortingEnabled(false); // rows stay in the query's order: active first, by description
    ZrListItem *previous = nullptr;
    while (query.next()) {
        ZrListItem *item = previous ? new ZrListItem(ui.list, previous) : new ZrListItem(ui.list);
        addListRow(this, item, query);
        previous = item;
    }
    clear();
}

void Admin::itemSelected(QTreeWidgetItem *item)
{
    if (!item || !item->isSelected())
        return;
    if (!refillSuppliers(this, "SELECT Company From Supply "))
        return;
    QSqlQuery query;
    if (!TabSupport::run(query, productQuery(this, TabSupport::cell(item, 0))) || !query.isActive())
        return;
    // A product deleted meanwhile leaves the form as it was.
    if (!query.next() || query.value(0).isNull())
        return;
    showProduct(this, query);
    forceSell();
    setTitleColour(this, normalTitleColour());
    if (ui.checkBox10->isChecked())
        checkStockLevel();
    else
        setFieldBackground(ui.quantity_tf, UncheckedLevelColour);
}

void Admin::clear()
{
    // toqty_tf, onorder_tf and dtr_tf keep their contents: a new entry inherits them from the
    // last product shown.
    for (QLineEdit *field : {ui.code_tf, ui.description_tf, ui.description_A_tf, ui.uom_tf, ui.uom_A_tf,
                             ui.cost_tf, ui.markup_tf, ui.quantity_tf, ui.level_tf})
        field->clear();
    ui.sell_tf->setText("0.00");
    // A new entry is active, and its fields can be typed in, whatever product was shown before.
    ui.active_tb->setChecked(true);
    setActiveDependentEnabled(this, true);
    refillSuppliers(this, "SELECT Company FROM Supply");
    setTitleColour(this, normalTitleColour());
}

void Admin::seachDispense()
{
    const bool byCode = searchByCode(this);
    const int column = byCode ? 0 : 1;
    const QString wanted = byCode ? ui.code_tf->text() : ui.description_tf->text();
    for (int i = 0; i < ui.list->topLevelItemCount(); ++i) {
        if (TabSupport::cell(ui.list->topLevelItem(i), column) == wanted) {
            selectItem(this, ui.list->topLevelItem(i));
            return;
        }
    }
    if (byCode) {
        Prompter::warn(this, tr("Search By Code"), tr("<b></b>No entry with code <b>%1</b> located").arg(wanted));
        return;
    }
    for (int i = 0; i < ui.list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = ui.list->topLevelItem(i);
        if (TabSupport::cell(item, 1).contains(wanted, Qt::CaseInsensitive)) {
            selectItem(this, item);
            Prompter::inform(this, tr("Search By Description"),
                             tr("<b></b>The exact match of <b>%1</b> was not found.<p>The closest match "
                                "<b>%2</b> has been chosen")
                                 .arg(wanted, TabSupport::cell(item, 1)));
            return;
        }
    }
    Prompter::warn(this, tr("Search By Description"), tr("<b></b>No entry matching <b>%1</b> found").arg(wanted));
}

void Admin::active_tb_clicked()
{
    setActiveDependentEnabled(this, ui.active_tb->isChecked());
    dispense_entry_changed();
}

void Admin::dispense_entry_changed()
{
    QTreeWidgetItem *current = ui.list->currentItem();
    if (current && current->isSelected())
        setTitleColour(this, UnsavedColour);
    if (current && TabSupport::cell(current, 0) == ui.code_tf->text()) {
        ui.pushButton30->blockSignals(false);
        return;
    }
    // Remarks belong to a stored product: none can be edited for a code that is not stored.
    ui.pushButton30->setIconSize(QSize(22, 22));
    ui.pushButton30->setIcon(remarksIcon(RemarksIcon::NotAvailable));
    ui.pushButton30->blockSignals(true);
}
