// The dispense tab: the product list and its form, pricing with two taxes and the pricing assistant,
// and adding, modifying and deleting products with what that carries into other tables.
#include "globals.h"
#include "productfixtures.h"
#include "remarksicons.h"
#include "utility.h"
#include "zrlistitem.h"

#include <QApplication>
#include <QDate>

using namespace ProductFixtures;

namespace {
enum Answer { Yes = 0, No = 1 };
const QString Conflict = "<b>Price calculation conflict</b><br><font color=\"red\"><em>Selling at %1 : Calculated as "
                         "%2</em></font><br>Would you like to update the <b>Cost</b> or <b>Markup</b><br>You may also "
                         "choose to ignore the issue";
const QString NoSupplier = "<font color=\"red\">No supplier has been selected.</font><p>This is not recommended and may "
                           "cause problems with reports and orders.<p>Do you wish to continue ?";

TestSupport::ScriptedPrompter *prompter() { return TestSupport::prompter(); }

// Caption and text of every box shown so far.
QStringList boxes()
{
    QStringList shown;
    for (const auto &call : prompter()->calls)
        shown << call.caption + ": " + call.text;
    return shown;
}

bool insert(const QString &sql, const QStringList &texts)
{
    QStringList escaped;
    for (const QString &text : texts)
        escaped << "'" + utils->escapeSQL(text, false) + "'";
    return TestSupport::exec(sql.arg(escaped.join(',')));
}

bool supplier(const QString &company) { return insert("INSERT INTO Supply (Company) VALUES (%1)", {company}); }

// The window showing `table`, with the row under `code` highlighted when one is given.
Admin *open(const QString &table, const QString &code = QString())
{
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, table);
    return code.isNull() || selectRow(admin, code) ? admin : nullptr;
}

QString currentCode(Admin *admin)
{
    const QTreeWidgetItem *current = admin->ui.list->currentItem();
    return current && current->isSelected() ? current->text(0) : QString();
}

bool marked(Admin *admin) { return admin->ui.TextLabel8->palette().color(QPalette::Window) == Qt::yellow; }
bool warned(Admin *admin) { return baseColour(admin->ui.sell_tf) != Utility::normalPalette().color(QPalette::Base); }
QImage image(const QIcon &icon) { return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32); }

void type(const QList<std::pair<QLineEdit *, QString>> &fields)
{
    for (const auto &[field, text] : fields)
        field->setText(text);
}

