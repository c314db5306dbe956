// The breeds tab: a data table over "breeds". Every edited cell is written at once; a write the
// database refuses is shown and undone, so nothing half-written stays in the table.
#include "admin.h"

#include "globals.h"
#include "prompter.h"
#include "tabsupport.h"
#include "utility.h"

#include <QHeaderView>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>

#include <functional>

namespace {
// Writes each edit once the model has taken it in: submitting (or reverting) from inside the
// model's own dataChanged would change the rows it is still working on.
class BreedsModel : public QSqlTableModel
{
public:
    BreedsModel(QObject *parent, std::function<bool()> written)
        : QSqlTableModel(parent), afterEdit(std::move(written))
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override
    {
        if (!QSqlTableModel::setData(index, value, role))
            return false;
        return role != Qt::EditRole || afterEdit();
    }

private:
    std::function<bool()> afterEdit;
};
} // namespace

void Admin::setUpBreeds()
{
    breeds = new BreedsModel(this, [this] { return submitBreeds(); });
    breeds->setTable("breeds");
    breeds->setEditStrategy(QSqlTableModel::OnManualSubmit);
    const int description = breeds->fieldIndex("Description");
    const int alternative = breeds->fieldIndex("Description_A");
    breeds->setHeaderData(description, Qt::Horizontal, tr("Description"));
    breeds->setHeaderData(alternative, Qt::Horizontal, tr("Alt Lang"));
    breeds->setSort(description, Qt::AscendingOrder);
    ui.table->setModel(breeds);
    for (int column = 0; column < breeds->columnCount(); ++column)
        ui.table->setColumnHidden(column, column != description && column != alternative);
    ui.table->setColumnWidth(alternative, 256);
    ui.table->horizontalHeader()->setSectionResizeMode(description, QHeaderView::Stretch);
    ui.table->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui.table->setSelectionMode(QAbstractItemView::SingleSelection);
    breeds->select();
}

bool Admin::submitBreeds()
{
    if (breeds->submitAll())
        return true;
    utils->showDBError(breeds->lastError());
    // Reading the table again drops the refused change (revertAll() trips over a refused new row).
    breeds->select();
    return false;
}

void Admin::addBreed()
{
    const int row = breeds->rowCount();
    breeds->insertRow(row);
    const QModelIndex cell = breeds->index(row, breeds->fieldIndex("Description"));
    ui.table->setCurrentIndex(cell);
    ui.table->edit(cell);
}

void Admin::deleteBreed()
{
    const QModelIndex current = ui.table->currentIndex();
    if (!current.isValid()) {
        Prompter::warn(this, tr("Delete Breed"), tr("You must highlight a breed to delete"));
        return;
    }
    const QString name = breeds->data(breeds->index(current.row(), breeds->fieldIndex("Description"))).toString();
    if (!TabSupport::confirmed(this, tr("Delete Breed"), tr("Confirm that you will delete the breed '%1'").arg(name)))
        return;
    breeds->removeRow(current.row());
    submitBreeds();
}
