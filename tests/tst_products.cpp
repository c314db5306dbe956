// The dispense tab's product list and entry form: category loading and its looks, the DTR field,
// the form filled from a product, clearing, searching and the active/inactive handling.
#include "admin.h"
#include "globals.h"
#include "productfixtures.h"
#include "remarksicons.h"
#include "testsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QApplication>
#include <QtTest>

using namespace ProductFixtures;
using TestSupport::ScriptedPrompter;

namespace {

QImage iconImage(const QIcon &icon)
{
    return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool receivedInTrace(const QString &table, const QString &code, double quantity)
{
    return TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES (1,'" + table
                             + "','" + code + "'," + QString::number(quantity) + ")");
}

// Keyboard focus offscreen needs a shown, active window.
bool focusField(Admin *admin, QWidget *field)
{
    admin->show();
    QApplication::setActiveWindow(admin);
    if (!QTest::qWaitForWindowActive(admin))
        return false;
    field->setFocus();
    return field->hasFocus();
}

} // namespace

class ProductsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void categoryListsActiveFirstThenInactive();
    void stockInconsistenciesAreHighlightedForActiveRowsOnly();
    void dtrFieldOnlyForVaccination_data();
    void dtrFieldOnlyForVaccination();
    void taxBoxesFollowThePracticeTaxNames();
    void selectedProductFillsTheForm();
    void storedPriceAgainstCalculatedPrice_data();
    void storedPriceAgainstCalculatedPrice();
    void inactiveProductIsShownGreyed();
    void quotedCodeIsFound();
    void vanishedProductLeavesTheForm();
    void stockLevelColourOnSelect_data();
    void stockLevelColourOnSelect();
    void clearKeepsOrderFieldsAndDtr();
    void search_data();
    void search();
    void activeToggleEnablesTheFormAndMarksItChanged();
    void remarksButtonOnlyForTheStoredCode();
};

void ProductsTest::categoryListsActiveFirstThenInactive()
{
    Product zebra = product("20", "Zebra feed");
    zebra.cost = 12.5;
    zebra.quantity = 3;
    zebra.onOrder = 4;
    zebra.schedule = 2;
    QVERIFY(insertProduct("Goods", zebra));
    QVERIFY(insertProduct("Goods", product("10", "Apple", "N")));
    QVERIFY(insertProduct("Goods", product("30", "Mango")));
    QVERIFY(insertProduct("Goods", product("40", "Banana", "N")));
    QVERIFY(insertProduct("Medication", product("50", "Not goods")));
    Admin *admin = TestSupport::makeAdmin();

    showCategory(admin, "Goods");

    QCOMPARE(listColumn(admin, 1), QStringList({"Mango", "Zebra feed", "Apple", "Banana"}));
    QList<int> looks;
    for (int i = 0; i < admin->ui.list->topLevelItemCount(); ++i)
        looks << static_cast<ZrListItem *>(admin->ui.list->topLevelItem(i))->altVisual();
    QCOMPARE(looks, QList<int>({0, 0, 1, 1}));
    QTreeWidgetItem *row = listRow(admin, "20");
    QStringList texts;
    for (int column = 0; column < 10; ++column)
        texts << row->text(column);
    QCOMPARE(texts, QStringList({"20", "Zebra feed", "2", "each", "12.5", "17.25", "3", "4", "2026-01-15", "Y"}));
    // The loading passes the rows through the form, then clears it.
    QCOMPARE(admin->ui.code_tf->text(), QString());
    QCOMPARE(admin->ui.sell_tf->text(), QString("0.00"));
    QVERIFY(admin->ui.active_tb->isChecked());
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void ProductsTest::stockInconsistenciesAreHighlightedForActiveRowsOnly()
{
    Product agrees = product("1", "Agrees");
    agrees.quantity = 5;
    Product differs = product("2", "Differs");
    differs.quantity = 3;
    Product inactive = product("3", "Inactive differs", "N");
    inactive.quantity = 9;
    QVERIFY(insertProduct("Goods", agrees));
    QVERIFY(insertProduct("Goods", differs));
    QVERIFY(insertProduct("Goods", inactive));
    QVERIFY(receivedInTrace("Goods", "1", 5));
    QVERIFY(receivedInTrace("Goods", "2", 5));
    QVERIFY(receivedInTrace("Goods", "3", 5));
    Admin *admin = TestSupport::makeAdmin();

    admin->ui.checkBox9->setChecked(true);
    showCategory(admin, "Goods");

    QCOMPARE(listColumn(admin, 0), QStringList({"1", "2", "3"}));
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "1"))->altVisual(), 0);
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "2"))->altVisual(), 2);
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "3"))->altVisual(), 1);

    admin->ui.checkBox9->setChecked(false);
    showCategory(admin, "Goods");
    QCOMPARE(static_cast<ZrListItem *>(listRow(admin, "2"))->altVisual(), 0);
}

