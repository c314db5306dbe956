// What the program stands on, on the live engine: the suite library (SQL escaping, numbers, tax,
// ROT13, validators, list rows, the practice data, database errors, the login), the rules chosen by
// the driver setting, what the statements need of each engine's schema, and quorel-db's demo practice.
#include "demodata.h"
#include "dialect.h"
#include "globals.h"
#include "logindialog.h"
#include "testsupport.h"
#include "utility.h"
#include "validators.h"
#include "zrlistitem.h"

#include <QSettings>
#include <QSqlError>
#include <QSqlRecord>
#include <QTreeWidget>
#include <QtTest>

using TestSupport::exec;
using TestSupport::rows;
using TestSupport::value;

namespace {
template <class... Column> using Rows = std::initializer_list<std::tuple<Column...>>;
const QString driverKey = "/Global/DBDriver";
// The driver settings each engine may carry; the harness writes the first.
const QStringList settingsOf[] = {{"QMYSQL3", "QMYSQL"}, {"QSQLITE"}, {"QPSQL7", "QPSQL"}};
const QStringList titleParts{"'  '", "Title", "' '", "Initials"};
const QString movement = "INSERT INTO StockTrace (MyDate, SP, Notes, Supplier, InvoiceNumber, Adjustment) "
                         "VALUES ('2026-03-01','Admin','%1','','','Y')";

const QString product =
    "INSERT INTO %1 (Code,Description,Schedule,UnitOfMeasure,Price,MarkUp,Cost,Quantity,ReOrder,ToQuantity,OnOrder,"
    "Supplier,Description_A,UnitOfMeasure_A,Tax1,Tax2,Remarks,Active) VALUES ('%2','%3','4','Tablet','11.50','1.5',"
    "'6.67','0','5','15','0','Afrivet','','Tablet','Y','N','','Y')";
} // namespace

class FoundationTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        settings->setValue(driverKey, settingsOf[TestSupport::engine()].first());
        EngineSuite::cleanup();
    }

    // Into an INSERT and a WHERE as the program builds them, and back unchanged; no engine keeps a NUL
    // inside a text value, so it is dropped the same everywhere.
    void escapedTextIsStoredAndFoundAsTyped()
    {
        for (const QString &typed : QStringList{"O'Brien's", "x'); DROP TABLE Supply; --", "C:\\vet\\new", "ends in \\",
                                                "\\'", "\\\\''\\", "100% _x_", "Müller Éloïse 🐶", "line 1\nline 2\r\n\tend",
                                                "a" + QString(QChar(0)) + "b'c"}) {
            const QString literal = utils->escapeSQL(typed, false);
            QVERIFY(exec("DELETE FROM Supply") && exec("INSERT INTO Supply (Company, PostalAddr) VALUES ('Acme', '" + literal + "')"));
            QCOMPARE(value("SELECT PostalAddr FROM Supply WHERE PostalAddr='" + literal + "'").toString(), QString(typed).remove(QChar(0)));
        }
    }

    // Ties round half away from zero on the value as written, whatever its binary form: 1.005 is
    // stored just below, and so is the half cent of 2.01 x 0.5.
    void numbersAndTaxAreRoundedAsWritten()
    {
        for (const auto &[number, decimals, text] : Rows<double, int, const char *>{
                 {1.005, 2, "1.01"}, {-1.005, 2, "-1.01"}, {1.15 * 1.5, 2, "1.73"}, {0.1 + 0.2, 2, "0.30"},
                 {1.00499, 2, "1.00"}, {-0.004, 2, "0.00"}, {-2.5, 0, "-3"}, {1.0000005, 6, "1.000001"}})
            QCOMPARE(Utility::numStr(number, decimals), QString(text));
        for (const auto &[amount, rate, tax] : Rows<double, double, double>{
                 {9.99, 0.15, 1.50}, {10.01, 0.14, 1.40}, {2.01, 0.5, 1.01}, {4.10, 0.25, 1.03}, {-2.01, 0.5, -1.01}})
            QCOMPARE(Utility::calcTax(amount, rate), tax);
        // A comma groups thousands or makes no number at all (0 here).
        for (const auto &[text, number] : Rows<const char *, double>{
                 {".5", 0.5}, {" 1 234.5 ", 1234.5}, {"1,234,567.8", 1234567.8}, {"12,5", 0}, {"", 0}, {"12abc", 0}, {"inf", 0},
                 {" -12.50", -12.5}, {"+3", 3}, {"-", 0}, {"Smith 12", 0}, {"e5", 0}}) {
            bool ok = number == 0; // the opposite of what must be reported; the list is built in order
            QCOMPARE(QVariantList({Utility::strNum(text, &ok), ok}), QVariantList({number, number != 0}));
        }
        QCOMPARE(Utility::rot13("NOPQRSTUVWXYZABCDEFGHIJKLM nopqrstuvwxyzabcdefghijklm"),
                 QString("ABCDEFGHIJKLMNOPQRSTUVWXYZ abcdefghijklmnopqrstuvwxyz"));
        QCOMPARE(Utility::rot13("van der Merwe-O'Neil 3 @[`{ Müller 🐶"), QString("ina qre Zrejr-B'Arvy 3 @[`{ Züyyre 🐶"));
    }

    void validatorsOfTheEntryForms()
    {
        const auto ok = QValidator::Acceptable, partly = QValidator::Intermediate, bad = QValidator::Invalid;
        MoneyValidator cost(nullptr, 3, "cost");
        DecimalValidator markup(9999.0, 0.0, 6, nullptr, "markup"), percentage(100.0, 0.0, 4, nullptr, "percentage");
        LimitValidator unit(nullptr, "unit", 10, false), description(nullptr, "description", 38, true);
        for (const auto &[validator, input, state] : Rows<QValidator *, QString, QValidator::State>{
                 {&cost, "12.345", ok}, {&cost, "12.3456", bad}, {&cost, "12.", ok}, {&cost, ".", partly},
                 {&cost, "", partly}, {&cost, "-1", bad}, {&cost, "1,5", bad}, {&markup, "9999", ok},
                 {&markup, "9999.000001", bad}, {&markup, "1.1234567", bad}, {&markup, "-1", bad}, {&markup, "1e3", bad},
                 {&percentage, "100.0001", bad}, {&percentage, "55.5555", ok}, {&unit, "abcdefghijk", bad},
                 {&unit, " ml", ok}, {&description, QString(38, 'd'), ok}, {&description, QString(39, 'd'), bad},
                 {&description, " Bandage", bad}, {&description, "Crepe bandage ", ok}}) {
            QString text = input;
            int pos = text.size();
            QVERIFY2(validator->validate(text, pos) == state, qPrintable(validator->objectName() + " '" + input + "'"));
        }
    }

    // The two marked looks of a list row differ from the normal one and from each other; 0 undoes them.
    void listRowLooks()
    {
        QTreeWidget list;
        auto *row = new ZrListItem(&list);
        auto look = [row](int variant) {
            row->setAltVisual(variant);
            return QVariantList{row->data(0, Qt::ForegroundRole), row->data(0, Qt::BackgroundRole), row->data(0, Qt::FontRole)};
        };
        const QVariantList normal = look(0), first = look(1), second = look(2);
        QVERIFY(normal != first && normal != second && first != second);
        QCOMPARE(look(0), normal);
    }

    // Reloading says nothing; a failed statement and an empty SysInfo (a missing one: at start-up) are critical.
    void practiceIsReadAndErrorsAreShown()
    {
        QCOMPARE(QVariantList({utils->getTax1Name(), utils->getTax1(), utils->getTax2()}), QVariantList({"VAT", 0.15, 0.0}));
        QVERIFY(exec("UPDATE SysInfo SET Tax1=0.14, Tax1Name='BTW', Tax2=0.025, Tax2Name='Levy'")
                && utils->initClass(true));
        QCOMPARE(QVariantList({utils->getTax1Name(), utils->getTax1(), utils->getTax2Name(), utils->getTax2()}),
                 QVariantList({"BTW", 0.14, "Levy", 0.025}));
        QSqlQuery query;
        QVERIFY(!query.exec("SELECT NoSuchColumn FROM Supply") && utils->showDBError(query));
        QVERIFY(exec("DELETE FROM SysInfo") && !Utility("Admin").initClass(false));
        QStringList said;
        for (const TestSupport::ScriptedPrompter::Call &call : TestSupport::prompter()->calls)
            said << (call.icon == Prompter::Critical ? "critical " : "other ") + call.caption + ": " + call.text;
        const QSqlError error = query.lastError();
        QCOMPARE(said, QStringList({"critical Quorel Database Error: The database reported an error.\n\nDriver: "
                                        + error.driverText() + "\nDatabase: " + error.databaseText()
                                        + "\n\nStatement:\nSELECT NoSuchColumn FROM Supply",
                                    "critical Quorel: The table SysInfo holds no practice information. "
                                    "Create its row before starting the program."}));
    }

    // Attempts in turn ("id/code", or "-" to cancel), each ending as the result and the login it leaves:
    // the dialog after a wrong one says so, and a new helper starts afresh.
    void loginChecksIdAndCodeExactly()
    {
        QVERIFY(exec("INSERT INTO Operators (Operator, id) VALUES ('admin', '" + utils->escapeSQL("Se'cret\\", false)
                     + "'), ('bob', 'bob')"));
        const QString wrong = "The login id or code is not correct. Try again.";
        Utility fresh("Admin");
        for (const auto &[helper, login, said, ends] : Rows<Utility *, QString, QString, QString>{
                 {utils, "admin/Se'cret\\", "", "0 admin"}, {utils, "admin/bob", "", "1 admin"},
                 {utils, "admin/SE'CRET\\", wrong, "1 admin"}, {utils, "admin/Se'cret\\ ", wrong, "1 admin"},
                 {utils, "Admin/Se'cret\\", wrong, "1 admin"}, {utils, "/", wrong, "1 admin"},
                 {utils, "bob/bob", wrong, "0 bob"}, {utils, "bob/bob", "", "0 bob"}, {utils, "-", "", "2 bob"},
                 {utils, "bob/x", "", "1 bob"}, {&fresh, "bob/bob", "", "0 bob"}}) {
            QString seen;
            TestSupport::prompter()->answerDialog([&seen, login = login](QDialog *dialog) {
                auto *box = qobject_cast<LoginDialog *>(dialog);
                seen = box->message();
                box->setLoginId(login.section('/', 0, 0));
                box->setCode(login.section('/', 1));
                return int(login == QLatin1String("-") ? QDialog::Rejected : QDialog::Accepted);
            });
            const int result = helper->validateLoginId();
            QCOMPARE(QStringList({seen, QString::number(result) + " " + helper->getLogin()}), QStringList({said, ends}));
        }
        QCOMPARE(TestSupport::prompter()->calls.size(), 11); // the dialogs, no message box
    }

    // Anything but the exact texts takes the PostgreSQL rules, Qt 6's own "QMYSQL" included.
    void dialectFollowsTheSettingsExactText()
    {
        const QString function = "CONCAT('  ',Title,' ',Initials)", pipes = "'  '||Title||' '||Initials";
        const QStringList keyQueries{"SELECT LAST_INSERT_ID()", "SELECT LAST_INSERT_ROWID()",
                                     "SELECT LAST_VALUE FROM stocktrace_seq"};
        for (const auto &[setting, engine, qtDriver] : Rows<QVariant, Dialect::Engine, QString>{
                 {QVariant(), Dialect::MySQL, "QMYSQL"}, {"QMYSQL3", Dialect::MySQL, "QMYSQL"},
                 {"QSQLITE", Dialect::SQLite, "QSQLITE"}, {"QPSQL7", Dialect::PostgreSQL, "QPSQL"},
                 {"QMYSQL", Dialect::PostgreSQL, "QMYSQL"}, {"qmysql3", Dialect::PostgreSQL, "qmysql3"}}) {
            setting.isValid() ? settings->setValue(driverKey, setting) : settings->remove(driverKey);
            QCOMPARE(QVariantList({Dialect::engine(), Dialect::concat(titleParts), Dialect::lastTraceNumberQuery(),
                                   Dialect::qtDriverName(Dialect::driverSetting())}),
                     QVariantList({engine, engine == Dialect::MySQL ? function : pipes, keyQueries[engine], qtDriver}));
        }
        const auto restore = qScopeGuard([kept = std::exchange(settings, nullptr)] { settings = kept; });
        QCOMPARE(Dialect::concat(titleParts), function); // no settings store at all: MySQL
    }

    // The settings this engine may carry concatenate on it; a MariaDB session gains || whatever
    // sql_mode it starts with, and keeps that mode.
    void concatenationWorksOnTheEngine()
    {
        QVERIFY(exec("INSERT INTO Owner (AccountNumber, Title, Initials, Surname) VALUES (7, 'Dr', 'J.K.', 'Fzvgu')"));
        for (const QString &setting : settingsOf[TestSupport::engine()]) {
            settings->setValue(driverKey, setting);
            QCOMPARE(rows("SELECT Surname," + Dialect::concat(titleParts) + " FROM Owner"),
                     (QList<QStringList>{{"Fzvgu", "  Dr J.K."}}));
        }
        if (TestSupport::engine() != Dialect::MySQL)
            return;
        const QString original = value("SELECT @@SESSION.sql_mode").toString();
        QSqlDatabase db = QSqlDatabase::database();
        for (const QString &mode : QStringList{"", "STRICT_TRANS_TABLES", original}) {
            QVERIFY(exec("SET SESSION sql_mode='" + mode + "'"));
            Dialect::prepareSession(db);
            QCOMPARE(value("SELECT 'a'||'b'").toString(), QString("ab"));
            QVERIFY(value("SELECT @@SESSION.sql_mode").toString().contains(mode));
        }
    }

    // The program's own inserts leave the keys (and Charge) to the database.
    void generatedKeysCountFromOne()
    {
        for (const auto &[insert, keys] : Rows<QString, QString>{
                 {movement, "SELECT TraceNumber FROM StockTrace ORDER BY Notes"},
                 {"INSERT INTO Permissions (Operator, Class, Description) VALUES ('Sarah', 'Utility', '%1')",
                  "SELECT keynum FROM Permissions ORDER BY Description"},
                 {"INSERT INTO  Supply (Company, Contact, Email, Tel, Fax, Cell, PostalAddr, PhysicalAddr, Lab) "
                  "values ('%1','','','','','','','','N')", "SELECT keynum FROM Supply ORDER BY Company"},
                 {"INSERT INTO  AutoProc (Description) VALUES ('%1')", "SELECT Code FROM AutoProc ORDER BY Description"},
                 {"INSERT into AutoProcContents (Quantity, Category, Code, ProcId) VALUES ('1', 'Goods', '%1', '1')",
                  "SELECT id FROM AutoProcContents ORDER BY Code"},
                 {"INSERT INTO breeds (Description, Description_A) VALUES ('%1', '')",
                  "SELECT keynum FROM breeds ORDER BY Description"}}) {
            for (const char *tag : {"a", "b", "c"})
                QVERIFY(exec(insert.arg(tag)));
            QCOMPARE(rows(keys), (QList<QStringList>{{"1"}, {"2"}, {"3"}}));
        }
        QCOMPARE(value("SELECT Charge FROM AutoProcContents WHERE Code='a'").toString(), QString("Y"));
    }

    // The modify form writes MarkUp as "Markup" in every product table; only Vaccination has DaysToReminder.
    void productTablesTakeTheFormsStatements()
    {
        for (const QString &table : Utility::categories()) {
            QVERIFY(exec(product.arg(table, "12", "Meloxicam 5mg/ml")));
            QVERIFY(exec("UPDATE " + table + " SET Code='12',Description='Meloxicam 5mg/ml',Schedule='3',"
                         "Price='20.70',Markup='1.800000',Cost='10.00',Active='Y' WHERE Code='12'"));
            QCOMPARE(value("SELECT MarkUp*Schedule FROM " + table).toDouble(), 1.8 * 3); // both written
            QSqlQuery columns; // as a query sees them: QPSQL's record(table) does not fold the name's case
            QVERIFY(columns.exec("SELECT * FROM " + table + " WHERE 1=0"));
            QCOMPARE(columns.record().contains("DaysToReminder"), table == QLatin1String("Vaccination"));
        }
    }

    // Numbers written as quoted text compare as numbers; text compares exactly, case and accents.
    void literalsCompareAsTheProgramWritesThem()
    {
        const QString name = "Bêre koel — én 🐾";
        QVERIFY(exec("INSERT into AutoProcContents (Quantity, Category, Code, ProcId) VALUES ('2', 'Goods', '5', '4')")
                && exec("INSERT INTO Owner (AccountNumber, Surname) VALUES (42, 'Obgun')")
                && exec("INSERT INTO Invoice (MyNumber, AccountNumber, PetNumber, MyDate, Status) VALUES (10001, 42, 1, '2026-03-02', 'C')")
                && exec("INSERT INTO InvoiceItem (InvoiceNumber, Category, Code, Quantity) VALUES (10001, 'Goods', '5', 1)")
                && exec(product.arg("Goods", "1", name)));
        for (const auto &[where, count] : Rows<QString, int>{
                 {"AutoProcContents WHERE ProcId=4 AND Quantity='2.00' AND Code='5'", 1},
                 {"AutoProcContents WHERE Quantity='2.50'", 0},
                 {"InvoiceItem,Invoice WHERE Category='Goods' AND Code='5'AND Invoice.Mynumber=InvoiceNumber", 1},
                 {"Owner WHERE AccountNumber='42'", 1}, {"Goods WHERE Description='" + name + "'", 1},
                 {"Goods WHERE Description='" + name.toUpper() + "'", 0}, {"Goods WHERE Description='Bere koel — en 🐾'", 0}})
            QVERIFY2(value("SELECT COUNT(*) FROM " + where).toInt() == count, qPrintable(where));
        QCOMPARE(value("SELECT Description FROM Goods").toString(), name);
    }

    // quorel-db's demo practice holds what the program's features count on finding in it.
    void demoPracticeIsConsistent()
    {
        QString error;
        QVERIFY(exec("DELETE FROM SysInfo")); // the practice brings its own
        QVERIFY2(writePractice(QSqlDatabase::database(), TestSupport::engine(), Shape::demo(), &error), qPrintable(error));
        QStringList productOfLine;
        int wrongStock = 0; // stored quantities that differ from the trace's
        for (const QString &table : Utility::categories()) {
            productOfLine << "SELECT 1 FROM " + table + " p WHERE i.Category='" + table + "' AND p.Code=i.Code";
            for (const QStringList &row : rows("SELECT Code, Quantity FROM " + table)) {
                bool ok = true;
                const QString level = Utility::numStr(utils->getStockLevelFromTrace(row[0], table, &ok), 2);
                wrongStock += !ok || level != Utility::numStr(row[1].toDouble(), 2);
            }
        }
        QCOMPARE(wrongStock, Shape::demo().wrongStock);
        const QStringList some{"Invoice WHERE Status='P'", "Owner WHERE BadDebt='Y'", "AutoProcContents WHERE Charge='N'",
                               "Operators WHERE Operator='admin' AND id='admin'", "Supply WHERE Lab='Y'"};
        QStringList found; // rows that are there: only `some`, none of the orphans
        for (const QString &where : some + QStringList{"InvoiceItem WHERE Vet NOT IN (SELECT Initials FROM Operators)",
                 "InvoiceItem WHERE InvoiceNumber NOT IN (SELECT MyNumber FROM Invoice)",
                 "InvoiceItem i WHERE NOT EXISTS (" + productOfLine.join(" UNION ALL ") + ")",
                 "InvoiceItem WHERE Petnumber NOT IN (SELECT PetNumber FROM Patient)",
                 "Patient WHERE AccountNumber NOT IN (SELECT AccountNumber FROM Owner)",
                 "Patient WHERE Breed NOT IN (SELECT Description FROM breeds)",
                 "Invoice, Owner WHERE Invoice.AccountNumber=Owner.AccountNumber AND Invoice.MyDate < Owner.Created",
                 "StockTraceItem WHERE TraceNumber NOT IN (SELECT TraceNumber FROM StockTrace)",
                 "Medication WHERE Supplier NOT IN (SELECT Company FROM Supply)",
                 "AutoProcContents WHERE ProcId NOT IN (SELECT Code FROM AutoProc)",
                 "Operators WHERE Operator NOT IN (SELECT Operator FROM Permissions WHERE Class='Dispense')"})
            if (value("SELECT COUNT(*) FROM " + where).toInt() > 0)
                found << where;
        QCOMPARE(found, some);
        QCOMPARE(rows("SELECT DISTINCT Description FROM Journal ORDER BY Description"),
                 (QList<QStringList>{{"I"}, {"Q"}, {"R"}, {"RF"}, {"VR"}}));
        // Invoices run up to the last few days (a quiet Sunday may have none).
        const QString lastInvoice = value("SELECT MAX(MyDate) FROM Invoice").toString();
        QVERIFY2(lastInvoice <= QDate::currentDate().toString(Qt::ISODate)
                     && lastInvoice >= QDate::currentDate().addDays(-7).toString(Qt::ISODate), qPrintable(lastInvoice));
        // The program's own inserts still get fresh keys after the generated rows.
        const int traces = value("SELECT MAX(TraceNumber) FROM StockTrace").toInt();
        const int procs = value("SELECT MAX(Code) FROM AutoProc").toInt();
        QVERIFY(exec(movement.arg("Count")));
        QCOMPARE(value(Dialect::lastTraceNumberQuery()).toInt(), traces + 1);
        QVERIFY(exec("INSERT INTO  AutoProc (Description) VALUES ('Kitten First Visit')"));
        QCOMPARE(value("SELECT Code FROM AutoProc WHERE Description='Kitten First Visit'").toInt(), procs + 1);
    }
};

QTEST_MAIN(FoundationTest)
#include "tst_foundation.moc"
