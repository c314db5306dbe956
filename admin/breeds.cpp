// The breeds tab: a data table over "breeds". Every edited cell is written at once; a write the
// database refuses is shown and undone, so nothing half-written stays in the table.
#include "admin.h"

#include "columns.h"
#include "globals.h"
#include "prompter.h"
#include "session.h"
#include "tabsupport.h"
#include "utility.h"

#include <QHeaderView>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>

#include <functional>

namespace {
bool connectionOpen()
{
    return QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).isOpen();
}

// Writes each edit once the model has taken it in: submitting (or reverting) from inside the
// model's own dataChanged would change the rows it is still working on. A name too long for its
// column is refused before it reaches the model, as on every other tab.
class BreedsModel : public QSqlTableModel
{
public:
    BreedsModel(QWidget *window, std::function<bool()> written)
        : QSqlTableModel(window), window(window), afterEdit(std::move(written))
    {
    }

    // The table with its headings and order, read from the database.
    void open()
    {
        setTable("breeds");
        setEditStrategy(QSqlTableModel::OnManualSubmit);
        setHeaderData(fieldIndex("Description"), Qt::Horizontal, Admin::tr("Description"));
        setHeaderData(fieldIndex("Description_A"), Qt::Horizontal, Admin::tr("Alt Lang"));
        setSort(fieldIndex("Description"), Qt::AscendingOrder);
        select();
        openedUnder = Session::generation();
    }

    // The model keeps its statements prepared on the connection that first ran them; once the
    // connection has been opened again they are gone with the old one, and the table is opened
    // anew before the next change (not during one: that would drop it). True when it was.
    bool keepUp()
    {
        Session::ensureOpen();
        if (openedUnder == Session::generation() || !connectionOpen())
            return false;
        open();
        return true;
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override
    {
        if (role != Qt::EditRole)
            return QSqlTableModel::setData(index, value, role);
        const bool added = isDirty(index); // a row added with the button, not written yet
        const int row = index.row(), column = index.column();
        if (!added && keepUp()) // the same cell of the table read anew
            return row < rowCount() && setData(this->index(row, column), value, role);
        // The model binds its values instead of escaping them: the NUL that no engine keeps is
        // dropped here, as escapeSQL drops it from every other text.
        const QString text = Columns::stored(value.toString());
        return TabSupport::textsFit(window, Admin::tr("Breeds"), tableName(), {{record().fieldName(column), text}})
            && QSqlTableModel::setData(index, value.isNull() ? value : QVariant(text), role) && afterEdit();
    }

private:
    QWidget *window;
    std::function<bool()> afterEdit;
    quint64 openedUnder = 0;
};

BreedsModel *model(QSqlTableModel *breeds)
{
    return static_cast<BreedsModel *>(breeds);
}
} // namespace

void Admin::setUpBreeds()
{
    breeds = new BreedsModel(this, [this] { return submitBreeds(); });
    model(breeds)->open();
    const int description = breeds->fieldIndex("Description");
    const int alternative = breeds->fieldIndex("Description_A");
    ui.table->setModel(breeds);
    for (int column = 0; column < breeds->columnCount(); ++column)
        ui.table->setColumnHidden(column, column != description && column != alternative);
    ui.table->setColumnWidth(alternative, 256);
    ui.table->horizontalHeader()->setSectionResizeMode(description, QHeaderView::Stretch);
    ui.table->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui.table->setSelectionMode(QAbstractItemView::SingleSelection);
}

bool Admin::submitBreeds()
{
    Session::ensureOpen();
    if (breeds->submitAll())
        return true;
    utils->showDBError(breeds->lastError());
    // Reading the table again drops the refused change (revertAll() trips over a refused new row).
    // With the server still away there is nothing to read: the rows shown stay, without the change.
    if (connectionOpen())
        breeds->select();
    else
        breeds->revertAll();
    return false;
}

void Admin::addBreed()
{
    model(breeds)->keepUp();
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
    int row = current.row();
    if (model(breeds)->keepUp()) { // read anew: the breed is found by its name
        const QModelIndexList found = breeds->match(breeds->index(0, breeds->fieldIndex("Description")),
                                                    Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found.isEmpty())
            return;
        row = found.first().row();
    }
    breeds->removeRow(row);
    submitBreeds();
}
