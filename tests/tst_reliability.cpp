// The window when its database lets it down: a server that goes away under it (restarted, or away for a while) and a
// change whose n-th statement is refused; and the defects a review of the tabs found.
#include "admin.h"
#include "noteed.h"
#include "remarksicons.h"
#include "reportpractice.h"
#include "testsupport.h"

#include <QFileInfo>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>
#include <QTranslator>
#include <QApplication>
#include <QtTest>
#include <algorithm>
#include <memory>

using Table = QList<QStringList>;
using TestSupport::insert;

namespace {
TestSupport::ScriptedPrompter *prompter() { return TestSupport::prompter(); }
bool sqlite() { return TestSupport::engine() == Dialect::SQLite; }

// The database errors shown, each as its caption and first paragraph; a lost connection's with the second, which
// says whether it was opened again.
QStringList errors()
{
    QStringList shown;
    for (const auto &call : prompter()->calls)
        if (call.icon == Prompter::Critical)
            shown << call.caption + ": " + call.text.section("\n\n", 0, call.text.contains("could not be reached") ? 1 : 0);
    return shown;
}

QString lost(bool openedAgain)
{
    return "Quorel Database Error: The database could not be reached, and the change was not made.\n\n"
        + QString(openedAgain ? "The connection has been opened again: you can carry on, and repeat what you were doing."
                              : "The server cannot be reached yet. The program tries again with your next action.");
}

// The engine's server: "restart", "stop" or "resume", through the test servers' script. SQLite has no server: a
// "restart" closes the program's connection under it, as a server dropping it would.
bool server(const QString &command)
{
    if (sqlite()) {
        QSqlDatabase::database(QSqlDatabase::defaultConnection, false).close();
        return command == "restart";
    }
    const bool maria = TestSupport::engine() == Dialect::MySQL;
    const QString folder = qEnvironmentVariable(maria ? "QUOREL_MARIADB_DIR" : "QUOREL_PG_DIR");
    QProcess process;
    process.start("bash", {qEnvironmentVariable("QUOREL_DBSERVERS"), command, QFileInfo(folder).path(),
                           maria ? "mariadb" : "postgres"});
    return !folder.isEmpty() && process.waitForFinished(120000) && process.exitCode() == 0;
}

// Read on a connection of the test's own, opened for each read: reading on the program's would open it again before
// the program does.
Table observed(const QString &sql)
{
    Table out;
    {
        QSqlDatabase db = QSqlDatabase::cloneDatabase(QSqlDatabase::defaultConnection, "observer");
        QSqlQuery query(db.open() ? db : QSqlDatabase());
        if (!query.exec(sql))
            qWarning("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
        while (query.next()) {
            out << QStringList();
            for (int c = 0; c < query.record().count(); ++c)
                out.last() << query.value(c).toString();
        }
    }
    QSqlDatabase::removeDatabase("observer");
    return out;
}

// Every row of every table the changes touch, sorted: equal only when nothing was written.
Table snapshot()
{
    Table all;
    for (const char *table : {"Goods", "Vaccination", "AutoProc", "AutoProcContents", "StockTrace", "StockTraceItem",
                              "InvoiceItem", "Operators", "Permissions", "Supply", "SysInfo", "breeds"}) {
        Table some = observed(QString("SELECT * FROM ") + table);
        std::sort(some.begin(), some.end());
        all << QStringList{table} << some;
    }
    return all;
}

QStringList column(const QAbstractItemModel *model, int column)
{
    QStringList out;
    for (int row = 0; row < model->rowCount(); ++row)
        out << model->index(row, column).data(Qt::EditRole).toString();
    return out;
}

QStringList firstColumn(const QString &sql)
{
    QStringList out;
    for (const QStringList &row : observed(sql))
        out << row.value(0);
    return out;
}

// The lists of the window that differ from what the database holds.
QStringList listsAstray(Admin *admin)
{
    const Ui::Admin &ui = admin->ui;
    const QList<std::pair<QStringList, QString>> lists{
        {column(ui.list->model(), 1), "SELECT Description FROM " + admin->currentCategoryTable() + " ORDER BY Active='N',Description"},
        {column(ui.users_list->model(), 0), "SELECT Operator FROM Operators"},
        {column(ui.proc_list->model(), 0), "SELECT Description FROM AutoProc ORDER BY Description"},
        {column(ui.supply_list->model(), 0), "SELECT Company FROM Supply ORDER BY Company"},
        {column(admin->breedsModel(), admin->breedsModel()->fieldIndex("Description")), "SELECT Description FROM breeds ORDER BY Description"}};
    QStringList astray;
    for (const auto &[shown, sql] : lists)
        if (shown != firstColumn(sql))
            astray << sql + ": " + shown.join('|');
    return astray;
}

// The database refuses `event` (INSERT, UPDATE or DELETE) on `table` for each row where `condition` (on NEW or OLD)
// holds, with an error of its own, on every engine.
bool refuse(const QString &table, const QString &event, const QString &condition)
{
    const QString head = "CREATE TRIGGER refused_" + event + "_" + table + " BEFORE " + event + " ON " + table + " FOR EACH ROW ";
    switch (TestSupport::engine()) {
    case Dialect::SQLite:
        return TestSupport::exec(head + "WHEN " + condition + " BEGIN SELECT RAISE(ABORT, 'refused by the test'); END");
    case Dialect::MySQL:
        return TestSupport::exec(head + "BEGIN IF " + condition
                                 + " THEN SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'refused by the test'; END IF; END");
    default:
        return TestSupport::exec("CREATE OR REPLACE FUNCTION refused_by_the_test() RETURNS trigger LANGUAGE plpgsql "
                                 "AS $$ BEGIN RAISE EXCEPTION 'refused by the test'; END $$")
            && TestSupport::exec(head + "WHEN (" + condition + ") EXECUTE FUNCTION refused_by_the_test()");
    }
}

// Rabies (Vaccination 100) with its copies in the procedure Spay, the stock trace and an invoice; Bone (Goods 5) in
// stock; the user Vet with two rights; the supplier Acme; the breed Beagle.
bool practice()
{
    const QString product = "Code,Description,Schedule,UnitOfMeasure,Cost,MarkUp,Price,Quantity,Supplier,Active";
    return insert("Supply", "Company", {"Acme"})
        && insert("Vaccination", product + ",DaysToReminder", {"100", "Rabies", 1, "vial", 10.0, 1.5, 17.25, 0.0, "Acme", "Y", 365})
        && insert("Goods", product, {"5", "Bone", 0, "each", 2.0, 2.0, 4.6, 4.0, "Acme", "Y"})
        && insert("AutoProc", "Description", {"Spay"})
        && insert("AutoProcContents", "ProcId,Category,Code,Quantity,Charge", {1, "Vaccination", "100", 1.0, "Y"})
        && insert("AutoProcContents", "ProcId,Category,Code,Quantity,Charge", {1, "Goods", "5", 1.255, "N"})
        && insert("StockTrace", "MyDate,SP,Notes", {"2026-01-05", "Rec", "Delivery"})
        && insert("StockTraceItem", "TraceNumber,Category,Code,Quantity,UnitOfMeasure,Description,Schedule,Batch",
                  {1, "Vaccination", "100", 5.0, "vial", "Rabies", 1, "B1"})
        && insert("InvoiceItem", "InvoiceNumber,Category,Code,Description,UnitOfMeasure", {1, "Vaccination", "100", "Rabies", "vial"})
        && insert("Operators", "Operator,id,Initials,Diary,Commission", {"Vet", "v1", "VE", "N", 5.0})
        && insert("Permissions", "Operator,Class,Description", {"Vet", "Dispense", "Goods"})
        && insert("Permissions", "Operator,Class,Description", {"Vet", "Utility", "Backup"})
        && insert("breeds", "Description,Description_A", {"Beagle", "Brak"});
}

// The window where `change` is made: the category and product it needs, when it needs one.
Admin *windowFor(const QString &change)
{
    if (change.endsWith("product"))
        return TestSupport::openCategory(change == "deleted product" ? "Goods" : "Vaccination",
                                         change == "new product" ? QString() : change == "deleted product" ? "5" : "100");
    return TestSupport::makeAdmin();
}

// Makes `change` in the window, answering what it asks; `round` tells one time's texts from another's.
void make(Admin *admin, const QString &change, int round = 1)
{
    Ui::Admin &ui = admin->ui;
    const QString n = QString::number(round);
    QSqlTableModel *breeds = admin->breedsModel();
    if (change == "renamed breed") // asks nothing
        return (void)breeds->setData(breeds->index(0, breeds->fieldIndex("Description")), "Beagle " + n);
    if (change == "new user") {
        for (const char *answer : {"Nurse", "nn", "n1"})
            prompter()->answerText(answer);
        return admin->newUser();
    }
    prompter()->answer(0); // "&Yes"
    if (change == "new product") {
        for (auto [field, text] : {std::pair{ui.code_tf, "200"}, {ui.description_tf, "Lepto"}, {ui.dtr_tf, "90"}})
            field->setText(text);
        ui.supplier_combo->setCurrentText("Acme");
        admin->newEntry();
    } else if (change == "modified product") {
        for (auto [field, text] : {std::pair{ui.code_tf, "101"}, {ui.sell_tf, "19.99"}, {ui.dtr_tf, "730"}})
            field->setText(text);
        ui.description_tf->setText("Rabies " + n);
        admin->modifyEntry();
    } else if (change == "deleted product") {
        admin->deleteEntry();
    } else if (change == "deleted user") {
        ui.users_list->setCurrentItem(ui.users_list->findItems("Vet", Qt::MatchExactly).value(0));
        admin->deleteUser();
    } else if (change == "deleted procedure") {
        admin->deleteAutoProc();
    } else if (change == "new supplier") {
        ui.company_tf->setText("Zenith " + n);
        admin->newSupplier();
    }
}

// Loses the server in the middle of a new user's rights, after the first three classes are written.
class LosingAdmin : public Admin
{
public:
    bool lose = true, lost = false;
    void classChanged(int index) override
    {
        if (lose && index == 3) {
            lose = false;
            lost = server("restart");
        }
        Admin::classChanged(index);
    }
};

// Every text of the window's own context shown in brackets, as a translation would change it.
class Bracketing : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QByteArray(context) == "Admin" ? "[" + QString::fromUtf8(source) + "]" : QString();
    }
    bool isEmpty() const override { return false; }
};
} // namespace

class ReliabilityTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    // A case that failed half-way may have left the server away, or its loss still reported.
    void init()
    {
        QVERIFY(sqlite() || server("resume"));
        QCoreApplication::processEvents();
        EngineSuite::init();
        QVERIFY(practice());
    }

    // The next statement finds a server that went away: one message, nothing written, and the same change works the
    // next time, without a statement run again behind the user's back. A server still away is said to be so; once it
    // is back, the next action opens the connection itself. The product and the breed were changed once before, so
    // that what the window keeps from the old connection (the columns' widths, a prepared statement) is stale. SQLite,
    // with no server, opens a connection found closed before the statement, and the change works at once.
    void lostConnection_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("away"); // stopped for a while instead of restarted
        for (const char *change : {"new supplier", "modified product", "renamed breed"}) {
            QTest::addRow("%s, server restarted", change) << change << false;
            if (!sqlite())
                QTest::addRow("%s, server away for a while", change) << change << true;
        }
    }
    void lostConnection()
    {
        QFETCH(QString, change);
        QFETCH(bool, away);
        Admin *admin = windowFor(change);
        if (change != "new supplier")
            make(admin, change, 1);
        const Table stored = snapshot();
        QVERIFY(server(away ? "stop" : "restart"));

        make(admin, change, 2);

        QCOMPARE(errors(), sqlite() ? QStringList() : QStringList{lost(!away)});
        QVERIFY(!away || server("resume"));
        QCOMPARE(snapshot() == stored, !sqlite());
        QCOMPARE(listsAstray(admin), QStringList());
        if (sqlite())
            return;
        QCoreApplication::processEvents(); // the action is over
        prompter()->calls.clear();

        make(admin, change, 2);

        QCOMPARE(errors(), QStringList());
        QVERIFY(snapshot() != stored);
        QCOMPARE(listsAstray(admin), QStringList());
    }

    // A report finds the server gone like any other statement: one message, no rows, the cursor back; once the server
    // is there again the next run lists the same rows as before, without a message.
    void reportAfterTheServerWentAway_data()
    {
        QTest::addColumn<bool>("away"); // stopped for a while instead of restarted
        QTest::newRow("server restarted") << false;
        if (!sqlite())
            QTest::newRow("server away for a while") << true;
    }
    void reportAfterTheServerWentAway()
    {
        QFETCH(bool, away);
        Admin *admin = TestSupport::makeAdmin();
        ReportPractice::choose(admin, 17); // Stock Values: one statement per category
        admin->processQuery();
        const QList<QStringList> listed = ReportPractice::rows(admin);
        QVERIFY(!listed.isEmpty());
        QVERIFY(server(away ? "stop" : "restart"));

        admin->processQuery();

        QCOMPARE(errors(), sqlite() ? QStringList() : QStringList{lost(!away)});
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(ReportPractice::rows(admin), sqlite() ? listed : QList<QStringList>());
        QVERIFY(!away || server("resume"));
        QCoreApplication::processEvents(); // the action is over
        prompter()->calls.clear();

        admin->processQuery();

        QCOMPARE(errors(), QStringList());
        QCOMPARE(ReportPractice::rows(admin), listed);
    }

    // The server drops the connection with the new user and three classes of rights written in its transaction: the
    // server throws them away, nothing is written on the connection opened again, and the user can be added next.
    void lostInTheMiddleOfAChange()
    {
        const Table stored = snapshot();
        auto admin = std::make_unique<LosingAdmin>();

        make(admin.get(), "new user");

        QVERIFY(admin->lost);
        QCOMPARE(errors(), QStringList{lost(true)});
        QCOMPARE(snapshot(), stored);
        QCoreApplication::processEvents();
        prompter()->calls.clear();

        make(admin.get(), "new user");

        QCOMPARE(errors(), QStringList());
        QCOMPARE(observed("SELECT COUNT(*) FROM Permissions WHERE Operator='Nurse'"), Table{{"86"}});
        QCOMPARE(listsAstray(admin.get()), QStringList());
    }

    // Each statement of each change refused in turn: the database is left as it was, the refusal is the one error
    // shown, and the lists show what is stored. Without a refusal the change is written.
    void allOrNothing_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QStringList>("refused"); // table, event, condition; none: nothing refused
        const QList<std::pair<const char *, QStringList>> rows{
            {"new product", {}}, {"new product", {"Vaccination", "INSERT", "1=1"}},
            {"new product", {"Vaccination", "UPDATE", "1=1"}}, // the days to the reminder
            {"modified product", {}}, {"modified product", {"Vaccination", "UPDATE", "NEW.Price <> OLD.Price"}},
            {"modified product", {"Vaccination", "UPDATE", "NEW.DaysToReminder <> OLD.DaysToReminder"}},
            {"modified product", {"AutoProcContents", "UPDATE", "1=1"}}, {"modified product", {"StockTraceItem", "UPDATE", "1=1"}},
            {"modified product", {"InvoiceItem", "UPDATE", "1=1"}},
            {"deleted product", {}}, {"deleted product", {"Goods", "DELETE", "1=1"}},
            {"deleted product", {"StockTrace", "INSERT", "1=1"}}, {"deleted product", {"StockTraceItem", "INSERT", "1=1"}},
            {"new user", {}}, {"new user", {"Operators", "INSERT", "1=1"}}, {"new user", {"Permissions", "INSERT", "1=1"}},
            {"new user", {"Permissions", "INSERT", "NEW.Class = 'Stock'"}}, // the last class's rights
            {"deleted user", {}}, {"deleted user", {"Permissions", "DELETE", "1=1"}}, {"deleted user", {"Operators", "DELETE", "1=1"}},
            {"deleted procedure", {}}, {"deleted procedure", {"AutoProcContents", "DELETE", "1=1"}},
            {"deleted procedure", {"AutoProc", "DELETE", "1=1"}},
        };
        for (const auto &[change, refused] : rows)
            QTest::addRow("%s, %s", change, refused.isEmpty() ? "written" : qPrintable(refused.join(' '))) << QString(change) << refused;
    }
    void allOrNothing()
    {
        QFETCH(QString, change);
        QFETCH(QStringList, refused);
        const Table stored = snapshot();
        QVERIFY(refused.isEmpty() || refuse(refused[0], refused[1], refused[2]));
        Admin *admin = windowFor(change);

        make(admin, change);

        QCOMPARE(errors(), refused.isEmpty() ? QStringList() : QStringList{"Quorel Database Error: The database reported an error."});
        QVERIFY(refused.isEmpty() || prompter()->last().text.contains("refused by the test"));
        QCOMPARE(snapshot() == stored, !refused.isEmpty());
        QCOMPARE(listsAstray(admin), QStringList());
    }

    // The search button takes the focus when clicked: the field the user was in last decides what is searched for.
    void searchFromTheButton_data()
    {
        QTest::addColumn<QStringList>("fields"); // focused in turn
        QTest::addColumn<QString>("selected");
        QTest::newRow("code") << QStringList{"code_tf"} << "5";
        QTest::newRow("description after the code") << QStringList{"code_tf", "description_tf"} << "7";
        QTest::newRow("code after the description") << QStringList{"description_tf", "code_tf"} << "5";
    }
    void searchFromTheButton()
    {
        QFETCH(QStringList, fields);
        QFETCH(QString, selected);
        QVERIFY(insert("Goods", "Code,Description,Active", {"7", "Chew toy", "Y"}));
        Admin *admin = TestSupport::openCategory("Goods");
        admin->show();
        QApplication::setActiveWindow(admin);
        QVERIFY(QTest::qWaitForWindowActive(admin));
        for (const QString &name : fields)
            admin->findChild<QLineEdit *>(name)->setFocus();
        admin->ui.code_tf->setText("5");
        admin->ui.description_tf->setText("Chew toy");

        QTest::mouseClick(admin->ui.pushButton28, Qt::LeftButton);

        QCOMPARE(prompter()->calls.size(), 0);
        QCOMPARE(admin->ui.list->currentItem() ? admin->ui.list->currentItem()->text(0) : QString(), selected);
    }

    // After an inactive product was shown, a cleared form is a new, active entry that can be typed into.
    void clearedFormCanBeTyped_data()
    {
        QTest::addColumn<bool>("reload"); // the list reloaded instead of the clear button
        QTest::newRow("clear button") << false;
        QTest::newRow("list reloaded") << true;
    }
    void clearedFormCanBeTyped()
    {
        QFETCH(bool, reload);
        QVERIFY(insert("Goods", "Code,Description,Active", {"8", "Old stock", "N"}));
        Admin *admin = TestSupport::openCategory("Goods", "8");
        const Ui::Admin &ui = admin->ui;
        QVERIFY(!ui.active_tb->isChecked() && !ui.code_tf->isEnabled());

        reload ? admin->categorySelected("Goods") : ui.PushButton5->click();

        QVERIFY(ui.active_tb->isChecked());
        for (QWidget *field : QList<QWidget *>{ui.supplier_combo, ui.code_tf, ui.description_tf, ui.schedule_combo, ui.uom_tf,
                                               ui.markup_tf, ui.cost_tf, ui.quantity_tf, ui.level_tf, ui.toqty_tf,
                                               ui.onorder_tf, ui.description_A_tf, ui.uom_A_tf, ui.dtr_tf})
            QVERIFY2(field->isEnabled(), qPrintable(field->objectName()));
    }

    // An item whose quantity has more than two decimals (shown as 1.26) is changed all the same, by its line, and
    // keeps its quantity when only its charge changes.
    void procedureItemChangedByItsLine()
    {
        Admin *admin = TestSupport::makeAdmin();
        QTreeWidgetItem *bone = admin->ui.auto_list->findItems("Goods", Qt::MatchExactly).value(0);
        QVERIFY(bone && bone->text(1) == "1.26");
        admin->ui.auto_list->setCurrentItem(bone);
        QCOMPARE(admin->ui.auto_qty_tf->text(), QString("1.255"));
        admin->ui.checkBox8->setChecked(true);
        prompter()->answer(0);

        admin->updateAutoProcContents();

        QCOMPARE(observed("SELECT Category,Code,Quantity,Charge FROM AutoProcContents ORDER BY id"),
                 Table({{"Vaccination", "100", "1", "Y"}, {"Goods", "5", "1.255", "Y"}}));
        QCOMPARE(column(admin->ui.auto_list->model(), 5), QStringList({"17.25", "5.77"})); // charged now: 1.255 x 4.60
    }

    // The remarks icon says whether remarks are stored: it stays as it was when storing them failed.
    void remarksIconFollowsWhatIsStored_data()
    {
        QTest::addColumn<bool>("refused");
        QTest::newRow("stored") << false;
        QTest::newRow("refused") << true;
    }
    void remarksIconFollowsWhatIsStored()
    {
        QFETCH(bool, refused);
        QVERIFY(!refused || refuse("Goods", "UPDATE", "1=1"));
        Admin *admin = TestSupport::openCategory("Goods", "5");
        prompter()->answerDialog([](QDialog *dialog) {
            qobject_cast<NoteEd *>(dialog)->textEdit1->setPlainText("Keep dry");
            return int(QDialog::Accepted);
        });

        admin->noteEditor();

        QCOMPARE(errors().size(), refused ? 1 : 0);
        QCOMPARE(observed("SELECT Remarks FROM Goods"), Table{{refused ? "" : "Keep dry"}});
        const auto image = [](const QIcon &icon) { return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32); };
        QCOMPARE(image(admin->ui.pushButton30->icon()), image(remarksIcon(refused ? RemarksIcon::Blank : RemarksIcon::Present)));
    }

    // In another language the combos show translated words; the tables and classes written stay the suite's own.
    void storedWordsStayUntranslated()
    {
        Bracketing translation;
        QCoreApplication::installTranslator(&translation);
        const auto removed = qScopeGuard([&] { QCoreApplication::removeTranslator(&translation); });
        QVERIFY(insert("Medication", "Code,Description,Active", {"9", "Pill", "Y"}));
        Admin *admin = TestSupport::makeAdmin();
        QCOMPARE(admin->ui.auto_combo->itemText(6) + admin->ui.class_combo->itemText(6), QString("[Medication][Stock]"));

        emit admin->ui.auto_combo->textActivated("[Medication]");
        prompter()->answer(0);
        admin->newAutoProcContents();
        admin->ui.users_list->setCurrentRow(0);
        admin->ui.class_combo->setCurrentIndex(6);
        admin->classChanged(6);
        prompter()->answer(0);
        admin->newPermission();

        QCOMPARE(errors(), QStringList());
        QCOMPARE(observed("SELECT Category,Code FROM AutoProcContents ORDER BY id").last(), QStringList({"Medication", "9"}));
        QCOMPARE(observed("SELECT Class,Description FROM Permissions ORDER BY keynum").last(), QStringList({"Stock", "Price Adjustment"}));
    }
};

QTEST_MAIN(ReliabilityTest)
#include "tst_reliability.moc"
