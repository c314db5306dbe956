// The permissions tab: operators, their details and their rights.
#include "admin.h"
#include "testsupport.h"

#include <QSqlQuery>
#include <QtTest>

#include <algorithm>

using TestSupport::ScriptedPrompter;

namespace {

const QStringList taxRights{"Tax Controls", "Price Overide", "Discount Overide"};
const QStringList dispensing{"Goods", "Hospital",   "Consult",  "Diagnosis", "Injection", "Lab",
                             "Medication", "Proc", "AutoProc", "Vaccination", "Remarks", "Notes"};
const QStringList utilities{
    "Transfer Patient", "Merge Client", "Purge Client", "Purge Patient", "Backup", "Full History", "Vaccination",
    "Hospital", "Anaesthetic", "Euthanasia", "Medical", "Statement", "Audit", "Journal", "Order Forms",
    "Input Stock", "Stock Trace", "Drug Report", "Period Performance", "Month End", "Cash Up", "Cash Date",
    "Debtors", "Statements", "Reminders", "News Letter", "Merge Patients", "Email Msg", "Price Lists",
    "Barcode Labels", "Specimen", "Label", "Document", "Attachments", "Search Invoice", "Bulk SMS", "Client SMS"};
const QStringList levels{"0", "1", "2", "3", "4", "5", "6", "7"};
const QStringList stockRights{"Price Adjustment", "Cost Price View"};

bool addOperator(const QString &name, const QString &code, const QString &initials = "XX",
                 const QString &diary = "N", const QString &commission = "0")
{
    QSqlQuery query;
    query.prepare("INSERT INTO Operators (Operator,id,Initials,Diary,Commission) VALUES (?,?,?,?,?)");
    for (const QVariant &v : {QVariant(name), QVariant(code), QVariant(initials), QVariant(diary),
                              QVariant(commission.toDouble())})
        query.addBindValue(v);
    return query.exec();
}

bool addRight(const QString &name, const QString &right, const QString &description)
{
    QSqlQuery query;
    query.prepare("INSERT INTO Permissions (Operator,Class,Description) VALUES (?,?,?)");
    query.addBindValue(name);
    query.addBindValue(right);
    query.addBindValue(description);
    return query.exec();
}

// The rights of one user as "Class:Description", in keynum order.
QStringList rightsOf(const QString &name)
{
    QStringList out;
    const auto all = TestSupport::rows("SELECT Operator,Class,Description FROM Permissions ORDER BY keynum");
    for (const QStringList &row : all)
        if (row.at(0) == name)
            out << row.at(1) + ":" + row.at(2);
    return out;
}

QStringList prefixed(const QString &right, const QStringList &descriptions)
{
    QStringList out;
    for (const QString &d : descriptions)
        out << right + ":" + d;
    return out;
}

// Sorted here: the engines collate "admin" and "Admin" differently.
QList<QStringList> operators()
{
    auto all = TestSupport::rows("SELECT Operator,id,Initials,Diary,Commission FROM Operators");
    std::sort(all.begin(), all.end(), [](const QStringList &a, const QStringList &b) { return a.at(0) < b.at(0); });
    return all;
}

// Lists the users and makes `name` the selected one, as a click would.
void selectUser(Admin *admin, const QString &name)
{
    admin->reloadData();
    const auto found = admin->ui.users_list->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    QVERIFY2(found.size() == 1, qPrintable(name));
    admin->ui.users_list->setCurrentItem(found.first());
    admin->userSelected(name);
}

QStringList permsListed(Admin *admin)
{
    QStringList out;
    for (int i = 0; i < admin->ui.perms_list->topLevelItemCount(); ++i)
        out << admin->ui.perms_list->topLevelItem(i)->text(0) + ":" + admin->ui.perms_list->topLevelItem(i)->text(1);
    return out;
}

QStringList comboItems(const QComboBox *combo)
{
    QStringList out;
    for (int i = 0; i < combo->count(); ++i)
        out << combo->itemText(i);
    return out;
}

} // namespace

class UsersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void newUserGetsEveryRight_data();
    void newUserGetsEveryRight();
    void newUserCancelledAtEachStep_data();
    void newUserCancelledAtEachStep();
    void selectedUserFillsTheForm();
    void descriptionsFollowTheClass_data();
    void descriptionsFollowTheClass();
    void deleteUser_data();
    void deleteUser();
    void deleteGoesByTheCodeShown();
    void updateUser();
    void newPermission();
    void duplicatePermissionIsRefused();
    void deletePermissionTakesEveryMatchingRow();
    void missingSelectionIsWarned_data();
    void missingSelectionIsWarned();
};

void UsersTest::newUserGetsEveryRight_data()
{
    QTest::addColumn<QString>("taxName");
    QTest::addColumn<bool>("diary");
    QTest::addColumn<QString>("commission");
    QTest::addColumn<QString>("storedCommission");
    QTest::addColumn<QStringList>("dispense");
    QTest::newRow("no tax, empty commission") << "" << true << "" << "0" << dispensing;
    QTest::newRow("taxed") << "VAT" << false << "12.5" << "12.5" << taxRights + dispensing;
}

void UsersTest::newUserGetsEveryRight()
{
    QFETCH(QString, taxName);
    QFETCH(bool, diary);
    QFETCH(QString, commission);
    QFETCH(QString, storedCommission);
    QFETCH(QStringList, dispense);
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.Tax1Name->setText(taxName);
    admin->ui.checkBox6->setChecked(diary);
    admin->ui.lineEdit45->setText(commission);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answerText("O'Brien \\ José");
    p->answerText("ob");
    p->answerText("s3cr'et");

    admin->newUser();

    QCOMPARE(p->calls.size(), 3);
    const QStringList labels{"Enter the new users name", "Enter the users initials", "Enter the user code"};
    const QList<int> echoes{QLineEdit::Normal, QLineEdit::Normal, QLineEdit::Password};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(p->calls.at(i).kind, QString("getText"));
        QCOMPARE(p->calls.at(i).caption, QString("New User"));
        QCOMPARE(p->calls.at(i).text, labels.at(i));
        QCOMPARE(p->calls.at(i).echo, echoes.at(i));
    }
    QCOMPARE(operators(), QList<QStringList>({{"O'Brien \\ José", "s3cr'et", "OB", diary ? "Y" : "N", storedCommission}}));
    QStringList expected = prefixed("Dispense", dispense) + prefixed("Utility", utilities);
    for (const QString &schedule : QStringList{"Schedule", "Procedure Schedule", "Hospital Schedule", "Stock Schedule"})
        expected += prefixed(schedule, levels);
    expected += prefixed("Stock", stockRights);
    QCOMPARE(expected.size(), dispense.size() + 37 + 32 + 2);
    QCOMPARE(rightsOf("O'Brien \\ José"), expected);
    QCOMPARE(comboItems(admin->ui.desc_combo), dispense);
    QCOMPARE(admin->ui.users_list->findItems("O'Brien \\ José", Qt::MatchExactly).size(), 1);
}

void UsersTest::newUserCancelledAtEachStep_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("empty");
    for (int step = 1; step <= 3; ++step) {
        QTest::addRow("cancel at %d", step) << step << false;
        QTest::addRow("empty at %d", step) << step << true;
    }
}

void UsersTest::newUserCancelledAtEachStep()
{
    QFETCH(int, step);
    QFETCH(bool, empty);
    Admin *admin = TestSupport::makeAdmin();
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    for (int i = 1; i < step; ++i)
        p->answerText("answer");
    if (empty)
        p->answerText("");
    else
        p->cancel();

    admin->newUser();

    QCOMPARE(p->calls.size(), step + 1);
    QCOMPARE(p->last().kind, QString("message"));
    QCOMPARE(p->last().caption, QString("New User"));
    QCOMPARE(p->last().text, QString("Operation cancelled"));
    QVERIFY(operators().isEmpty());
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Permissions").toInt(), 0);
}

