// The suppliers tab: listing, the form, adding, renaming and deleting suppliers.
#include "admin.h"
#include "testsupport.h"

#include <QApplication>
#include <QSqlQuery>
#include <QtTest>

using TestSupport::ScriptedPrompter;

namespace {

const char *const allColumns = "Company,Contact,Email,Tel,Fax,Cell,PostalAddr,PhysicalAddr,Lab";

bool addSupplier(const QStringList &values)
{
    QSqlQuery query;
    query.prepare(QString("INSERT INTO Supply (") + allColumns + ") VALUES (?,?,?,?,?,?,?,?,?)");
    for (const QString &v : values)
        query.addBindValue(v);
    return query.exec();
}

QStringList supplier(const QString &company, const QString &lab = "N")
{
    return {company, "Contact of " + company, "mail@example.com", "011", "012", "082", "PO Box 1", "1 Road", lab};
}

QList<QStringList> stored()
{
    return TestSupport::rows(QString("SELECT ") + allColumns + " FROM Supply ORDER BY keynum");
}

QStringList itemTexts(const QTreeWidgetItem *item)
{
    QStringList out;
    for (int c = 0; c < 9; ++c)
        out << item->text(c);
    return out;
}

QStringList listedCompanies(Admin *admin)
{
    QStringList out;
    for (int i = 0; i < admin->ui.supply_list->topLevelItemCount(); ++i)
        out << admin->ui.supply_list->topLevelItem(i)->text(0);
    return out;
}

// Lists the suppliers and selects the first row under `company`.
QTreeWidgetItem *selectSupplier(Admin *admin, const QString &company)
{
    admin->refreshSuppliers();
    for (int i = 0; i < admin->ui.supply_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = admin->ui.supply_list->topLevelItem(i);
        if (item->text(0) == company) {
            admin->supplierSelected(item);
            return item;
        }
    }
    return nullptr;
}

QStringList formTexts(Admin *admin)
{
    const Ui::Admin &ui = admin->ui;
    return {ui.company_tf->text(), ui.contact_tf->text(), ui.email_tf->text(), ui.phone_tf->text(),
            ui.fax_tf->text(), ui.cell_tf->text(), ui.postal_tf->toPlainText(), ui.collection_tf->toPlainText(),
            ui.lab_tb->isChecked() ? "Y" : "N"};
}

void fillForm(Admin *admin, const QStringList &v)
{
    Ui::Admin &ui = admin->ui;
    ui.company_tf->setText(v.at(0));
    ui.contact_tf->setText(v.at(1));
    ui.email_tf->setText(v.at(2));
    ui.phone_tf->setText(v.at(3));
    ui.fax_tf->setText(v.at(4));
    ui.cell_tf->setText(v.at(5));
    ui.postal_tf->setPlainText(v.at(6));
    ui.collection_tf->setPlainText(v.at(7));
    ui.lab_tb->setChecked(v.at(8) == "Y");
}

} // namespace

class SuppliersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void listedByCompanyWithAllColumns();
    void labFlagReadAndSaved_data();
    void labFlagReadAndSaved();
    void oddTextsRoundTrip_data();
    void oddTextsRoundTrip();
    void renameFindsTheOldNameAndSortsTheNewOne();
    void deleteRemovesExactlyOneOfTwo_data();
    void deleteRemovesExactlyOneOfTwo();
    void clearKeepsTheLabFlag();
    void failedStatementStillRefreshes();
    void declinedOrUnselectedChangesNothing_data();
    void declinedOrUnselectedChangesNothing();
};

void SuppliersTest::listedByCompanyWithAllColumns()
{
    QVERIFY(addSupplier(supplier("Zulu Vet")));
    QVERIFY(addSupplier(supplier("Alpha Pharma", "Y")));
    QVERIFY(addSupplier(supplier("Midway")));
    Admin *admin = TestSupport::makeAdmin();

    admin->refreshSuppliers();

    QCOMPARE(listedCompanies(admin), QStringList({"Alpha Pharma", "Midway", "Zulu Vet"}));
    QCOMPARE(itemTexts(admin->ui.supply_list->topLevelItem(0)), supplier("Alpha Pharma", "Y"));
    QVERIFY(!QApplication::overrideCursor());
}

