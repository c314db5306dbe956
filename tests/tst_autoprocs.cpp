// The automated procedures tab: procedures, their composition, charges and totals.
#include "admin.h"
#include "testsupport.h"
#include "utility.h"

#include <QSqlQuery>
#include <QtTest>

using TestSupport::ScriptedPrompter;

namespace {

// Tax1 applies to every product: the charges must leave it out all the same.
bool addProduct(const QString &table, const QString &code, const QString &description, double price)
{
    QSqlQuery query;
    query.prepare("INSERT INTO " + table + " (Code,Description,Price,Tax1,Tax2,Active) VALUES (?,?,?,'Y','Y','Y')");
    query.addBindValue(code);
    query.addBindValue(description);
    query.addBindValue(price);
    return query.exec();
}

bool addProducts()
{
    return addProduct("Goods", "1", "Bandage", 10.0) && addProduct("Goods", "2", "Cotton 'wool' \\ roll", 0.5)
        && addProduct("Medication", "7", "Pill", 1.25) && addProduct("Proc", "3", "Spay", 300.0);
}

int addProcedure(const QString &name)
{
    QSqlQuery query;
    query.prepare("INSERT INTO AutoProc (Description) VALUES (?)");
    query.addBindValue(name);
    if (!query.exec())
        return -1;
    query.prepare("SELECT Code FROM AutoProc WHERE Description=?");
    query.addBindValue(name);
    return query.exec() && query.next() ? query.value(0).toInt() : -1;
}

// "Category|Code|Quantity|Charge"; a missing Charge leaves the column's default.
bool addItem(int procedure, const QString &spec)
{
    const QStringList f = spec.split('|');
    QSqlQuery query;
    query.prepare(f.size() > 3 ? "INSERT INTO AutoProcContents (ProcId,Category,Code,Quantity,Charge) VALUES (?,?,?,?,?)"
                               : "INSERT INTO AutoProcContents (ProcId,Category,Code,Quantity) VALUES (?,?,?,?)");
    query.addBindValue(procedure);
    query.addBindValue(f.at(0));
    query.addBindValue(f.at(1));
    query.addBindValue(f.at(2).toDouble());
    if (f.size() > 3)
        query.addBindValue(f.at(3));
    return query.exec();
}

QList<QStringList> listed(Admin *admin)
{
    QList<QStringList> out;
    for (int i = 0; i < admin->ui.auto_list->topLevelItemCount(); ++i) {
        QStringList row;
        for (int c = 0; c < 7; ++c)
            row << admin->ui.auto_list->topLevelItem(i)->text(c);
        out << row;
    }
    return out;
}

QList<QStringList> contents()
{
    return TestSupport::rows("SELECT ProcId,Category,Code,Quantity,Charge FROM AutoProcContents ORDER BY id");
}

QStringList procedures()
{
    QStringList out;
    for (const QStringList &row : TestSupport::rows("SELECT Description FROM AutoProc ORDER BY Code"))
        out << row.at(0);
    return out;
}

QStringList procList(Admin *admin)
{
    QStringList out;
    for (int i = 0; i < admin->ui.proc_list->count(); ++i)
        out << admin->ui.proc_list->item(i)->text();
    return out;
}

// Lists the procedures and shows row `row`, as a click would.
void showProcedure(Admin *admin, int row)
{
    admin->reloadAutoProcs();
    admin->ui.proc_list->setCurrentRow(row);
    admin->autoProcSelected(row);
}

void chooseProduct(Admin *admin, const QString &category, const QString &description, const QString &quantity,
                   bool charge)
{
    admin->autoCategorySelected(category);
    admin->ui.auto_desc_combo->setCurrentIndex(admin->ui.auto_desc_combo->findText(description));
    admin->ui.auto_qty_tf->setText(quantity);
    admin->ui.checkBox8->setChecked(charge);
}

} // namespace

class AutoProcsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema() && addProducts()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void chargesAndTotals_data();
    void chargesAndTotals();
    void itemSelectionFillsTheForm();
    void newProcedureSelectsTheAlphabeticallyLast_data();
    void newProcedureSelectsTheAlphabeticallyLast();
    void newProcedureCancelled_data();
    void newProcedureCancelled();
    void renameProcedure();
    void deleteProcedureTakesItsCompositionFirst();
    void newCompositionTakesTheDefaultCharge_data();
    void newCompositionTakesTheDefaultCharge();
    void updateComposition_data();
    void updateComposition();
    void deleteCompositionTakesEverySameProduct();
    void compositionNeedsAHighlightedItem_data();
    void compositionNeedsAHighlightedItem();
};