void ProductsTest::dtrFieldOnlyForVaccination_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("shown");
    for (const QString &table : Utility::categories())
        QTest::newRow(qPrintable(table)) << table << (table == "Vaccination");
}

// The product query names DaysToReminder only where the column exists: a wrong choice either
// fails (other tables) or leaves dtr_tf unfilled (Vaccination).
void ProductsTest::dtrFieldOnlyForVaccination()
{
    QFETCH(QString, table);
    QFETCH(bool, shown);
    Product p = product("7", "Item");
    if (shown)
        p.daysToReminder = 365;
    QVERIFY(insertProduct(table, p));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.dtr_tf->setText("unchanged");

    showCategory(admin, table);
    QCOMPARE(admin->currentCategoryTable(), table);
    QCOMPARE(!admin->ui.dtr_tf->isHidden(), shown);
    QCOMPARE(!admin->ui.dtr_lab->isHidden(), shown);
    QVERIFY(selectRow(admin, "7"));

    QCOMPARE(admin->ui.code_tf->text(), QString("7"));
    QCOMPARE(admin->ui.dtr_tf->text(), QString(shown ? "365" : "unchanged"));
    QCOMPARE(TestSupport::prompter()->messageTexts(), QStringList());
}

void ProductsTest::taxBoxesFollowThePracticeTaxNames()
{
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.Tax1Name->setText("VAT");
    admin->ui.Tax2Name->setText(QString());
    admin->ui.Tax2_checkBox->setChecked(true);
    showCategory(admin, "Goods");
    QVERIFY(admin->ui.Tax1_checkBox->isChecked());
    QVERIFY(!admin->ui.Tax2_checkBox->isChecked());

    admin->ui.Tax1Name->setText(QString());
    admin->ui.Tax2Name->setText("Levy");
    showCategory(admin, "Lab");
    QVERIFY(!admin->ui.Tax1_checkBox->isChecked());
    QVERIFY(admin->ui.Tax2_checkBox->isChecked());
}

