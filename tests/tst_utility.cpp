// The suite library as the program relies on it: SQL escaping on the live engine, number
// formatting and parsing, tax, ROT13, the validators of the entry forms, the list rows, the
// practice data and the login.
#include "globals.h"
#include "logindialog.h"
#include "testsupport.h"
#include "utility.h"
#include "validators.h"
#include "zrlistitem.h"

#include <QBrush>
#include <QFont>
#include <QSqlError>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

using TestSupport::ScriptedPrompter;

class UtilityTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void escapedTextIsStoredAndFoundAsTyped_data();
    void escapedTextIsStoredAndFoundAsTyped();
    void numStrRoundsHalfAwayFromZero_data();
    void numStrRoundsHalfAwayFromZero();
    void strNumReadsTypedNumbers_data();
    void strNumReadsTypedNumbers();
    void calcTaxIsInWholeCents_data();
    void calcTaxIsInWholeCents();
    void rot13_data();
    void rot13();
    void validators_data();
    void validators();
    void listRowsKeepTheOrderTheyWereAddedIn();
    void altVisualLooksDifferFromEachOther();
    void initClassReadsTheTaxRatesAsFractions();
    void initClassFailsNamingSysInfo_data();
    void initClassFailsNamingSysInfo();
    void showDBErrorShowsTheErrorAndStops();
    void loginChecksIdAndCodeExactly_data();
    void loginChecksIdAndCodeExactly();
    void wrongLoginIsSaidOnTheNextDialogOnly();
};

void UtilityTest::escapedTextIsStoredAndFoundAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");

    QTest::newRow("quote") << "O'Brien's" << "O'Brien's";
    QTest::newRow("quotes only") << "''''" << "''''";
    QTest::newRow("closing the literal") << "x'); DROP TABLE Supply; --" << "x'); DROP TABLE Supply; --";
    QTest::newRow("backslashes") << "C:\\vet\\new" << "C:\\vet\\new";
    QTest::newRow("trailing backslash") << "ends in \\" << "ends in \\";
    QTest::newRow("backslash quote") << "\\'" << "\\'";
    QTest::newRow("double backslash quote") << "\\\\''\\" << "\\\\''\\";
    QTest::newRow("percent and underscore") << "100% _x_ %_" << "100% _x_ %_";
    QTest::newRow("accents") << "Müller, Éloïse & Søren" << "Müller, Éloïse & Søren";
    QTest::newRow("emoji") << "Rex 🐶 & Tom 🐱" << "Rex 🐶 & Tom 🐱";
    QTest::newRow("newlines and tab") << "line 1\nline 2\r\n\tend" << "line 1\nline 2\r\n\tend";
    // No engine keeps a NUL inside a text value: it is dropped, the same everywhere.
    QTest::newRow("NUL") << QString("a" + QString(QChar(0)) + "b'c") << "ab'c";
}

// The typed text goes into an INSERT and a WHERE built with escapeSQL, exactly as the program
// builds them, and comes back unchanged.
void UtilityTest::escapedTextIsStoredAndFoundAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);

    const QString literal = utils->escapeSQL(typed, false);
    QVERIFY(TestSupport::exec("INSERT INTO Supply (Company, PostalAddr) VALUES ('Acme', '" + literal + "')"));
    QCOMPARE(TestSupport::value("SELECT PostalAddr FROM Supply WHERE Company='Acme'").toString(), stored);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Supply WHERE PostalAddr='" + literal + "'").toInt(), 1);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Supply").toInt(), 1);
}