void AutoProcsTest::chargesAndTotals_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QList<QStringList>>("rows");
    QTest::addColumn<QString>("total");
    QTest::newRow("no items") << QStringList() << QList<QStringList>() << "0.00";
    QTest::newRow("charged, free, empty charge, oldest first")
        << QStringList{"Goods|1|2|Y", "Medication|7|4|N", "Proc|3|1|", "Goods|2|3|Y"}
        << QList<QStringList>{{"Goods", "2.00", "Bandage", "1", "10.00", "20.00", "Y"},
                              {"Medication", "4.00", "Pill", "7", "1.25", "0.00", "N"},
                              {"Proc", "1.00", "Spay", "3", "300.00", "300.00", ""},
                              {"Goods", "3.00", "Cotton 'wool' \\ roll", "2", "0.50", "1.50", "Y"}}
        << "321.50";
    QTest::newRow("vanished product, default charge")
        << QStringList{"Goods|99|3", "Medication|7|0.5|y"}
        << QList<QStringList>{{"Goods", "3.00", "", "99", "0.00", "0.00", "Y"},
                              {"Medication", "0.50", "Pill", "7", "1.25", "0.63", "y"}}
        << "0.63";
}

void AutoProcsTest::chargesAndTotals()
{
    QFETCH(QStringList, items);
    QFETCH(QList<QStringList>, rows);
    QFETCH(QString, total);
    const int other = addProcedure("Another");
    QVERIFY(addItem(other, "Goods|1|9|Y"));
    const int procedure = addProcedure("Castration");
    for (const QString &item : items)
        QVERIFY(addItem(procedure, item));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.autoTotal_tf->setText("stale");

    showProcedure(admin, 1);

    QCOMPARE(admin->ui.proc_tf->text(), QString("Castration"));
    QCOMPARE(listed(admin), rows);
    QCOMPARE(admin->ui.autoTotal_tf->text(), total);
}

void AutoProcsTest::itemSelectionFillsTheForm()
{
    const int procedure = addProcedure("Spay");
    QVERIFY(addItem(procedure, "Goods|1|2|Y"));
    QVERIFY(addItem(procedure, "Medication|7|4|N"));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 0);
    admin->ui.checkBox8->setChecked(true);

    admin->autoProcContSelected(admin->ui.auto_list->topLevelItem(1));

    QCOMPARE(admin->ui.auto_list->currentItem(), admin->ui.auto_list->topLevelItem(1));
    QCOMPARE(admin->ui.auto_combo->currentText(), QString("Medication"));
    QCOMPARE(admin->ui.auto_desc_combo->count(), 1);
    QCOMPARE(admin->ui.auto_desc_combo->currentText(), QString("Pill"));
    QCOMPARE(admin->ui.auto_qty_tf->text(), QString("4.00"));
    QVERIFY(!admin->ui.checkBox8->isChecked());

    admin->autoProcContSelected(admin->ui.auto_list->topLevelItem(0));
    QCOMPARE(admin->ui.auto_combo->currentText(), QString("Goods"));
    QCOMPARE(admin->ui.auto_desc_combo->itemText(0), QString("Bandage"));
    QCOMPARE(admin->ui.auto_desc_combo->currentText(), QString("Bandage"));
    QVERIFY(admin->ui.checkBox8->isChecked());
}

void AutoProcsTest::newProcedureSelectsTheAlphabeticallyLast_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("selected");
    QTest::newRow("sorts first") << "Aardvark" << QStringList{"Aardvark", "Zebra"} << "Zebra";
    QTest::newRow("sorts last, quoted") << "Zulu's \\ op" << QStringList{"Zebra", "Zulu's \\ op"} << "Zulu's \\ op";
}

void AutoProcsTest::newProcedureSelectsTheAlphabeticallyLast()
{
    QFETCH(QString, name);
    QFETCH(QStringList, list);
    QFETCH(QString, selected);
    const int zebra = addProcedure("Zebra");
    QVERIFY(addItem(zebra, "Goods|1|2|Y"));
    Admin *admin = TestSupport::makeAdmin();
    admin->reloadAutoProcs();
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answerText(name);

    admin->newAutoProc();

    QCOMPARE(p->calls.size(), 1);
    QCOMPARE(p->last().kind, QString("getText"));
    QCOMPARE(p->last().caption, QString("New Auto Procedure"));
    QCOMPARE(p->last().text, QString("Enter the new Auto Procedure name"));
    QCOMPARE(procedures(), QStringList({"Zebra", name}));
    QCOMPARE(procList(admin), list);
    QCOMPARE(admin->ui.proc_list->currentRow(), 1);
    QCOMPARE(admin->ui.proc_tf->text(), selected);
    QCOMPARE(listed(admin).size(), selected == "Zebra" ? 1 : 0);
}