void ProductsTest::selectedProductFillsTheForm()
{
    QVERIFY(insertSupplier("Acme Vet"));
    QVERIFY(insertSupplier("Bolt Supplies"));
    Product p = product("55", "Dog biscuits");
    p.schedule = 3;
    p.unit = "box";
    p.markup = 1.5;
    p.cost = 10;
    p.price = 17.25;
    p.quantity = 4.5;
    p.reorder = -1;
    p.toQuantity = 12;
    p.onOrder = 6;
    p.supplier = "Bolt Supplies";
    p.descriptionA = "Hondebeskuitjies";
    p.unitA = "doos";
    p.remarks = "Keep dry";
    QVERIFY(insertProduct("Goods", p));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");

    QVERIFY(selectRow(admin, "55"));

    const Ui::Admin &ui = admin->ui;
    QCOMPARE(ui.code_tf->text(), QString("55"));
    QCOMPARE(ui.description_tf->text(), QString("Dog biscuits"));
    QCOMPARE(ui.schedule_combo->currentIndex(), 3);
    QCOMPARE(ui.uom_tf->text(), QString("box"));
    QCOMPARE(ui.markup_tf->text(), QString("1.500000"));
    QCOMPARE(ui.cost_tf->text(), QString("10.00"));
    QCOMPARE(ui.sell_tf->text(), QString("17.25"));
    QCOMPARE(ui.quantity_tf->text(), QString("4.50"));
    QCOMPARE(ui.level_tf->text(), QString("-1.00"));
    QCOMPARE(ui.toqty_tf->text(), QString("12.00"));
    QCOMPARE(ui.onorder_tf->text(), QString("6.00"));
    QCOMPARE(ui.description_A_tf->text(), QString("Hondebeskuitjies"));
    QCOMPARE(ui.uom_A_tf->text(), QString("doos"));
    QCOMPARE(ui.supplier_combo->currentText(), QString("Bolt Supplies"));
    QCOMPARE(ui.supplier_combo->itemText(0), QString(" "));
    QCOMPARE(ui.supplier_combo->count(), 3);
    QVERIFY(ui.Tax1_checkBox->isChecked());
    QVERIFY(!ui.Tax2_checkBox->isChecked()); // no second tax in the practice: disabled, unchecked
    QVERIFY(ui.active_tb->isChecked());
    QCOMPARE(iconImage(ui.pushButton30->icon()), iconImage(remarksIcon(RemarksIcon::Present)));
    QCOMPARE(titleColour(admin), Utility::normalPalette().color(QPalette::Active, QPalette::Window));
    QCOMPARE(baseColour(ui.quantity_tf), QColor(0, 128, 128));
    QCOMPARE(baseColour(ui.sell_tf), Utility::normalPalette().color(QPalette::Active, QPalette::Base));
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void ProductsTest::storedPriceAgainstCalculatedPrice_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("warning");
    QTest::newRow("stored equals calculated") << 17.25 << "17.25" << false;
    QTest::newRow("stored differs") << 20.0 << "20.00" << true;
    // The form rechecks the shown texts at the end (forceSell), and 17.251 shows as 17.25.
    QTest::newRow("differs by a fraction of a cent") << 17.251 << "17.25" << false;
}

void ProductsTest::storedPriceAgainstCalculatedPrice()
{
    QFETCH(double, price);
    QFETCH(QString, shown);
    QFETCH(bool, warning);
    Product p = product("1", "Flea powder");
    p.price = price;
    QVERIFY(insertProduct("Goods", p));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");

    QVERIFY(selectRow(admin, "1"));

    QCOMPARE(admin->ui.sell_tf->text(), shown);
    const QPalette expected = warning ? Utility::warningPalette() : Utility::normalPalette();
    QCOMPARE(baseColour(admin->ui.sell_tf), expected.color(QPalette::Active, QPalette::Base));
}

