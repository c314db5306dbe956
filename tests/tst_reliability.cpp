// The window when its database lets it down: a server that goes away under it (restarted, or away for a while) and a
// change whose n-th statement is refused; and the words stored whatever language the window shows.
#include "admin.h"
#include "noteed.h"
#include "remarksicons.h"
#include "reportpractice.h"
#include "testsupport.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>
#include <QTranslator>
#include <QtTest>
#include <memory>

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

// The rows, each with its cells joined by "|", read on a connection of the test's own, opened for each read: reading
// on the program's would open it again before the program does.
QStringList observed(const QString &sql)
{
    QStringList out;
    {
        QSqlDatabase db = QSqlDatabase::cloneDatabase(QSqlDatabase::defaultConnection, "observer");
        QSqlQuery query(db.open() ? db : QSqlDatabase());
        if (!query.exec(sql))
            qWarning("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
        while (query.next()) {
            QStringList cells;
            for (int c = 0; c < query.record().count(); ++c)
                cells << query.value(c).toString();
            out << cells.join('|');
        }
    }
    QSqlDatabase::removeDatabase("observer");
    return out;
}

// Every row of every table the changes touch, sorted: equal only when nothing was written.
QStringList snapshot()
{
    QStringList all;
    for (const char *table : {"Goods", "Vaccination", "AutoProc", "AutoProcContents", "StockTrace", "StockTraceItem",
                              "InvoiceItem", "Operators", "Permissions", "Supply", "SysInfo", "breeds"}) {
        QStringList rows = observed(QString("SELECT * FROM ") + table);
        rows.sort();
        all << table << rows;
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

QImage image(const QIcon &icon) { return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32); }

// What the window shows that the database does not hold: its lists, and the remarks icon of the product in the form.
QStringList astray(Admin *admin)
{
    const Ui::Admin &ui = admin->ui;
    const QString table = admin->currentCategoryTable();
    const QList<std::pair<QStringList, QString>> lists{
        {column(ui.list->model(), 1), "SELECT Description FROM " + table + " ORDER BY Active='N',Description"},
        {column(ui.users_list->model(), 0), "SELECT Operator FROM Operators"},
        {column(ui.proc_list->model(), 0), "SELECT Description FROM AutoProc ORDER BY Description"},
        {column(ui.supply_list->model(), 0), "SELECT Company FROM Supply ORDER BY Company"},
        {column(admin->breedsModel(), admin->breedsModel()->fieldIndex("Description")), "SELECT Description FROM breeds ORDER BY Description"}};
    QStringList astray;
    for (const auto &[shown, sql] : lists)
        if (shown != observed(sql))
            astray << sql + ": " + shown.join('|');
    const QTreeWidgetItem *product = ui.list->currentItem();
    if (product && product->text(0) == ui.code_tf->text()) {
        const bool remarks = !observed("SELECT Remarks FROM " + table + " WHERE Code='" + product->text(0) + "'").value(0).isEmpty();
        if (image(ui.pushButton30->icon()) != image(remarksIcon(remarks ? RemarksIcon::Present : RemarksIcon::Blank)))
            astray << "the remarks icon of " + product->text(0);
    }
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
        && insert("AutoProcContents", "ProcId,Category,Code,Quantity,Charge", {1, "Goods", "5", 2.0, "N"})
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
    return change == "remarks" ? TestSupport::openCategory("Goods", "5") : TestSupport::makeAdmin();
}

// Makes `change` in the window, answering what it asks; `round` tells one time's texts from another's.
void make(Admin *admin, const QString &change, int round = 1)
{
    Ui::Admin &ui = admin->ui;
    const QString n = QString::number(round);
    QSqlTableModel *breeds = admin->breedsModel();
    if (change == "renamed breed") // asks nothing
        return (void)breeds->setData(breeds->index(0, breeds->fieldIndex("Description")), "Beagle " + n);
    if (change == "report") { // Stock Values: one statement per category
        ReportPractice::choose(admin, 17);
        return admin->processQuery();
    }
    if (change == "remarks") {
        prompter()->answerDialog([](QDialog *dialog) {
            qobject_cast<NoteEd *>(dialog)->textEdit1->setPlainText("Keep dry");
            return int(QDialog::Accepted);
        });
        return admin->noteEditor();
    }
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

// Restarts the server in the middle of a new user's rights, after the first three classes are written.
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

    // The statement that finds the server gone is reported once, in a message that says whether the connection is
    // open again; nothing is written, no statement is run again behind the user's back, and the window shows what is
    // stored. Once the server is back, the same action works. The product, the breed and the report were run once
    // before, so that what the window keeps from the old connection (the columns' widths, a prepared statement) is
    // stale; the supplier's first statement reads the widths. A server restarted in the midst of a change throws away
    // what the change wrote. SQLite, with no server, opens a connection found closed before the statement, and the
    // change works at once; closed in the midst of a change, it is lost like a server's.
    void lostConnection_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("loss");
        for (const char *change : {"new supplier", "modified product", "renamed breed", "report"}) {
            QTest::addRow("%s, server restarted", change) << change << "restarted";
            if (!sqlite())
                QTest::addRow("%s, server away for a while", change) << change << "away";
        }
        QTest::newRow("new user, server restarted in its midst") << "new user" << "midst";
    }
    void lostConnection()
    {
        QFETCH(QString, change);
        QFETCH(QString, loss);
        const bool away = loss == "away", midst = loss == "midst";
        const std::unique_ptr<LosingAdmin> losing = midst ? std::make_unique<LosingAdmin>() : nullptr;
        Admin *admin = midst ? losing.get() : windowFor(change);
        if (change != "new supplier" && change != "new user")
            make(admin, change, 1);
        const QStringList stored = snapshot();
        const auto made = [&] { return snapshot() != stored || !ReportPractice::rows(admin).isEmpty(); };
        QVERIFY(midst || server(away ? "stop" : "restart"));

        make(admin, change, 2);

        const bool noticed = !sqlite() || midst;
        QVERIFY(!midst || losing->lost);
        QCOMPARE(errors(), noticed ? QStringList{lost(!away)} : QStringList());
        QVERIFY(!away || server("resume"));
        QCOMPARE(made(), !noticed);
        QCOMPARE(astray(admin), QStringList());
        QVERIFY(!QApplication::overrideCursor());
        if (!noticed)
            return;
        QCoreApplication::processEvents(); // the action is over
        prompter()->calls.clear();

        make(admin, change, 2);

        QCOMPARE(errors(), QStringList());
        QVERIFY(made());
        QCOMPARE(astray(admin), QStringList());
    }

    // Each statement of each change refused in turn: the database is left as it was, the refusal is the one error
    // shown, and the window shows what is stored (the remarks icon too).
    void allOrNothing_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("refused"); // table, event and the condition on NEW or OLD
        for (const char *row : {"new product: Vaccination INSERT 1=1",
                                "new product: Vaccination UPDATE 1=1", // the days to the reminder
                                "modified product: Vaccination UPDATE NEW.Price <> OLD.Price",
                                "modified product: Vaccination UPDATE NEW.DaysToReminder <> OLD.DaysToReminder",
                                "modified product: AutoProcContents UPDATE 1=1", "modified product: StockTraceItem UPDATE 1=1",
                                "modified product: InvoiceItem UPDATE 1=1", "deleted product: Goods DELETE 1=1",
                                "deleted product: StockTrace INSERT 1=1", "deleted product: StockTraceItem INSERT 1=1",
                                "new user: Operators INSERT 1=1", "new user: Permissions INSERT 1=1",
                                "new user: Permissions INSERT NEW.Class = 'Stock'", // the last class's rights
                                "deleted user: Permissions DELETE 1=1", "deleted user: Operators DELETE 1=1",
                                "deleted procedure: AutoProcContents DELETE 1=1", "deleted procedure: AutoProc DELETE 1=1",
                                "remarks: Goods UPDATE 1=1"})
            QTest::newRow(row) << QString(row).section(": ", 0, 0) << QString(row).section(": ", 1);
    }
    void allOrNothing()
    {
        QFETCH(QString, change);
        QFETCH(QString, refused);
        const QStringList stored = snapshot();
        QVERIFY(refuse(refused.section(' ', 0, 0), refused.section(' ', 1, 1), refused.section(' ', 2)));
        Admin *admin = windowFor(change);

        make(admin, change);

        QCOMPARE(errors(), QStringList{"Quorel Database Error: The database reported an error."});
        QVERIFY(prompter()->last().text.contains("refused by the test"));
        QCOMPARE(snapshot(), stored);
        QCOMPARE(astray(admin), QStringList());
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
        QCOMPARE(observed("SELECT Category,Code FROM AutoProcContents ORDER BY id").last(), QString("Medication|9"));
        QCOMPARE(observed("SELECT Class,Description FROM Permissions ORDER BY keynum").last(), QString("Stock|Price Adjustment"));
    }
};

QTEST_MAIN(ReliabilityTest)
#include "tst_reliability.moc"