void UtilityTest::numStrRoundsHalfAwayFromZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");

    // Ties round away from zero on the value as written, whatever its binary form: 1.005 is
    // stored just below, 0.125 exactly, 1.725 just below.
    QTest::newRow("1.005") << 1.005 << 2 << "1.01";
    QTest::newRow("2.675") << 2.675 << 2 << "2.68";
    QTest::newRow("1.725") << 1.725 << 2 << "1.73";
    QTest::newRow("0.125") << 0.125 << 2 << "0.13";
    QTest::newRow("-1.005") << -1.005 << 2 << "-1.01";
    QTest::newRow("-0.005") << -0.005 << 2 << "-0.01";
    QTest::newRow("cost x markup 1.15 x 1.5") << 1.15 * 1.5 << 2 << "1.73";
    QTest::newRow("0.1 + 0.2") << 0.1 + 0.2 << 2 << "0.30";
    QTest::newRow("below the tie") << 1.00499 << 2 << "1.00";
    QTest::newRow("negative zero") << -0.0 << 2 << "0.00";
    QTest::newRow("rounds to zero from below") << -0.004 << 2 << "0.00";
    QTest::newRow("whole number") << 14.0 << 2 << "14.00";
    QTest::newRow("large") << 1234567.891 << 2 << "1234567.89";
    QTest::newRow("0 decimals tie") << 2.5 << 0 << "3";
    QTest::newRow("0 decimals negative tie") << -2.5 << 0 << "-3";
    QTest::newRow("0 decimals below tie") << 0.4999 << 0 << "0";
    QTest::newRow("0 decimals negative zero") << -0.4 << 0 << "0";
    QTest::newRow("6 decimals tie") << 1.0000005 << 6 << "1.000001";
    QTest::newRow("6 decimals markup") << 1.4 << 6 << "1.400000";
    QTest::newRow("6 decimals third") << 1.0 / 3.0 << 6 << "0.333333";
}

void UtilityTest::numStrRoundsHalfAwayFromZero()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, text);

    QCOMPARE(Utility::numStr(value, decimals), text);
}

void UtilityTest::strNumReadsTypedNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("ok");

    QTest::newRow("plain") << "12.50" << 12.5 << true;
    QTest::newRow("negative") << "-3.25" << -3.25 << true;
    QTest::newRow("leading point") << ".5" << 0.5 << true;
    QTest::newRow("surrounding blanks") << "  7 " << 7.0 << true;
    QTest::newRow("blank between groups") << "1 234.5" << 1234.5 << true;
    QTest::newRow("thousands comma") << "1,234.50" << 1234.5 << true;
    QTest::newRow("two thousands commas") << "1,234,567.8" << 1234567.8 << true;
    QTest::newRow("decimal comma") << "12,5" << 0.0 << false;
    QTest::newRow("misplaced comma") << "1,23" << 0.0 << false;
    QTest::newRow("empty") << "" << 0.0 << false;
    QTest::newRow("blanks only") << "   " << 0.0 << false;
    QTest::newRow("letters") << "abc" << 0.0 << false;
    QTest::newRow("trailing letters") << "12abc" << 0.0 << false;
    QTest::newRow("two points") << "1.2.3" << 0.0 << false;
    QTest::newRow("infinity") << "inf" << 0.0 << false;
    QTest::newRow("not a number") << "nan" << 0.0 << false;
}

void UtilityTest::strNumReadsTypedNumbers()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(bool, ok);

    bool readOk = !ok;
    QCOMPARE(Utility::strNum(text, &readOk), value);
    QCOMPARE(readOk, ok);
    QCOMPARE(Utility::strNum(text, nullptr), value); // the program passes no flag
}

void UtilityTest::calcTaxIsInWholeCents_data()
{
    QTest::addColumn<double>("amount");
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("tax");

    QTest::newRow("exact") << 100.0 << 0.14 << 14.0;
    QTest::newRow("up to the cent") << 9.99 << 0.15 << 1.50;
    QTest::newRow("down to the cent") << 10.01 << 0.14 << 1.40;
    QTest::newRow("half cent 1.15 at 10%") << 1.15 << 0.10 << 0.12;
    QTest::newRow("half cent 10.05 at 50%") << 10.05 << 0.5 << 5.03;
    QTest::newRow("half cent 2.01 at 50%") << 2.01 << 0.5 << 1.01;   // 100.49999... cents in binary
    QTest::newRow("half cent 4.10 at 25%") << 4.10 << 0.25 << 1.03;  // 102.49999... cents in binary
    QTest::newRow("half cent 0.10 at 15%") << 0.10 << 0.15 << 0.02;
    QTest::newRow("below half a cent") << 0.03 << 0.15 << 0.0;
    QTest::newRow("credit half cent") << -2.01 << 0.5 << -1.01;
    QTest::newRow("no rate") << 123.45 << 0.0 << 0.0;
    QTest::newRow("nothing") << 0.0 << 0.15 << 0.0;
}

