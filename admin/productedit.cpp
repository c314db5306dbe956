// Adding, modifying and deleting products of the category shown, with the cascade of a change
// into the tables that copy product data and the stock trace of a deletion.
#include "admin.h"
#include "columns.h"
#include "dialect.h"
#include "globals.h"
#include "productform.h"
#include "prompter.h"
#include "tabsupport.h"
#include "utility.h"

#include <QDate>
#include <QDebug>
#include <QSqlQuery>

using namespace ProductForm;
using namespace TabSupport;

namespace {

// A product without a supplier upsets reports and orders; services have none.
bool supplierAccepted(Admin *admin, const QString &caption, const QString &table)
{
    if (isServiceCategory(table) || !admin->ui.supplier_combo->currentText().trimmed().isEmpty())
        return true;
    return confirmed(admin, caption,
                     Admin::tr("<font color=\"red\">No supplier has been selected.</font><p>This is not "
                               "recommended and may cause problems with reports and orders.<p>Do you wish "
                               "to continue ?"));
}

// One above the largest numeric code below 100000. MySQL and SQLite take ABS of a text column as
// the number its leading digits spell ('12x' is 12, 'abc' is 0, ' 7' is 7); PostgreSQL has no
// abs(text), so there the same leading number is cut out with a pattern, and a code without one
// counts as 0, as on the other engines.
QString codeAllocationQuery(const QString &table)
{
    QString number = "ABS(Code)";
    if (Dialect::connectedEngine() == Dialect::PostgreSQL)
        number = "ABS(COALESCE(CAST(SUBSTRING(Code FROM "
                 "'^\\s*([-+]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][-+]?[0-9]+)?)') AS double precision),0))";
    return "SELECT MAX(" + number + ")+1 FROM " + table + " WHERE " + number + " < 100000";
}

// An empty table gives NULL: the first code is then 1. SQLite answers in floating point (1235.0);
// the code is written as the plain number on every engine.
bool allocateCode(Admin *admin, const QString &table)
{
    QSqlQuery query;
    if (!run(query, codeAllocationQuery(table)))
        return false;
    const QVariant next = query.next() ? query.value(0) : QVariant();
    admin->ui.code_tf->setText(next.isNull() ? QStringLiteral("1") : QString::number(next.toDouble(), 'g', 15));
    return true;
}

// False when the code is taken (after the warning) or the lookup is to stop.
bool codeIsFree(Admin *admin, const QString &table, const QString &code)
{
    QSqlQuery query;
    if (!run(query, "SELECT Description FROM " + table + " WHERE Code='" + escaped(code) + "'"))
        return false;
    if (!query.next())
        return true;
    Prompter::warn(admin, Admin::tr("New Entry"),
                   Admin::tr("The product %1 is already allocated Code %2").arg(query.value(0).toString(), code));
    return false;
}

// A new product starts with no stock, whatever quantity_tf shows: stock only enters through
// stock movements.
QString insertStatement(Admin *admin, const QString &table)
{
    const Ui::Admin &ui = admin->ui;
    const QStringList values{
        escaped(ui.code_tf->text()), escaped(ui.description_tf->text()),
        QString::number(ui.schedule_combo->currentIndex()), escaped(ui.uom_tf->text()),
        numberText(ui.sell_tf->text()), numberText(ui.markup_tf->text()), numberText(ui.cost_tf->text()),
        "0", numberText(ui.level_tf->text()), numberText(ui.toqty_tf->text()), numberText(ui.onorder_tf->text()),
        escaped(ui.supplier_combo->currentText()), escaped(ui.description_A_tf->text()),
        escaped(ui.uom_A_tf->text()), flag(ui.Tax1_checkBox), flag(ui.Tax2_checkBox), QString(),
        flag(ui.active_tb)};
    return "INSERT INTO " + table + " (Code,Description,Schedule,UnitOfMeasure,"
           "Price,MarkUp,Cost,Quantity,ReOrder,ToQuantity,OnOrder,"
           "Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active) VALUES ('"
         + values.join("','") + "')";
}

QString updateStatement(Admin *admin, const QString &table, const QString &oldCode)
{
    const Ui::Admin &ui = admin->ui;
    return "UPDATE " + table + " SET Code='" + escaped(ui.code_tf->text()) + "',"
         + "Description='" + escaped(ui.description_tf->text()) + "',"
         + "Schedule='" + QString::number(ui.schedule_combo->currentIndex()) + "',"
         + "UnitOfMeasure='" + escaped(ui.uom_tf->text()) + "',"
         + "Price='" + numberText(ui.sell_tf->text()) + "',"
         + "Markup='" + numberText(ui.markup_tf->text()) + "',"
         + "Cost='" + numberText(ui.cost_tf->text()) + "',"
         + "ReOrder='" + numberText(ui.level_tf->text()) + "',"
         + "OnOrder='" + numberText(ui.onorder_tf->text()) + "',"
         + "ToQuantity='" + numberText(ui.toqty_tf->text()) + "',"
         + "Supplier='" + escaped(ui.supplier_combo->currentText()) + "',"
         + "Description_A='" + escaped(ui.description_A_tf->text()) + "',"
         + "UnitOfMeasure_A='" + escaped(ui.uom_A_tf->text()) + "',"
         + "Tax1='" + flag(ui.Tax1_checkBox) + "',"
         + "Tax2='" + flag(ui.Tax2_checkBox) + "',"
         + "Active='" + flag(ui.active_tb) + "' "
         + "WHERE Code='" + escaped(oldCode) + "'";
}

// DaysToReminder is an integer column: the typed days go in as a whole number, so that neither
// an empty field ('') nor a fraction is refused by strict MariaDB or PostgreSQL.
QString daysToReminder(Admin *admin)
{
    return numberText(admin->ui.dtr_tf->text(), true);
}

// Nothing is asked, and nothing written, when a field cannot be stored as it stands: a text longer
// than its column, a number that is none.
bool productAcceptable(Admin *admin, const QString &caption, const QString &table)
{
    const Ui::Admin &ui = admin->ui;
    QList<TypedNumber> numbers{{Admin::tr("cost"), ui.cost_tf->text()},
                               {Admin::tr("mark-up"), ui.markup_tf->text()},
                               {Admin::tr("selling price"), ui.sell_tf->text()},
                               {Admin::tr("re-order level"), ui.level_tf->text()},
                               {Admin::tr("quantity to order up to"), ui.toqty_tf->text()},
                               {Admin::tr("quantity on order"), ui.onorder_tf->text()}};
    if (dtrShown(admin))
        numbers.append({Admin::tr("number of days to the reminder"), ui.dtr_tf->text(), true});
    const QList<ColumnText> texts{{"Code", ui.code_tf->text()},
                                  {"Description", ui.description_tf->text()},
                                  {"UnitOfMeasure", ui.uom_tf->text()},
                                  {"Supplier", ui.supplier_combo->currentText()},
                                  {"Description_A", ui.description_A_tf->text()},
                                  {"UnitOfMeasure_A", ui.uom_A_tf->text()}};
    return numbersRead(admin, caption, numbers) && textsFit(admin, caption, table, texts);
}

// What the highlighted row said before the modification.
struct ListedProduct {
    QString code, description, schedule, unit;
};

// Automated procedures refer to products by category and code only; the history rows are matched
// on all their copied values, so that rows written under an earlier description keep it.
bool cascadeChange(Admin *admin, const QString &table, const ListedProduct &old)
{
    const Ui::Admin &ui = admin->ui;
    const QString code = escaped(ui.code_tf->text());
    const QString description = escaped(ui.description_tf->text());
    const QString unit = escaped(ui.uom_tf->text());
    const QString schedule = QString::number(ui.schedule_combo->currentIndex());
    const QString oldCode = escaped(old.code);
    return run("UPDATE AutoProcContents SET Code='" + code + "' WHERE Code='" + oldCode + "' AND "
               + "Category='" + table + "'")
        && run("UPDATE StockTraceItem SET Code='" + code + "'," + "Description='" + description + "',"
               + "Schedule=" + schedule + "," + "UnitOfMeasure='" + unit + "' WHERE Category='" + table
               + "' AND " + "Code='" + oldCode + "' AND " + "Description='" + escaped(old.description)
               + "' AND " + "Schedule=" + QString::number(old.schedule.toInt()) + " AND "
               + "UnitOfMeasure='" + escaped(old.unit) + "'")
        && run("UPDATE InvoiceItem SET Code='" + code + "'," + "Description='" + description + "',"
               + "UnitOfMeasure='" + unit + "' WHERE Category='" + table + "' AND " + "Code='" + oldCode
               + "' AND " + "Description='" + escaped(old.description) + "' AND " + "UnitOfMeasure='"
               + escaped(old.unit) + "'");
}

// Reloads the category and selects the row under `code`, when one is given: the code as stored,
// without the NUL that no engine keeps.
void reloadAndSelect(Admin *admin, const QString &code)
{
    admin->categorySelected(admin->ui.category_combo->currentText());
    if (!code.isNull())
        selectCode(admin, Columns::stored(code));
}

// The stock on hand recorded for the removal is read after the DELETE, so it is that of any row
// left under the same code, otherwise 0.
bool traceDeletion(Admin *admin, const QString &table, const QString &code)
{
    const Ui::Admin &ui = admin->ui;
    QSqlQuery quantityQuery;
    if (!run(quantityQuery, "SELECT Quantity FROM " + table + " WHERE Code='" + escaped(code) + "'"))
        return false;
    const double quantity = quantityQuery.next() ? quantityQuery.value(0).toDouble() : 0.0;
    if (!run("INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) VALUES ('"
             + QDate::currentDate().toString("yyyy-MM-dd") + "','Admin','"
             + escaped(Admin::tr("Deletion of item from stock.")) + "','"
             + escaped(ui.supplier_combo->currentText()) + "','','Y')"))
        return false;
    // Read on the default connection right after the INSERT: the key is the session's own.
    QSqlQuery keyQuery;
    if (!keyQuery.exec(Dialect::lastTraceNumberQuery()) || !keyQuery.next() || keyQuery.value(0).isNull()) {
        qDebug() << "SockTrace: error..";
        return true;
    }
    return run("INSERT INTO StockTraceItem (TraceNumber, Category,Quantity, UnitOfMeasure, Description, "
               "Schedule, Batch) VALUES ('"
               + keyQuery.value(0).toString() + "','" + table + "','" + QString::number(quantity, 'g', 6)
               + "','" + escaped(ui.uom_tf->text()) + "','" + escaped(ui.description_tf->text()) + "','"
               + QString::number(ui.schedule_combo->currentIndex()) + "','')");
}

} // namespace