void UsersTest::selectedUserFillsTheForm()
{
    QVERIFY(addOperator("Vet", "v1", "VT", "y", "7.5"));
    QVERIFY(addOperator("Nurse", "n1", "NS", "Y", "3"));
    QVERIFY(addRight("Vet", "Utility", "Backup"));
    QVERIFY(addRight("Nurse", "Stock", "Cost Price View"));
    QVERIFY(addRight("Vet", "Dispense", "Goods"));
    QVERIFY(addRight("Vet", "Schedule", "3"));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.checkBox6->setChecked(true);

    selectUser(admin, "Vet");

    QCOMPARE(admin->ui.userCode_tf->text(), QString("v1"));
    QCOMPARE(admin->ui.initials_tf->text(), QString("VT"));
    QVERIFY(!admin->ui.checkBox6->isChecked()); // "y" is not "Y"
    QCOMPARE(admin->ui.lineEdit45->text(), QString("7.5"));
    QCOMPARE(permsListed(admin), QStringList({"Utility:Backup", "Dispense:Goods", "Schedule:3"}));

    // A name without a row keeps the fields; its (absent) rights empty the list.
    admin->userSelected("Nobody");
    QCOMPARE(admin->ui.userCode_tf->text(), QString("v1"));
    QVERIFY(permsListed(admin).isEmpty());

    // Reloading re-selects the remembered user and shows it again.
    admin->ui.userCode_tf->clear();
    admin->reloadData();
    QCOMPARE(admin->ui.users_list->currentItem()->text(), QString("Vet"));
    QCOMPARE(admin->ui.userCode_tf->text(), QString("v1"));
    QCOMPARE(admin->ui.users_list->count(), 2);
}

void UsersTest::descriptionsFollowTheClass_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("taxName");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("dispense, taxed") << 0 << "VAT" << taxRights + dispensing;
    QTest::newRow("dispense, no tax") << 0 << "" << dispensing;
    QTest::newRow("utility") << 1 << "VAT" << utilities;
    for (int i = 2; i <= 5; ++i)
        QTest::addRow("schedule class %d", i) << i << "VAT" << levels;
    QTest::newRow("stock") << 6 << "VAT" << stockRights;
    QTest::newRow("above stock") << 7 << "VAT" << stockRights;
    QTest::newRow("far above") << 42 << "" << stockRights;
}

void UsersTest::descriptionsFollowTheClass()
{
    QFETCH(int, index);
    QFETCH(QString, taxName);
    QFETCH(QStringList, expected);
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.Tax1Name->setText(taxName);
    admin->classChanged(index);
    QCOMPARE(comboItems(admin->ui.desc_combo), expected);
}

void UsersTest::deleteUser_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("administrator") << "admin" << -1 << QStringList{"You may not delete the administrator"}
                                   << QStringList{"Admin", "O'Neil", "admin"};
    QTest::newRow("other case") << "Admin" << 0
                                << QStringList{"Confirm that you will remove user 'Admin' from the system"}
                                << QStringList{"O'Neil", "admin"};
    QTest::newRow("quoted name") << "O'Neil" << 0
                                 << QStringList{"Confirm that you will remove user 'O'Neil' from the system"}
                                 << QStringList{"Admin", "admin"};
    QTest::newRow("declined") << "Admin" << 1
                              << QStringList{"Confirm that you will remove user 'Admin' from the system",
                                             "Operation cancelled"}
                              << QStringList{"Admin", "O'Neil", "admin"};
}

