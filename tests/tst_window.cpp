// The window's structure that the tabs' code relies on: tabs, object names and types, captions,
// list columns, combo items, its size, and every connection made at construction.
#include "admin.h"
#include "globals.h"
#include "testsupport.h"
#include "utility.h"
#include "zrrichtext.h"

#include <QtTest>
#include <memory>

namespace {

const QStringList tabCaptions = {"&SysInfo", "&Dispense", "&Permissions", "&Reports",
                                 "&Breeds",  "&Suppliers", "&AutoProc"};

QTabWidget *tabsOf(Admin *admin)
{
    return admin->findChild<QTabWidget *>();
}

// The tab holding `widget`, or -1 when it is outside the tab widget.
int tabOf(Admin *admin, QWidget *widget)
{
    QTabWidget *tabs = tabsOf(admin);
    for (int i = 0; i < tabs->count(); ++i)
        if (tabs->widget(i)->isAncestorOf(widget))
            return i;
    return -1;
}

QStringList headerTexts(QTreeWidget *tree)
{
    QStringList out;
    for (int c = 0; c < tree->columnCount(); ++c)
        out << tree->headerItem()->text(c);
    return out;
}

QStringList comboItems(QComboBox *combo)
{
    QStringList out;
    for (int i = 0; i < combo->count(); ++i)
        out << combo->itemText(i);
    return out;
}

// Records which slot a connection reached, instead of running it. The base constructor runs
// the real slots (virtual calls do not reach a subclass during construction); afterwards
// every connection lands here.
class RecordingAdmin : public Admin
{
public:
    QStringList calls;

    static QString itemText(QTreeWidgetItem *item) { return item ? item->text(0) : QString("null"); }

#define RECORD(slot) \
    void slot() override { calls << #slot; }
    RECORD(active_tb_clicked)
    RECORD(alt_lang_tb_clicked)
    RECORD(PushButton4_clicked)
    RECORD(modifyEntry)
    RECORD(newEntry)
    RECORD(deleteEntry)
    RECORD(clear)
    RECORD(forceSell)
    RECORD(deleteUser)
    RECORD(newUser)
    RECORD(deletePermission)
    RECORD(newPermission)
    RECORD(processQuery)
    RECORD(printQuery)
    RECORD(exportQuery)
    RECORD(graphQuery)
    RECORD(clearSupply)
    RECORD(newSupplier)
    RECORD(updateSupplier)
    RECORD(deleteSupplier)
    RECORD(newAutoProc)
    RECORD(updateAutoProc)
    RECORD(deleteAutoProc)
    RECORD(newAutoProcContents)
    RECORD(updateAutoProcContents)
    RECORD(deleteAutoProcContents)
    RECORD(updateUserId)
    RECORD(showHelp)
    RECORD(taxingChanged)
    RECORD(dispense_entry_changed)
    RECORD(seachDispense)
    RECORD(stockLevelTrace)
    RECORD(noteEditor)
#undef RECORD
    void categorySelected(const QString &text) override { calls << "categorySelected:" + text; }
    void autoCategorySelected(const QString &text) override { calls << "autoCategorySelected:" + text; }
    void userSelected(const QString &text) override { calls << "userSelected:" + text; }
    void updateSell(const QString &text) override { calls << "updateSell:" + text; }
    void itemSelected(QTreeWidgetItem *item) override { calls << "itemSelected:" + itemText(item); }
    void supplierSelected(QTreeWidgetItem *item) override { calls << "supplierSelected:" + itemText(item); }
    void autoProcContSelected(QTreeWidgetItem *item) override
    {
        calls << "autoProcContSelected:" + itemText(item);
    }
    void classChanged(int index) override { calls << "classChanged:" + QString::number(index); }
    void reportMode(int index) override { calls << "reportMode:" + QString::number(index); }
    void clearList(int index) override { calls << "clearList:" + QString::number(index); }
    void autoProcSelected(int index) override { calls << "autoProcSelected:" + QString::number(index); }
    void stockLevelCheck(bool on) override { calls << QString("stockLevelCheck:") + (on ? "on" : "off"); }
    void tableViewAction(void *action) override
    {
        calls << "tableViewAction:" + QString::number(quintptr(action));
    }
};

// Sets the sender up, forgets what that did, then fires the signal the way a person would.
void trigger(RecordingAdmin *admin, const QString &name, const QString &how)
{
    QWidget *widget = admin->findChild<QWidget *>(name);
    QVERIFY2(widget, qPrintable(name));
    // The connection is what is checked here, not when the tab lets the sender act.
    widget->setEnabled(true);
    widget->blockSignals(false);
    const QString argument = how.section(':', 1);
    if (auto *tree = qobject_cast<QTreeWidget *>(widget)) {
        tree->clear();
        auto *item = new QTreeWidgetItem(tree, QStringList{argument});
        admin->calls.clear();
        if (how.startsWith("select"))
            tree->setCurrentItem(item);
        else {
            tree->setCurrentItem(item);
            admin->calls.clear();
            tree->clearSelection();
        }
        return;
    }
    if (auto *box = qobject_cast<QListWidget *>(widget)) {
        box->clear();
        box->addItems({"first", argument});
        admin->calls.clear();
        box->setCurrentRow(1);
        return;
    }
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        const int index = combo->findText(argument);
        QVERIFY2(index >= 0, qPrintable(argument));
        admin->calls.clear();
        // What a choice in the drop-down emits.
        emit combo->activated(index);
        emit combo->textActivated(argument);
        return;
    }
    if (auto *field = qobject_cast<QLineEdit *>(widget)) {
        admin->calls.clear();
        if (how == "return") {
            field->setText("12.00");
            admin->calls.clear();
            QTest::keyClick(field, Qt::Key_Return);
        } else {
            field->setText(argument);
        }
        return;
    }
    if (auto *check = qobject_cast<QCheckBox *>(widget); check && how == "toggle") {
        admin->calls.clear();
        check->setChecked(!check->isChecked());
        return;
    }
    auto *button = qobject_cast<QAbstractButton *>(widget);
    QVERIFY2(button, qPrintable(name));
    admin->calls.clear();
    button->click();
}

} // namespace

class WindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void tabsInOrder();
    void headings_data();
    void headings();
    void widgetsByNameAndType_data();
    void widgetsByNameAndType();
    void captionsAndTips_data();
    void captionsAndTips();
    void listColumns_data();
    void listColumns();
    void comboItems_data();
    void comboItems();
    void formStates();
    void everyTabUsableAtTheMinimumSize_data();
    void everyTabUsableAtTheMinimumSize();
    void connectionsReachTheirSlots_data();
    void connectionsReachTheirSlots();
    void viewerPagesReachTableViewAction_data();
    void viewerPagesReachTableViewAction();
    void openedOnGoodsWithTheTaxNames();
    void exitEndsTheEventLoop();
};

void WindowTest::tabsInOrder()
{
    Admin *admin = TestSupport::makeAdmin();
    QTabWidget *tabs = tabsOf(admin);
    QVERIFY(tabs);
    QVERIFY(admin->centralWidget()->isAncestorOf(tabs));
    QStringList captions;
    for (int i = 0; i < tabs->count(); ++i)
        captions << tabs->tabText(i);
    QCOMPARE(captions, tabCaptions);
    QVERIFY(admin->width() >= 832);
    QVERIFY(admin->height() >= 594);
}

void WindowTest::headings_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("heading");
    QTest::newRow("SysInfo") << 0 << "Quorel System Information";
    QTest::newRow("Dispense") << 1 << "Quorel Table Management";
    QTest::newRow("Permissions") << 2 << "Quorel User Permissions";
    QTest::newRow("Reports") << 3 << "Quorel Report Writer";
    QTest::newRow("Breeds") << 4 << "";
    QTest::newRow("Suppliers") << 5 << "Quorel Supplier Management";
    QTest::newRow("AutoProc") << 6 << "Quorel Automated Procedure Management";
}

