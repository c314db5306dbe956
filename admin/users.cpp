// The permissions tab: the suite's operators, their code, initials, diary and commission, and the
// rights each one holds (a right is a Permissions row of class and description).
#include "admin.h"
#include "globals.h"
#include "prompter.h"
#include "rights.h"
#include "tabsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QSignalBlocker>
#include <QSqlQuery>

using namespace TabSupport;

namespace {

QString currentUser(const Admin *admin)
{
    const QListWidgetItem *item = admin->ui.users_list->currentItem();
    return item ? item->text() : QString();
}

} // namespace

void Admin::reloadData()
{
    const QString remembered = currentUser(this);
    QSqlQuery query;
    if (!run(query, "SELECT Operator FROM Operators"))
        return;
    QListWidgetItem *again = nullptr;
    {
        // The re-selection below shows the user once; the list's own signals would show it again.
        const QSignalBlocker blocker(ui.users_list);
        ui.users_list->clear();
        while (query.next()) {
            auto *item = new QListWidgetItem(query.value(0).toString(), ui.users_list);
            if (!again && !remembered.isNull() && item->text() == remembered)
                again = item;
        }
        if (again)
            ui.users_list->setCurrentItem(again);
    }
    if (again)
        userSelected(remembered);
}

void Admin::userSelected(const QString &name)
{
    QSqlQuery query;
    if (!run(query, "SELECT id,Initials,Diary,Commission FROM Operators WHERE Operator='"
                        + utils->escapeSQL(name, false) + "'"))
        return;
    if (query.next()) {
        ui.userCode_tf->setText(query.value(0).toString());
        ui.initials_tf->setText(query.value(1).toString());
        ui.checkBox6->setChecked(query.value(2).toString() == "Y");
        ui.lineEdit45->setText(query.value(3).toString());
    }
    if (!run(query, "SELECT Class, Description FROM Permissions where Operator='" + utils->escapeSQL(name, false)
                        + "' ORDER BY keynum"))
        return;
    ui.perms_list->clear();
    ZrListItem *last = nullptr;
    while (query.next()) {
        last = last ? new ZrListItem(ui.perms_list, last) : new ZrListItem(ui.perms_list);
        last->setText(0, query.value(0).toString());
        last->setText(1, query.value(1).toString());
    }
}

void Admin::classChanged(int index)
{
    ui.desc_combo->clear();
    if (index == 0)
        ui.desc_combo->addItems(Rights::dispense(!ui.Tax1Name->text().isEmpty()));
    else if (index == 1)
        ui.desc_combo->addItems(Rights::utility());
    else if (index >= 2 && index <= 5)
        ui.desc_combo->addItems({"0", "1", "2", "3", "4", "5", "6", "7"});
    else
        ui.desc_combo->addItems({"Price Adjustment", "Cost Price View"});
}

namespace {

// One answer of the new user's dialogs; empty when cancelled or left empty (already reported).
QString askNewUser(Admin *admin, const QString &label, QLineEdit::EchoMode echo)
{
    const QString caption = Admin::tr("New User");
    bool ok = false;
    const QString answer = Prompter::current()->getText(admin, caption, label, echo, QString(), &ok);
    if (ok && !answer.isEmpty())
        return answer;
    cancelled(admin, caption);
    return QString();
}

// The name, code and initials fit their columns, and the commission is a number. Asked before the
// new user's rights are granted or the user's details changed.
bool userAcceptable(Admin *admin, const QString &caption, const QList<ColumnText> &texts)
{
    return numbersRead(admin, caption, {{Admin::tr("commission"), admin->ui.lineEdit45->text()}})
        && textsFit(admin, caption, "Operators", texts);
}

// The class as the suite stores it: the untranslated word of the class shown, whatever language
// the window speaks.
QString currentClass(const Admin *admin)
{
    return Rights::classNames().value(admin->ui.class_combo->currentIndex(), Rights::classNames().last());
}

// Every description that classChanged offers for the class, one insert each.
bool grantClass(Admin *admin, const QString &escapedName, int index)
{
    admin->classChanged(index);
    const QString prefix = "INSERT INTO Permissions (Operator, Class, Description) VALUES ('" + escapedName
                         + "', '" + Rights::classNames().at(index) + "', '";
    for (int i = 0; i < admin->ui.desc_combo->count(); ++i)
        if (!run(prefix + utils->escapeSQL(admin->ui.desc_combo->itemText(i), false) + "')"))
            return false;
    return true;
}

} // namespace