void UsersTest::deleteUser()
{
    QFETCH(QString, name);
    QFETCH(int, answer);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, left);
    for (const QString &user : QStringList{"admin", "Admin", "O'Neil"}) {
        QVERIFY(addOperator(user, QString(user).replace("'", "") + "-code"));
        QVERIFY(addRight(user, "Utility", "Backup"));
    }
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, name);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    if (answer >= 0)
        p->answer(answer);

    admin->deleteUser();

    QCOMPARE(p->messageTexts(), texts);
    for (const auto &call : p->calls)
        QCOMPARE(call.caption, QString("Delete User"));
    QStringList names;
    for (const QStringList &row : operators())
        names << row.at(0);
    QCOMPARE(names, left);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Permissions").toInt(), left.size());
    QCOMPARE(admin->ui.users_list->count(), left.size());
}

// The rights go by the selected name, the operator row by the code in the form.
void UsersTest::deleteGoesByTheCodeShown()
{
    QVERIFY(addOperator("Bob", "b1"));
    QVERIFY(addOperator("Carol", "c1"));
    QVERIFY(addRight("Bob", "Utility", "Backup"));
    QVERIFY(addRight("Carol", "Utility", "Audit"));
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, "Bob");
    admin->ui.userCode_tf->setText("c1");
    TestSupport::prompter()->answer(0);

    admin->deleteUser();

    QCOMPARE(operators(), QList<QStringList>({{"Bob", "b1", "XX", "N", "0"}}));
    QCOMPARE(TestSupport::rows("SELECT Operator,Description FROM Permissions"),
             QList<QStringList>({{"Carol", "Audit"}}));
}

void UsersTest::updateUser()
{
    QVERIFY(addOperator("Zoë", "z1", "ZA", "N", "5"));
    QVERIFY(addOperator("Other", "o1", "OT", "N", "1"));
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, "Zoë");
    admin->ui.userCode_tf->setText("new'code\\");
    admin->ui.initials_tf->setText("Z'B");
    admin->ui.checkBox6->setChecked(true);
    admin->ui.lineEdit45->setText("");
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->updateUserId();

    QCOMPARE(p->calls.size(), 1);
    QCOMPARE(p->last().caption, QString("Update User"));
    QCOMPARE(p->last().text,
             QString("Confirm that you will update user 'Zoë'\nto have a new user Code new'code\\,Initials Z'B, and "
                     "Commission "));
    QCOMPARE(p->last().buttons, QStringList({"&Yes", "&No"}));
    QCOMPARE(p->last().defaultIndex, 1);
    QCOMPARE(operators(), QList<QStringList>({{"Other", "o1", "OT", "N", "1"}, {"Zoë", "new'code\\", "Z'B", "Y", "0"}}));
    QCOMPARE(admin->ui.users_list->currentItem()->text(), QString("Zoë"));

    admin->ui.lineEdit45->setText("12.25");
    admin->ui.checkBox6->setChecked(false);
    p->answer(0);
    admin->updateUserId();
    QCOMPARE(operators().last(), QStringList({"Zoë", "new'code\\", "Z'B", "N", "12.25"}));
}

void UsersTest::newPermission()
{
    QVERIFY(addOperator("Dr O'Hara", "h1"));
    QVERIFY(addRight("Dr O'Hara", "Utility", "Backup"));
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, "Dr O'Hara");
    admin->ui.class_combo->setCurrentIndex(3);
    admin->classChanged(3);
    admin->ui.desc_combo->setCurrentIndex(5);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->newPermission();

    QCOMPARE(p->messageTexts(),
             QStringList({"Confirm that you will add  'Procedure Schedule : 5' to user 'Dr O'Hara'"}));
    QCOMPARE(p->last().caption, QString("Add Permission"));
    QCOMPARE(rightsOf("Dr O'Hara"), QStringList({"Utility:Backup", "Procedure Schedule:5"}));
    QCOMPARE(permsListed(admin), QStringList({"Utility:Backup", "Procedure Schedule:5"}));

    p->answer(1);
    admin->ui.desc_combo->setCurrentIndex(6);
    admin->newPermission();
    QCOMPARE(p->messageTexts().mid(1),
             QStringList({"Confirm that you will add  'Procedure Schedule : 6' to user 'Dr O'Hara'",
                          "Operation cancelled"}));
    QCOMPARE(rightsOf("Dr O'Hara").size(), 2);
}