void Admin::newEntry()
{
    const QString table = currentCategoryTable();
    if (ui.code_tf->text().isEmpty() && !allocateCode(this, table))
        return;
    const QString code = ui.code_tf->text();
    if (!codeIsFree(this, table, code) || !productAcceptable(this, tr("New Entry"), table))
        return;
    if (!confirmed(this, tr("New Entry"),
                   tr("Confirm you wish to add product %1 with code %2").arg(ui.description_tf->text(), code)))
        return;
    if (!supplierAccepted(this, tr("New Entry"), table))
        return;
    const bool added = inOneTransaction([&] {
        return run(insertStatement(this, table))
            && (!dtrShown(this)
                || run("UPDATE " + table + " SET DaysToReminder='" + daysToReminder(this) + "' WHERE Code='"
                       + escaped(code) + "'"));
    });
    // Either way the list shows what is stored: the new product, or the form cleared of it.
    reloadAndSelect(this, added ? code : QString());
}

void Admin::modifyEntry()
{
    modifyProduct();
}

// The cascade runs after every modification: its change test compares the schedule against an
// empty text and so always sees a change, and that must stay so. With unchanged values its
// statements match only rows that they leave as they are.
void Admin::modifyProduct()
{
    const QTreeWidgetItem *current = ui.list->currentItem();
    if (!current) {
        Prompter::warn(this, tr("Modify Entry"), tr("You must highlight an entry to modify"));
        return;
    }
    const ListedProduct old{cell(current, 0), cell(current, 1), cell(current, 2), cell(current, 3)};
    const QString code = ui.code_tf->text();
    if (code.isEmpty() || ui.description_tf->text().isEmpty()) {
        Prompter::critical(this, tr("Modify Entry"), tr("You may not have a blank Code or Description"));
        return;
    }
    const QString table = currentCategoryTable();
    if (!productAcceptable(this, tr("Modify Entry"), table))
        return;
    if (!confirmed(this, tr("Modify Entry"),
                   tr("Confirm that you will update the highlighted entry\n%1, Code %2\nwith the values shown ?")
                       .arg(ui.description_tf->text(), code)))
        return;
    if (!supplierAccepted(this, tr("Modify Entry"), table))
        return;
    // The product and the copies of its code, description and unit change together or not at all.
    const bool modified = inOneTransaction([&] {
        return run(updateStatement(this, table, old.code))
            && (!dtrShown(this)
                || run("UPDATE " + table + " SET DaysToReminder='" + daysToReminder(this) + "'WHERE Code='"
                       + escaped(code) + "'"))
            && cascadeChange(this, table, old);
    });
    reloadAndSelect(this, modified ? code : old.code);
}

void Admin::deleteEntry()
{
    QTreeWidgetItem *current = ui.list->currentItem();
    if (!current) {
        Prompter::warn(this, tr("Delete Entry"), tr("You must highlight an entry to delete"));
        return;
    }
    QTreeWidgetItem *neighbour = ui.list->itemBelow(current);
    if (!neighbour)
        neighbour = ui.list->itemAbove(current);
    const QString neighbourCode = neighbour ? cell(neighbour, 0) : QString();
    const QString code = ui.code_tf->text();
    if (!confirmed(this, tr("Delete Entry"),
                   tr("Confirm that you will delete the highlighted entry\n%1, Code %2\nfrom the system?")
                       .arg(ui.description_tf->text(), code)))
        return;
    const QString table = currentCategoryTable();
    // The product goes with the record of its removal, or stays without one.
    const bool deleted = inOneTransaction([&] {
        return run("DELETE FROM " + table + " WHERE Code='" + escaped(code) + "'")
            && (isServiceCategory(table) || traceDeletion(this, table, code));
    });
    reloadAndSelect(this, deleted ? neighbourCode : code);
}