// A new user starts with every right; rights are taken away afterwards. The diary and commission
// are those the form shows, that is, of the user selected before.
void Admin::newUser()
{
    const QString name = askNewUser(this, tr("Enter the new users name"), QLineEdit::Normal);
    if (name.isEmpty())
        return;
    const QString initials = askNewUser(this, tr("Enter the users initials"), QLineEdit::Normal).toUpper();
    if (initials.isEmpty())
        return;
    const QString code = askNewUser(this, tr("Enter the user code"), QLineEdit::Password);
    if (code.isEmpty())
        return;
    if (!userAcceptable(this, tr("New User"), {{"Operator", name}, {"id", code}, {"Initials", initials}}))
        return;
    const QString escapedName = utils->escapeSQL(name, false);
    // The user and every right, or none of them: a user left with some rights would look complete.
    // An empty commission is written as 0 on every engine: it must not stop the user being created.
    inOneTransaction([&] {
        if (!run(QString("INSERT INTO Operators (Operator, id,Initials,Diary,Commission) ") + "VALUES ('"
                 + escapedName + "', '" + utils->escapeSQL(code, false) + "', '" + utils->escapeSQL(initials, false)
                 + "', '" + flag(ui.checkBox6) + "', '" + numberText(ui.lineEdit45->text()) + "')"))
            return false;
        for (int index = 0; index < Rights::classNames().size(); ++index)
            if (!grantClass(this, escapedName, index))
                return false;
        return true;
    });
    classChanged(0);
    reloadData();
}

// The operator row goes by the code the form shows, the rights by the name.
void Admin::deleteUser()
{
    const QString caption = tr("Delete User");
    if (!ui.users_list->currentItem()) {
        Prompter::warn(this, caption, tr("You must have a user selected to perform a delete"));
        return;
    }
    const QString name = currentUser(this);
    if (name == "admin") {
        Prompter::warn(this, caption, tr("You may not delete the administrator"));
        return;
    }
    if (!confirmed(this, caption, tr("Confirm that you will remove user '%1' from the system").arg(name)))
        return;
    // Rights and user go together, or both stay.
    inOneTransaction([&] {
        return run("DELETE FROM Permissions WHERE Operator='" + utils->escapeSQL(name, false) + "'")
            && run("DELETE FROM Operators WHERE id='" + utils->escapeSQL(ui.userCode_tf->text(), false) + "'");
    });
    reloadData();
}

// The name cannot change: it is the key of the user's rights.
void Admin::updateUserId()
{
    const QString caption = tr("Update User");
    if (!ui.users_list->currentItem()) {
        Prompter::warn(this, caption, tr("You must have a user selected to perform an update"));
        return;
    }
    const QString name = currentUser(this);
    if (!userAcceptable(this, caption, {{"id", ui.userCode_tf->text()}, {"Initials", ui.initials_tf->text()}}))
        return;
    if (!confirmed(this, caption,
                   tr("Confirm that you will update user '%1'\nto have a new user Code %2,Initials %3, and "
                      "Commission %4")
                       .arg(name, ui.userCode_tf->text(), ui.initials_tf->text(), ui.lineEdit45->text())))
        return;
    if (!run("UPDATE Operators SET id= '" + utils->escapeSQL(ui.userCode_tf->text(), false) + "'" + ", Initials='"
             + utils->escapeSQL(ui.initials_tf->text(), false) + "'" + ", Diary='"
             + (ui.checkBox6->isChecked() ? "Y'" : "N'") + ", Commission='" + numberText(ui.lineEdit45->text())
             + "' WHERE Operator='" + utils->escapeSQL(name, false) + "'"))
        return;
    reloadData();
}

void Admin::newPermission()
{
    if (!ui.users_list->currentItem()) {
        Prompter::warn(this, tr("New Permission"), tr("You must have a user selected to allocate a permission"));
        return;
    }
    const QString caption = tr("Add Permission");
    const QString user = currentUser(this);
    const QString right = ui.class_combo->currentText();
    const QString description = ui.desc_combo->currentText();
    const QStringList values{utils->escapeSQL(user, false), utils->escapeSQL(currentClass(this), false),
                             utils->escapeSQL(description, false)};
    QSqlQuery query;
    if (!run(query, formatted("SELECT keynum FROM Permissions WHERE Operator='%s' and  Class='%s' AND "
                                 "Description='%s'",
                                 values)))
        return;
    if (query.next()) {
        Prompter::inform(this, caption, tr("User %3 already has permission '%1 : %2'").arg(right, description, user));
        return;
    }
    if (!confirmed(this, caption, tr("Confirm that you will add  '%1 : %2' to user '%3'").arg(right, description, user)))
        return;
    if (!run(formatted("INSERT INTO Permissions (Operator,Class,Description) VALUES ('%s','%s','%s')", values)))
        return;
    reloadData();
}

// Every row of the user with that class and description goes, duplicates included.
void Admin::deletePermission()
{
    const QString caption = tr("Delete Permission");
    const QTreeWidgetItem *item = ui.perms_list->currentItem();
    if (!item) {
        Prompter::warn(this, caption, tr("To delete a permission it must be selected in the list"));
        return;
    }
    const QString user = currentUser(this);
    if (!confirmed(this, caption,
                   tr("Confirm that you will remove '%1 : %2' from user '%3'").arg(item->text(0), item->text(1), user)))
        return;
    if (!run("DELETE FROM Permissions WHERE Operator='" + utils->escapeSQL(user, false) + "' AND Class='"
             + utils->escapeSQL(cell(item, 0), false) + "' AND Description='" + utils->escapeSQL(cell(item, 1), false) + "'"))
        return;
    reloadData();
}