void WindowTest::headings()
{
    QFETCH(int, tab);
    QFETCH(QString, heading);
    Admin *admin = TestSupport::makeAdmin();
    QWidget *page = tabsOf(admin)->widget(tab);
    QStringList found;
    for (QGroupBox *group : page->findChildren<QGroupBox *>())
        if (group->title().startsWith("Quorel"))
            found << group->title();
    for (QLabel *label : page->findChildren<QLabel *>())
        if (label->text().startsWith("Quorel"))
            found << label->text();
    QCOMPARE(found, heading.isEmpty() ? QStringList() : QStringList{heading});
    if (tab == 1) // the heading whose colour marks an unsaved change
        QCOMPARE(admin->ui.TextLabel8->text(), heading);
}

void WindowTest::widgetsByNameAndType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("tab"); // -1: below the tabs, reachable from all

    const struct { int tab; const char *type; QStringList names; } groups[] = {
        {0, "QLineEdit", {"ALINE1", "ALINE2", "ALINE3", "ALINE4", "ALINE5", "ALINE6", "ALINE7", "InvFooter",
                          "InvFooter1", "RecFooter", "StatementFooter1", "StatementFooter2", "StatementFooter3",
                          "HandOver", "label2LineEdit", "label3LineEdit", "Tax1", "Tax1Name", "Tax2", "Tax2Name"}},
        {0, "QPushButton", {"alt_lang_tb", "PushButton4"}},
        {1, "QComboBox", {"category_combo", "supplier_combo", "schedule_combo"}},
        {1, "QTreeWidget", {"list"}},
        {1, "QLineEdit", {"code_tf", "description_tf", "description_A_tf", "uom_tf", "uom_A_tf", "cost_tf",
                          "markup_tf", "sell_tf", "level_tf", "onorder_tf", "toqty_tf", "quantity_tf", "dtr_tf"}},
        {1, "QCheckBox", {"Tax1_checkBox", "Tax2_checkBox", "active_tb", "checkBox5", "checkBox9", "checkBox10"}},
        {1, "QPushButton", {"new_pb", "edit_pb", "delete_pb", "PushButton5", "pushButton28", "pushButton29",
                            "pushButton30"}},
        {1, "QLabel", {"TextLabel8", "dtr_lab"}},
        {2, "QListWidget", {"users_list"}},
        {2, "QTreeWidget", {"perms_list"}},
        {2, "QComboBox", {"class_combo", "desc_combo"}},
        {2, "QLineEdit", {"lineEdit45", "userCode_tf", "initials_tf"}},
        {2, "QCheckBox", {"checkBox6"}},
        {2, "QPushButton", {"PushButton9", "PushButton10", "PushButton11", "PushButton12", "PushButton26"}},
        {3, "QComboBox", {"type_combo"}},
        {3, "QTreeWidget", {"report_list"}},
        {3, "QDateEdit", {"DateEdit1", "DateEdit2"}},
        {3, "QPushButton", {"PushButton13", "PushButton14", "PushButton15", "PushButton16"}},
        {4, "QTableView", {"table"}},
        {4, "QPushButton", {"addBreed_pb", "deleteBreed_pb"}},
        {5, "QTreeWidget", {"supply_list"}},
        {5, "QLineEdit", {"company_tf", "contact_tf", "email_tf", "phone_tf", "fax_tf", "cell_tf"}},
        {5, "QTextEdit", {"postal_tf", "collection_tf"}},
        {5, "QCheckBox", {"lab_tb"}},
        {5, "QPushButton", {"PushButton6_2", "PushButton7_2", "PushButton8_2", "PushButton17"}},
        {6, "QListWidget", {"proc_list"}},
        {6, "QTreeWidget", {"auto_list"}},
        {6, "QComboBox", {"auto_combo", "auto_desc_combo"}},
        {6, "QLineEdit", {"proc_tf", "auto_qty_tf"}},
        {6, "QCheckBox", {"checkBox8"}},
        {6, "QLabel", {"autoTotal_tf"}},
        {6, "QPushButton", {"PushButton6_2_2", "PushButton7_2_2", "PushButton8_2_2", "newContents_pb",
                            "updateContents_pb", "deleteContents_pb"}},
        {-1, "QPushButton", {"PushButton27_2", "buttonOk"}},
    };
    for (const auto &group : groups)
        for (const QString &name : group.names)
            QTest::newRow(qPrintable(name)) << name << QString::fromLatin1(group.type) << group.tab;
}