void UsersTest::duplicatePermissionIsRefused()
{
    QVERIFY(addOperator("José", "j1"));
    QVERIFY(addRight("José", "Stock", "Cost Price View"));
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, "José");
    admin->ui.class_combo->setCurrentIndex(6);
    admin->classChanged(6);
    admin->ui.desc_combo->setCurrentIndex(1);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();

    admin->newPermission();

    QCOMPARE(p->calls.size(), 1);
    QCOMPARE(p->last().icon, int(Prompter::Information));
    QCOMPARE(p->last().caption, QString("Add Permission"));
    QCOMPARE(p->last().text, QString("User José already has permission 'Stock : Cost Price View'"));
    QCOMPARE(rightsOf("José"), QStringList({"Stock:Cost Price View"}));
}

void UsersTest::deletePermissionTakesEveryMatchingRow()
{
    QVERIFY(addOperator("Vet", "v1"));
    QVERIFY(addOperator("Nurse", "n1"));
    QVERIFY(addRight("Vet", "Dispense", "Goods"));
    QVERIFY(addRight("Vet", "Utility", "O'Neil's \\ list"));
    QVERIFY(addRight("Vet", "Dispense", "Lab"));
    QVERIFY(addRight("Vet", "Utility", "O'Neil's \\ list"));
    QVERIFY(addRight("Nurse", "Utility", "O'Neil's \\ list"));
    Admin *admin = TestSupport::makeAdmin();
    selectUser(admin, "Vet");
    admin->ui.perms_list->setCurrentItem(admin->ui.perms_list->topLevelItem(1));
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->deletePermission();

    QCOMPARE(p->messageTexts(), QStringList({"Confirm that you will remove 'Utility : O'Neil's \\ list' from user 'Vet'"}));
    QCOMPARE(p->last().caption, QString("Delete Permission"));
    QCOMPARE(rightsOf("Vet"), QStringList({"Dispense:Goods", "Dispense:Lab"}));
    QCOMPARE(rightsOf("Nurse"), QStringList({"Utility:O'Neil's \\ list"}));
    QCOMPARE(permsListed(admin), QStringList({"Dispense:Goods", "Dispense:Lab"}));
}

void UsersTest::missingSelectionIsWarned_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("text");
    QTest::newRow("delete user") << "deleteUser" << "Delete User" << "You must have a user selected to perform a delete";
    QTest::newRow("update user") << "updateUserId" << "Update User" << "You must have a user selected to perform an update";
    QTest::newRow("new permission") << "newPermission" << "New Permission"
                                    << "You must have a user selected to allocate a permission";
    QTest::newRow("delete permission") << "deletePermission" << "Delete Permission"
                                       << "To delete a permission it must be selected in the list";
}

void UsersTest::missingSelectionIsWarned()
{
    QFETCH(QString, slot);
    QFETCH(QString, caption);
    QFETCH(QString, text);
    QVERIFY(addOperator("Vet", "v1"));
    QVERIFY(addRight("Vet", "Utility", "Backup"));
    Admin *admin = TestSupport::makeAdmin();
    admin->reloadData();
    admin->ui.users_list->setCurrentItem(nullptr);
    admin->ui.perms_list->clear();
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();

    QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

    QCOMPARE(p->calls.size(), 1);
    QCOMPARE(p->last().icon, int(Prompter::Warning));
    QCOMPARE(p->last().caption, caption);
    QCOMPARE(p->last().text, text);
    QCOMPARE(operators().size(), 1);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Permissions").toInt(), 1);
}

QTEST_MAIN(UsersTest)
#include "tst_users.moc"