void AutoProcsTest::newProcedureCancelled_data()
{
    QTest::addColumn<bool>("empty");
    QTest::newRow("cancelled") << false;
    QTest::newRow("empty") << true;
}

void AutoProcsTest::newProcedureCancelled()
{
    QFETCH(bool, empty);
    Admin *admin = TestSupport::makeAdmin();
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    if (empty)
        p->answerText("");
    else
        p->cancel();

    admin->newAutoProc();

    QCOMPARE(p->messageTexts(), QStringList({"Operation cancelled"}));
    QCOMPARE(p->last().caption, QString("New Auto Procedure"));
    QVERIFY(procedures().isEmpty());
}

void AutoProcsTest::renameProcedure()
{
    addProcedure("Castration");
    const int spay = addProcedure("Spay");
    QVERIFY(addItem(spay, "Goods|1|2|Y"));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 1);
    admin->ui.proc_tf->setText("Spay 'bitch' \\ large");
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->updateAutoProc();

    QCOMPARE(p->messageTexts(), QStringList({"Confirm that you wish to rename the Automated Procedure 'Spay' to "
                                             "'Spay 'bitch' \\ large'"}));
    QCOMPARE(p->last().caption, QString("Update Automated Procedure"));
    QCOMPARE(procedures(), QStringList({"Castration", "Spay 'bitch' \\ large"}));
    QCOMPARE(contents(), QList<QStringList>({{QString::number(spay), "Goods", "1", "2", "Y"}}));
    QCOMPARE(procList(admin), QStringList({"Castration", "Spay 'bitch' \\ large"}));
}

void AutoProcsTest::deleteProcedureTakesItsCompositionFirst()
{
    const int a = addProcedure("Alpha");
    const int b = addProcedure("Beta");
    QVERIFY(addItem(a, "Goods|1|2|Y"));
    QVERIFY(addItem(b, "Proc|3|1|Y"));
    QVERIFY(addItem(a, "Medication|7|1|N"));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 0);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->deleteAutoProc();

    QCOMPARE(p->messageTexts(),
             QStringList({"Confirm that you wish to delete the Automated Procedure 'Alpha' from the system"}));
    QCOMPARE(p->last().caption, QString("Delete Automated Procedure"));
    QCOMPARE(procedures(), QStringList({"Beta"}));
    QCOMPARE(contents(), QList<QStringList>({{QString::number(b), "Proc", "3", "1", "Y"}}));
    QCOMPARE(procList(admin), QStringList({"Beta"}));
    QCOMPARE(admin->ui.proc_tf->text(), QString("Beta"));

    // Declined: nothing goes.
    p->answer(1);
    admin->deleteAutoProc();
    QCOMPARE(p->messageTexts().last(), QString("Operation cancelled"));
    QCOMPARE(procedures(), QStringList({"Beta"}));
}

void AutoProcsTest::newCompositionTakesTheDefaultCharge_data()
{
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("typed") << "3" << "3" << "3.00";
    QTest::newRow("empty is 0") << "" << "0" << "0.00";
}

void AutoProcsTest::newCompositionTakesTheDefaultCharge()
{
    QFETCH(QString, quantity);
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    addProcedure("Castration");
    const int spay = addProcedure("Spay");
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 1);
    chooseProduct(admin, "Goods", "Cotton 'wool' \\ roll", quantity, false);
    QCOMPARE(admin->ui.auto_desc_combo->currentText(), QString("Cotton 'wool' \\ roll"));
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->newAutoProcContents();

    QCOMPARE(p->messageTexts(),
             QStringList({"Confirm that you wish to add the Automated Procedure Composition 'Cotton 'wool' \\ roll'"}));
    QCOMPARE(p->last().caption, QString("New Procedure Composition"));
    QCOMPARE(contents(), QList<QStringList>({{QString::number(spay), "Goods", "2", stored, "Y"}}));
    QCOMPARE(listed(admin), QList<QStringList>({{"Goods", shown, "Cotton 'wool' \\ roll", "2", "0.50",
                                                 Utility::numStr(0.5 * stored.toDouble(), 2), "Y"}}));
}

void AutoProcsTest::updateComposition_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("changed");
    QTest::newRow("older of two identical") << QStringList{"Goods|1|2|Y", "Goods|1|2|Y"} << 1 << 0;
    QTest::newRow("the quantity shown") << QStringList{"Goods|1|2|Y", "Goods|1|4|Y"} << 1 << 1;
}

