// The dispense tab: the product list and its form, pricing with two taxes and the pricing assistant,
// and adding, modifying and deleting products with what that carries into other tables.
#include "admin.h"
#include "globals.h"
#include "remarksicons.h"
#include "testsupport.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QApplication>
#include <QDate>
#include <QtTest>

namespace {
struct Product {
    QString code, description, active = "Y";
    double cost = 10.0, markup = 1.5, price = 17.25, quantity = 0.0; // 10 x 1.5 plus VAT at 0.15
    int schedule = 0;
    QString unit = "each", supplier{}, tax1 = "Y", tax2 = "N", remarks{};
    double reorder = 2.0, toQuantity = 10.0, onOrder = 0.0;
    QString descriptionA{}, unitA{};
    int daysToReminder = 0; // written for Vaccination only, the one table with the column
};

// Written with bound values, independently of the statements under test.
bool insertProducts(const QString &table, const QList<Product> &products)
{
    const bool days = table == "Vaccination";
    const QString columns = "Code,Description,Active,Cost,MarkUp,Price,Quantity,Schedule,UnitOfMeasure,Supplier,Tax1,Tax2,"
                            "Remarks,ReOrder,ToQuantity,OnOrder,Description_A,UnitOfMeasure_A,OrderDate";
    for (const Product &p : products) {
        const QVariantList values{p.code, p.description, p.active, p.cost, p.markup, p.price, p.quantity, p.schedule, p.unit,
                                  p.supplier, p.tax1, p.tax2, p.remarks, p.reorder, p.toQuantity, p.onOrder,
                                  p.descriptionA, p.unitA, "2026-01-15", p.daysToReminder};
        if (!TestSupport::insert(table, columns + (days ? ",DaysToReminder" : ""), values.mid(0, days ? 20 : 19)))
            return false;
    }
    return true;
}

// Shows the category as a choice in category_combo would.
void showCategory(Admin *admin, const QString &table)
{
    admin->ui.category_combo->setCurrentText(table);
    admin->categorySelected(admin->ui.category_combo->currentText());
}

// Highlights a row as a click does; the list's selection signal shows it in the form.
bool selectRow(Admin *admin, const QString &code)
{
    const QList<QTreeWidgetItem *> rows = admin->ui.list->findItems(code, Qt::MatchExactly, 0);
    if (!rows.isEmpty())
        admin->ui.list->setCurrentItem(rows.first(), 0, QItemSelectionModel::ClearAndSelect);
    return !rows.isEmpty();
}

// One text per listed row, in list order.
QStringList listed(Admin *admin, const std::function<QString(ZrListItem *)> &text)
{
    QStringList texts;
    for (int i = 0; i < admin->ui.list->topLevelItemCount(); ++i)
        texts << text(static_cast<ZrListItem *>(admin->ui.list->topLevelItem(i)));
    return texts;
}
QStringList listColumn(Admin *admin, int column) { return listed(admin, [=](ZrListItem *row) { return row->text(column); }); }

template <typename List, typename Text> QStringList each(const List &items, Text text)
{
    QStringList texts;
    for (const auto &item : items)
        texts << text(item);
    return texts;
}

QColor baseColour(const QWidget *w) { return w->palette().color(QPalette::Active, QPalette::Base); }

enum Answer { Yes = 0, No = 1 };
const QString Conflict = "<b>Price calculation conflict</b><br><font color=\"red\"><em>Selling at %1 : Calculated as "
                         "%2</em></font><br>Would you like to update the <b>Cost</b> or <b>Markup</b><br>You may also "
                         "choose to ignore the issue";
const QString NoSupplier = "<font color=\"red\">No supplier has been selected.</font><p>This is not recommended and may "
                           "cause problems with reports and orders.<p>Do you wish to continue ?";
const QString DeleteQuestion = "Delete Entry: Confirm that you will delete the highlighted entry\n%1, Code %2\nfrom the system?";
const QString Columns = "Code,Description,Schedule,UnitOfMeasure,Price,MarkUp,Cost,Quantity,ReOrder,ToQuantity,OnOrder,"
                        "Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active";

TestSupport::ScriptedPrompter *prompter() { return TestSupport::prompter(); }
void answer(const QList<int> &answers) { for (int a : answers) prompter()->answer(a); }
QString quoted(const QString &text) { return "'" + utils->escapeSQL(text, false) + "'"; }
bool supplier(const QString &name) { return TestSupport::exec("INSERT INTO Supply (Company) VALUES (" + quoted(name) + ")"); }
int count(const QString &table) { return TestSupport::value("SELECT COUNT(*) FROM " + table).toInt(); }
bool warned(Admin *admin) { return baseColour(admin->ui.sell_tf) != Utility::normalPalette().color(QPalette::Base); }
bool marked(Admin *admin) { return admin->ui.TextLabel8->palette().color(QPalette::Window) == Qt::yellow; }
QImage image(const QIcon &icon) { return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32); }
QStringList texts(const QList<QLineEdit *> &fields) { return each(fields, [](QLineEdit *f) { return f->text(); }); }
QStringList joined(const QString &sql) { return each(TestSupport::rows(sql), [](const QStringList &r) { return r.join('/'); }); }
QStringList boxes() { return each(prompter()->calls, [](const auto &call) { return call.caption + ": " + call.text; }); }

