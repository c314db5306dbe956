// The registers beside the products: users and their rights, suppliers, automated procedures.
#include "admin.h"
#include "testsupport.h"

#include <QApplication>
#include <QtTest>

using Table = QList<QStringList>;
using TestSupport::insert;
using TestSupport::rows;

namespace {

// Each right is "Class:Description".
bool addUser(const QString &name, const QString &code, const QStringList &rights = {})
{
    bool ok = insert("Operators", "Operator,id,Initials,Diary,Commission", {name, code, "XX", "N", 0});
    for (const QString &right : rights)
        ok = ok && insert("Permissions", "Operator,Class,Description", {name, right.section(':', 0, 0), right.section(':', 1)});
    return ok;
}

// Each item is "Category|Code|Quantity|Charge".
bool addProcedure(const QString &name, const QStringList &items = {})
{
    bool ok = insert("AutoProc", "Description", {name});
    const QVariant code = TestSupport::value("SELECT MAX(Code) FROM AutoProc");
    for (const QString &item : items) {
        const QStringList f = item.split('|');
        ok = ok && insert("AutoProcContents", "ProcId,Category,Code,Quantity,Charge",
                          {code, f.at(0), f.at(1), f.at(2).toDouble(), f.at(3)});
    }
    return ok;
}

QStringList supplier(const QString &name, const QString &lab = "N") { return {name, "By " + name, "@", "1", "2", "3", "Box", "Road", lab}; }
const QString supplierColumns = "Company,Contact,Email,Tel,Fax,Cell,PostalAddr,PhysicalAddr,Lab";
bool addSupplier(const QStringList &v) { return insert("Supply", supplierColumns, QVariantList(v.begin(), v.end())); }
Table suppliers() { return rows("SELECT " + supplierColumns + " FROM Supply ORDER BY keynum"); }

// Items under the name of their procedure; an item left without one shows an empty name.
Table contents() { return rows("SELECT p.Description,c.Category,c.Code,c.Quantity,c.Charge FROM AutoProcContents c "
                               "LEFT JOIN AutoProc p ON p.Code=c.ProcId ORDER BY c.id"); }

Table listed(const QTreeWidget *list)
{
    Table out(list->topLevelItemCount());
    for (int i = 0; i < out.size(); ++i)
        for (int c = 0; c < list->columnCount(); ++c)
            out[i] << list->topLevelItem(i)->text(c);
    return out;
}

// The first row showing `text` in column 0 becomes current, as a click would make it.
template <typename List> void select(List *list, const QString &text)
{
    list->setCurrentItem(list->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive).value(0));
}

// Answers Yes to what `slot` asks, after making the row showing `text` current when a list is given.
template <typename List = QTreeWidget>
void confirmed(Admin *admin, void (Admin::*slot)(), List *list = nullptr, const QString &text = {})
{
    if (list)
        select(list, text);
    TestSupport::prompter()->answer(0);
    (admin->*slot)();
}

Table everything()
{
    Table all;
    for (const char *table : {"Operators ORDER BY Operator", "Permissions ORDER BY keynum", "Supply ORDER BY keynum",
                              "AutoProc ORDER BY Code", "AutoProcContents ORDER BY id"})
        all += rows(QString("SELECT * FROM ") + table);
    return all;
}

} // namespace

class RegistersTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    // Every product is taxed: the charges of the procedures leave the taxes out all the same.
    void init()
    {
        EngineSuite::init();
        for (const QVariantList &p : {QVariantList{"Goods", "1", "Bandage", 10.0}, {"Goods", "2", "Cotton 'wool' \\ roll", 0.5},
                                      {"Medication", "7", "Pill", 1.25}, {"Proc", "3", "Spay", 300.0}})
            QVERIFY(insert(p.at(0).toString(), "Code,Description,Price,Tax1,Tax2,Active", p.mid(1) << "Y" << "Y" << "Y"));
    }

    // A warning before any question when nothing is selected; "Operation cancelled" when the box is closed.
    void nothingChangesWithoutConsent_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::addColumn<QString>("user"); // Vet for a question, with Acme and Spay; none: nothing selected
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *slot, const QString &caption, const QString &text, const QString &user = "") {
            const bool asked = text.startsWith("Confirm");
            QTest::addRow("%s, %s", slot, asked ? "declined" : user.isEmpty() ? "nothing selected" : qPrintable(user))
                << slot << (asked ? "Vet" : user) << QStringList()
                << QStringList{caption + ": " + text, caption + ": Operation cancelled"}.mid(0, asked ? 2 : 1);
        };
        row("deleteUser", "Delete User", "You must have a user selected to perform a delete");
        row("deleteUser", "Delete User", "You may not delete the administrator", "admin");
        row("updateUserId", "Update User", "You must have a user selected to perform an update");
        row("newPermission", "New Permission", "You must have a user selected to allocate a permission");
        row("deletePermission", "Delete Permission", "To delete a permission it must be selected in the list");
        row("updateSupplier", "Update Supplier", "You have not selected a valid supplier. Try again.");
        row("deleteSupplier", "Delete Supplier", "You have not selected a valid supplier. Try again.");
        row("updateAutoProcContents", "Update Composition", "You must highlight a Composition entry to Update");
        row("deleteAutoProcContents", "Delete Composition", "You must highlight a Composition entry to delete");
        row("deleteUser", "Delete User", "Confirm that you will remove user 'Vet' from the system");
        row("updateUserId", "Update User", "Confirm that you will update user 'Vet'\nto have a new user Code v1,Initials XX, and Commission 0");
        row("newPermission", "Add Permission", "Confirm that you will add  'Dispense : Tax Controls' to user 'Vet'");
        row("deletePermission", "Delete Permission", "Confirm that you will remove 'Utility : Backup' from user 'Vet'");
        row("newSupplier", "Add Supplier", "Confirm that you will add Acme\nto the list of suppliers with the details shown.");
        row("updateSupplier", "Update Supplier", "Confirm that you will update Acme\nin the list of suppliers with the details shown.");
        row("deleteSupplier", "Delete Supplier", "Confirm that you will delete Acme\nfrom the list of suppliers.");
        row("updateAutoProc", "Update Automated Procedure", "Confirm that you wish to rename the Automated Procedure 'Spay' to 'Neuter'");
        row("deleteAutoProc", "Delete Automated Procedure", "Confirm that you wish to delete the Automated Procedure 'Spay' from the system");
        row("newAutoProcContents", "New Procedure Composition", "Confirm that you wish to add the Automated Procedure Composition 'Bandage'");
        row("updateAutoProcContents", "Update Procedure Composition",
            "Confirm that you wish to update the Automated Procedure Composition 'Bandage'");
        row("deleteAutoProcContents", "Delete Procedure Composition",
            "Confirm that you wish to delete the Automated Procedure Composition 'Bandage' from the Procedure");
        const QStringList labels{"New User: Enter the new users name", "New User: Enter the users initials",
                                 "New User: Enter the user code"};
        for (int answered = 0; answered < 3; ++answered)
            for (const QString &last : {QString("cancelled"), QString("empty")})
                QTest::addRow("newUser %s after %d", qPrintable(last), answered)
                    << "newUser" << "" << QStringList(answered, "x") + (last == "empty" ? QStringList{""} : QStringList())
                    << labels.mid(0, answered + 1) + QStringList{"New User: Operation cancelled"};
        for (const QStringList &answers : {QStringList(), QStringList{""}})
            QTest::addRow("newAutoProc %s", answers.isEmpty() ? "cancelled" : "empty") << "newAutoProc" << "" << answers
                << QStringList{"New Auto Procedure: Enter the new Auto Procedure name", "New Auto Procedure: Operation cancelled"};
    }

    void nothingChangesWithoutConsent()
    {
        QFETCH(QString, slot);
        QFETCH(QString, user);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, expected);
        QVERIFY(addUser("Vet", "v1", {"Utility:Backup"}) && addUser("admin", "a1") && addSupplier(supplier("Acme")));
        QVERIFY(addProcedure("Spay", {"Goods|1|2|Y"}));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        if (!user.isEmpty()) {
            select(ui.users_list, user);
            ui.perms_list->setCurrentItem(ui.perms_list->topLevelItem(0));
            select(ui.supply_list, "Acme");
            ui.auto_list->setCurrentItem(ui.auto_list->topLevelItem(0));
            ui.proc_tf->setText("Neuter");
        }
        const Table before = everything();
        for (const QString &answer : answers)
            TestSupport::prompter()->answerText(answer);

        QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

        QStringList shown; // "caption: text" of every box and input
        for (const auto &call : TestSupport::prompter()->calls)
            shown << call.caption + ": " + call.text;
        QCOMPARE(shown, expected);
        const auto &question = TestSupport::prompter()->calls.first(); // a confirmation: "&No" is the default
        if (question.kind == "message" && expected.size() == 2)
            QVERIFY(question.icon == Prompter::Information && question.buttons == QStringList({"&Yes", "&No"})
                    && question.defaultIndex == 1);
        QCOMPARE(everything(), before);
    }

    void newUserGetsEveryRight_data()
    {
        QTest::addColumn<QString>("taxName");
        QTest::addColumn<QString>("commission");
        QTest::newRow("untaxed, diary, no commission") << "" << "";
        QTest::newRow("taxed") << "VAT" << "12.5";
    }

    // Diary and commission are those the form shows; the three tax rights come with a first tax named.
    void newUserGetsEveryRight()
    {
        QFETCH(QString, taxName);
        QFETCH(QString, commission);
        Admin *admin = TestSupport::makeAdmin();
        admin->ui.Tax1Name->setText(taxName);
        admin->ui.checkBox6->setChecked(taxName.isEmpty());
        admin->ui.lineEdit45->setText(commission);
        const QString name = "O'Brien \\ José";
        for (const QString &answer : {name, QString("ob"), QString("s3cr'et")})
            TestSupport::prompter()->answerText(answer);

        admin->newUser();

        QCOMPARE(TestSupport::prompter()->last().echo, int(QLineEdit::Password));
        QCOMPARE(rows("SELECT Operator,id,Initials,Diary,Commission FROM Operators"),
                 Table({{name, "s3cr'et", "OB", taxName.isEmpty() ? "Y" : "N", commission.isEmpty() ? "0" : commission}}));
        QCOMPARE(rows("SELECT Class,COUNT(*) FROM Permissions GROUP BY Class ORDER BY MIN(keynum)"),
                 Table({{"Dispense", taxName.isEmpty() ? "12" : "15"}, {"Utility", "37"}, {"Schedule", "8"}, {"Procedure Schedule", "8"},
                        {"Hospital Schedule", "8"}, {"Stock Schedule", "8"}, {"Stock", "2"}}));
        // The other programs of the suite look for these exact words ("Overide" included).
        QString expected = taxName.isEmpty() ? "" : "Tax Controls,Price Overide,Discount Overide,";
        expected += "Goods,Hospital,Consult,Diagnosis,Injection,Lab,Medication,Proc,AutoProc,Vaccination,Remarks,Notes,"
                    "Transfer Patient,Merge Client,Purge Client,Purge Patient,Backup,Full History,Vaccination,Hospital,"
                    "Anaesthetic,Euthanasia,Medical,Statement,Audit,Journal,Order Forms,Input Stock,Stock Trace,Drug Report,"
                    "Period Performance,Month End,Cash Up,Cash Date,Debtors,Statements,Reminders,News Letter,Merge Patients,"
                    "Email Msg,Price Lists,Barcode Labels,Specimen,Label,Document,Attachments,Search Invoice,Bulk SMS,Client SMS,"
                    + QString("0,1,2,3,4,5,6,7,").repeated(4) + "Price Adjustment,Cost Price View";
        QStringList granted;
        for (const QStringList &right : rows("SELECT Description FROM Permissions ORDER BY keynum"))
            granted << right.value(0);
        QCOMPARE(granted.join(','), expected);
        QCOMPARE(admin->ui.users_list->findItems(name, Qt::MatchExactly).size(), 1);
    }

    // A right is granted once, and removing one takes all its rows; code, initials, diary and commission change but
    // not the name. Only "admin" exactly is kept; rights go by the selected name, the operator row by the code shown.
    void editUsers()
    {
        const QString odd = "Utility:O'Neil's \\ list";
        QVERIFY(addUser("admin", "a1", {"Utility:Backup"}) && addUser("Admin", "a2") && addUser("Nurse", "n1", {odd}));
        QVERIFY(addUser("Dr O'Hara", "h1", {"Dispense:Goods", odd, "Utility:Backup", odd}));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        select(ui.users_list, "Dr O'Hara");
        for (const int right : {3, 1}) {
            ui.class_combo->setCurrentIndex(right);
            admin->classChanged(right);
            ui.desc_combo->setCurrentIndex(4);
            confirmed(admin, &Admin::newPermission);
        }
        ui.perms_list->setCurrentItem(ui.perms_list->topLevelItem(1));
        confirmed(admin, &Admin::deletePermission);
        QCOMPARE(listed(ui.perms_list), Table({{"Dispense", "Goods"}, {"Utility", "Backup"}, {"Procedure Schedule", "4"}}));
        ui.userCode_tf->setText("new'code\\");
        ui.initials_tf->setText("Z'B");
        ui.checkBox6->setChecked(true);
        ui.lineEdit45->setText("12.25");
        confirmed(admin, &Admin::updateUserId);
        confirmed(admin, &Admin::deleteUser, ui.users_list, "Admin");
        select(ui.users_list, "Nurse");
        ui.userCode_tf->setText("a1");

        confirmed(admin, &Admin::deleteUser);

        QCOMPARE(TestSupport::prompter()->calls.at(1).text, QString("User Dr O'Hara already has permission 'Utility : Backup'"));
        QCOMPARE(rows("SELECT Operator,id,Initials,Diary,Commission FROM Operators ORDER BY Operator"),
                 Table({{"Dr O'Hara", "new'code\\", "Z'B", "Y", "12.25"}, {"Nurse", "n1", "XX", "N", "0"}}));
        QCOMPARE(rows("SELECT Operator,Class,Description FROM Permissions ORDER BY keynum"), Table({{"admin", "Utility", "Backup"},
                 {"Dr O'Hara", "Dispense", "Goods"}, {"Dr O'Hara", "Utility", "Backup"}, {"Dr O'Hara", "Procedure Schedule", "4"}}));
        QCOMPARE(ui.users_list->count(), 2);
    }

    // A renamed row is found by its old name and listed in its new place; a flag other than "Y" shows unchecked and is
    // saved as "N". A supplier is listed and put into the form in full, added again and saved under its own name; of two
    // rows of one company, delete takes one; clearing keeps the lab flag. A failed statement is shown and the list
    // re-read all the same, without the wait cursor left behind.
    void editSuppliers()
    {
        const QStringList odd{"O'Neil \\ Café", "Pat 'Doc'", "a\\b@x.com", "011 '1'", "\\", "''", "Rue d'Été\nBoîte 5",
                              "C:\\'Back'\n\nHof", "Y"};
        const QStringList zeta = QStringList{"Zeta's"} + supplier("Beta").mid(1);
        QVERIFY(addSupplier(supplier("Gamma")) && addSupplier(supplier("Beta", "y")) && addSupplier(odd));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        ui.lab_tb->setChecked(true);
        select(ui.supply_list, "Beta");
        ui.company_tf->setText("Zeta's");
        confirmed(admin, &Admin::updateSupplier);
        confirmed(admin, &Admin::newSupplier, ui.supply_list, odd.at(0));
        confirmed(admin, &Admin::updateSupplier, ui.supply_list, odd.at(0));
        QCOMPARE(suppliers(), Table({supplier("Gamma"), zeta, odd, odd}));
        QCOMPARE(listed(ui.supply_list), Table({supplier("Gamma"), odd, odd, zeta}));
        confirmed(admin, &Admin::deleteSupplier, ui.supply_list, odd.at(0));
        admin->clearSupply();
        ui.company_tf->setText("Next");
        confirmed(admin, &Admin::newSupplier);
        QCOMPARE(suppliers(), Table({supplier("Gamma"), zeta, odd, {"Next", "", "", "", "", "", "", "", "Y"}}));
        QVERIFY(TestSupport::exec("CREATE UNIQUE INDEX supply_test ON Supply (Company)"));
        QVERIFY(addSupplier(supplier("Behind the list")));

        confirmed(admin, &Admin::newSupplier, ui.supply_list, "Gamma");

        QCOMPARE(TestSupport::prompter()->last().icon, int(Prompter::Critical));
        QCOMPARE(ui.supply_list->topLevelItemCount(), 5);
        QVERIFY(!QApplication::overrideCursor());
    }

    // The items oldest first, charged at the price without tax unless Charge is "N"; a vanished product still listed.
    // A delete takes the procedure's items and nobody else's. The list is sorted by name and a new procedure selects
    // its last row, not the new one; an empty one totals 0.00. A rename keeps the items.
    void editProcedures()
    {
        QVERIFY(addProcedure("Spay", {"Proc|3|1|Y"})
                && addProcedure("Castration", {"Goods|1|2|Y", "Medication|7|4|N", "Proc|3|1|", "Goods|99|3|Y", "Goods|2|3|y"}));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        ui.proc_list->setCurrentRow(1);
        ui.proc_list->setCurrentRow(0);
        QCOMPARE(listed(ui.auto_list), Table({{"Goods", "2.00", "Bandage", "1", "10.00", "20.00", "Y"},
                                              {"Medication", "4.00", "Pill", "7", "1.25", "0.00", "N"},
                                              {"Proc", "1.00", "Spay", "3", "300.00", "300.00", ""},
                                              {"Goods", "3.00", "", "99", "0.00", "0.00", "Y"},
                                              {"Goods", "3.00", "Cotton 'wool' \\ roll", "2", "0.50", "1.50", "y"}}));
        QCOMPARE(ui.autoTotal_tf->text(), QString("321.50"));
        confirmed(admin, &Admin::deleteAutoProc);
        TestSupport::prompter()->answerText("Aardvark's \\ op");
        admin->newAutoProc();
        QCOMPARE(QStringList({ui.proc_list->item(0)->text(), ui.proc_tf->text(), ui.autoTotal_tf->text()}),
                 QStringList({"Aardvark's \\ op", "Spay", "300.00"}));
        ui.proc_list->setCurrentRow(0);
        QCOMPARE(QStringList({ui.proc_tf->text(), ui.autoTotal_tf->text()}), QStringList({"Aardvark's \\ op", "0.00"}));
        ui.proc_list->setCurrentRow(1);
        ui.proc_tf->setText("Spay 'bitch' \\ large");

        confirmed(admin, &Admin::updateAutoProc);

        QCOMPARE(contents(), Table({{"Spay 'bitch' \\ large", "Proc", "3", "1", "Y"}}));
    }

    // An item fills the form with its quantity as stored, and is changed by its line: of two alike, the highlighted one,
    // though the list shows its quantity rounded. A delete takes every item of that product in the procedure only. A new
    // item is charged whatever the box shows.
    void editItems()
    {
        QVERIFY(addProcedure("Other", {"Goods|1|2|Y"}) && addProcedure("Spay", {"Goods|1|2|N", "Goods|1|4.125|N", "Goods|1|4.125|N"}));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        ui.proc_list->setCurrentRow(1);
        ui.checkBox8->setChecked(true);
        ui.auto_list->setCurrentItem(ui.auto_list->topLevelItem(2));
        QCOMPARE(ui.auto_list->topLevelItem(2)->text(1) + " " + ui.auto_qty_tf->text(), QString("4.13 4.125"));
        admin->autoCategorySelected("Medication");
        confirmed(admin, &Admin::updateAutoProcContents);
        QCOMPARE(contents().mid(1), Table({{"Spay", "Goods", "1", "2", "N"}, {"Spay", "Goods", "1", "4.125", "N"}, {"Spay", "Medication", "7", "4.125", "N"}}));
        ui.auto_list->setCurrentItem(ui.auto_list->topLevelItem(0));
        confirmed(admin, &Admin::deleteAutoProcContents);
        ui.auto_desc_combo->setCurrentIndex(ui.auto_desc_combo->findText("Cotton 'wool' \\ roll"));
        ui.auto_qty_tf->setText("3");
        ui.checkBox8->setChecked(false);

        confirmed(admin, &Admin::newAutoProcContents);

        QCOMPARE(contents(), Table({{"Other", "Goods", "1", "2", "Y"}, {"Spay", "Medication", "7", "4.125", "N"}, {"Spay", "Goods", "2", "3", "Y"}}));
        QCOMPARE(listed(ui.auto_list), Table({{"Medication", "4.13", "Pill", "7", "1.25", "0.00", "N"},
                                              {"Goods", "3.00", "Cotton 'wool' \\ roll", "2", "0.50", "1.50", "Y"}}));
    }
};

QTEST_MAIN(RegistersTest)
#include "tst_registers.moc"