void UtilityTest::calcTaxIsInWholeCents()
{
    QFETCH(double, amount);
    QFETCH(double, rate);
    QFETCH(double, tax);

    const double result = Utility::calcTax(amount, rate);
    QCOMPARE(result, tax);
    QCOMPARE(Utility::numStr(result, 2), Utility::numStr(tax, 2));
}

void UtilityTest::rot13_data()
{
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("coded");

    QTest::newRow("surname") << "Smith" << "Fzvgu";
    QTest::newRow("alphabet") << "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                              << "NOPQRSTUVWXYZABCDEFGHIJKLMnopqrstuvwxyzabcdefghijklm";
    QTest::newRow("blanks and punctuation") << "van der Merwe-O'Neil 3" << "ina qre Zrejr-B'Arvy 3";
    QTest::newRow("neighbours of the letters") << "@[`{ 09" << "@[`{ 09";
    QTest::newRow("accented letters") << "Müller Éloïse" << "Züyyre Éybïfr";
    QTest::newRow("emoji") << "Rex 🐶" << "Erk 🐶";
    QTest::newRow("empty") << "" << "";
}

void UtilityTest::rot13()
{
    QFETCH(QString, plain);
    QFETCH(QString, coded);

    QCOMPARE(Utility::rot13(plain), coded);
    QCOMPARE(Utility::rot13(coded), plain);
}

namespace {
// The validators with the arguments the entry forms give them.
enum FieldKind { Cost, Sell, Markup, Percentage, Unit, Description };

QValidator *makeValidator(FieldKind kind, QObject *parent)
{
    switch (kind) {
    case Cost:
        return new MoneyValidator(parent, 3, "cost");
    case Sell:
        return new MoneyValidator(parent, 2, "sell");
    case Markup:
        return new DecimalValidator(9999.0, 0.0, 6, parent, "markup");
    case Percentage:
        return new DecimalValidator(100.0, 0.0, 4, parent, "percentage");
    case Unit:
        return new LimitValidator(parent, "unit", 10, false);
    case Description:
        return new LimitValidator(parent, "description", 38, true);
    }
    return nullptr;
}
} // namespace

void UtilityTest::validators_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("state");
    const int acceptable = QValidator::Acceptable;
    const int intermediate = QValidator::Intermediate;
    const int invalid = QValidator::Invalid;

    QTest::newRow("cost 3 decimals") << int(Cost) << "12.345" << acceptable;
    QTest::newRow("cost 4 decimals") << int(Cost) << "12.3456" << invalid;
    QTest::newRow("cost trailing point") << int(Cost) << "12." << acceptable;
    QTest::newRow("cost empty") << int(Cost) << "" << intermediate;
    QTest::newRow("cost lone point") << int(Cost) << "." << intermediate;
    QTest::newRow("cost negative") << int(Cost) << "-1" << invalid;
    QTest::newRow("cost comma") << int(Cost) << "1,5" << invalid;
    QTest::newRow("cost letters") << int(Cost) << "12a" << invalid;
    QTest::newRow("cost blank") << int(Cost) << "1 2" << invalid;
    QTest::newRow("sell 2 decimals") << int(Sell) << "9.99" << acceptable;
    QTest::newRow("sell 3 decimals") << int(Sell) << "9.999" << invalid;
    QTest::newRow("markup top") << int(Markup) << "9999" << acceptable;
    QTest::newRow("markup over top by a millionth") << int(Markup) << "9999.000001" << invalid;
    QTest::newRow("markup over top") << int(Markup) << "10000" << invalid;
    QTest::newRow("markup 6 decimals") << int(Markup) << "1.123456" << acceptable;
    QTest::newRow("markup 7 decimals") << int(Markup) << "1.1234567" << invalid;
    QTest::newRow("markup bottom") << int(Markup) << "0" << acceptable;
    QTest::newRow("markup negative") << int(Markup) << "-1" << invalid;
    QTest::newRow("markup lone point") << int(Markup) << "." << intermediate;
    QTest::newRow("markup exponent") << int(Markup) << "1e3" << invalid;
    QTest::newRow("percentage top") << int(Percentage) << "100" << acceptable;
    QTest::newRow("percentage over top") << int(Percentage) << "100.0001" << invalid;
    QTest::newRow("percentage 4 decimals") << int(Percentage) << "55.5555" << acceptable;
    QTest::newRow("percentage 5 decimals") << int(Percentage) << "55.55555" << invalid;
    QTest::newRow("unit at the limit") << int(Unit) << "abcdefghij" << acceptable;
    QTest::newRow("unit over the limit") << int(Unit) << "abcdefghijk" << invalid;
    QTest::newRow("unit leading blank") << int(Unit) << " ml" << acceptable;
    QTest::newRow("unit empty") << int(Unit) << "" << acceptable;
    QTest::newRow("description at the limit") << int(Description) << QString(38, QLatin1Char('d')) << acceptable;
    QTest::newRow("description over the limit") << int(Description) << QString(39, QLatin1Char('d')) << invalid;
    QTest::newRow("description leading blank") << int(Description) << " Bandage" << invalid;
    QTest::newRow("description inner and trailing blanks") << int(Description) << "Crepe bandage " << acceptable;
}