void SuppliersTest::labFlagReadAndSaved_data()
{
    QTest::addColumn<QString>("lab");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("saved");
    QTest::newRow("Y") << "Y" << true << "Y";
    QTest::newRow("N") << "N" << false << "N";
    QTest::newRow("lower y") << "y" << false << "N";
    QTest::newRow("empty") << "" << false << "N";
}

void SuppliersTest::labFlagReadAndSaved()
{
    QFETCH(QString, lab);
    QFETCH(bool, checked);
    QFETCH(QString, saved);
    QVERIFY(addSupplier(supplier("Lab Co", lab)));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.lab_tb->setChecked(!checked);
    QVERIFY(selectSupplier(admin, "Lab Co"));
    QCOMPARE(admin->ui.lab_tb->isChecked(), checked);
    TestSupport::prompter()->answer(0);

    admin->updateSupplier();

    QCOMPARE(stored(), QList<QStringList>({supplier("Lab Co", saved)}));
}

void SuppliersTest::oddTextsRoundTrip_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::newRow("quotes and backslashes")
        << QStringList{"O'Neil \\ Sons", "Pat 'Doc' O'Hara", "a\\b@x.com", "011 '1'", "\\", "''", "Box 'A'\\",
                       "C:\\Stores\\'Back'", "Y"};
    QTest::newRow("multi-line accented")
        << QStringList{"Café Vétérinaire", "Zoë Brontë", "zoë@café.fr", "+33 1", "", "", "12 Rue d'Été\nBoîte 5\n75001 Paris",
                       "Straße 1\n\nHof ß", "N"};
}

void SuppliersTest::oddTextsRoundTrip()
{
    QFETCH(QStringList, values);
    Admin *admin = TestSupport::makeAdmin();
    fillForm(admin, values);
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->newSupplier();

    QCOMPARE(p->messageTexts(),
             QStringList({"Confirm that you will add " + values.at(0) + "\nto the list of suppliers with the details shown."}));
    QCOMPARE(p->last().caption, QString("Add Supplier"));
    QCOMPARE(stored(), QList<QStringList>({values}));
    QCOMPARE(admin->ui.supply_list->topLevelItemCount(), 1);
    QCOMPARE(itemTexts(admin->ui.supply_list->topLevelItem(0)), values);

    admin->clearSupply();
    admin->ui.lab_tb->setChecked(values.at(8) != "Y");
    QVERIFY(selectSupplier(admin, values.at(0)));
    QCOMPARE(formTexts(admin), values);

    // Saved again unchanged, found by its own odd name.
    p->answer(0);
    admin->updateSupplier();
    QCOMPARE(p->messageTexts().last(),
             "Confirm that you will update " + values.at(0) + "\nin the list of suppliers with the details shown.");
    QCOMPARE(stored(), QList<QStringList>({values}));
}

void SuppliersTest::renameFindsTheOldNameAndSortsTheNewOne()
{
    QVERIFY(addSupplier(supplier("Beta")));
    QVERIFY(addSupplier(supplier("Delta")));
    QVERIFY(addSupplier(supplier("Gamma")));
    Admin *admin = TestSupport::makeAdmin();
    QVERIFY(selectSupplier(admin, "Beta"));
    admin->ui.company_tf->setText("Zeta's");
    admin->ui.postal_tf->setPlainText("New\nAddress");
    TestSupport::prompter()->answer(0);

    admin->updateSupplier();

    QStringList renamed = supplier("Zeta's");
    renamed[1] = "Contact of Beta";
    renamed[6] = "New\nAddress";
    QCOMPARE(stored(), QList<QStringList>({renamed, supplier("Delta"), supplier("Gamma")}));
    QCOMPARE(listedCompanies(admin), QStringList({"Delta", "Gamma", "Zeta's"}));
    QCOMPARE(TestSupport::prompter()->last().caption, QString("Update Supplier"));
}

void SuppliersTest::deleteRemovesExactlyOneOfTwo_data()
{
    QTest::addColumn<QString>("company");
    QTest::newRow("plain") << "Acme";
    QTest::newRow("accented and quoted") << "Café d'Été \\ Fils";
}