void WindowTest::widgetsByNameAndType()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QFETCH(int, tab);
    Admin *admin = TestSupport::makeAdmin();

    const QList<QWidget *> found = admin->findChildren<QWidget *>(name);
    QCOMPARE(found.size(), 1);
    QCOMPARE(QString::fromLatin1(found.first()->metaObject()->className()), type);
    QCOMPARE(tabOf(admin, found.first()), tab);
}

void WindowTest::captionsAndTips_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("expected");
    const char *const captions[][2] = {
        {"alt_lang_tb", "Alt Lang"}, {"PushButton4", "UPDATE"}, {"buttonOk", "EXIT"},
        {"checkBox5", "Enable Pricing Assistant"}, {"checkBox9", "Highlight Stock Inconsistencies"},
        {"checkBox10", "Analyse Stock On Select"}, {"checkBox6", "Enable Diary"}, {"checkBox8", "Charge for Item"},
        {"lab_tb", "Lab Service"}, {"dtr_lab", "DTR"}, {"new_pb", "New"}, {"edit_pb", "Update"},
        {"delete_pb", "Delete"}, {"PushButton5", "Clear"}, {"pushButton28", "Search"},
        {"PushButton13", "Process"}, {"PushButton14", "Export"}, {"PushButton15", "Graph"},
        {"PushButton16", "Print"}, {"autoTotal_tf", "0.00"}};
    for (const auto &c : captions)
        QTest::newRow(c[0]) << c[0] << "text" << c[1];
    const char *const tips[][2] = {
        {"level_tf", "Setting of -1 disables stock control"},
        {"toqty_tf", "A value of 0 disables stock control"},
        {"pushButton28",
         "If the <b>Code</b> field has focus search for that code, else search for the <b>Description</b>"},
        {"pushButton29", "Quick / Detailed Stock trace on current item."},
        {"pushButton30", "Add remarks and queries to items at dispense time"}};
    for (const auto &t : tips)
        QTest::newRow(qPrintable(QString(t[0]) + " tip")) << t[0] << "toolTip" << t[1];
}

void WindowTest::captionsAndTips()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QString, expected);
    Admin *admin = TestSupport::makeAdmin();
    QWidget *widget = admin->findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(widget->property(property.toLatin1()).toString(), expected);
}

void WindowTest::listColumns_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("headers"); // empty: only the count matters
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("selection");
    const int single = QAbstractItemView::SingleSelection;
    QTest::newRow("list") << "list"
                          << QStringList{"Code", "Description", "Schedule", "Unit Of Measure", "Cost Price",
                                         "Sales Price", "Stock Level", "On Order", "Order Date", "Active"}
                          << 10 << single;
    QTest::newRow("perms_list") << "perms_list" << QStringList{"Class", "Description"} << 2 << single;
    QTest::newRow("report_list") << "report_list" << QStringList(11, QString()) << 11
                                 << int(QAbstractItemView::ExtendedSelection);
    QTest::newRow("supply_list") << "supply_list" << QStringList() << 9 << single;
    QTest::newRow("auto_list") << "auto_list" << QStringList() << 7 << single;
}

void WindowTest::listColumns()
{
    QFETCH(QString, name);
    QFETCH(QStringList, headers);
    QFETCH(int, count);
    QFETCH(int, selection);
    Admin *admin = TestSupport::makeAdmin();
    auto *tree = admin->findChild<QTreeWidget *>(name);
    QVERIFY(tree);

    QCOMPARE(tree->columnCount(), count);
    if (!headers.isEmpty() || name == "report_list")
        QCOMPARE(headerTexts(tree), headers);
    QCOMPARE(int(tree->selectionMode()), selection);
    // Rows keep the order in which they are added.
    QVERIFY(!tree->isSortingEnabled());
    tree->clear();
    for (const char *text : {"b", "c", "a"})
        new QTreeWidgetItem(tree, QStringList{QString::fromLatin1(text)});
    QCOMPARE(tree->topLevelItem(0)->text(0), QString("b"));
    QCOMPARE(tree->topLevelItem(2)->text(0), QString("a"));
}