void UtilityTest::validators()
{
    QFETCH(int, kind);
    QFETCH(QString, input);
    QFETCH(int, state);

    QObject owner;
    QValidator *validator = makeValidator(FieldKind(kind), &owner);
    int pos = input.size();
    QCOMPARE(int(validator->validate(input, pos)), state);
}

void UtilityTest::listRowsKeepTheOrderTheyWereAddedIn()
{
    QTreeWidget list;
    list.setColumnCount(1);
    auto *first = new ZrListItem(&list);
    first->setText(0, "zebra");
    QTreeWidgetItem *last = first;
    for (const char *name : {"apple", "mango", "banana"}) {
        auto *row = new ZrListItem(&list, last);
        row->setText(0, QString::fromLatin1(name));
        last = row;
    }
    auto *middle = new ZrListItem(&list, first); // right after the first row
    middle->setText(0, "kiwi");

    QStringList order;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        order << list.topLevelItem(i)->text(0);
    QCOMPARE(order, QStringList({"zebra", "kiwi", "apple", "mango", "banana"}));
}

void UtilityTest::altVisualLooksDifferFromEachOther()
{
    QTreeWidget list;
    list.setColumnCount(1);
    auto look = [&list](int variant) {
        auto *row = new ZrListItem(&list);
        row->setText(0, "row");
        row->setAltVisual(variant);
        return QVariantList{row->data(0, Qt::ForegroundRole), row->data(0, Qt::BackgroundRole),
                            row->data(0, Qt::FontRole)};
    };
    const QVariantList normal = look(0);
    const QVariantList subdued = look(1);
    const QVariantList alarm = look(2);
    QVERIFY(normal != subdued);
    QVERIFY(normal != alarm);
    QVERIFY(subdued != alarm);

    // A row marked and then set back looks normal again.
    auto *row = new ZrListItem(&list);
    row->setAltVisual(2);
    row->setAltVisual(0);
    QCOMPARE(row->data(0, Qt::ForegroundRole), normal.at(0));
    QCOMPARE(row->data(0, Qt::FontRole), normal.at(2));
}

void UtilityTest::initClassReadsTheTaxRatesAsFractions()
{
    QCOMPARE(utils->getTax1(), 0.15);
    QCOMPARE(utils->getTax1Name(), QString("VAT"));
    QCOMPARE(utils->getTax2(), 0.0);

    QVERIFY(TestSupport::exec("UPDATE SysInfo SET Tax1=0.14, Tax1Name='BTW', Tax2=0.025, Tax2Name='Levy'"));
    QVERIFY(utils->initClass(true));
    QCOMPARE(utils->getTax1(), 0.14);
    QCOMPARE(utils->getTax1Name(), QString("BTW"));
    QCOMPARE(utils->getTax2(), 0.025);
    QCOMPARE(utils->getTax2Name(), QString("Levy"));
    QCOMPARE(Utility::calcTax(100.0, utils->getTax1()), 14.0);
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void UtilityTest::initClassFailsNamingSysInfo_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("missing table") << "DROP TABLE SysInfo";
    QTest::newRow("empty table") << "DELETE FROM SysInfo";
}

void UtilityTest::initClassFailsNamingSysInfo()
{
    QFETCH(QString, statement);

    QVERIFY(TestSupport::exec(statement));
    Utility fresh("Admin");
    QVERIFY(!fresh.initClass(false));
    ScriptedPrompter *prompter = TestSupport::prompter();
    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().kind, QString("message"));
    QCOMPARE(prompter->last().icon, int(Prompter::Critical));
    QVERIFY2(prompter->last().text.contains("SysInfo"), qPrintable(prompter->last().text));
}