// Taxes, mark-up, then cost, as a user types them (each typed field recalculates).
void typePricing(Admin *admin, bool tax1, bool tax2, const QString &markup, const QString &cost)
{
    admin->ui.Tax1_checkBox->setChecked(tax1);
    admin->ui.Tax2_checkBox->setChecked(tax2);
    type({{admin->ui.markup_tf, markup}, {admin->ui.cost_tf, cost}});
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

const QString AllColumns = "Code,Description,Schedule,UnitOfMeasure,Price,MarkUp,Cost,Quantity,ReOrder,ToQuantity,"
                           "OnOrder,Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active";

QStringList stored(const QString &table, const QString &code, const QString &columns = AllColumns)
{
    const QString where = " WHERE Code='" + utils->escapeSQL(code, false) + "'";
    return TestSupport::rows("SELECT " + columns + " FROM " + table + where).value(0);
}

int count(const QString &table) { return TestSupport::value("SELECT COUNT(*) FROM " + table).toInt(); }

// Goods 100 "Wormer" and 101, and copies of Wormer in automated procedures, stock trace lines and
// invoice lines, some under another category or an earlier description.
bool wormerHistory()
{
    Product wormer = product("100", "Wormer");
    wormer.schedule = 1;
    return insertProduct("Goods", wormer) && insertProduct("Goods", product("101", "Zinc paste"))
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

struct Sum { bool tax1, tax2; QString markup, cost, sell; bool warning; };
struct Typed { bool assistant, tax1; QString markup, cost, typed; int answer; QString calculated, cost2, markup2; bool warning; };
struct Search { bool byCode; QString wanted, selected, box; };
struct Refusal { const char *slot; bool highlight; QString code, description; QList<int> answers; QStringList shown; int icon; };
} // namespace
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

    // Inactive rows come last and are never checked against the trace; the form is cleared after
    // loading, and a row another program removed meanwhile leaves it so.
    void categoryListsActiveFirstThenInactive()
    {
        Product zebra{"20", "Zebra feed", "Y", 12.5, 1.5, 17.25, 3, 2, "each", "", "Y", "N", "", 2, 10, 4};
        QVERIFY(insertProduct("Goods", zebra) && insertProduct("Goods", product("10", "Apple", "N"))
                && insertProduct("Goods", product("30", "Mango")) && insertProduct("Goods", product("40", "Banana", "N"))
                && insertProduct("Medication", product("50", "Not goods")));
        QVERIFY(TestSupport::exec("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES "
                                  "(1,'Goods','20',3),(1,'Goods','30',1),(1,'Goods','10',1)"));
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
        QStringList texts;
        for (int i = 0; i < 10; ++i) {
            looks << (i < 4 ? static_cast<ZrListItem *>(admin->ui.list->topLevelItem(i))->altVisual() : -1);
            texts << listRow(admin, "20")->text(i);
        }
        QCOMPARE(looks.mid(0, 4), QList<int>({2, 0, 1, 1}));
        QCOMPARE(texts, QStringList({"20", "Zebra feed", "2", "each", "12.5", "17.25", "3", "4", "2026-01-15", "Y"}));
        QVERIFY(!admin->ui.Tax1_checkBox->isChecked() && admin->ui.Tax2_checkBox->isChecked());
        QVERIFY(TestSupport::exec("DELETE FROM Goods WHERE Code='30'") && selectRow(admin, "30"));
        QCOMPARE(admin->ui.code_tf->text() + admin->ui.sell_tf->text(), QString("0.00"));
        QVERIFY(prompter()->calls.isEmpty());
    }

    // Clearing afterwards keeps the order fields and the DTR value for the next new product.
    void selectedProductFillsTheForm_data()
    {
        QTest::addColumn<bool>("active");
        QTest::addColumn<QColor>("levelColour"); // the stock level is checked on select for the inactive one
        QTest::newRow("active, with remarks") << true << QColor(0, 128, 128);
        QTest::newRow("inactive, no remarks, level disagrees with trace") << false << QColor(255, 0, 0);
    }
    void selectedProductFillsTheForm()
    {
        QFETCH(bool, active);
        QFETCH(QColor, levelColour);
        // Tax2 "Y", but the practice has no second tax: its box stays unchecked.
        const Product p{"A'1\\", "Quote 'n' slash \\", active ? "Y" : "N", 10, 1.5, 17.25, 4.5, 3, "box",
                        "Bolt Supplies", "Y", "Y", active ? "Keep dry" : "", -1, 12, 6, "Hondebeskuitjies", "doos"};
        QVERIFY(supplier("Acme Vet") && supplier("Bolt Supplies") && insertProduct("Goods", p)
                && insert("INSERT INTO StockTraceItem (TraceNumber,Category,Code,Quantity) VALUES (1,'Goods',%1,5)", {p.code}));
        Admin *admin = open("Goods");
        admin->ui.checkBox10->setChecked(!active);

        QVERIFY(selectRow(admin, p.code));

        Ui::Admin &ui = admin->ui;
        const QList<QLineEdit *> fields{ui.code_tf, ui.description_tf, ui.uom_tf, ui.markup_tf, ui.cost_tf, ui.sell_tf,
                                        ui.quantity_tf, ui.level_tf, ui.toqty_tf, ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf};
        QStringList texts;
        for (const QLineEdit *field : fields)
            texts << field->text();
        QCOMPARE(texts, QStringList({p.code, p.description, "box", "1.500000", "10.00", "17.25", "4.50", "-1.00", "12.00",
                                     "6.00", "Hondebeskuitjies", "doos"}));
        QCOMPARE(ui.schedule_combo->currentIndex(), 3);
        QCOMPARE(ui.supplier_combo->currentText() + "|" + ui.supplier_combo->itemText(0), QString("Bolt Supplies| "));
        QVERIFY(ui.Tax1_checkBox->isChecked() && !ui.Tax2_checkBox->isChecked());
        QCOMPARE(ui.active_tb->isChecked(), active);
        for (QWidget *w : QList<QWidget *>{ui.supplier_combo, ui.code_tf, ui.description_tf, ui.schedule_combo, ui.uom_tf,
                                           ui.markup_tf, ui.cost_tf, ui.quantity_tf, ui.level_tf, ui.toqty_tf,
                                           ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf, ui.dtr_tf})
            QVERIFY2(w->isEnabled() == active, qPrintable(w->objectName()));
        QVERIFY(ui.active_tb->isEnabled() && ui.sell_tf->isEnabled());
        QCOMPARE(image(ui.pushButton30->icon()), image(remarksIcon(active ? RemarksIcon::Present : RemarksIcon::Blank)));
        QCOMPARE(baseColour(ui.quantity_tf), levelColour);
        QVERIFY(!marked(admin) && !warned(admin) && prompter()->calls.isEmpty());

        ui.dtr_tf->setText("365");
        admin->clear();
        texts.clear();
        for (const QLineEdit *field : fields + QList<QLineEdit *>{ui.dtr_tf})
            texts << field->text();
        QCOMPARE(texts, QStringList({"", "", "", "", "", "0.00", "", "", "12.00", "6.00", "", "", "365"}));
        QVERIFY(ui.active_tb->isChecked());
        QCOMPARE(ui.supplier_combo->currentText(), QString(" "));
    }

    void storedPriceAgainstCalculatedPrice_data()
    {
        QTest::addColumn<double>("price");
        QTest::addColumn<bool>("assistant");
        QTest::addColumn<QStringList>("shown"); // selling price, mark-up, cost
        QTest::addColumn<bool>("warning");
        QTest::newRow("stored equals calculated") << 17.25 << false << QStringList{"17.25", "1.500000", "10.00"} << false;
        QTest::newRow("stored differs") << 20.0 << false << QStringList{"20.00", "1.500000", "10.00"} << true;
        // Checked on the shown texts at the end, and 17.251 shows as 17.25.
        QTest::newRow("differs by a fraction of a cent") << 17.251 << false << QStringList{"17.25", "1.500000", "10.00"} << false;
        // The assistant asks at once; "&Markup" works back 20 / 1.15 / 10, which gives 20.01 again.
        QTest::newRow("differs, assistant on") << 20.0 << true << QStringList{"20.00", "1.74", "10.00"} << true;
    }
    void storedPriceAgainstCalculatedPrice()
    {
        QFETCH(double, price);
        QFETCH(bool, assistant);
        QFETCH(QStringList, shown);
        QFETCH(bool, warning);
        Product p = product("1", "Flea powder");
        p.price = price;
        QVERIFY(insertProduct("Goods", p));
        Admin *admin = open("Goods");
        admin->ui.checkBox5->setChecked(assistant);
        prompter()->answer(2);

        QVERIFY(selectRow(admin, "1"));

        QCOMPARE(prompter()->messageTexts(), assistant ? QStringList{Conflict.arg("20.00", "17.25")} : QStringList());
        QCOMPARE(QStringList({admin->ui.sell_tf->text(), admin->ui.markup_tf->text(), admin->ui.cost_tf->text()}), shown);
        QCOMPARE(warned(admin), warning);
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
        Admin *admin = open("Goods");
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
        Admin *admin = open("Goods", "4");
        QVERIFY(admin && !marked(admin) && !admin->ui.pushButton30->signalsBlocked());

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
        QTest::newRow("three-decimal cost") << Sum{true, false, "2.000000", "1.235", "2.84", false};
        QTest::newRow("mistyped cost counts as 0") << Sum{true, false, "1.5", "12x", "0.00", false};
    }
    // The levy is a second practice tax of 5 %. Emptying a field afterwards leaves the price as it was.
    void sellFollowsCostAndMarkup()
    {
        QFETCH(Sum, sum);
        Admin *admin = TestSupport::makeAdmin();
        QVERIFY(TestSupport::exec("UPDATE SysInfo SET Tax2Name='Levy', Tax2=0.05") && utils->initClass(true));
        admin->ui.Tax2_checkBox->setEnabled(true);

        typePricing(admin, sum.tax1, sum.tax2, sum.markup, sum.cost);
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
        typePricing(admin, t.tax1, false, t.markup, t.cost);
        if (t.answer >= 0)
            prompter()->answer(t.answer);

        admin->ui.sell_tf->setText(t.typed);
        QTest::keyClick(admin->ui.sell_tf, Qt::Key_Return);

        const bool asked = !t.calculated.isEmpty();
        QCOMPARE(prompter()->messageTexts(), asked ? QStringList{Conflict.arg(t.typed, t.calculated)} : QStringList());
        if (asked) {
            const auto &box = prompter()->last();
            QCOMPARE(QStringList({QString::number(box.icon), box.caption, QString::number(box.defaultIndex)}),
                     QStringList({QString::number(Prompter::Question), "Quorel", "0"}));
            QCOMPARE(box.buttons, QStringList({"&Ignore", "&Cost", "&Markup"}));
        }
        QCOMPARE(QStringList({admin->ui.cost_tf->text(), admin->ui.markup_tf->text(), admin->ui.sell_tf->text()}),
                 QStringList({t.cost2, t.markup2, t.typed}));
        QCOMPARE(warned(admin), t.warning);
    }

    void codeAllocation_data()
    {
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<QString>("allocated");
        QTest::newRow("empty table") << QStringList() << "1";
        QTest::newRow("one above the largest") << QStringList({"7", "1234", "300"}) << "1235";
        QTest::newRow("nine-digit code ignored") << QStringList({"1234", "123456789"}) << "1235";
        QTest::newRow("100000 and above ignored") << QStringList({"5", "100000"}) << "6";
        QTest::newRow("99999 gives 100000") << QStringList({"99999"}) << "100000";
        QTest::newRow("text codes count by their leading number") << QStringList({"abc", "12x", "9"}) << "13";
        QTest::newRow("only text codes") << QStringList({"abc"}) << "1";
    }
    void codeAllocation()
    {
        QFETCH(QStringList, codes);
        QFETCH(QString, allocated);
        for (const QString &code : codes)
            QVERIFY(insertProduct("Goods", product(code, "Item " + code)));
        Admin *admin = open("Goods");
        typeForm(admin, QString(), "Fresh item", " ");
        prompter()->answer(Yes);
        prompter()->answer(Yes);

        admin->newEntry();

        QCOMPARE(boxes().value(0), "New Entry: Confirm you wish to add product Fresh item with code " + allocated);
        QCOMPARE(TestSupport::value("SELECT Code FROM Goods WHERE Description='Fresh item'").toString(), allocated);
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
        Product old = product("M'1\\", "Old drops");
        old.quantity = 6;
        old.remarks = "Give with food";
        old.daysToReminder = 90;
        QVERIFY(supplier("O'Hara \\ Sons") && insertProduct("Vaccination", old));
        Admin *admin = open("Vaccination", slot == "modifyEntry" ? old.code : QString());
        QVERIFY(admin);
        QCOMPARE(admin->ui.dtr_tf->text(), QString(slot == "modifyEntry" ? "90" : ""));
        typeForm(admin, "N'2\\", row[1], "O'Hara \\ Sons");
        type({{admin->ui.cost_tf, "1234567.89"}, {admin->ui.quantity_tf, "7"}, {admin->ui.level_tf, "lots"},
              {admin->ui.onorder_tf, ""}, {admin->ui.dtr_tf, days}});
        admin->ui.Tax1_checkBox->setChecked(row[14] == "Y");
        admin->ui.active_tb->setChecked(false);
        QCOMPARE(admin->ui.sell_tf->text(), row[4]);
        prompter()->answer(Yes);

        QVERIFY(QMetaObject::invokeMethod(admin, slot.toLatin1().constData()));

        QCOMPARE(prompter()->calls.size(), 1);
        QCOMPARE(stored("Vaccination", "N'2\\", AllColumns + ",DaysToReminder"), row);
        QCOMPARE(count("Vaccination"), slot == "newEntry" ? 2 : 1);
        QCOMPARE(currentCode(admin) + admin->ui.description_tf->text(), "N'2\\" + row[1]);
    }

    void refusedOrDeclinedChangesNothing_data()
    {
        // Slot, Bone highlighted, typed code and description, answers, boxes shown, icon of the last box.
        QTest::addColumn<Refusal>("r");
        const QString blank = "Modify Entry: You may not have a blank Code or Description";
        const QString modify = "Modify Entry: Confirm that you will update the highlighted entry\nChew toy, Code 77\n"
                               "with the values shown ?";
        const int info = Prompter::Information, critical = Prompter::Critical, warning = Prompter::Warning;
        QTest::newRow("new, code taken") << Refusal{"newEntry", false, "5", "Chew toy", {},
            {"New Entry: The product Bone is already allocated Code 5"}, warning};
        QTest::newRow("new, declined") << Refusal{"newEntry", false, "77", "Chew toy", {No},
            {"New Entry: Confirm you wish to add product Chew toy with code 77", "New Entry: Operation cancelled"}, info};
        QTest::newRow("modify, nothing highlighted") << Refusal{"modifyEntry", false, "5", "Bone", {},
            {"Modify Entry: You must highlight an entry to modify"}, warning};
        QTest::newRow("modify, blank code") << Refusal{"modifyEntry", true, "", "Bone", {}, {blank}, critical};
        QTest::newRow("modify, blank description") << Refusal{"modifyEntry", true, "5", "", {}, {blank}, critical};
        QTest::newRow("modify, declined") << Refusal{"modifyEntry", true, "77", "Chew toy", {No},
            {modify, "Modify Entry: Operation cancelled"}, info};
        QTest::newRow("modify, no supplier declined") << Refusal{"modifyEntry", true, "77", "Chew toy", {Yes, No},
            {modify, "Modify Entry: " + NoSupplier, "Modify Entry: Operation cancelled"}, info};
        QTest::newRow("delete, nothing highlighted") << Refusal{"deleteEntry", false, "5", "Bone", {},
            {"Delete Entry: You must highlight an entry to delete"}, warning};
        QTest::newRow("delete, declined") << Refusal{"deleteEntry", true, "5", "Bone", {No}, {"Delete Entry: Confirm "
            "that you will delete the highlighted entry\nBone, Code 5\nfrom the system?", "Delete Entry: Operation cancelled"}, info};
    }
    void refusedOrDeclinedChangesNothing()
    {
        QFETCH(Refusal, r);
        QVERIFY(insertProduct("Goods", product("5", "Bone")));
        Admin *admin = open("Goods", r.highlight ? "5" : QString());
        QVERIFY(admin);
        typeForm(admin, r.code, r.description, " ");
        const QStringList before = stored("Goods", "5");
        for (int answer : r.answers)
            prompter()->answer(answer);

        QVERIFY(QMetaObject::invokeMethod(admin, r.slot));

        QCOMPARE(boxes(), r.shown);
        QCOMPARE(prompter()->last().icon, r.icon);
        QCOMPARE(count("Goods") + count("StockTrace"), 1);
        QCOMPARE(stored("Goods", "5"), before);
    }

    void supplierQuestionOnlyForStockCategories_data()
    {
        QTest::addColumn<QString>("table");
        for (const QString &table : Utility::categories())
            QTest::newRow(qPrintable(table)) << table;
    }
    void supplierQuestionOnlyForStockCategories()
    {
        QFETCH(QString, table);
        Admin *admin = open(table);
        typeForm(admin, "77", "Chew toy", " ");
        prompter()->answer(Yes);
        prompter()->answer(Yes);

        admin->newEntry();

        QStringList expected{"New Entry: Confirm you wish to add product Chew toy with code 77"};
        if (table != "Consult" && table != "Diagnosis" && table != "Proc")
            expected << "New Entry: " + NoSupplier;
        QCOMPARE(boxes(), expected);
        QCOMPARE(stored(table, "77", "Supplier"), QStringList{" "});
    }

    void modificationCascades_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QStringList>("copies"); // AutoProcContents, StockTraceItem, InvoiceItem
        const QStringList kept{"Goods/100/Old wormer name/1/each", "Medication/100/Wormer/1/each"};
        QTest::newRow("only the price changed") << "100" << "Wormer" << QStringList({"Goods/100", "Medication/100",
            "Goods/101", "Goods/100/Wormer/1/each"}) + kept + QStringList({"Goods/100/Wormer/each",
            "Goods/100/Old wormer name/each", "Medication/100/Wormer/each"});
        QTest::newRow("code and description changed") << "200" << "Wormer XL" << QStringList({"Goods/200",
            "Medication/100", "Goods/101", "Goods/200/Wormer XL/1/each"}) + kept + QStringList({
            "Goods/200/Wormer XL/each", "Goods/100/Old wormer name/each", "Medication/100/Wormer/each"});
    }
    void modificationCascades()
    {
        QFETCH(QString, code);
        QFETCH(QString, description);
        QFETCH(QStringList, copies);
        QVERIFY(wormerHistory());
        Admin *admin = open("Goods", "100");
        QVERIFY(admin);
        type({{admin->ui.code_tf, code}, {admin->ui.description_tf, description}, {admin->ui.sell_tf, "19.99"}});
        prompter()->answer(Yes);
        prompter()->answer(Yes);

        admin->modifyEntry();

        QCOMPARE(prompter()->calls.size(), 2); // the confirmation and the supplier question
        QCOMPARE(history(), copies);
        QCOMPARE(stored("Goods", code, "Price"), QStringList{"19.99"});
        QCOMPARE(currentCode(admin), code);
        QCOMPARE(listColumn(admin, 1), QStringList({description, "Zinc paste"}));
    }

    // There are no transactions: what was written stays, nothing after the failure runs.
    void failedCascadeStopsThere()
    {
        QVERIFY(wormerHistory() && TestSupport::exec("DROP TABLE StockTraceItem"));
        Admin *admin = open("Goods", "100");
        QVERIFY(admin);
        admin->ui.code_tf->setText("200");
        prompter()->answer(Yes);
        prompter()->answer(Yes);

        admin->modifyEntry();

        QCOMPARE(prompter()->calls.size(), 3);
        QCOMPARE(prompter()->last().icon, int(Prompter::Critical));
        QVERIFY(prompter()->last().text.contains("UPDATE StockTraceItem SET Code='200'"));
        QStringList renamed;
        for (const QString table : {"Goods", "AutoProcContents", "InvoiceItem"})
            renamed << TestSupport::value("SELECT COUNT(*) FROM " + table + " WHERE Code='200'").toString();
        QCOMPARE(renamed, QStringList({"1", "1", "0"}));
        QCOMPARE(listColumn(admin, 0), QStringList({"100", "101"})); // not reloaded
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
        QTest::newRow("Diagnosis: no stock trace") << "Diagnosis" << "2" << "3";
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
        QVERIFY(TestSupport::exec("INSERT INTO StockTrace (MyDate,SP,Notes) VALUES ('2026-01-01','Rec','x'),('2026-01-02','Rec','y')"));
        Admin *admin = open(table, deleted);
        QVERIFY(admin);
        prompter()->answer(Yes);

        admin->deleteEntry();

        QCOMPARE(boxes(), QStringList({"Delete Entry: Confirm that you will delete the highlighted entry\nProduct " + deleted
                                       + ", Code " + deleted + "\nfrom the system?"}));
        QStringList left{"1", "2", "3"};
        left.removeOne(deleted);
        QCOMPARE(listColumn(admin, 0), left);
        QCOMPARE(currentCode(admin) + admin->ui.code_tf->text(), reselected + reselected);
        const QList<QStringList> head = TestSupport::rows("SELECT TraceNumber,MyDate,SP,Notes,Supplier,InvoiceNumber,"
                                                          "Adjustment FROM StockTrace WHERE SP='Admin'");
        const QList<QStringList> lines = TestSupport::rows("SELECT TraceNumber,Category,Code,Quantity,UnitOfMeasure,"
                                                           "Description,Schedule,Batch FROM StockTraceItem");
        if (table == "Consult" || table == "Diagnosis") {
            QCOMPARE(head.size() + lines.size(), 0);
            return;
        }
        QCOMPARE(head, QList<QStringList>({{"3", QDate::currentDate().toString("yyyy-MM-dd"), "Admin",
                                            "Deletion of item from stock.", "Acme Vet", "", "Y"}}));
        // The statement names no Code column: the line carries category, quantity, unit, name and schedule.
        QCOMPARE(lines, QList<QStringList>({{"3", table, "", "0", "vial", "Product " + deleted, "2", ""}}));
    }
};

QTEST_MAIN(ProductsTest)
#include "tst_products.moc"