// Answers the boxes to come, runs the slot and gives the caption and text of every box shown.
QStringList run(Admin *admin, const char *slot, const QList<int> &answers = {})
{
    answer(answers);
    return QMetaObject::invokeMethod(admin, slot) ? boxes() : QStringList{"no slot " + QString(slot)};
}

QStringList stored(const QString &table, const QString &code, const QString &columns = Columns)
{
    return TestSupport::rows("SELECT " + columns + " FROM " + table + " WHERE Code=" + quoted(code)).value(0);
}

QString currentCode(Admin *admin) { return each(admin->ui.list->selectedItems(), [](auto *r) { return r->text(0); }).value(0); }
void type(const QList<std::pair<QLineEdit *, QString>> &fields) { for (const auto &[f, text] : fields) f->setText(text); }
void tick(const QList<std::pair<QAbstractButton *, bool>> &boxes) { for (const auto &[box, on] : boxes) box->setChecked(on); }

void typeForm(Admin *admin, const QString &code, const QString &description, const QString &supplier)
{
    Ui::Admin &ui = admin->ui;
    type({{ui.code_tf, code}, {ui.description_tf, description}, {ui.uom_tf, "tube"}, {ui.markup_tf, "2"},
          {ui.cost_tf, "4.5"}, {ui.level_tf, "3"}, {ui.toqty_tf, "12"}, {ui.onorder_tf, "5"},
          {ui.description_A_tf, description + " (A)"}, {ui.uom_A_tf, "buis"}});
    ui.schedule_combo->setCurrentIndex(4);
    ui.supplier_combo->setCurrentIndex(ui.supplier_combo->findText(supplier));
}

struct Shown { bool active; double price; bool assistant; QString sell, markup; bool warning; QColor level; };
struct Price { bool assistant, tax1, tax2; QString markup, cost, sell, typed; int answer; QString cost2, markup2; bool warning; };
struct Search { bool byCode; QString wanted, selected, box; };
struct NewCode { QString table; QStringList codes; QString allocated; };
struct Written { bool modify; QString days; QStringList row; };
struct Refusal { const char *slot; bool highlight; QString code, description; QList<int> answers; QStringList shown; int icon; };
struct Cascade { QString code, description; QStringList copies; };
struct Deletion { QString table, deleted, reselected; };
} // namespace

class ProductsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    // Inactive rows come last and are never checked against the trace (the form still holds the disagreeing
    // Zebra feed then); the form is cleared after loading, and a row removed meanwhile leaves it so.
    void categoryListsActiveFirstThenInactive()
    {
        QVERIFY(insertProducts("Goods", {{"20", "Zebra feed", "Y", 12.5, 1.5, 17.25, 3, 2, "each", "", "Y", "N", "", 2, 10, 4},
                                         {"10", "Apple", "N"}, {"30", "Mango"}, {"40", "Banana", "N"}})
                && insertProducts("Medication", {{"50", "Pill"}}) && TestSupport::exec("INSERT INTO StockTraceItem "
                   "(TraceNumber,Category,Code,Quantity) VALUES (1,'Goods','20',1),(1,'Goods','10',1)"));
        Admin *admin = TestSupport::makeAdmin();
        Ui::Admin &ui = admin->ui;
        ui.Tax1Name->clear();
        ui.Tax2Name->setText("Levy");
        ui.checkBox9->setChecked(true);
        for (const QString &table : Utility::categories()) {
            showCategory(admin, table);
            QCOMPARE(!ui.dtr_tf->isHidden() && !ui.dtr_lab->isHidden(), table == "Vaccination");
        }

        showCategory(admin, "Goods");

        QCOMPARE(listed(admin, [](ZrListItem *row) { return row->text(1) + " " + QString::number(row->altVisual()); }),
                 QStringList({"Mango 0", "Zebra feed 2", "Apple 1", "Banana 1"}));
        QStringList zebra;
        for (int column = 0; column < 10; ++column)
            zebra << ui.list->topLevelItem(1)->text(column);
        QCOMPARE(zebra, QStringList({"20", "Zebra feed", "2", "each", "12.5", "17.25", "3", "4", "2026-01-15", "Y"}));
        QVERIFY(!ui.Tax1_checkBox->isChecked() && ui.Tax2_checkBox->isChecked());
        QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='30'") && selectRow(admin, "30"));
        QCOMPARE(ui.code_tf->text() + ui.sell_tf->text(), QString("0.00"));
        QVERIFY(prompter()->calls.isEmpty());
    }

    void selectedProductFillsTheForm_data()
    {
        // The stock level is checked on select for the inactive product only, and disagrees with the trace.
        QTest::addColumn<Shown>("s");
        QTest::newRow("active, price agrees") << Shown{true, 17.25, false, "17.25", "1.500000", false, QColor(0, 128, 128)};
        QTest::newRow("inactive, price differs") << Shown{false, 20, false, "20.00", "1.500000", true, QColor(255, 0, 0)};
        // Compared as shown texts at the end, and 17.251 shows as 17.25.
        QTest::newRow("a fraction of a cent off") << Shown{true, 17.251, false, "17.25", "1.500000", false, QColor(0, 128, 128)};
        // The assistant asks at once; "&Markup" works back 20 / 1.15 / 10, which gives 20.01 again.
        QTest::newRow("differs, assistant asks") << Shown{true, 20, true, "20.00", "1.74", true, QColor(0, 128, 128)};
    }
    // Tax2 is "Y" but the practice has no second tax, so its box stays unchecked. Clearing the form
    // afterwards keeps the order fields and the DTR value for the next new product, which is active.
    void selectedProductFillsTheForm()
    {
        QFETCH(Shown, s);
        const Product p{"A'1\\", "Quote 'n' slash \\", s.active ? "Y" : "N", 10, 1.5, s.price, 4.5, 3, "box",
                        "Bolt Supplies", "Y", "Y", s.active ? "Keep dry" : "", -1, 12, 6, "Hondebeskuitjies", "doos"};
        QVERIFY(supplier("Acme Vet") && supplier("Bolt Supplies") && insertProducts("Goods", {p}) && TestSupport::exec(
            "INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES (1,'Goods'," + quoted(p.code) + ",5)"));
        Admin *admin = TestSupport::openCategory("Goods");
        Ui::Admin &ui = admin->ui;
        tick({{ui.checkBox10, !s.active}, {ui.checkBox5, s.assistant}});
        answer({2});

        QVERIFY(selectRow(admin, p.code));

        QList<QLineEdit *> fields{ui.code_tf, ui.description_tf, ui.uom_tf, ui.markup_tf, ui.cost_tf, ui.sell_tf,
                                  ui.quantity_tf, ui.level_tf, ui.toqty_tf, ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf};
        QCOMPARE(texts(fields), QStringList({p.code, p.description, "box", s.markup, "10.00", s.sell, "4.50", "-1.00",
                                             "12.00", "6.00", "Hondebeskuitjies", "doos"}));
        QCOMPARE(prompter()->messageTexts(), s.assistant ? QStringList{Conflict.arg("20.00", "17.25")} : QStringList());
        QCOMPARE(QVariantList({warned(admin), ui.active_tb->isChecked(), ui.schedule_combo->currentIndex(),
                               ui.supplier_combo->currentText(), ui.supplier_combo->itemText(0), ui.Tax1_checkBox->isChecked(),
                               ui.Tax2_checkBox->isChecked()}),
                 QVariantList({s.warning, s.active, 3, "Bolt Supplies", " ", true, false}));
        const QList<QWidget *> widgets = QList<QWidget *>(fields.begin(), fields.end())
                                       + QList<QWidget *>{ui.supplier_combo, ui.schedule_combo, ui.dtr_tf};
        for (QWidget *w : widgets)
            QVERIFY2(w->isEnabled() == (s.active || w == ui.sell_tf), qPrintable(w->objectName()));
        QVERIFY(ui.active_tb->isEnabled() && !marked(admin));
        QCOMPARE(image(ui.pushButton30->icon()), image(remarksIcon(s.active ? RemarksIcon::Present : RemarksIcon::Blank)));
        QCOMPARE(baseColour(ui.quantity_tf), s.level);

        ui.dtr_tf->setText("365");
        admin->clear();
        QCOMPARE(texts(fields << ui.dtr_tf), QStringList({"", "", "", "", "", "0.00", "", "", "12.00", "6.00", "", "", "365"}));
        QVERIFY(ui.active_tb->isChecked() && ui.supplier_combo->currentText() == " ");
        for (QWidget *w : widgets) // a new product can be typed in, after an inactive one too
            QVERIFY2(w->isEnabled(), qPrintable(w->objectName()));
    }

    // The field the user was in last, of the code and the description, decides what is searched for.
    void search_data()
    {
        QTest::addColumn<Search>("s"); // by code, wanted, selected, box (a closest match informs, the others warn)
        const QString closest = "Search By Description: <b></b>The exact match of <b>%1</b> was not found.<p>The "
                                "closest match <b>%2</b> has been chosen";
        QTest::newRow("code found") << Search{true, "102", "102", ""};
        QTest::newRow("code not found") << Search{true, "cat", "", "Search By Code: <b></b>No entry with code <b>cat</b> located"};
        QTest::newRow("description exact") << Search{false, "CAT food", "102", ""};
        QTest::newRow("exact is case-sensitive") << Search{false, "cat food", "102", closest.arg("cat food", "CAT food")};
        QTest::newRow("closest is the first in list order") << Search{false, "cat", "101", closest.arg("cat", "Bobcat")};
        QTest::newRow("active rows before inactive ones") << Search{false, "nip", "103", closest.arg("nip", "Dog nip")};
        QTest::newRow("nothing found") << Search{false, "zebra", "",
                                                 "Search By Description: <b></b>No entry matching <b>zebra</b> found"};
    }
    void search()
    {
        QFETCH(Search, s);
        QVERIFY(insertProducts("Goods", {{"100", "Catnip", "N"}, {"101", "Bobcat"}, {"102", "CAT food"}, {"103", "Dog nip"}}));
        Admin *admin = TestSupport::openCategory("Goods");
        QLineEdit *field = s.byCode ? admin->ui.code_tf : admin->ui.description_tf;
        admin->show(); // keyboard focus offscreen needs a shown, active window
        QApplication::setActiveWindow(admin);
        QVERIFY(QTest::qWaitForWindowActive(admin));
        (s.byCode ? admin->ui.description_tf : admin->ui.code_tf)->setFocus();
        field->setFocus();
        field->setText(s.wanted);

        QTest::mouseClick(admin->ui.pushButton28, Qt::LeftButton); // takes the focus from the field

        QCOMPARE(boxes(), s.box.isEmpty() ? QStringList() : QStringList{s.box});

        QCOMPARE(currentCode(admin), s.selected);
        if (!s.box.isEmpty())
            QCOMPARE(prompter()->last().icon, int(s.box.contains("closest") ? Prompter::Information : Prompter::Warning));
    }

    // A tax toggle recalculates only with a mark-up given; the active toggle greys the form; remarks
    // belong to the stored code only.
    void editsMarkTheForm()
    {
        QVERIFY(insertProducts("Goods", {{"4", "Collar"}}));
        Admin *admin = TestSupport::openCategory("Goods", "4");
        QVERIFY(!marked(admin) && !admin->ui.pushButton30->signalsBlocked());

        admin->ui.Tax1_checkBox->setChecked(false);
        QCOMPARE(admin->ui.sell_tf->text(), QString("15.00"));
        QVERIFY(marked(admin));
        admin->ui.markup_tf->clear();
        admin->ui.Tax1_checkBox->setChecked(true);
        QCOMPARE(admin->ui.sell_tf->text(), QString("15.00"));
        QVERIFY(!warned(admin));

        admin->ui.active_tb->click();
        QVERIFY(!admin->ui.cost_tf->isEnabled() && !admin->ui.supplier_combo->isEnabled());
        admin->ui.active_tb->click();
        QVERIFY(admin->ui.cost_tf->isEnabled() && admin->ui.dtr_tf->isEnabled());

        admin->ui.code_tf->setText("40");
        QVERIFY(admin->ui.pushButton30->signalsBlocked());
        QCOMPARE(image(admin->ui.pushButton30->icon()), image(remarksIcon(RemarksIcon::NotAvailable)));
        admin->ui.code_tf->setText("4");
        QVERIFY(!admin->ui.pushButton30->signalsBlocked());
    }

    void priceFollowsCostMarkupAndTypedPrice_data()
    {
        // Typed "": nothing typed; answer -1: the box is closed. The assistant asks when the typed price differs.
        QTest::addColumn<Price>("p");
        QTest::newRow("no tax") << Price{false, false, false, "1.5", "10", "15.00", "", -1, "10", "1.5", false};
        QTest::newRow("VAT") << Price{false, true, false, "1.5", "10", "17.25", "", -1, "10", "1.5", false};
        QTest::newRow("levy only") << Price{false, false, true, "1", "10", "10.50", "", -1, "10", "1", false};
        QTest::newRow("both taxes, same net base") << Price{false, true, true, "1", "10", "12.00", "", -1, "10", "1", false};
        // calcTax levies whole cents: 0.00495 is no tax, while rate x base gives 0.04 in all.
        QTest::newRow("calcTax, not rate x base") << Price{false, true, false, "1", "0.033", "0.03", "", -1, "0.033", "1", true};
        QTest::newRow("off, differs") << Price{false, false, false, "1.5", "10", "15.00", "18.00", -1, "10", "1.5", true};
        QTest::newRow("off, same without cents") << Price{false, false, false, "1.5", "10", "15.00", "15", -1, "10", "1.5", true};
        QTest::newRow("on, agrees") << Price{true, true, false, "1.5", "10", "17.25", "17.25", -1, "10", "1.5", false};
        QTest::newRow("ignore") << Price{true, false, false, "1.5", "10", "15.00", "18.00", 0, "10", "1.5", true};
        QTest::newRow("closed") << Price{true, false, false, "1.5", "10", "15.00", "18.00", -1, "10", "1.5", true};
        QTest::newRow("cost") << Price{true, false, false, "1.5", "10", "15.00", "18.00", 1, "12.00", "1.50", false};
        QTest::newRow("markup") << Price{true, false, false, "1.5", "10", "15.00", "18.00", 2, "10.00", "1.80", false};
        QTest::newRow("zero cost, markup") << Price{true, false, false, "1.5", "0", "0.00", "18.00", 2, "18.00", "1.00", false};
        QTest::newRow("zero markup, cost") << Price{true, false, false, "0", "10", "0.00", "18.00", 1, "18.00", "1.00", false};
        // With VAT the net price is 18 / 1.15; the two-decimal results no longer give exactly 18.00.
        QTest::newRow("VAT, cost") << Price{true, true, false, "1.5", "10", "17.25", "18.00", 1, "10.43", "1.50", true};
        QTest::newRow("VAT, markup") << Price{true, true, false, "1.5", "10", "17.25", "18.00", 2, "10.00", "1.57", true};
    }
    // The levy is a second practice tax of 5 %. Each typed field recalculates; emptying one leaves the price as it was.
    void priceFollowsCostMarkupAndTypedPrice()
    {
        QFETCH(Price, p);
        Admin *admin = TestSupport::makeAdmin();
        QVERIFY(TestSupport::exec("UPDATE SysInfo SET Tax2Name='Levy', Tax2=0.05") && utils->initClass(true));
        admin->ui.Tax2_checkBox->setEnabled(true);
        tick({{admin->ui.checkBox5, p.assistant}, {admin->ui.Tax1_checkBox, p.tax1}, {admin->ui.Tax2_checkBox, p.tax2}});
        type({{admin->ui.markup_tf, p.markup}, {admin->ui.cost_tf, p.cost}});
        QCOMPARE(admin->ui.sell_tf->text(), p.sell);
        if (!p.typed.isEmpty()) {
            answer(p.answer < 0 ? QList<int>() : QList<int>{p.answer});
            admin->ui.sell_tf->setText(p.typed);
            QTest::keyClick(admin->ui.sell_tf, Qt::Key_Return);
        }

        const bool asked = p.assistant && !p.typed.isEmpty() && p.typed != p.sell;
        QCOMPARE(prompter()->messageTexts(), asked ? QStringList{Conflict.arg(p.typed, p.sell)} : QStringList());
        const auto box = prompter()->calls.value(0);
        if (asked)
            QCOMPARE(QStringList({QString::number(box.icon), box.caption, QString::number(box.defaultIndex)}) + box.buttons,
                     QStringList({QString::number(Prompter::Question), "Quorel", "0", "&Ignore", "&Cost", "&Markup"}));
        const QString sell = p.typed.isEmpty() ? p.sell : p.typed;
        QCOMPARE(texts({admin->ui.cost_tf, admin->ui.markup_tf, admin->ui.sell_tf}), QStringList({p.cost2, p.markup2, sell}));
        QCOMPARE(warned(admin), p.warning);
        type({{admin->ui.cost_tf, ""}, {admin->ui.markup_tf, ""}});
        QCOMPARE(admin->ui.sell_tf->text(), sell);
    }

    // Each category allocates from its own codes; the service categories ask nothing about a supplier.
    void newProductGetsACode_data()
    {
        QTest::addColumn<NewCode>("n");
        QTest::newRow("Goods: empty table") << NewCode{"Goods", {}, "1"};
        QTest::newRow("Hospital: one above the largest") << NewCode{"Hospital", {"7", "1234", "300"}, "1235"};
        QTest::newRow("Consult: nine-digit code ignored") << NewCode{"Consult", {"1234", "123456789"}, "1235"};
        QTest::newRow("Diagnosis: 100000 and above ignored") << NewCode{"Diagnosis", {"5", "100000"}, "6"};
        QTest::newRow("Injection: 99999 gives 100000") << NewCode{"Injection", {"99999"}, "100000"};
        QTest::newRow("Lab: text codes count by their leading number") << NewCode{"Lab", {"abc", "12x", "9"}, "13"};
        QTest::newRow("Medication: only text codes") << NewCode{"Medication", {"abc"}, "1"};
        QTest::newRow("Proc") << NewCode{"Proc", {"41"}, "42"};
        QTest::newRow("Vaccination") << NewCode{"Vaccination", {"8"}, "9"};
    }
    void newProductGetsACode()
    {
        QFETCH(NewCode, n);
        for (const QString &code : n.codes)
            QVERIFY(insertProducts(n.table, {{code, "Item " + code}}));
        QVERIFY(insertProducts(n.table == "Goods" ? "Lab" : "Goods", {{"500", "Elsewhere"}}));
        Admin *admin = TestSupport::openCategory(n.table);
        typeForm(admin, QString(), "Fresh item", " ");
        QStringList expected{"New Entry: Confirm you wish to add product Fresh item with code " + n.allocated};
        if (n.table != "Consult" && n.table != "Diagnosis" && n.table != "Proc")
            expected << "New Entry: " + NoSupplier;

        QCOMPARE(run(admin, "newEntry", {Yes, Yes}), expected);

        QCOMPARE(TestSupport::value("SELECT Code FROM " + n.table + " WHERE Description='Fresh item'").toString(), n.allocated);
        QCOMPARE(currentCode(admin), n.allocated);
    }

    // Quotes, backslashes and money of any size go in intact to the cent, an empty number field as 0, the days to the
    // reminder whole; a new product has no stock, and a modification leaves the stock and the remarks alone.
    void formIsWrittenInFull_data()
    {
        QTest::addColumn<Written>("w");
        const QString name = "Ear drops 'n' wipes \\";
        QTest::newRow("new") << Written{false, "30.6", {"N'2\\", name, "4", "tube", "2839506.15", "2", "1234567.89", "0",
            "0", "12", "0", "O'Hara \\ Sons", name + " (A)", "buis", "Y", "N", "", "N", "31"}};
        QTest::newRow("modified, code changed") << Written{true, "", {"N'2\\", name, "4", "tube", "2469135.78", "2",
            "1234567.89", "6", "0", "12", "0", "O'Hara \\ Sons", name + " (A)", "buis", "N", "N", "Give with food", "N", "0"}};
    }
    void formIsWrittenInFull()
    {
        QFETCH(Written, w);
        const Product old{"M'1\\", "Old drops", "Y", 10, 1.5, 17.25, 6, 0, "each", "", "Y", "N", "Give with food", 2, 10, 0,
                          "", "", 90};
        QVERIFY(supplier("O'Hara \\ Sons") && insertProducts("Vaccination", {old}));
        Admin *admin = TestSupport::openCategory("Vaccination", w.modify ? "M'1\\" : QString());
        QCOMPARE(admin->ui.dtr_tf->text(), QString(w.modify ? "90" : ""));
        typeForm(admin, "N'2\\", w.row[1], "O'Hara \\ Sons");
        type({{admin->ui.cost_tf, "1234567.89"}, {admin->ui.quantity_tf, "7"}, {admin->ui.level_tf, ""},
              {admin->ui.onorder_tf, ""}, {admin->ui.dtr_tf, w.days}});
        tick({{admin->ui.Tax1_checkBox, w.row[14] == "Y"}, {admin->ui.active_tb, false}});
        QCOMPARE(admin->ui.sell_tf->text(), w.row[4]);

        QCOMPARE(run(admin, w.modify ? "modifyEntry" : "newEntry", {Yes}).size(), 1);

        QCOMPARE(stored("Vaccination", "N'2\\", Columns + ",DaysToReminder"), w.row);
        QCOMPARE(count("Vaccination"), w.modify ? 1 : 2);
        QCOMPARE(currentCode(admin) + admin->ui.description_tf->text(), "N'2\\" + w.row[1]);
    }

    void refusedOrDeclinedChangesNothing_data()
    {
        // Bone highlighted or not; a declined question is followed by "Operation cancelled" under its caption.
        QTest::addColumn<Refusal>("r");
        const QString blank = "Modify Entry: You may not have a blank Code or Description";
        const QString modify = "Modify Entry: Confirm that you will update the highlighted entry\nChew toy, Code 77\n"
                               "with the values shown ?";
        const int info = Prompter::Information, critical = Prompter::Critical, warning = Prompter::Warning;
        QTest::newRow("new, code taken") << Refusal{"newEntry", false, "5", "Chew toy", {},
            {"New Entry: The product Bone is already allocated Code 5"}, warning};
        QTest::newRow("new, declined") << Refusal{"newEntry", false, "77", "Chew toy", {No},
            {"New Entry: Confirm you wish to add product Chew toy with code 77"}, info};
        QTest::newRow("modify, nothing highlighted") << Refusal{"modifyEntry", false, "5", "Bone", {},
            {"Modify Entry: You must highlight an entry to modify"}, warning};
        QTest::newRow("modify, blank code") << Refusal{"modifyEntry", true, "", "Bone", {}, {blank}, critical};
        QTest::newRow("modify, blank description") << Refusal{"modifyEntry", true, "5", "", {}, {blank}, critical};
        QTest::newRow("modify, declined") << Refusal{"modifyEntry", true, "77", "Chew toy", {No}, {modify}, info};
        QTest::newRow("modify, no supplier declined") << Refusal{"modifyEntry", true, "77", "Chew toy", {Yes, No},
            {modify, "Modify Entry: " + NoSupplier}, info};
        QTest::newRow("delete, nothing highlighted") << Refusal{"deleteEntry", false, "5", "Bone", {},
            {"Delete Entry: You must highlight an entry to delete"}, warning};
        QTest::newRow("delete, declined") << Refusal{"deleteEntry", true, "5", "Bone", {No},
            {DeleteQuestion.arg("Bone", "5")}, info};
    }
    void refusedOrDeclinedChangesNothing()
    {
        QFETCH(Refusal, r);
        QVERIFY(insertProducts("Goods", {{"5", "Bone"}}));
        Admin *admin = TestSupport::openCategory("Goods", r.highlight ? "5" : QString());
        typeForm(admin, r.code, r.description, " ");
        const QStringList before = stored("Goods", "5");
        if (r.answers.endsWith(No))
            r.shown << r.shown.last().section(':', 0, 0) + ": Operation cancelled";

        QCOMPARE(run(admin, r.slot, r.answers), r.shown);

        QCOMPARE(prompter()->last().icon, r.icon);
        QCOMPARE(count("Goods") + count("StockTrace"), 1);
        QCOMPARE(stored("Goods", "5"), before);
    }

    void modificationCascades_data()
    {
        QTest::addColumn<Cascade>("c"); // copies: AutoProcContents, StockTraceItem, InvoiceItem
        const QStringList procs{"Medication/100", "Goods/101"},
            traces{"Goods/100/Old wormer name/1/each", "Medication/100/Wormer/1/each"},
            invoices{"Goods/100/Old wormer name/each", "Medication/100/Wormer/each"};
        QTest::newRow("only the price changed") << Cascade{"100", "Wormer", QStringList{"Goods/100"} << procs
            << "Goods/100/Wormer/1/each" << traces << "Goods/100/Wormer/each" << invoices};
        QTest::newRow("code, description and schedule changed") << Cascade{"200", "Wormer XL", QStringList{"Goods/200"}
            << procs << "Goods/200/Wormer XL/3/each" << traces << "Goods/200/Wormer XL/each" << invoices};
    }
    void modificationCascades()
    {
        QFETCH(Cascade, c);
        // Goods 100 "Wormer" and its copies, some under another category or an earlier description.
        QVERIFY(insertProducts("Goods", {{"100", "Wormer", "Y", 10, 1.5, 17.25, 0, 1}, {"101", "Zinc paste"}})
                && TestSupport::exec("INSERT INTO AutoProcContents (ProcId,Category,Code,Quantity) VALUES "
                                     "(1,'Goods','100',1),(1,'Medication','100',2),(1,'Goods','101',3)")
                && TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity,UnitOfMeasure,Description,"
                                     "Schedule,Batch) VALUES (1,'Goods','100',5,'each','Wormer',1,'B1'),(2,'Goods','100',6,"
                                     "'each','Old wormer name',1,'B2'),(3,'Medication','100',7,'each','Wormer',1,'B3')")
                && TestSupport::exec("INSERT INTO InvoiceItem (InvoiceNumber,Category,Code,Description,UnitOfMeasure) VALUES "
                                     "(1,'Goods','100','Wormer','each'),(2,'Goods','100','Old wormer name','each'),"
                                     "(3,'Medication','100','Wormer','each')"));
        Admin *admin = TestSupport::openCategory("Goods", "100");
        type({{admin->ui.code_tf, c.code}, {admin->ui.description_tf, c.description}, {admin->ui.sell_tf, "19.99"}});
        admin->ui.schedule_combo->setCurrentIndex(c.code == "100" ? 1 : 3);

        QCOMPARE(run(admin, "modifyEntry", {Yes, Yes}).size(), 2); // the confirmation and the supplier question

        QCOMPARE(joined("SELECT Category,Code FROM AutoProcContents ORDER BY id")
                 + joined("SELECT Category,Code,Description,Schedule,UnitOfMeasure FROM StockTraceItem ORDER BY Batch")
                 + joined("SELECT Category,Code,Description,UnitOfMeasure FROM InvoiceItem ORDER BY InvoiceNumber"), c.copies);
        QCOMPARE(stored("Goods", c.code, "Price"), QStringList{"19.99"});
        QCOMPARE(currentCode(admin), c.code);
        QCOMPARE(listColumn(admin, 1), QStringList({c.description, "Zinc paste"}));
    }

    void deletionIsTracedForStockCategories_data()
    {
        QTest::addColumn<Deletion>("d");
        QTest::newRow("Goods, the row below is selected") << Deletion{"Goods", "2", "3"};
        QTest::newRow("Goods, the last row: the one above") << Deletion{"Goods", "3", "2"};
        QTest::newRow("Vaccination") << Deletion{"Vaccination", "1", "2"};
        QTest::newRow("Consult: no stock trace") << Deletion{"Consult", "2", "3"};
    }
    void deletionIsTracedForStockCategories()
    {
        QFETCH(Deletion, d);
        for (const QString code : {"1", "2", "3"})
            QVERIFY(insertProducts(d.table, {{code, "Product " + code, "Y", 10, 1.5, 17.25, 4, 2, "vial", "Acme Vet"}}));
        // Earlier movements, so that the key read back is not simply 1.
        QVERIFY(supplier("Acme Vet") && TestSupport::exec("INSERT INTO StockTrace (MyDate,SP,Notes) VALUES "
                                                          "('2026-01-01','Rec','x'),('2026-01-02','Rec','y')"));
        Admin *admin = TestSupport::openCategory(d.table, d.deleted);

        QCOMPARE(run(admin, "deleteEntry", {Yes}), QStringList{DeleteQuestion.arg("Product " + d.deleted, d.deleted)});

        QCOMPARE(listColumn(admin, 0).join(""), QString("123").remove(d.deleted));
        QCOMPARE(currentCode(admin) + admin->ui.code_tf->text(), d.reselected + d.reselected);
        // The line names no Code: it carries the category, quantity left, unit, name and schedule.
        const QStringList traced{"3", QDate::currentDate().toString("yyyy-MM-dd"), "Admin", "Deletion of item from stock.",
                                 "Acme Vet", "", "Y", "3", d.table, "", "0", "vial", "Product " + d.deleted, "2", ""};
        QCOMPARE(TestSupport::rows("SELECT h.TraceNumber,MyDate,SP,Notes,Supplier,InvoiceNumber,Adjustment,i.TraceNumber,"
                                   "Category,Code,Quantity,UnitOfMeasure,Description,Schedule,Batch FROM StockTrace h LEFT "
                                   "JOIN StockTraceItem i ON i.TraceNumber=h.TraceNumber WHERE SP='Admin'"),
                 d.table == "Consult" ? QList<QStringList>() : QList<QStringList>{traced});
        QCOMPARE(count("StockTraceItem"), d.table == "Consult" ? 0 : 1);
    }
};

QTEST_MAIN(ProductsTest)
#include "tst_products.moc"