void AutoProcsTest::updateComposition()
{
    QFETCH(QStringList, items);
    QFETCH(int, row);
    QFETCH(int, changed);
    const int procedure = addProcedure("Spay");
    for (const QString &item : items)
        QVERIFY(addItem(procedure, item));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 0);
    admin->autoProcContSelected(admin->ui.auto_list->topLevelItem(row));
    chooseProduct(admin, "Medication", "Pill", "", false);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->updateAutoProcContents();

    QCOMPARE(p->messageTexts(),
             QStringList({"Confirm that you wish to update the Automated Procedure Composition 'Bandage'"}));
    QCOMPARE(p->last().caption, QString("Update Procedure Composition"));
    QList<QStringList> expected;
    for (int i = 0; i < items.size(); ++i) {
        const QStringList f = items.at(i).split('|');
        expected << (i == changed ? QStringList{QString::number(procedure), "Medication", "7", "0", "N"}
                                  : QStringList{QString::number(procedure), f.at(0), f.at(1), f.at(2), f.at(3)});
    }
    QCOMPARE(contents(), expected);
    QCOMPARE(listed(admin).at(changed), QStringList({"Medication", "0.00", "Pill", "7", "1.25", "0.00", "N"}));
}

void AutoProcsTest::deleteCompositionTakesEverySameProduct()
{
    const int other = addProcedure("Other");
    const int procedure = addProcedure("Spay");
    QVERIFY(addItem(procedure, "Goods|1|2|Y"));
    QVERIFY(addItem(procedure, "Medication|7|1|N"));
    QVERIFY(addItem(procedure, "Goods|1|5|Y"));
    QVERIFY(addItem(other, "Goods|1|2|Y"));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 1);
    admin->autoProcContSelected(admin->ui.auto_list->topLevelItem(0));
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->deleteAutoProcContents();

    QCOMPARE(p->messageTexts(), QStringList({"Confirm that you wish to delete the Automated Procedure Composition "
                                             "'Bandage' from the Procedure"}));
    QCOMPARE(p->last().caption, QString("Delete Procedure Composition"));
    QCOMPARE(contents(), QList<QStringList>({{QString::number(procedure), "Medication", "7", "1", "N"},
                                             {QString::number(other), "Goods", "1", "2", "Y"}}));
    QCOMPARE(listed(admin), QList<QStringList>({{"Medication", "1.00", "Pill", "7", "1.25", "0.00", "N"}}));
    QCOMPARE(admin->ui.autoTotal_tf->text(), QString("0.00"));
}

void AutoProcsTest::compositionNeedsAHighlightedItem_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<bool>("highlighted");
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("update, none") << "updateAutoProcContents" << false << QStringList{"Update Composition"}
                                  << QStringList{"You must highlight a Composition entry to Update"};
    QTest::newRow("delete, none") << "deleteAutoProcContents" << false << QStringList{"Delete Composition"}
                                  << QStringList{"You must highlight a Composition entry to delete"};
    QTest::newRow("update, declined")
        << "updateAutoProcContents" << true
        << QStringList{"Update Procedure Composition", "Update Procedure Composition"}
        << QStringList{"Confirm that you wish to update the Automated Procedure Composition 'Bandage'",
                       "Operation cancelled"};
    QTest::newRow("delete, declined")
        << "deleteAutoProcContents" << true
        << QStringList{"Delete Procedure Composition", "Delete Procedure Composition"}
        << QStringList{"Confirm that you wish to delete the Automated Procedure Composition 'Bandage' from the "
                       "Procedure",
                       "Operation cancelled"};
    QTest::newRow("new, declined") << "newAutoProcContents" << false
                                   << QStringList{"New Procedure Composition", "New Procedure Composition"}
                                   << QStringList{"Confirm that you wish to add the Automated Procedure Composition "
                                                  "'Pill'",
                                                  "Operation cancelled"};
}

void AutoProcsTest::compositionNeedsAHighlightedItem()
{
    QFETCH(QString, slot);
    QFETCH(bool, highlighted);
    QFETCH(QStringList, captions);
    QFETCH(QStringList, texts);
    const int procedure = addProcedure("Spay");
    QVERIFY(addItem(procedure, "Goods|1|2|Y"));
    Admin *admin = TestSupport::makeAdmin();
    showProcedure(admin, 0);
    if (highlighted)
        admin->autoProcContSelected(admin->ui.auto_list->topLevelItem(0));
    else
        admin->ui.auto_list->setCurrentItem(nullptr);
    chooseProduct(admin, "Medication", "Pill", "1", true);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(1);

    QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

    QStringList shownCaptions;
    for (const auto &call : p->calls)
        shownCaptions << call.caption;
    QCOMPARE(shownCaptions, captions);
    QCOMPARE(p->messageTexts(), texts);
    QCOMPARE(contents(), QList<QStringList>({{QString::number(procedure), "Goods", "1", "2", "Y"}}));
}

QTEST_MAIN(AutoProcsTest)
#include "tst_autoprocs.moc"
