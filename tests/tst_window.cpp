// The window: its tabs, the connections made at construction, the practice tab (either language) and the breeds.
#include "admin.h"
#include "globals.h"
#include "testsupport.h"
#include "utility.h"

#include <QRegularExpression>
#include <QSqlTableModel>
#include <QtTest>
#include <memory>

using TestSupport::ScriptedPrompter;
using Rows = QList<QStringList>;

namespace {

// Records which slot a connection reached instead of running it (construction still runs the base's slots).
class RecordingAdmin : public Admin
{
public:
    QStringList calls;
    template <typename T> static QString arg(T value) { return QVariant(value).toString(); }
    static QString arg(QTreeWidgetItem *item) { return item ? item->text(0) : "null"; }
    static QString arg(void *action) { return QString::number(quintptr(action)); }
#define RECORD(slot) void slot() override { calls << #slot; }
#define RECORD_ARG(slot, Type) void slot(Type a) override { calls << #slot ":" + arg(a); }
    RECORD(active_tb_clicked) RECORD(alt_lang_tb_clicked) RECORD(PushButton4_clicked) RECORD(modifyEntry)
    RECORD(newEntry) RECORD(deleteEntry) RECORD(clear) RECORD(forceSell) RECORD(deleteUser) RECORD(newUser)
    RECORD(deletePermission) RECORD(newPermission) RECORD(processQuery) RECORD(printQuery) RECORD(exportQuery)
    RECORD(graphQuery) RECORD(clearSupply) RECORD(newSupplier) RECORD(updateSupplier) RECORD(deleteSupplier)
    RECORD(newAutoProc) RECORD(updateAutoProc) RECORD(deleteAutoProc) RECORD(newAutoProcContents)
    RECORD(updateAutoProcContents) RECORD(deleteAutoProcContents) RECORD(updateUserId) RECORD(showHelp)
    RECORD(taxingChanged) RECORD(dispense_entry_changed) RECORD(seachDispense) RECORD(stockLevelTrace)
    RECORD(noteEditor) RECORD_ARG(categorySelected, const QString &) RECORD_ARG(autoCategorySelected, const QString &)
    RECORD_ARG(userSelected, const QString &) RECORD_ARG(updateSell, const QString &)
    RECORD_ARG(itemSelected, QTreeWidgetItem *) RECORD_ARG(supplierSelected, QTreeWidgetItem *)
    RECORD_ARG(autoProcContSelected, QTreeWidgetItem *) RECORD_ARG(classChanged, int) RECORD_ARG(reportMode, int)
    RECORD_ARG(clearList, int) RECORD_ARG(autoProcSelected, int) RECORD_ARG(stockLevelCheck, bool)
    RECORD_ARG(tableViewAction, void *)
#undef RECORD
#undef RECORD_ARG
};

// Gives a list a row to choose, forgets what setting the sender up set off, then makes the gesture
// a person would: "click", "toggle", "return", "type:<text>", "activate:<item>" or "select:<row>".
bool trigger(RecordingAdmin *admin, const QString &sender, const QString &how)
{
    auto *widget = admin->findChild<QWidget *>(sender);
    if (!widget)
        return false;
    widget->setEnabled(true); // the connection is checked here, not when the tab lets the sender act
    widget->blockSignals(false);
    const QString argument = how.section(':', 1);
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (view) { // the chosen row comes second
        view->model()->insertRows(0, 2);
        view->model()->setData(view->model()->index(1, 0), argument);
    }
    admin->calls.clear();
    if (view)
        view->setCurrentIndex(view->model()->index(1, 0));
    else if (auto *combo = qobject_cast<QComboBox *>(widget)) { // what a choice in the drop-down emits
        emit combo->activated(combo->findText(argument));
        emit combo->textActivated(argument);
    } else if (auto *field = qobject_cast<QLineEdit *>(widget))
        how == "return" ? QTest::keyClick(field, Qt::Key_Return) : field->setText(argument);
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        how == "toggle" ? button->toggle() : button->click();
    return true;
}

// The SysInfo columns in the order of the tab's load statements, each "column:field" where the field's name differs;
// the two rates have one column for both languages.
const QStringList practice = QString("ALINE1 ALINE2 ALINE3 ALINE4 ALINE5 ALINE6 ALINE7 InvFooter InvFooter1 RecFooter "
                                     "StatementFooter1 StatementFooter2 StatementFooter3 Tax1 Tax1Name Tax2 Tax2Name "
                                     "HandOverFooter:HandOver LABEL2:label2LineEdit LABEL3:label3LineEdit").split(' ');
QLineEdit *field(Admin *admin, const QString &entry) { return admin->findChild<QLineEdit *>(entry.section(':', -1)); }

QStringList storedPractice(bool alternative)
{
    QStringList columns;
    for (const QString &entry : practice)
        columns << entry.section(':', 0, 0) + (alternative && entry != "Tax1" && entry != "Tax2" ? "_A" : "");
    return TestSupport::rows("SELECT " + columns.join(',') + " FROM SysInfo").value(0);
}

// The practice fields' texts, after typing new ones when asked.
QStringList shownPractice(Admin *admin, bool typeNew = false)
{
    QStringList texts;
    for (const QString &entry : practice) {
        if (typeNew)
            field(admin, entry)->setText(entry == "Tax1" ? "0.14" : entry == "Tax2" ? "0.02" : entry + " new");
        texts << field(admin, entry)->text();
    }
    return texts;
}

// The product form's tax boxes: each caption, "+" when the box can be ticked, "-" when not.
QString taxBox(const QCheckBox *box) { return box->text() + (box->isEnabled() ? "+" : "-"); }
QString taxBoxes(const Ui::Admin &ui) { return taxBox(ui.Tax1_checkBox) + "|" + taxBox(ui.Tax2_checkBox); }

// Beagle, Collie and Dachshund, as the table shows them.
const Rows threeBreeds = {{"Beagle", "Brak"}, {"Collie", "Skaaphond"}, {"Dachshund", "Worshond"}};
Rows storedBreeds() { return TestSupport::rows("SELECT Description, Description_A FROM breeds ORDER BY Description"); }
int column(Admin *admin, const char *field) { return admin->breedsModel()->fieldIndex(field); }
QModelIndex cell(Admin *a, int row, const char *field) { return a->ui.table->model()->index(row, column(a, field)); }
QString header(Admin *a, const char *f) { return a->breedsModel()->headerData(column(a, f), Qt::Horizontal).toString(); }

// The window over the three breeds, stored out of order: the table sorts them by name. Names may not repeat here,
// so that every engine refuses a taken one.
Admin *withThreeBreeds()
{
    for (const QStringList &breed : {threeBreeds[2], threeBreeds[0], threeBreeds[1]})
        if (!TestSupport::exec("INSERT INTO breeds (Description, Description_A) VALUES ('" + breed.join("','") + "')"))
            return nullptr;
    return TestSupport::exec("CREATE UNIQUE INDEX breeds_unique_description ON breeds (Description)")
        ? TestSupport::makeAdmin() : nullptr;
}

Rows shownBreeds(Admin *admin)
{
    Rows out;
    for (int row = 0; row < admin->ui.table->model()->rowCount(); ++row)
        out << QStringList{cell(admin, row, "Description").data().toString(),
                           cell(admin, row, "Description_A").data().toString()};
    return out;
}

// What the table's editor does on leaving a cell.
bool editCell(Admin *admin, int row, const char *field, const QString &text)
{
    return admin->ui.table->model()->setData(cell(admin, row, field), text);
}

} // namespace

class WindowTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    // The window opens on its tabs and first category, and EXIT ends the event loop.
    void opensWithItsTabsAndExits()
    {
        Admin *admin = TestSupport::makeAdmin();
        const Ui::Admin &ui = admin->ui;
        QCOMPARE(admin->size(), QSize(832, 594)); // the form's layouts fit every tab into it
        auto *tabs = admin->findChild<QTabWidget *>();
        QVERIFY(admin->centralWidget()->isAncestorOf(tabs));
        QStringList captions; // each tab's caption and the titles and labels on it that name the program
        for (int i = 0; i < tabs->count(); ++i) {
            QStringList texts;
            for (QWidget *w : tabs->widget(i)->findChildren<QWidget *>())
                texts << w->property("title").toString() << w->property("text").toString();
            captions << tabs->tabText(i) + " " + texts.filter(QRegularExpression("^Quorel")).join('|');
        }
        QCOMPARE(captions, QStringList({"&SysInfo Quorel System Information", "&Dispense Quorel Table Management",
                                        "&Permissions Quorel User Permissions", "&Reports Quorel Report Writer",
                                        "&Breeds ", "&Suppliers Quorel Supplier Management",
                                        "&AutoProc Quorel Automated Procedure Management"}));
        QCOMPARE(QStringList({ui.alt_lang_tb->text(), ui.PushButton4->text(), ui.buttonOk->text(),
                              header(admin, "Description"), header(admin, "Description_A"),
                              QString::number(ui.table->columnWidth(column(admin, "Description_A"))),
                              ui.level_tf->toolTip(), ui.toqty_tf->toolTip(), ui.pushButton28->toolTip(),
                              ui.pushButton29->toolTip()}),
                 QStringList({"Alt Lang", "UPDATE", "EXIT", "Description", "Alt Lang", "256",
                              "Setting of -1 disables stock control", "A value of 0 disables stock control",
                              "If the <b>Code</b> field has focus search for that code, else search for the "
                              "<b>Description</b>", "Quick / Detailed Stock trace on current item."}));
        QVERIFY(ui.table->isColumnHidden(column(admin, "keynum")));
        QStringList headings; // the product list's columns, then the permission classes
        for (int i = 0; i < ui.list->columnCount(); ++i)
            headings << ui.list->headerItem()->text(i);
        for (int i = 0; i < ui.class_combo->count(); ++i)
            headings << ui.class_combo->itemText(i);
        QCOMPARE(headings.join('|'), QString("Code|Description|Schedule|Unit Of Measure|Cost Price|Sales Price|Stock Level|"
                                             "On Order|Order Date|Active|Dispense|Utility|Schedule|Procedure Schedule|"
                                             "Hospital Schedule|Stock Schedule|Stock"));
        // The category's words name the product tables; the window opens on the first.
        const QStringList categories{"Goods", "Hospital", "Consult", "Diagnosis", "Injection", "Lab", "Medication",
                                     "Proc", "Vaccination"};
        for (QComboBox *combo : {ui.category_combo, ui.auto_combo})
            for (int i = 0; i < qMax(combo->count(), 9); ++i)
                QCOMPARE(combo->itemText(i), categories.value(i));
        QCOMPARE(ui.category_combo->currentText() + "|" + admin->currentCategoryTable(), QString("Goods|Goods"));
        // "VAT" is named, the second tax is not: its box stays off and cannot be ticked.
        QCOMPARE(taxBoxes(ui), QString("VAT+|-"));
        QVERIFY(ui.Tax1_checkBox->isChecked() && !ui.Tax2_checkBox->isChecked());
        QTimer::singleShot(0, ui.buttonOk, &QPushButton::click);
        QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); }); // should EXIT do nothing
        QCOMPARE(QApplication::exec(), 0);
    }

    void connectionsReachTheirSlots_data()
    {
        QTest::addColumn<QString>("sender");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QStringList>("expected");
        // "sender [gesture] slot[,slot]", a click when no gesture is named; the report viewer's buttons pass 10 to 12.
        const QString rows =
            "active_tb active_tb_clicked|alt_lang_tb alt_lang_tb_clicked|new_pb newEntry|edit_pb modifyEntry|"
            "delete_pb deleteEntry|PushButton5 clear|pushButton28 seachDispense|pushButton30 noteEditor|"
            "pushButton29 stockLevelTrace|PushButton10 newUser|PushButton9 deleteUser|PushButton12 newPermission|"
            "PushButton11 deletePermission|PushButton26 updateUserId|PushButton13 processQuery|"
            "PushButton14 exportQuery|PushButton15 graphQuery|PushButton16 printQuery|PushButton7_2 newSupplier|"
            "PushButton8_2 updateSupplier|PushButton6_2 deleteSupplier|PushButton17 clearSupply|"
            "PushButton7_2_2 newAutoProc|PushButton8_2_2 updateAutoProc|PushButton6_2_2 deleteAutoProc|"
            "newContents_pb newAutoProcContents|updateContents_pb updateAutoProcContents|"
            "deleteContents_pb deleteAutoProcContents|PushButton27_2 showHelp|PushButton4 PushButton4_clicked|"
            "prevButton tableViewAction:10|nextButton tableViewAction:11|printAllButton tableViewAction:12|"
            "sell_tf return forceSell|Tax1_checkBox toggle taxingChanged|Tax2_checkBox toggle taxingChanged|"
            "checkBox9 toggle stockLevelCheck:true|auto_combo activate:Medication autoCategorySelected:Medication|"
            "category_combo activate:Hospital categorySelected:Hospital|class_combo activate:Schedule classChanged:2|"
            "supplier_combo activate: dispense_entry_changed|type_combo activate:Commission reportMode:21,clearList:21|"
            "list select:1001 itemSelected:1001|auto_list select:Pill autoProcContSelected:Pill|"
            "supply_list select:Acme supplierSelected:Acme|users_list select:vet userSelected:vet|"
            "proc_list select:Spay autoProcSelected:1|cost_tf type:12.5 dispense_entry_changed,updateSell:12.5|"
            "markup_tf type:40 dispense_entry_changed,updateSell:40";
        for (const QString &row : rows.split('|')) {
            const QStringList parts = row.split(' ');
            const QString how = parts.size() == 3 ? parts[1] : "click";
            QTest::newRow(qPrintable(parts[0] + " " + how)) << parts[0] << how << parts.last().split(',');
        }
        for (const char *field : {"code_tf", "description_tf", "description_A_tf", "uom_tf", "uom_A_tf", "level_tf",
                                  "onorder_tf", "toqty_tf", "sell_tf"})
            QTest::newRow(field) << field << "type:7" << QStringList{"dispense_entry_changed"};
    }
    void connectionsReachTheirSlots()
    {
        QFETCH(QString, sender);
        QFETCH(QString, how);
        auto admin = std::make_unique<RecordingAdmin>();
        admin->ui.supplier_combo->addItem(QString());
        QVERIFY2(trigger(admin.get(), sender, how), qPrintable(sender));
        QTEST(admin->calls, "expected");
    }

    // A language without a row or a title to load leaves the fields as they are.
    void practiceNothingToLoadLeavesTheFields_data()
    {
        QTest::addColumn<bool>("alternative"); // the language of the last click
        QTest::addColumn<QString>("statement");
        QTest::newRow("no row, alternative") << true << "DELETE FROM SysInfo";
        QTest::newRow("no row, main") << false << "DELETE FROM SysInfo";
        QTest::newRow("alternative title NULL") << true << "UPDATE SysInfo SET ALINE1_A=NULL";
        QTest::newRow("main title NULL") << false << "UPDATE SysInfo SET ALINE1=NULL";
    }
    void practiceNothingToLoadLeavesTheFields()
    {
        QFETCH(bool, alternative);
        QFETCH(QString, statement);
        Admin *admin = TestSupport::makeAdmin();
        if (!alternative)
            admin->ui.alt_lang_tb->click();
        const QStringList typed = shownPractice(admin, true);
        QVERIFY(TestSupport::exec(statement));
        admin->ui.alt_lang_tb->click();
        QCOMPARE(admin->ui.alt_lang_tb->isChecked(), alternative);
        QCOMPARE(shownPractice(admin), typed);
        QVERIFY(TestSupport::prompter()->calls.isEmpty());
    }

    // UPDATE asks first and writes the shown language, the other left as it was but for the rates both share. A
    // main-language save captions the product form's tax boxes, each enabled exactly when named.
    void practiceSaveWritesTheShownLanguage_data()
    {
        QTest::addColumn<bool>("alternative");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("saved"); // or cancelled: the answer is No
        QTest::newRow("main") << false << "ALINE1" << "Main Road Vets" << true;
        QTest::newRow("main, first tax unnamed") << false << "Tax1Name" << "" << true;
        QTest::newRow("alternative, first tax unnamed") << true << "Tax1Name" << "" << true;
        QTest::newRow("main, No") << false << "Tax1Name" << "" << false;
    }
    void practiceSaveWritesTheShownLanguage()
    {
        QFETCH(bool, alternative);
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(bool, saved);
        Admin *admin = TestSupport::makeAdmin();
        if (alternative)
            admin->ui.alt_lang_tb->click();
        QCOMPARE(shownPractice(admin), storedPractice(alternative)); // each language loads into the fields
        QStringList other = storedPractice(!alternative);
        const Rows before = TestSupport::rows("SELECT * FROM SysInfo");
        shownPractice(admin, true);
        admin->findChild<QLineEdit *>(field)->setText(text);
        ScriptedPrompter *prompter = TestSupport::prompter();
        prompter->answer(saved ? 0 : 1);

        admin->ui.PushButton4->click();

        const ScriptedPrompter::Call &question = prompter->calls.value(0), &last = prompter->last();
        QCOMPARE(QStringList({question.caption, question.text, QString::number(question.defaultIndex)}), // 1: "&No"
                 QStringList({"Quorel Admin", "Confirm that you wish to update the system information as shown ?", "1"}));
        QCOMPARE(prompter->calls.size(), saved ? 1 : 2);
        if (saved) {
            other[13] = "0.14"; // Tax1 and Tax2 are shared by both languages
            other[15] = "0.02";
            QCOMPARE(storedPractice(alternative), shownPractice(admin));
            QCOMPARE(storedPractice(!alternative), other);
        } else {
            QCOMPARE(TestSupport::rows("SELECT * FROM SysInfo"), before);
            QCOMPARE(last.caption + "|" + last.text, QString("Update System Information|Operation cancelled"));
        }
        QCOMPARE(utils->getTax1(), saved ? 0.14 : 0.15); // the shared library reads the rates again
        const QString tax1 = admin->ui.Tax1Name->text();
        QCOMPARE(taxBoxes(admin->ui), !alternative && saved
                                          ? tax1 + (tax1.isEmpty() ? "-" : "+") + "|Tax2Name new+" : "VAT+|-");
    }

    // Every edited cell is written at once, a new row under the name typed into it; a write the database refuses is
    // shown and undone, and the table goes on working. A delete asks first.
    void breedsEditAndDelete_data()
    {
        QTest::addColumn<int>("row");       // 3: a row added with the button; -1: none highlighted
        QTest::addColumn<QString>("field"); // none: delete, answering "0" (Yes) or "1" (No) or not asked ("")
        QTest::addColumn<QString>("text");
        QTest::addColumn<Rows>("stored");
        QTest::addColumn<QStringList>("messages"); // each one's first line
        const QStringList beagle{"Beagle", "Brak"}, dachshund{"Dachshund", "Worshond"};
        const QStringList none, refused{"The database reported an error."};
        const QString question = "Confirm that you will delete the breed 'Collie'";
        QTest::newRow("description") << 1 << "Description" << "Bearded Collie"
                                     << Rows{beagle, {"Bearded Collie", "Skaaphond"}, dachshund} << none;
        QTest::newRow("emptied") << 1 << "Description" << "" << Rows{{"", "Skaaphond"}, beagle, dachshund} << none;
        QTest::newRow("added") << 3 << "Description" << "Airedale" << Rows{{"Airedale", ""}} + threeBreeds << none;
        QTest::newRow("renamed to a taken name") << 1 << "Description" << "Beagle" << threeBreeds << refused;
        QTest::newRow("added under a taken name") << 3 << "Description" << "Beagle" << threeBreeds << refused;
        QTest::newRow("delete, yes") << 1 << "" << "0" << Rows{beagle, dachshund} << QStringList{question};
        QTest::newRow("delete, no") << 1 << "" << "1" << threeBreeds << QStringList{question, "Operation cancelled"};
        QTest::newRow("delete, nothing highlighted") << -1 << "" << "" << threeBreeds
                                                     << QStringList{"You must highlight a breed to delete"};
    }
    void breedsEditAndDelete()
    {
        QFETCH(int, row);
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QStringList, messages);
        Admin *admin = withThreeBreeds();
        QVERIFY(admin);
        QCOMPARE(shownBreeds(admin), threeBreeds);
        if (row == 3) {
            admin->ui.addBreed_pb->click();
            QCOMPARE(admin->ui.table->currentIndex(), cell(admin, 3, "Description"));
        }
        ScriptedPrompter *prompter = TestSupport::prompter();
        if (field.isEmpty()) {
            admin->ui.table->setCurrentIndex(cell(admin, row, "Description"));
            if (!text.isEmpty())
                prompter->answer(text.toInt());
            admin->ui.deleteBreed_pb->click();
        } else
            QCOMPARE(editCell(admin, row, field.toLatin1(), text), messages.isEmpty());

        QCOMPARE(prompter->messageTexts().replaceInStrings(QRegularExpression("(?s)\n.*"), ""), messages);
        const int icon = field.isEmpty() ? (row < 0 ? Prompter::Warning : Prompter::Information) : Prompter::Critical;
        if (!messages.isEmpty()) // a question defaults to "&No"
            QCOMPARE(QList<int>({prompter->calls[0].icon, prompter->calls[0].defaultIndex}),
                     QList<int>({icon, field.isEmpty() && row >= 0 ? 1 : 0}));
        QTEST(storedBreeds(), "stored");
        QCOMPARE(shownBreeds(admin), storedBreeds());
        QVERIFY(editCell(admin, shownBreeds(admin).size() - 1, "Description_A", "Teckel"));
        QCOMPARE(storedBreeds().last(), QStringList({"Dachshund", "Teckel"}));
    }
};

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