void ProductsTest::inactiveProductIsShownGreyed()
{
    QVERIFY(insertProduct("Goods", product("9", "Old stock", "N")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");

    QVERIFY(selectRow(admin, "9"));

    const Ui::Admin &ui = admin->ui;
    QVERIFY(!ui.active_tb->isChecked());
    QVERIFY(ui.active_tb->isEnabled());
    const QList<QWidget *> greyed{ui.supplier_combo, ui.code_tf,    ui.description_tf,   ui.schedule_combo,
                                  ui.uom_tf,         ui.markup_tf,  ui.cost_tf,          ui.quantity_tf,
                                  ui.level_tf,       ui.toqty_tf,   ui.onorder_tf,       ui.description_A_tf,
                                  ui.uom_A_tf,       ui.dtr_tf};
    for (QWidget *w : greyed)
        QVERIFY2(!w->isEnabled(), qPrintable(w->objectName()));
    QVERIFY(ui.sell_tf->isEnabled());
    QCOMPARE(iconImage(ui.pushButton30->icon()), iconImage(remarksIcon(RemarksIcon::Blank)));
}

void ProductsTest::quotedCodeIsFound()
{
    QVERIFY(insertProduct("Goods", product("A'1\\", "Quote 'n' slash \\")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");

    QVERIFY(selectRow(admin, "A'1\\"));

    QCOMPARE(admin->ui.code_tf->text(), QString("A'1\\"));
    QCOMPARE(admin->ui.description_tf->text(), QString("Quote 'n' slash \\"));
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void ProductsTest::vanishedProductLeavesTheForm()
{
    QVERIFY(insertProduct("Goods", product("1", "Gone soon")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='1'"));

    QVERIFY(selectRow(admin, "1"));

    QCOMPARE(admin->ui.code_tf->text(), QString());
    QCOMPARE(admin->ui.description_tf->text(), QString());
    QCOMPARE(admin->ui.sell_tf->text(), QString("0.00"));
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void ProductsTest::stockLevelColourOnSelect_data()
{
    QTest::addColumn<double>("received");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("trace agrees") << 4.5 << QColor(0, 0, 255);
    QTest::newRow("trace differs") << 5.0 << QColor(255, 0, 0);
}

void ProductsTest::stockLevelColourOnSelect()
{
    QFETCH(double, received);
    QFETCH(QColor, colour);
    Product p = product("3", "Shampoo");
    p.quantity = 4.5;
    QVERIFY(insertProduct("Goods", p));
    QVERIFY(receivedInTrace("Goods", "3", received));
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.checkBox10->setChecked(true);
    showCategory(admin, "Goods");

    QVERIFY(selectRow(admin, "3"));

    QCOMPARE(baseColour(admin->ui.quantity_tf), colour);
    QCOMPARE(admin->checkStockLevel(), colour == QColor(255, 0, 0));
}

void ProductsTest::clearKeepsOrderFieldsAndDtr()
{
    QVERIFY(insertSupplier("Acme Vet"));
    Product p = product("5", "Rabies");
    p.daysToReminder = 365;
    p.toQuantity = 20;
    p.onOrder = 8;
    p.supplier = "Acme Vet";
    QVERIFY(insertProduct("Vaccination", p));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Vaccination");
    QVERIFY(selectRow(admin, "5"));
    admin->ui.active_tb->setChecked(false);

    admin->clear();

    const Ui::Admin &ui = admin->ui;
    for (const QLineEdit *field : {ui.code_tf, ui.description_tf, ui.description_A_tf, ui.uom_tf, ui.uom_A_tf,
                                   ui.cost_tf, ui.markup_tf, ui.quantity_tf, ui.level_tf})
        QVERIFY2(field->text().isEmpty(), qPrintable(field->objectName()));
    QCOMPARE(ui.sell_tf->text(), QString("0.00"));
    QCOMPARE(ui.toqty_tf->text(), QString("20.00"));
    QCOMPARE(ui.onorder_tf->text(), QString("8.00"));
    QCOMPARE(ui.dtr_tf->text(), QString("365"));
    QVERIFY(ui.active_tb->isChecked());
    QCOMPARE(ui.supplier_combo->count(), 2);
    QCOMPARE(ui.supplier_combo->currentText(), QString(" "));
    QCOMPARE(titleColour(admin), Utility::normalPalette().color(QPalette::Active, QPalette::Window));
}

void ProductsTest::search_data()
{
    QTest::addColumn<bool>("byCode");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("text");

    QTest::newRow("code found") << true << "102" << "102" << -1 << QString() << QString();
    QTest::newRow("code not found") << true << "cat" << QString() << int(Prompter::Warning) << "Search By Code"
                                    << "<b></b>No entry with code <b>cat</b> located";
    QTest::newRow("description exact") << false << "CAT food" << "102" << -1 << QString() << QString();
    QTest::newRow("description is case-sensitive when exact")
        << false << "cat food" << "102" << int(Prompter::Information) << "Search By Description"
        << "<b></b>The exact match of <b>cat food</b> was not found.<p>The closest match <b>CAT food</b> has "
           "been chosen";
    QTest::newRow("closest match is the first in list order")
        << false << "cat" << "101" << int(Prompter::Information) << "Search By Description"
        << "<b></b>The exact match of <b>cat</b> was not found.<p>The closest match <b>Bobcat</b> has been "
           "chosen";
    QTest::newRow("active rows before inactive ones")
        << false << "nip" << "103" << int(Prompter::Information) << "Search By Description"
        << "<b></b>The exact match of <b>nip</b> was not found.<p>The closest match <b>Dog nip</b> has been "
           "chosen";
    QTest::newRow("nothing found") << false << "zebra" << QString() << int(Prompter::Warning)
                                   << "Search By Description" << "<b></b>No entry matching <b>zebra</b> found";
}

void ProductsTest::search()
{
    QFETCH(bool, byCode);
    QFETCH(QString, wanted);
    QFETCH(QString, selected);
    QFETCH(int, icon);
    QFETCH(QString, caption);
    QFETCH(QString, text);
    QVERIFY(insertProduct("Goods", product("100", "Catnip", "N")));
    QVERIFY(insertProduct("Goods", product("101", "Bobcat")));
    QVERIFY(insertProduct("Goods", product("102", "CAT food")));
    QVERIFY(insertProduct("Goods", product("103", "Dog nip")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QCOMPARE(listColumn(admin, 1), QStringList({"Bobcat", "CAT food", "Dog nip", "Catnip"}));

    QLineEdit *field = byCode ? admin->ui.code_tf : admin->ui.description_tf;
    QVERIFY(focusField(admin, field));
    field->setText(wanted);
    admin->seachDispense();

    QCOMPARE(currentCode(admin), selected);
    ScriptedPrompter *prompter = TestSupport::prompter();
    if (icon < 0) {
        QCOMPARE(prompter->messageTexts(), QStringList());
        return;
    }
    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().icon, icon);
    QCOMPARE(prompter->last().caption, caption);
    QCOMPARE(prompter->last().text, text);
    QCOMPARE(prompter->last().buttons.size(), 0);
}

void ProductsTest::activeToggleEnablesTheFormAndMarksItChanged()
{
    QVERIFY(insertProduct("Goods", product("4", "Collar")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "4"));
    QCOMPARE(titleColour(admin), Utility::normalPalette().color(QPalette::Active, QPalette::Window));

    admin->ui.active_tb->click();

    QVERIFY(!admin->ui.active_tb->isChecked());
    QVERIFY(!admin->ui.cost_tf->isEnabled());
    QVERIFY(!admin->ui.supplier_combo->isEnabled());
    QCOMPARE(titleColour(admin), QColor(Qt::yellow));

    admin->ui.active_tb->click();
    QVERIFY(admin->ui.cost_tf->isEnabled());
    QVERIFY(admin->ui.dtr_tf->isEnabled());
}

void ProductsTest::remarksButtonOnlyForTheStoredCode()
{
    QVERIFY(insertProduct("Goods", product("8", "Lead")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Goods");
    QVERIFY(selectRow(admin, "8"));
    QVERIFY(!admin->ui.pushButton30->signalsBlocked());

    admin->ui.code_tf->setText("80");
    QVERIFY(admin->ui.pushButton30->signalsBlocked());
    QCOMPARE(iconImage(admin->ui.pushButton30->icon()), iconImage(remarksIcon(RemarksIcon::NotAvailable)));
    QCOMPARE(titleColour(admin), QColor(Qt::yellow));

    admin->ui.code_tf->setText("8");
    QVERIFY(!admin->ui.pushButton30->signalsBlocked());
}

QTEST_MAIN(ProductsTest)
#include "tst_products.moc"