void WindowTest::comboItems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<int>("maxVisible"); // -1: not checked
    QTest::newRow("category_combo") << "category_combo" << Utility::categories() << -1;
    QTest::newRow("auto_combo") << "auto_combo" << Utility::categories() << -1;
    QTest::newRow("class_combo") << "class_combo"
                                 << QStringList{"Dispense", "Utility", "Schedule", "Procedure Schedule",
                                                "Hospital Schedule", "Stock Schedule", "Stock"}
                                 << -1;
    QTest::newRow("schedule_combo") << "schedule_combo"
                                    << QStringList{"S0", "S1", "S2", "S3", "S4", "S5", "S6", "S7"} << -1;
    QTest::newRow("type_combo")
        << "type_combo"
        << QStringList{"Goods Performance", "Hospital Performance", "Consult Performance",
                       "Diagnosis Performance", "Injection Performance", "Lab Performance",
                       "Medication Performance", "Proc Performance", "Vaccination Performance",
                       "New Clients History", "New Clients Detailed", "Client Purchases",
                       "Monthly Client Expenditure", "Full Client Expenditure", "Client Debt/Credit",
                       "Bad Debtors", "Stock Levels", "Stock Values", "Daily Activity", "Pending Invoices",
                       "All Clients", "Commission", "Personnel Performance", "Drug Levels"}
        << 21;
}

void WindowTest::comboItems()
{
    QFETCH(QString, name);
    QFETCH(QStringList, items);
    QFETCH(int, maxVisible);
    Admin *admin = TestSupport::makeAdmin();
    auto *combo = admin->findChild<QComboBox *>(name);
    QVERIFY(combo);
    QCOMPARE(::comboItems(combo), items);
    if (maxVisible >= 0)
        QCOMPARE(combo->maxVisibleItems(), maxVisible);
}

void WindowTest::formStates()
{
    Admin *admin = TestSupport::makeAdmin();
    const Ui::Admin &ui = admin->ui;
    QVERIFY(ui.alt_lang_tb->isCheckable());
    QVERIFY(ui.quantity_tf->isReadOnly());
    QCOMPARE(ui.pushButton30->iconSize(), QSize(22, 22));
    for (QDateEdit *date : {ui.DateEdit1, ui.DateEdit2}) {
        QVERIFY(date->calendarPopup());
        QCOMPARE(date->displayFormat(), QString("yyyy-MM-dd"));
    }
    QVERIFY(ui.postal_tf->toPlainText().isEmpty());
    QVERIFY(!ui.postal_tf->acceptRichText());
}

void WindowTest::everyTabUsableAtTheMinimumSize_data()
{
    QTest::addColumn<int>("tab");
    for (int i = 0; i < tabCaptions.size(); ++i)
        QTest::newRow(qPrintable(tabCaptions.at(i))) << i;
}

// At 832 x 594 every control of the tab lies inside the window, none overlaps another and each
// button has the room its caption needs.
void WindowTest::everyTabUsableAtTheMinimumSize()
{
    QFETCH(int, tab);
    Admin *admin = TestSupport::makeAdmin();
    admin->resize(832, 594);
    admin->show();
    tabsOf(admin)->setCurrentIndex(tab);
    QVERIFY(QTest::qWaitForWindowExposed(admin));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(admin->size(), QSize(832, 594));

    QWidget *page = tabsOf(admin)->widget(tab);
    QList<QWidget *> controls;
    for (QWidget *w : page->findChildren<QWidget *>())
        if (w->isVisibleTo(page) && (qobject_cast<QAbstractButton *>(w) || qobject_cast<QLineEdit *>(w)
                                     || qobject_cast<QComboBox *>(w) || qobject_cast<QAbstractItemView *>(w)
                                     || qobject_cast<QDateEdit *>(w))
            && !qobject_cast<QAbstractItemView *>(w->parentWidget()) && w->objectName().size() > 0
            && !w->objectName().startsWith("qt_"))
            controls << w;
    QVERIFY(!controls.isEmpty());
    const QRect pageRect = page->rect();
    QList<QRect> rects;
    for (QWidget *w : controls) {
        const QRect r(w->mapTo(page, QPoint(0, 0)), w->size());
        QVERIFY2(pageRect.contains(r), qPrintable(w->objectName()));
        QVERIFY2(r.height() >= 10 && r.width() >= 10, qPrintable(w->objectName()));
        if (auto *button = qobject_cast<QPushButton *>(w))
            QVERIFY2(r.width() >= button->minimumSizeHint().width(), qPrintable(w->objectName()));
        rects << r;
    }
    for (int i = 0; i < rects.size(); ++i)
        for (int j = i + 1; j < rects.size(); ++j)
            QVERIFY2(!rects[i].intersects(rects[j]),
                     qPrintable(controls[i]->objectName() + " overlaps " + controls[j]->objectName()));
    for (const char *bottom : {"PushButton27_2", "buttonOk"}) {
        QWidget *button = admin->findChild<QWidget *>(bottom);
        QVERIFY(button->isVisible());
        QVERIFY(admin->rect().contains(QRect(button->mapTo(admin, QPoint(0, 0)), button->size())));
    }
}