void UtilityTest::showDBErrorShowsTheErrorAndStops()
{
    QSqlQuery query;
    const QString statement = "SELECT NoSuchColumn FROM Supply";
    QVERIFY(!query.exec(statement));
    QVERIFY(utils->showDBError(query));

    const ScriptedPrompter::Call &shown = TestSupport::prompter()->last();
    QCOMPARE(shown.icon, int(Prompter::Critical));
    QVERIFY2(shown.text.contains(query.lastError().databaseText()), qPrintable(shown.text));
    QVERIFY2(shown.text.contains(statement), qPrintable(shown.text));
}

namespace {
// Answers the next login dialog with `id` and `code` (or cancels it); `seen` gets the message the
// dialog showed.
void answerLogin(const QString &id, const QString &code, bool accept, QString *seen = nullptr)
{
    TestSupport::prompter()->answerDialog([=](QDialog *dialog) {
        auto *login = qobject_cast<LoginDialog *>(dialog);
        if (!login)
            return int(QDialog::Rejected);
        if (seen)
            *seen = login->message();
        login->setLoginId(id);
        login->setCode(code);
        return int(accept ? QDialog::Accepted : QDialog::Rejected);
    });
}
} // namespace

void UtilityTest::loginChecksIdAndCodeExactly_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<int>("result");

    QTest::newRow("admin") << "admin" << "Se'cret\\" << true << 0;
    QTest::newRow("other user") << "bob" << "bob" << true << 0;
    QTest::newRow("wrong code") << "admin" << "bob" << true << 1;
    QTest::newRow("code in other case") << "admin" << "SE'CRET\\" << true << 1;
    QTest::newRow("code with trailing blank") << "admin" << "Se'cret\\ " << true << 1;
    QTest::newRow("id in other case") << "Admin" << "Se'cret\\" << true << 1;
    QTest::newRow("unknown id") << "carol" << "bob" << true << 1;
    QTest::newRow("empty") << "" << "" << true << 1;
    QTest::newRow("cancelled") << "admin" << "Se'cret\\" << false << 2;
}

void UtilityTest::loginChecksIdAndCodeExactly()
{
    QFETCH(QString, id);
    QFETCH(QString, code);
    QFETCH(bool, accept);
    QFETCH(int, result);

    QVERIFY(TestSupport::exec("INSERT INTO Operators (Operator, id) VALUES ('admin', '"
                              + utils->escapeSQL("Se'cret\\", false) + "')"));
    QVERIFY(TestSupport::exec("INSERT INTO Operators (Operator, id) VALUES ('bob', 'bob')"));
    answerLogin(id, code, accept);
    QCOMPARE(utils->validateLoginId(), result);
    if (result == 0)
        QCOMPARE(utils->getLogin(), id);
    QCOMPARE(TestSupport::prompter()->calls.size(), 1); // the dialog, no message box
}

void UtilityTest::wrongLoginIsSaidOnTheNextDialogOnly()
{
    QVERIFY(TestSupport::exec("INSERT INTO Operators (Operator, id) VALUES ('bob', 'bob')"));
    QString first, second, third;
    answerLogin("bob", "wrong", true, &first);
    answerLogin("bob", "bob", true, &second);
    answerLogin("bob", "bob", true, &third);
    QCOMPARE(utils->validateLoginId(), 1);
    QCOMPARE(utils->validateLoginId(), 0);
    QCOMPARE(utils->validateLoginId(), 0);
    QCOMPARE(first, QString());
    QCOMPARE(second, QString("The login id or code is not correct. Try again."));
    QCOMPARE(third, QString());

    // A new Utility starts without the previous one's failure.
    answerLogin("bob", "wrong", true);
    QCOMPARE(utils->validateLoginId(), 1);
    Utility fresh("Admin");
    QString seen = "unset";
    answerLogin("bob", "bob", true, &seen);
    QCOMPARE(fresh.validateLoginId(), 0);
    QCOMPARE(seen, QString());
}

QTEST_MAIN(UtilityTest)
#include "tst_utility.moc"
