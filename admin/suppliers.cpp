// The suppliers tab: the practice's suppliers in Supply, found by company name.
#include "admin.h"
#include "dialect.h"
#include "globals.h"
#include "prompter.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QApplication>
#include <QSqlQuery>

using namespace TabSupport;

namespace {

// The form's texts with their columns of Supply, in the order the statements write them.
QList<ColumnText> supplierTexts(const Ui::Admin &ui)
{
    return {{"Company", ui.company_tf->text()},          {"Contact", ui.contact_tf->text()},
            {"Email", ui.email_tf->text()},              {"Tel", ui.phone_tf->text()},
            {"Fax", ui.fax_tf->text()},                  {"Cell", ui.cell_tf->text()},
            {"PostalAddr", ui.postal_tf->toPlainText()}, {"PhysicalAddr", ui.collection_tf->toPlainText()}};
}

// Only one of several rows under the same name goes. PostgreSQL has no DELETE ... LIMIT, so
// there the row is picked by its key.
QString deleteStatement(const QString &escapedCompany)
{
    const QString pattern = Dialect::connectedEngine() == Dialect::PostgreSQL
                              ? "DELETE from Supply WHERE keynum=(SELECT keynum FROM Supply WHERE "
                                "Company='%s' ORDER BY keynum LIMIT 1)"
                              : "DELETE from Supply WHERE Company='%s' LIMIT 1";
    return formatted(pattern, {escapedCompany});
}

} // namespace

void Admin::refreshSuppliers()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QSqlQuery query;
    // A failed read returns at once, with the wait cursor gone: a server away for a restart must not
    // leave the window looking busy for good.
    if (!run(query, QString("SELECT  Company,Contact,Email,Tel,Fax,Cell,PostalAddr,")
                        + "PhysicalAddr, Lab FROM Supply ORDER BY Company")) {
        QApplication::restoreOverrideCursor();
        return;
    }
    ui.supply_list->clear();
    ZrListItem *last = nullptr;
    while (query.next()) {
        last = last ? new ZrListItem(ui.supply_list, last) : new ZrListItem(ui.supply_list);
        last->setMultiLinesEnabled(true);
        // The drivers hand stored UTF-8 over as Unicode already.
        for (int column = 0; column < 9; ++column)
            last->setText(column, query.value(column).toString());
    }
    QApplication::restoreOverrideCursor();
}

void Admin::supplierSelected(QTreeWidgetItem *item)
{
    if (!item)
        return;
    ui.supply_list->setCurrentItem(item);
    ui.company_tf->setText(item->text(0));
    ui.contact_tf->setText(item->text(1));
    ui.email_tf->setText(item->text(2));
    ui.phone_tf->setText(item->text(3));
    ui.fax_tf->setText(item->text(4));
    ui.cell_tf->setText(item->text(5));
    ui.postal_tf->setPlainText(item->text(6));
    ui.collection_tf->setPlainText(item->text(7));
    ui.lab_tb->setChecked(item->text(8) == "Y");
}

// lab_tb stays as it is: the next supplier entered keeps the flag unless it is cleared by hand.
void Admin::clearSupply()
{
    ui.company_tf->clear();
    ui.contact_tf->clear();
    ui.phone_tf->clear();
    ui.fax_tf->clear();
    ui.postal_tf->clear();
    ui.collection_tf->clear();
    ui.email_tf->clear();
    ui.cell_tf->clear();
}

// An empty company, or one already listed, is added as it is; only a text too long for its column
// stops it.
// The changing statements report a failure and carry on: the list is re-read either way.
void Admin::newSupplier()
{
    const QString caption = tr("Add Supplier");
    const QList<ColumnText> texts = supplierTexts(ui);
    if (!textsFit(this, caption, "Supply", texts))
        return;
    if (!confirmed(this, caption,
                   tr("Confirm that you will add %1\nto the list of suppliers with the details shown.")
                       .arg(ui.company_tf->text())))
        return;
    QString sql = QString("INSERT INTO  Supply (Company, Contact, Email, Tel, Fax, Cell, ")
                + "PostalAddr, PhysicalAddr, Lab) values ('";
    for (const ColumnText &text : texts)
        sql += escaped(text.text) + "','";
    run(sql + flag(ui.lab_tb) + "')");
    refreshSuppliers();
}

// The row is found by the name it had when listed, so the company can be renamed here.
void Admin::updateSupplier()
{
    const QString caption = tr("Update Supplier");
    const QTreeWidgetItem *item = ui.supply_list->currentItem();
    if (!item) {
        Prompter::warn(this, caption, tr("You have not selected a valid supplier. Try again."));
        return;
    }
    const QString company = item->text(0);
    const QList<ColumnText> texts = supplierTexts(ui);
    if (!textsFit(this, caption, "Supply", texts))
        return;
    if (!confirmed(this, caption,
                   tr("Confirm that you will update %1\nin the list of suppliers with the details shown.").arg(company)))
        return;
    QString sql = "UPDATE Supply SET ";
    for (const ColumnText &text : texts)
        sql += text.column + "='" + escaped(text.text) + "',";
    run(sql + "Lab='" + flag(ui.lab_tb) + "'" + "WHERE Company='" + escaped(company) + "'");
    refreshSuppliers();
}

void Admin::deleteSupplier()
{
    const QString caption = tr("Delete Supplier");
    const QTreeWidgetItem *item = ui.supply_list->currentItem();
    if (!item) {
        Prompter::warn(this, caption, tr("You have not selected a valid supplier. Try again."));
        return;
    }
    const QString company = item->text(0);
    if (!confirmed(this, caption, tr("Confirm that you will delete %1\nfrom the list of suppliers.").arg(company)))
        return;
    run(deleteStatement(escaped(company)));
    refreshSuppliers();
}