void SuppliersTest::deleteRemovesExactlyOneOfTwo()
{
    QFETCH(QString, company);
    QVERIFY(addSupplier(supplier(company)));
    QVERIFY(addSupplier(supplier("Other")));
    QVERIFY(addSupplier(supplier(company)));
    Admin *admin = TestSupport::makeAdmin();
    QVERIFY(selectSupplier(admin, company));
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->deleteSupplier();

    QCOMPARE(p->messageTexts(), QStringList({"Confirm that you will delete " + company + "\nfrom the list of suppliers."}));
    QCOMPARE(p->last().caption, QString("Delete Supplier"));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Supply WHERE Company='Other'").toInt(), 1);
    QCOMPARE(stored().size(), 2);
    QCOMPARE(listedCompanies(admin).count(company), 1);
}

void SuppliersTest::clearKeepsTheLabFlag()
{
    QVERIFY(addSupplier(supplier("Lab Co", "Y")));
    Admin *admin = TestSupport::makeAdmin();
    QVERIFY(selectSupplier(admin, "Lab Co"));

    admin->clearSupply();

    QCOMPARE(formTexts(admin), QStringList({"", "", "", "", "", "", "", "", "Y"}));
    admin->ui.company_tf->setText("Next");
    TestSupport::prompter()->answer(0);
    admin->newSupplier();
    QCOMPARE(stored().last(), QStringList({"Next", "", "", "", "", "", "", "", "Y"}));
}

// A refused statement is shown, and the list is re-read all the same.
void SuppliersTest::failedStatementStillRefreshes()
{
    QVERIFY(addSupplier(supplier("Acme")));
    QVERIFY(TestSupport::exec("CREATE UNIQUE INDEX supply_unique_test ON Supply (Company)"));
    Admin *admin = TestSupport::makeAdmin();
    QVERIFY(selectSupplier(admin, "Acme"));
    QVERIFY(addSupplier(supplier("Behind the list")));
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(0);

    admin->newSupplier();

    QCOMPARE(p->calls.size(), 2);
    QCOMPARE(p->last().icon, int(Prompter::Critical));
    QCOMPARE(stored().size(), 2);
    QCOMPARE(listedCompanies(admin), QStringList({"Acme", "Behind the list"}));
    QVERIFY(!QApplication::overrideCursor());
}

void SuppliersTest::declinedOrUnselectedChangesNothing_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("caption");
    const QString none = "You have not selected a valid supplier. Try again.";
    QTest::newRow("update, none") << "updateSupplier" << false << QStringList{none} << "Update Supplier";
    QTest::newRow("delete, none") << "deleteSupplier" << false << QStringList{none} << "Delete Supplier";
    QTest::newRow("update, declined")
        << "updateSupplier" << true
        << QStringList{"Confirm that you will update Acme\nin the list of suppliers with the details shown.",
                       "Operation cancelled"}
        << "Update Supplier";
    QTest::newRow("delete, declined")
        << "deleteSupplier" << true
        << QStringList{"Confirm that you will delete Acme\nfrom the list of suppliers.", "Operation cancelled"}
        << "Delete Supplier";
    QTest::newRow("add, declined")
        << "newSupplier" << true
        << QStringList{"Confirm that you will add Changed\nto the list of suppliers with the details shown.",
                       "Operation cancelled"}
        << "Add Supplier";
}

void SuppliersTest::declinedOrUnselectedChangesNothing()
{
    QFETCH(QString, slot);
    QFETCH(bool, selected);
    QFETCH(QStringList, texts);
    QFETCH(QString, caption);
    QVERIFY(addSupplier(supplier("Acme")));
    Admin *admin = TestSupport::makeAdmin();
    admin->refreshSuppliers();
    if (selected)
        QVERIFY(selectSupplier(admin, "Acme"));
    else
        admin->ui.supply_list->setCurrentItem(nullptr);
    admin->ui.company_tf->setText("Changed");
    ScriptedPrompter *p = TestSupport::prompter();
    p->calls.clear();
    p->answer(1);

    QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

    QCOMPARE(p->messageTexts(), texts);
    for (const auto &call : p->calls)
        QCOMPARE(call.caption, caption);
    QCOMPARE(stored(), QList<QStringList>({supplier("Acme")}));
}

QTEST_MAIN(SuppliersTest)
#include "tst_suppliers.moc"