void WindowTest::connectionsReachTheirSlots_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QStringList>("expected");

    const QStringList entry{"dispense_entry_changed"};
    QTest::newRow("active_tb") << "active_tb" << "click" << QStringList{"active_tb_clicked"};
    QTest::newRow("alt_lang_tb") << "alt_lang_tb" << "click" << QStringList{"alt_lang_tb_clicked"};
    QTest::newRow("auto_combo") << "auto_combo" << "activate:Medication" << QStringList{"autoCategorySelected:Medication"};
    QTest::newRow("auto_list selected") << "auto_list" << "select:Pill" << QStringList{"autoProcContSelected:Pill"};
    QTest::newRow("auto_list emptied") << "auto_list" << "deselect:Pill"
                                       << QStringList{"autoProcContSelected:null"};
    QTest::newRow("category_combo") << "category_combo" << "activate:Hospital"
                                    << QStringList{"categorySelected:Hospital"};
    QTest::newRow("class_combo") << "class_combo" << "activate:Schedule" << QStringList{"classChanged:2"};
    for (const char *field : {"code_tf", "description_tf", "description_A_tf", "uom_tf", "uom_A_tf", "level_tf",
                              "onorder_tf", "toqty_tf", "sell_tf"})
        QTest::newRow(field) << field << "type:7" << entry;
    QTest::newRow("cost_tf") << "cost_tf" << "type:12.5"
                             << QStringList{"dispense_entry_changed", "updateSell:12.5"};
    QTest::newRow("markup_tf") << "markup_tf" << "type:40"
                               << QStringList{"dispense_entry_changed", "updateSell:40"};
    QTest::newRow("supplier_combo") << "supplier_combo" << "activate:" << entry;
    QTest::newRow("sell_tf return") << "sell_tf" << "return" << QStringList{"forceSell"};
    QTest::newRow("Tax1_checkBox") << "Tax1_checkBox" << "toggle" << QStringList{"taxingChanged"};
    QTest::newRow("Tax2_checkBox") << "Tax2_checkBox" << "toggle" << QStringList{"taxingChanged"};
    QTest::newRow("checkBox9") << "checkBox9" << "toggle" << QStringList{"stockLevelCheck:on"};
    QTest::newRow("list selected") << "list" << "select:1001" << QStringList{"itemSelected:1001"};
    QTest::newRow("list emptied") << "list" << "deselect:1001" << QStringList{"itemSelected:null"};
    const char *const buttons[][2] = {
        {"new_pb", "newEntry"}, {"edit_pb", "modifyEntry"}, {"delete_pb", "deleteEntry"},
        {"PushButton5", "clear"}, {"pushButton28", "seachDispense"}, {"pushButton30", "noteEditor"},
        {"pushButton29", "stockLevelTrace"}, {"PushButton10", "newUser"}, {"PushButton9", "deleteUser"},
        {"PushButton12", "newPermission"}, {"PushButton11", "deletePermission"}, {"PushButton26", "updateUserId"},
        {"PushButton13", "processQuery"}, {"PushButton14", "exportQuery"}, {"PushButton15", "graphQuery"},
        {"PushButton16", "printQuery"}, {"PushButton7_2", "newSupplier"}, {"PushButton8_2", "updateSupplier"},
        {"PushButton6_2", "deleteSupplier"}, {"PushButton17", "clearSupply"}, {"PushButton7_2_2", "newAutoProc"},
        {"PushButton8_2_2", "updateAutoProc"}, {"PushButton6_2_2", "deleteAutoProc"},
        {"newContents_pb", "newAutoProcContents"}, {"updateContents_pb", "updateAutoProcContents"},
        {"deleteContents_pb", "deleteAutoProcContents"}, {"PushButton27_2", "showHelp"},
        {"PushButton4", "PushButton4_clicked"}};
    for (const auto &b : buttons)
        QTest::newRow(b[0]) << b[0] << "click" << QStringList{b[1]};
    QTest::newRow("users_list") << "users_list" << "select:vet" << QStringList{"userSelected:vet"};
    QTest::newRow("proc_list") << "proc_list" << "select:Spay" << QStringList{"autoProcSelected:1"};
    QTest::newRow("type_combo") << "type_combo" << "activate:Stock Values"
                                << QStringList{"reportMode:17", "clearList:17"};
    QTest::newRow("supply_list selected") << "supply_list" << "select:Acme" << QStringList{"supplierSelected:Acme"};
    QTest::newRow("supply_list emptied") << "supply_list" << "deselect:Acme"
                                         << QStringList{"supplierSelected:null"};
}

