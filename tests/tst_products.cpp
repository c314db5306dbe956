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
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

namespace {
struct Product {
    QString code, description, active = "Y";
    double cost = 10.0, markup = 1.5, price = 17.25; // 10 x 1.5 plus VAT at 0.15
    double quantity = 0.0;
    int schedule = 0;
    QString unit = "each", supplier{}, tax1 = "Y", tax2 = "N", remarks{};
    double reorder = 2.0, toQuantity = 10.0, onOrder = 0.0;
    QString descriptionA{}, unitA{};
    int daysToReminder = 0; // written for Vaccination only, the one table with the column
};

Product product(const QString &code, const QString &description, const QString &active = "Y")
{
    return {code, description, active};
}

// Written with bound values, independently of the statements under test.
bool insertProduct(const QString &table, const Product &p)
{
    QVariantList values{p.code, p.description, p.active, p.cost, p.markup, p.price, p.quantity, p.schedule, p.unit,
                        p.supplier, p.tax1, p.tax2, p.remarks, p.reorder, p.toQuantity, p.onOrder, p.descriptionA,
                        p.unitA, "2026-01-15", p.daysToReminder};
    const bool dtr = table == "Vaccination";
    QSqlQuery query;
    query.prepare("INSERT INTO " + table + " (Code,Description,Active,Cost,MarkUp,Price,Quantity,Schedule,UnitOfMeasure,"
                  "Supplier,Tax1,Tax2,Remarks,ReOrder,ToQuantity,OnOrder,Description_A,UnitOfMeasure_A,OrderDate"
                  + QString(dtr ? ",DaysToReminder" : "") + ") VALUES (" + QString("?,").repeated(dtr ? 19 : 18) + "?)");
    for (const QVariant &v : values.mid(0, dtr ? 20 : 19))
        query.addBindValue(v);
    if (!query.exec())
        qWarning() << "insertProduct:" << query.lastError().text();
    return query.isActive();
}

// Shows the category as a choice in category_combo would.
void showCategory(Admin *admin, const QString &table)
{
    QComboBox *combo = admin->ui.category_combo;
    combo->setCurrentIndex(combo->findText(table));
    admin->categorySelected(combo->currentText());
}

// Highlights a row as a click does; the list's selection signal shows it in the form.
bool selectRow(Admin *admin, const QString &code)
{
    const QList<QTreeWidgetItem *> rows = admin->ui.list->findItems(code, Qt::MatchExactly, 0);
    if (!rows.isEmpty())
        admin->ui.list->setCurrentItem(rows.first(), 0, QItemSelectionModel::ClearAndSelect);
    return !rows.isEmpty();
}

QStringList listColumn(Admin *admin, int column)
{
    QStringList texts;
    for (int i = 0; i < admin->ui.list->topLevelItemCount(); ++i)
        texts << admin->ui.list->topLevelItem(i)->text(column);
    return texts;
}

QColor baseColour(const QWidget *w) { return w->palette().color(QPalette::Active, QPalette::Base); }

enum Answer { Yes = 0, No = 1 };
const QString Conflict = "<b>Price calculation conflict</b><br><font color=\"red\"><em>Selling at %1 : Calculated as "
                         "%2</em></font><br>Would you like to update the <b>Cost</b> or <b>Markup</b><br>You may also "
                         "choose to ignore the issue";
const QString NoSupplier = "<font color=\"red\">No supplier has been selected.</font><p>This is not recommended and may "
                           "cause problems with reports and orders.<p>Do you wish to continue ?";
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

QStringList stored(const QString &table, const QString &code, const QString &columns = Columns)
{
    return TestSupport::rows("SELECT " + columns + " FROM " + table + " WHERE Code=" + quoted(code)).value(0);
}

// Caption and text of every box shown so far.
QStringList boxes()
{
    QStringList shown;
    for (const auto &call : prompter()->calls)
        shown << call.caption + ": " + call.text;
    return shown;
}

// The window showing `table`, with the row under `code` highlighted when one is given.
Admin *openCategory(const QString &table, const QString &code = QString())
{
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, table);
    selectRow(admin, code);
    return admin;
}

