#include "productform.h"

#include "admin.h"
#include "globals.h"
#include "tabsupport.h"
#include "utility.h"

#include <QEvent>
#include <QPalette>
#include <QSqlQuery>
#include <QTreeWidget>

namespace ProductForm {

QList<QWidget *> activeDependentWidgets(Admin *admin)
{
    Ui::Admin &ui = admin->ui;
    return {ui.supplier_combo, ui.code_tf,     ui.description_tf, ui.schedule_combo, ui.uom_tf,
            ui.markup_tf,      ui.cost_tf,     ui.quantity_tf,    ui.level_tf,       ui.toqty_tf,
            ui.onorder_tf,     ui.description_A_tf, ui.uom_A_tf,  ui.dtr_tf};
}

void setActiveDependentEnabled(Admin *admin, bool enabled)
{
    for (QWidget *widget : activeDependentWidgets(admin))
        widget->setEnabled(enabled);
}

QColor normalTitleColour()
{
    return Utility::normalPalette().color(QPalette::Active, QPalette::Window);
}

void setTitleColour(Admin *admin, const QColor &colour)
{
    QWidget *title = admin->ui.TextLabel8;
    QPalette palette = title->palette();
    palette.setColor(QPalette::Window, colour);
    title->setPalette(palette);
    title->setAutoFillBackground(true);
}

void setFieldBackground(QLineEdit *field, const QColor &colour)
{
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, colour);
    field->setPalette(palette);
}

bool refillSuppliers(Admin *admin, const QString &sql)
{
    // Read first: when the read fails (the server away) the combo keeps what it showed.
    QSqlQuery query;
    if (!TabSupport::run(query, sql))
        return false;
    QComboBox *combo = admin->ui.supplier_combo;
    combo->clear();
    combo->addItem(QStringLiteral(" "));
    while (query.next())
        combo->addItem(query.value(0).toString());
    return true;
}

bool isServiceCategory(const QString &table)
{
    return table == QLatin1String("Consult") || table == QLatin1String("Diagnosis")
        || table == QLatin1String("Proc");
}

void selectItem(Admin *admin, QTreeWidgetItem *item)
{
    admin->ui.list->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
    admin->ui.list->scrollToItem(item);
}

bool selectCode(Admin *admin, const QString &code)
{
    QTreeWidget *list = admin->ui.list;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (TabSupport::cell(list->topLevelItem(i), 0) == code) {
            selectItem(admin, list->topLevelItem(i));
            return true;
        }
    }
    return false;
}

namespace {
// Remembers which of the code and description fields the user was in last, on the search button:
// a click on the button takes the focus away from both.
class SearchFieldWatch : public QObject
{
public:
    explicit SearchFieldWatch(Admin *admin) : QObject(admin), admin(admin) {}

    void remember(QObject *field)
    {
        admin->ui.pushButton28->setProperty("searchByCode", field == admin->ui.code_tf);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            remember(watched);
        return false;
    }

private:
    Admin *admin;
};
} // namespace

void followSearchFields(Admin *admin)
{
    auto *watch = new SearchFieldWatch(admin);
    for (QLineEdit *field : {admin->ui.code_tf, admin->ui.description_tf}) {
        field->installEventFilter(watch);
        QObject::connect(field, &QLineEdit::textEdited, watch, [watch, field] { watch->remember(field); });
    }
}

bool searchByCode(Admin *admin)
{
    if (admin->ui.code_tf->hasFocus() || admin->ui.description_tf->hasFocus())
        return admin->ui.code_tf->hasFocus();
    return admin->ui.pushButton28->property("searchByCode").toBool();
}

bool dtrShown(Admin *admin)
{
    return !admin->ui.dtr_lab->isHidden();
}

} // namespace ProductForm