void WindowTest::connectionsReachTheirSlots()
{
    QFETCH(QString, sender);
    QFETCH(QString, how);
    QFETCH(QStringList, expected);
    auto admin = std::make_unique<RecordingAdmin>();
    if (sender == "supplier_combo")
        admin->ui.supplier_combo->addItem(QString());

    trigger(admin.get(), sender, how);

    QCOMPARE(admin->calls, expected);
}

void WindowTest::viewerPagesReachTableViewAction_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("slot");
    QTest::newRow("Prev") << "prevButton" << "tableViewAction:10";
    QTest::newRow("Next") << "nextButton" << "tableViewAction:11";
    QTest::newRow("Print All") << "printAllButton" << "tableViewAction:12";
}

void WindowTest::viewerPagesReachTableViewAction()
{
    QFETCH(QString, button);
    QFETCH(QString, slot);
    auto admin = std::make_unique<RecordingAdmin>();
    ZrRichText *viewer = admin->reportViewer();
    QVERIFY(viewer);
    QCOMPARE(viewer->parent(), admin.get());

    viewer->findChild<QPushButton *>(button)->click();

    QCOMPARE(admin->calls, QStringList{slot});
}

void WindowTest::openedOnGoodsWithTheTaxNames()
{
    Admin *admin = TestSupport::makeAdmin();
    QCOMPARE(admin->ui.category_combo->currentText(), QString("Goods"));
    QCOMPARE(admin->currentCategoryTable(), QString("Goods"));
    // "VAT" is named, the second tax is not: its box stays off and cannot be ticked.
    QCOMPARE(admin->ui.Tax1_checkBox->text(), QString("VAT"));
    QVERIFY(admin->ui.Tax1_checkBox->isEnabled());
    QVERIFY(admin->ui.Tax1_checkBox->isChecked());
    QCOMPARE(admin->ui.Tax2_checkBox->text(), QString());
    QVERIFY(!admin->ui.Tax2_checkBox->isEnabled());
    QVERIFY(!admin->ui.Tax2_checkBox->isChecked());
    QCOMPARE(admin->ui.ALINE1->text(), QString("Test Practice"));
}

void WindowTest::exitEndsTheEventLoop()
{
    Admin *admin = TestSupport::makeAdmin();
    QTimer::singleShot(0, admin->ui.buttonOk, &QPushButton::click);
    QTimer guard;
    guard.setSingleShot(true);
    connect(&guard, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    guard.start(5000);

    const int code = QApplication::exec();

    guard.stop();
    QCOMPARE(code, 0);
}

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