QString currentCode(Admin *admin)
{
    const QList<QTreeWidgetItem *> selected = admin->ui.list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text(0);
}

QStringList texts(const QList<QLineEdit *> &fields)
{
    QStringList shown;
    for (const QLineEdit *field : fields)
        shown << field->text();
    return shown;
}

void type(const QList<std::pair<QLineEdit *, QString>> &fields)
{
    for (const auto &[field, text] : fields)
        field->setText(text);
}

void typeForm(Admin *admin, const QString &code, const QString &description, const QString &supplier)
{
    Ui::Admin &ui = admin->ui;
    type({{ui.code_tf, code}, {ui.description_tf, description}, {ui.uom_tf, "tube"}, {ui.markup_tf, "2"},
          {ui.cost_tf, "4.5"}, {ui.level_tf, "3"}, {ui.toqty_tf, "12"}, {ui.onorder_tf, "5"},
          {ui.description_A_tf, description + " (A)"}, {ui.uom_A_tf, "buis"}});
    ui.schedule_combo->setCurrentIndex(4);
    ui.supplier_combo->setCurrentIndex(ui.supplier_combo->findText(supplier));
}

// Goods 100 "Wormer" and 101, and copies of Wormer in automated procedures, stock trace lines and
// invoice lines, some under another category or an earlier description.
bool wormerHistory()
{
    return insertProduct("Goods", {"100", "Wormer", "Y", 10, 1.5, 17.25, 0, 1})
        && insertProduct("Goods", product("101", "Zinc paste"))
        && TestSupport::exec("INSERT INTO AutoProcContents (ProcId,Category,Code,Quantity) VALUES "
                             "(1,'Goods','100',1),(1,'Medication','100',2),(1,'Goods','101',3)")
        && TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity,UnitOfMeasure,Description,"
                             "Schedule,Batch) VALUES (1,'Goods','100',5,'each','Wormer',1,'B1'),(2,'Goods','100',6,"
                             "'each','Old wormer name',1,'B2'),(3,'Medication','100',7,'each','Wormer',1,'B3')")
        && TestSupport::exec("INSERT INTO InvoiceItem (InvoiceNumber,Category,Code,Description,UnitOfMeasure) VALUES "
                             "(1,'Goods','100','Wormer','each'),(2,'Goods','100','Old wormer name','each'),"
                             "(3,'Medication','100','Wormer','each')");
}

QStringList history()
{
    QStringList copies;
    for (const char *sql : {"SELECT Category,Code FROM AutoProcContents ORDER BY id",
                            "SELECT Category,Code,Description,Schedule,UnitOfMeasure FROM StockTraceItem ORDER BY Batch",
                            "SELECT Category,Code,Description,UnitOfMeasure FROM InvoiceItem ORDER BY InvoiceNumber"})
        for (const QStringList &row : TestSupport::rows(sql))
            copies << row.join('/');
    return copies;
}

struct Shown { bool active; double price; bool assistant; QString sell, markup; bool warning; QColor level; };
struct Sum { bool tax1, tax2; QString markup, cost, sell; bool warning; };
struct Typed { bool assistant, tax1; QString markup, cost, typed; int answer; QString calculated, cost2, markup2; bool warning; };
struct Search { bool byCode; QString wanted, selected, box; };
struct Refusal { const char *slot; bool highlight; QString code, description; QList<int> answers; QStringList shown; int icon; };
} // namespace
Q_DECLARE_METATYPE(Shown)
Q_DECLARE_METATYPE(Sum)
Q_DECLARE_METATYPE(Typed)
Q_DECLARE_METATYPE(Search)
Q_DECLARE_METATYPE(Refusal)

class ProductsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    // Inactive rows come last and are never checked against the trace (whose working input, the form,
    // still holds the disagreeing Zebra feed then); the form is cleared after loading, and a row another
    // program removed meanwhile leaves it so.
    void categoryListsActiveFirstThenInactive()
    {
        QVERIFY(insertProduct("Goods", {"20", "Zebra feed", "Y", 12.5, 1.5, 17.25, 3, 2, "each", "", "Y", "N", "", 2, 10, 4})
                && insertProduct("Goods", product("10", "Apple", "N")) && insertProduct("Goods", product("30", "Mango"))
                && insertProduct("Goods", product("40", "Banana", "N")) && insertProduct("Medication", product("50", "Pill"))
                && TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES "
                                     "(1,'Goods','20',1),(1,'Goods','10',1)"));
        Admin *admin = TestSupport::makeAdmin();
        admin->ui.Tax1Name->clear();
        admin->ui.Tax2Name->setText("Levy");
        admin->ui.checkBox9->setChecked(true);
        for (const QString &table : Utility::categories()) {
            showCategory(admin, table);
            QCOMPARE(!admin->ui.dtr_tf->isHidden() && !admin->ui.dtr_lab->isHidden(), table == "Vaccination");
        }

        showCategory(admin, "Goods");

        QCOMPARE(listColumn(admin, 1), QStringList({"Mango", "Zebra feed", "Apple", "Banana"}));
        QList<int> looks;
        for (int i = 0; i < 4; ++i)
            looks << static_cast<ZrListItem *>(admin->ui.list->topLevelItem(i))->altVisual();
        QCOMPARE(looks, QList<int>({0, 2, 1, 1}));
        QStringList texts;
        for (int column = 0; column < 10; ++column)
            texts << admin->ui.list->topLevelItem(1)->text(column);
        QCOMPARE(texts, QStringList({"20", "Zebra feed", "2", "each", "12.5", "17.25", "3", "4", "2026-01-15", "Y"}));
        QVERIFY(!admin->ui.Tax1_checkBox->isChecked() && admin->ui.Tax2_checkBox->isChecked());
        QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='30'") && selectRow(admin, "30"));
        QCOMPARE(admin->ui.code_tf->text() + admin->ui.sell_tf->text(), QString("0.00"));
        QVERIFY(prompter()->calls.isEmpty());
    }

    void selectedProductFillsTheForm_data()
    {
        // Active, stored price, assistant on -> selling price and mark-up shown, warning colour, stock level
        // colour (the level is checked on select for the inactive product only, and disagrees with the trace).
        QTest::addColumn<Shown>("s");
        QTest::newRow("active, price agrees") << Shown{true, 17.25, false, "17.25", "1.500000", false, QColor(0, 128, 128)};
        QTest::newRow("inactive, price differs") << Shown{false, 20, false, "20.00", "1.500000", true, QColor(255, 0, 0)};
        // Compared as shown texts at the end, and 17.251 shows as 17.25.
        QTest::newRow("a fraction of a cent off") << Shown{true, 17.251, false, "17.25", "1.500000", false, QColor(0, 128, 128)};
        // The assistant asks at once; "&Markup" works back 20 / 1.15 / 10, which gives 20.01 again.
        QTest::newRow("differs, assistant asks") << Shown{true, 20, true, "20.00", "1.74", true, QColor(0, 128, 128)};
    }
    // Tax2 is "Y" but the practice has no second tax, so its box stays unchecked. Clearing the form
    // afterwards keeps the order fields and the DTR value for the next new product.
    void selectedProductFillsTheForm()
    {
        QFETCH(Shown, s);
        const Product p{"A'1\\", "Quote 'n' slash \\", s.active ? "Y" : "N", 10, 1.5, s.price, 4.5, 3, "box",
                        "Bolt Supplies", "Y", "Y", s.active ? "Keep dry" : "", -1, 12, 6, "Hondebeskuitjies", "doos"};
        QVERIFY(supplier("Acme Vet") && supplier("Bolt Supplies") && insertProduct("Goods", p) && TestSupport::exec(
            "INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES (1,'Goods'," + quoted(p.code) + ",5)"));
        Admin *admin = openCategory("Goods");
        admin->ui.checkBox10->setChecked(!s.active);
        admin->ui.checkBox5->setChecked(s.assistant);
        answer({2});

        QVERIFY(selectRow(admin, p.code));

        Ui::Admin &ui = admin->ui;
        QList<QLineEdit *> fields{ui.code_tf, ui.description_tf, ui.uom_tf, ui.markup_tf, ui.cost_tf, ui.sell_tf,
                                  ui.quantity_tf, ui.level_tf, ui.toqty_tf, ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf};
        QCOMPARE(texts(fields), QStringList({p.code, p.description, "box", s.markup, "10.00", s.sell, "4.50", "-1.00",
                                             "12.00", "6.00", "Hondebeskuitjies", "doos"}));
        QCOMPARE(prompter()->messageTexts(), s.assistant ? QStringList{Conflict.arg("20.00", "17.25")} : QStringList());
        QCOMPARE(warned(admin), s.warning);
        QCOMPARE(ui.schedule_combo->currentIndex(), 3);
        QCOMPARE(ui.supplier_combo->currentText() + "|" + ui.supplier_combo->itemText(0), QString("Bolt Supplies| "));
        QVERIFY(ui.Tax1_checkBox->isChecked() && !ui.Tax2_checkBox->isChecked());
        QCOMPARE(ui.active_tb->isChecked(), s.active);
        for (QWidget *w : QList<QWidget *>{ui.supplier_combo, ui.code_tf, ui.description_tf, ui.schedule_combo, ui.uom_tf,
                                           ui.markup_tf, ui.cost_tf, ui.quantity_tf, ui.level_tf, ui.toqty_tf,
                                           ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf, ui.dtr_tf})
            QVERIFY2(w->isEnabled() == s.active, qPrintable(w->objectName()));
        QVERIFY(ui.active_tb->isEnabled() && ui.sell_tf->isEnabled() && !marked(admin));
        QCOMPARE(image(ui.pushButton30->icon()), image(remarksIcon(s.active ? RemarksIcon::Present : RemarksIcon::Blank)));
        QCOMPARE(baseColour(ui.quantity_tf), s.level);

        ui.dtr_tf->setText("365");
        admin->clear();
        QCOMPARE(texts(fields << ui.dtr_tf), QStringList({"", "", "", "", "", "0.00", "", "", "12.00", "6.00", "", "", "365"}));
        QVERIFY(ui.active_tb->isChecked());
        QCOMPARE(ui.supplier_combo->currentText(), QString(" "));
    }

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
        QVERIFY(insertProduct("Goods", product("100", "Catnip", "N")) && insertProduct("Goods", product("101", "Bobcat"))
                && insertProduct("Goods", product("102", "CAT food")) && insertProduct("Goods", product("103", "Dog nip")));
        Admin *admin = openCategory("Goods");
        QLineEdit *field = s.byCode ? admin->ui.code_tf : admin->ui.description_tf;
        admin->show(); // keyboard focus offscreen needs a shown, active window
        QApplication::setActiveWindow(admin);
        QVERIFY(QTest::qWaitForWindowActive(admin));
        field->setFocus();
        field->setText(s.wanted);

        admin->seachDispense();

        QCOMPARE(currentCode(admin), s.selected);
        QCOMPARE(boxes(), s.box.isEmpty() ? QStringList() : QStringList{s.box});
        if (!s.box.isEmpty())
            QCOMPARE(prompter()->last().icon, int(s.box.contains("closest") ? Prompter::Information : Prompter::Warning));
    }

    // A tax toggle recalculates only with a mark-up given; the active toggle greys the form; remarks
    // belong to the stored code only.
    void editsMarkTheForm()
    {
        QVERIFY(insertProduct("Goods", product("4", "Collar")));
        Admin *admin = openCategory("Goods", "4");
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

    void sellFollowsCostAndMarkup_data()
    {
        QTest::addColumn<Sum>("sum"); // VAT, levy, mark-up, cost -> selling price, warning colour
        QTest::newRow("no tax") << Sum{false, false, "1.5", "10", "15.00", false};
        QTest::newRow("VAT") << Sum{true, false, "1.5", "10", "17.25", false};
        QTest::newRow("levy only") << Sum{false, true, "1", "10", "10.50", false};
        QTest::newRow("both taxes on the same net base") << Sum{true, true, "1", "10", "12.00", false};
        // calcTax levies whole cents: 0.00495 is no tax, while rate x base gives 0.04 in all.
        QTest::newRow("calcTax a cent away from rate x base") << Sum{true, false, "1", "0.033", "0.03", true};
    }
    // The levy is a second practice tax of 5 %. Emptying a field afterwards leaves the price as it was.
    void sellFollowsCostAndMarkup()
    {
        QFETCH(Sum, sum);
        Admin *admin = TestSupport::makeAdmin();
        QVERIFY(TestSupport::exec("UPDATE SysInfo SET Tax2Name='Levy', Tax2=0.05") && utils->initClass(true));
        admin->ui.Tax2_checkBox->setEnabled(true);

        admin->ui.Tax1_checkBox->setChecked(sum.tax1);
        admin->ui.Tax2_checkBox->setChecked(sum.tax2);
        type({{admin->ui.markup_tf, sum.markup}, {admin->ui.cost_tf, sum.cost}}); // each typed field recalculates
        QCOMPARE(admin->ui.sell_tf->text(), sum.sell);
        QCOMPARE(warned(admin), sum.warning);

        type({{admin->ui.cost_tf, ""}, {admin->ui.markup_tf, ""}});
        QCOMPARE(admin->ui.sell_tf->text(), sum.sell);
    }

    void typedSellingPrice_data()
    {
        // Assistant, VAT, mark-up, cost, typed price, answer (-1: closed), the calculated price the question
        // names (none: no question), then cost, mark-up and warning colour afterwards.
        QTest::addColumn<Typed>("t");
        QTest::newRow("off, differs") << Typed{false, false, "1.5", "10", "18.00", -1, "", "10", "1.5", true};
        QTest::newRow("off, agrees without cents") << Typed{false, false, "1.5", "10", "15", -1, "", "10", "1.5", true};
        QTest::newRow("on, agrees") << Typed{true, true, "1.5", "10", "17.25", -1, "", "10", "1.5", false};
        QTest::newRow("ignore") << Typed{true, false, "1.5", "10", "18.00", 0, "15.00", "10", "1.5", true};
        QTest::newRow("closed") << Typed{true, false, "1.5", "10", "18.00", -1, "15.00", "10", "1.5", true};
        QTest::newRow("cost") << Typed{true, false, "1.5", "10", "18.00", 1, "15.00", "12.00", "1.50", false};
        QTest::newRow("markup") << Typed{true, false, "1.5", "10", "18.00", 2, "15.00", "10.00", "1.80", false};
        QTest::newRow("zero cost, markup") << Typed{true, false, "1.5", "0", "18.00", 2, "0.00", "18.00", "1.00", false};
        QTest::newRow("zero markup, cost") << Typed{true, false, "0", "10", "18.00", 1, "0.00", "18.00", "1.00", false};
        // With VAT the net price is 18 / 1.15; the two-decimal results no longer give exactly 18.00.
        QTest::newRow("VAT, cost") << Typed{true, true, "1.5", "10", "18.00", 1, "17.25", "10.43", "1.50", true};
        QTest::newRow("VAT, markup") << Typed{true, true, "1.5", "10", "18.00", 2, "17.25", "10.00", "1.57", true};
    }
    void typedSellingPrice()
    {
        QFETCH(Typed, t);
        Admin *admin = TestSupport::makeAdmin();
        admin->ui.checkBox5->setChecked(t.assistant);
        admin->ui.Tax1_checkBox->setChecked(t.tax1);
        type({{admin->ui.markup_tf, t.markup}, {admin->ui.cost_tf, t.cost}});
        if (t.answer >= 0)
            answer({t.answer});

        admin->ui.sell_tf->setText(t.typed);
        QTest::keyClick(admin->ui.sell_tf, Qt::Key_Return);

        const bool asked = !t.calculated.isEmpty();
        QCOMPARE(prompter()->messageTexts(), asked ? QStringList{Conflict.arg(t.typed, t.calculated)} : QStringList());
        if (asked) {
            const auto &box = prompter()->last();
            QCOMPARE(QStringList({QString::number(box.icon), box.caption, QString::number(box.defaultIndex)}) + box.buttons,
                     QStringList({QString::number(Prompter::Question), "Quorel", "0", "&Ignore", "&Cost", "&Markup"}));
        }
        QCOMPARE(texts({admin->ui.cost_tf, admin->ui.markup_tf, admin->ui.sell_tf}), QStringList({t.cost2, t.markup2, t.typed}));
        QCOMPARE(warned(admin), t.warning);
    }

    // Each category allocates from its own codes; the service categories ask nothing about a supplier.
    void newProductGetsACode_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<QString>("allocated");
        QTest::newRow("Goods: empty table") << "Goods" << QStringList() << "1";
        QTest::newRow("Hospital: one above the largest") << "Hospital" << QStringList({"7", "1234", "300"}) << "1235";
        QTest::newRow("Consult: nine-digit code ignored") << "Consult" << QStringList({"1234", "123456789"}) << "1235";
        QTest::newRow("Diagnosis: 100000 and above ignored") << "Diagnosis" << QStringList({"5", "100000"}) << "6";
        QTest::newRow("Injection: 99999 gives 100000") << "Injection" << QStringList({"99999"}) << "100000";
        QTest::newRow("Lab: text codes count by their leading number") << "Lab" << QStringList({"abc", "12x", "9"}) << "13";
        QTest::newRow("Medication: only text codes") << "Medication" << QStringList({"abc"}) << "1";
        QTest::newRow("Proc") << "Proc" << QStringList({"41"}) << "42";
        QTest::newRow("Vaccination") << "Vaccination" << QStringList({"8"}) << "9";
    }
    void newProductGetsACode()
    {
        QFETCH(QString, table);
        QFETCH(QStringList, codes);
        QFETCH(QString, allocated);
        for (const QString &code : codes)
            QVERIFY(insertProduct(table, product(code, "Item " + code)));
        QVERIFY(insertProduct(table == "Goods" ? "Lab" : "Goods", product("500", "Elsewhere")));
        Admin *admin = openCategory(table);
        typeForm(admin, QString(), "Fresh item", " ");
        answer({Yes, Yes});

        admin->newEntry();

        QStringList expected{"New Entry: Confirm you wish to add product Fresh item with code " + allocated};
        if (table != "Consult" && table != "Diagnosis" && table != "Proc")
            expected << "New Entry: " + NoSupplier;
        QCOMPARE(boxes(), expected);
        QCOMPARE(TestSupport::value("SELECT Code FROM " + table + " WHERE Description='Fresh item'").toString(), allocated);
        QCOMPARE(currentCode(admin), allocated);
    }

    // Every field goes in with quotes and backslashes intact and money to the cent whatever its size; a
    // field that is no number is written as 0. A new product has no stock; a modification leaves the
    // stock and the remarks alone. The days to the reminder are written whole.
    void formIsWrittenInFull_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::addColumn<QString>("days");
        QTest::addColumn<QStringList>("row");
        const QString name = "Ear drops 'n' wipes \\";
        QTest::newRow("new") << "newEntry" << "30.6" << QStringList({"N'2\\", name, "4", "tube", "2839506.15", "2",
            "1234567.89", "0", "0", "12", "0", "O'Hara \\ Sons", name + " (A)", "buis", "Y", "N", "", "N", "31"});
        QTest::newRow("modified, code changed") << "modifyEntry" << "" << QStringList({"N'2\\", name, "4", "tube",
            "2469135.78", "2", "1234567.89", "6", "0", "12", "0", "O'Hara \\ Sons", name + " (A)", "buis", "N", "N",
            "Give with food", "N", "0"});
    }
    void formIsWrittenInFull()
    {
        QFETCH(QString, slot);
        QFETCH(QString, days);
        QFETCH(QStringList, row);
        const bool modify = slot == "modifyEntry";
        QVERIFY(supplier("O'Hara \\ Sons") && insertProduct("Vaccination", {"M'1\\", "Old drops", "Y", 10, 1.5, 17.25, 6,
            0, "each", "", "Y", "N", "Give with food", 2, 10, 0, "", "", 90}));
        Admin *admin = openCategory("Vaccination", modify ? "M'1\\" : QString());
        QCOMPARE(admin->ui.dtr_tf->text(), QString(modify ? "90" : ""));
        typeForm(admin, "N'2\\", row[1], "O'Hara \\ Sons");
        type({{admin->ui.cost_tf, "1234567.89"}, {admin->ui.quantity_tf, "7"}, {admin->ui.level_tf, "lots"},
              {admin->ui.onorder_tf, ""}, {admin->ui.dtr_tf, days}});
        admin->ui.Tax1_checkBox->setChecked(row[14] == "Y");
        admin->ui.active_tb->setChecked(false);
        QCOMPARE(admin->ui.sell_tf->text(), row[4]);
        answer({Yes});

        QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

        QCOMPARE(prompter()->calls.size(), 1);
        QCOMPARE(stored("Vaccination", "N'2\\", Columns + ",DaysToReminder"), row);
        QCOMPARE(count("Vaccination"), modify ? 1 : 2);
        QCOMPARE(currentCode(admin) + admin->ui.description_tf->text(), "N'2\\" + row[1]);
    }

    void refusedOrDeclinedChangesNothing_data()
    {
        // Slot, Bone highlighted, typed code and description, answers, boxes shown (a declined question is
        // followed by "Operation cancelled" under its caption), icon of the last box.
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
        QTest::newRow("delete, declined") << Refusal{"deleteEntry", true, "5", "Bone", {No}, {"Delete Entry: Confirm "
            "that you will delete the highlighted entry\nBone, Code 5\nfrom the system?"}, info};
    }
    void refusedOrDeclinedChangesNothing()
    {
        QFETCH(Refusal, r);
        QVERIFY(insertProduct("Goods", product("5", "Bone")));
        Admin *admin = openCategory("Goods", r.highlight ? "5" : QString());
        typeForm(admin, r.code, r.description, " ");
        const QStringList before = stored("Goods", "5");
        answer(r.answers);

        QVERIFY(QMetaObject::invokeMethod(admin, r.slot));

        if (r.answers.endsWith(No))
            r.shown << r.shown.last().section(':', 0, 0) + ": Operation cancelled";
        QCOMPARE(boxes(), r.shown);
        QCOMPARE(prompter()->last().icon, r.icon);
        QCOMPARE(count("Goods") + count("StockTrace"), 1);
        QCOMPARE(stored("Goods", "5"), before);
    }

    void modificationCascades_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("traceLinesMissing");
        QTest::addColumn<QStringList>("copies"); // AutoProcContents, StockTraceItem, InvoiceItem
        const QStringList kept{"Goods/100/Old wormer name/1/each", "Medication/100/Wormer/1/each"};
        QTest::newRow("only the price changed") << "100" << "Wormer" << false << QStringList({"Goods/100",
            "Medication/100", "Goods/101", "Goods/100/Wormer/1/each"}) + kept + QStringList({"Goods/100/Wormer/each",
            "Goods/100/Old wormer name/each", "Medication/100/Wormer/each"});
        QTest::newRow("code, description and schedule changed") << "200" << "Wormer XL" << false << QStringList({
            "Goods/200", "Medication/100", "Goods/101", "Goods/200/Wormer XL/3/each"}) + kept + QStringList({
            "Goods/200/Wormer XL/each", "Goods/100/Old wormer name/each", "Medication/100/Wormer/each"});
        // No transactions: what was written stays, nothing after the failed statement runs, no reload.
        QTest::newRow("failure stops the cascade") << "200" << "Wormer XL" << true << QStringList({"Goods/200",
            "Medication/100", "Goods/101", "Goods/100/Wormer/each", "Goods/100/Old wormer name/each",
            "Medication/100/Wormer/each"});
    }
    void modificationCascades()
    {
        QFETCH(QString, code);
        QFETCH(QString, description);
        QFETCH(bool, traceLinesMissing);
        QFETCH(QStringList, copies);
        QVERIFY(wormerHistory() && (!traceLinesMissing || TestSupport::exec("DROP TABLE StockTraceItem")));
        Admin *admin = openCategory("Goods", "100");
        type({{admin->ui.code_tf, code}, {admin->ui.description_tf, description}, {admin->ui.sell_tf, "19.99"}});
        admin->ui.schedule_combo->setCurrentIndex(code == "100" ? 1 : 3);
        answer({Yes, Yes}); // the confirmation and the supplier question

        admin->modifyEntry();

        QCOMPARE(prompter()->calls.size(), traceLinesMissing ? 3 : 2);
        if (traceLinesMissing)
            QVERIFY(prompter()->last().icon == Prompter::Critical
                    && prompter()->last().text.contains("UPDATE StockTraceItem SET Code='200'"));
        QCOMPARE(history(), copies);
        QCOMPARE(stored("Goods", code, "Price"), QStringList{"19.99"});
        QCOMPARE(currentCode(admin), traceLinesMissing ? "100" : code);
        QCOMPARE(listColumn(admin, 1), QStringList({traceLinesMissing ? "Wormer" : description, "Zinc paste"}));
    }

    void deletionIsTracedForStockCategories_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("deleted");
        QTest::addColumn<QString>("reselected");
        QTest::newRow("Goods, the row below is selected") << "Goods" << "2" << "3";
        QTest::newRow("Goods, the last row: the one above") << "Goods" << "3" << "2";
        QTest::newRow("Vaccination") << "Vaccination" << "1" << "2";
        QTest::newRow("Consult: no stock trace") << "Consult" << "2" << "3";
    }
    void deletionIsTracedForStockCategories()
    {
        QFETCH(QString, table);
        QFETCH(QString, deleted);
        QFETCH(QString, reselected);
        QVERIFY(supplier("Acme Vet"));
        for (const QString code : {"1", "2", "3"})
            QVERIFY(insertProduct(table, {code, "Product " + code, "Y", 10, 1.5, 17.25, 4, 2, "vial", "Acme Vet"}));
        // Earlier movements, so that the key read back is not simply 1.
        QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate,SP,Notes) VALUES ('2026-01-01','Rec','x'),"
                                  "('2026-01-02','Rec','y')"));
        Admin *admin = openCategory(table, deleted);
        answer({Yes});

        admin->deleteEntry();

        QCOMPARE(boxes(), QStringList({"Delete Entry: Confirm that you will delete the highlighted entry\nProduct " + deleted
                                       + ", Code " + deleted + "\nfrom the system?"}));
        QCOMPARE(listColumn(admin, 0).join(""), QString("123").remove(deleted));
        QCOMPARE(currentCode(admin) + admin->ui.code_tf->text(), reselected + reselected);
        // The line names no Code: it carries the category, quantity left, unit, name and schedule.
        const QStringList traced{"3", QDate::currentDate().toString("yyyy-MM-dd"), "Admin", "Deletion of item from stock.",
                                 "Acme Vet", "", "Y", "3", table, "", "0", "vial", "Product " + deleted, "2", ""};
        QCOMPARE(TestSupport::rows("SELECT h.TraceNumber,MyDate,SP,Notes,Supplier,InvoiceNumber,Adjustment,i.TraceNumber,"
                                   "Category,Code,Quantity,UnitOfMeasure,Description,Schedule,Batch FROM StockTrace h LEFT "
                                   "JOIN StockTraceItem i ON i.TraceNumber=h.TraceNumber WHERE SP='Admin'"),
                 table == "Consult" ? QList<QStringList>() : QList<QStringList>{traced});
        QCOMPARE(count("StockTraceItem"), table == "Consult" ? 0 : 1);
    }
};

QTEST_MAIN(ProductsTest)
#include "tst_products.moc"
