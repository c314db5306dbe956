// The practice tab: loading and saving the SysInfo row in the main and the alternative language.
#include "admin.h"
#include "globals.h"
#include "testsupport.h"
#include "utility.h"

#include <QtTest>

using TestSupport::ScriptedPrompter;

namespace {

struct PracticeField {
    const char *field;
    const char *main;
    const char *alternative; // the shared rates have no column of their own
};

// In the order of the tab's load statements.
const PracticeField practiceFields[] = {
    {"ALINE1", "ALINE1", "ALINE1_A"}, {"ALINE2", "ALINE2", "ALINE2_A"}, {"ALINE3", "ALINE3", "ALINE3_A"},
    {"ALINE4", "ALINE4", "ALINE4_A"}, {"ALINE5", "ALINE5", "ALINE5_A"}, {"ALINE6", "ALINE6", "ALINE6_A"},
    {"ALINE7", "ALINE7", "ALINE7_A"}, {"InvFooter", "InvFooter", "InvFooter_A"},
    {"InvFooter1", "InvFooter1", "InvFooter1_A"}, {"RecFooter", "RecFooter", "RecFooter_A"},
    {"StatementFooter1", "StatementFooter1", "StatementFooter1_A"},
    {"StatementFooter2", "StatementFooter2", "StatementFooter2_A"},
    {"StatementFooter3", "StatementFooter3", "StatementFooter3_A"}, {"Tax1", "Tax1", "Tax1"},
    {"Tax1Name", "Tax1Name", "Tax1Name_A"}, {"Tax2", "Tax2", "Tax2"}, {"Tax2Name", "Tax2Name", "Tax2Name_A"},
    {"HandOver", "HandOverFooter", "HandOverFooter_A"}, {"label2LineEdit", "LABEL2", "LABEL2_A"},
    {"label3LineEdit", "LABEL3", "LABEL3_A"}};

bool isRate(const PracticeField &f) { return qstrcmp(f.main, f.alternative) == 0; }

QLineEdit *fieldOf(Admin *admin, const char *name)
{
    return admin->findChild<QLineEdit *>(QLatin1String(name));
}

// A distinct text for every column, marked with the language; rates are numbers.
QString storedText(const PracticeField &f, bool alternative)
{
    if (qstrcmp(f.main, "Tax1") == 0)
        return "0.15";
    if (qstrcmp(f.main, "Tax2") == 0)
        return "0.05";
    return QString::fromLatin1(alternative ? f.alternative : f.main).toLower() + (alternative ? " alt" : " main");
}

bool writeDistinctRow()
{
    QStringList sets;
    for (const PracticeField &f : practiceFields) {
        sets << QString::fromLatin1(f.main) + "='" + storedText(f, false) + "'";
        if (!isRate(f))
            sets << QString::fromLatin1(f.alternative) + "='" + storedText(f, true) + "'";
    }
    return TestSupport::exec("UPDATE SysInfo SET " + sets.join(','));
}

QStringList columnTexts(bool alternative)
{
    QStringList columns;
    for (const PracticeField &f : practiceFields)
        columns << QString::fromLatin1(alternative ? f.alternative : f.main);
    QStringList out = TestSupport::rows("SELECT " + columns.join(',') + " FROM SysInfo").value(0);
    // The rates come back in the engine's own number form; compare them as numbers.
    for (int i = 0; i < out.size(); ++i)
        if (isRate(practiceFields[i]))
            out[i] = QString::number(out[i].toDouble());
    return out;
}

QStringList fieldTexts(Admin *admin)
{
    QStringList out;
    for (const PracticeField &f : practiceFields) {
        const QString text = fieldOf(admin, f.field)->text();
        out << (isRate(f) ? QString::number(text.toDouble()) : text);
    }
    return out;
}

void showLanguage(Admin *admin, bool alternative)
{
    admin->ui.alt_lang_tb->setChecked(alternative);
    admin->alt_lang_tb_clicked();
}

void typeNewTexts(Admin *admin, const QString &mark)
{
    for (const PracticeField &f : practiceFields) {
        if (qstrcmp(f.main, "Tax1") == 0)
            fieldOf(admin, f.field)->setText("0.14");
        else if (qstrcmp(f.main, "Tax2") == 0)
            fieldOf(admin, f.field)->setText("0.02");
        else
            fieldOf(admin, f.field)->setText(QString::fromLatin1(f.field) + " " + mark);
    }
}

const QString confirmText = "Confirm that you wish to update the system information as shown ?";

} // namespace

class PracticeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void windowOpensOnTheMainLanguage();
    void toggleLoadsEachLanguage_data();
    void toggleLoadsEachLanguage();
    void nothingToLoadLeavesTheFields_data();
    void nothingToLoadLeavesTheFields();
    void saveWritesOnlyTheShownLanguage_data();
    void saveWritesOnlyTheShownLanguage();
    void quotesFollowTheLanguagesEscaping_data();
    void quotesFollowTheLanguagesEscaping();
    void refusedConfirmationSavesNothing_data();
    void refusedConfirmationSavesNothing();
    void mainSaveCaptionsTheTaxBoxes_data();
    void mainSaveCaptionsTheTaxBoxes();
};

void PracticeTest::windowOpensOnTheMainLanguage()
{
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();

    QVERIFY(!admin->ui.alt_lang_tb->isChecked());
    QCOMPARE(fieldTexts(admin), columnTexts(false));
    QCOMPARE(admin->ui.ALINE1->text(), QString("aline1 main"));
    QCOMPARE(admin->ui.HandOver->text(), QString("handoverfooter main"));
}

void PracticeTest::toggleLoadsEachLanguage_data()
{
    QTest::addColumn<QList<bool>>("clicks");
    QTest::addColumn<bool>("alternative");
    QTest::newRow("on") << QList<bool>{true} << true;
    QTest::newRow("on then off") << QList<bool>{true, false} << false;
    QTest::newRow("on, off, on") << QList<bool>{true, false, true} << true;
}

void PracticeTest::toggleLoadsEachLanguage()
{
    QFETCH(QList<bool>, clicks);
    QFETCH(bool, alternative);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();

    // A real click on the toggle, so the connection is part of what is checked.
    for (bool on : clicks) {
        QCOMPARE(admin->ui.alt_lang_tb->isChecked(), !on);
        admin->ui.alt_lang_tb->click();
    }

    QCOMPARE(admin->ui.alt_lang_tb->isChecked(), alternative);
    QCOMPARE(fieldTexts(admin), columnTexts(alternative));
    QCOMPARE(admin->ui.Tax1->text().toDouble(), 0.15); // shared by both languages
    QCOMPARE(admin->ui.label3LineEdit->text(), alternative ? QString("label3_a alt") : QString("label3 main"));
}

void PracticeTest::nothingToLoadLeavesTheFields_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("alternative");
    QTest::newRow("no row, alternative") << "DELETE FROM SysInfo" << true;
    QTest::newRow("no row, main") << "DELETE FROM SysInfo" << false;
    QTest::newRow("alternative title NULL") << "UPDATE SysInfo SET ALINE1_A=NULL" << true;
    QTest::newRow("main title NULL") << "UPDATE SysInfo SET ALINE1=NULL" << false;
}

void PracticeTest::nothingToLoadLeavesTheFields()
{
    QFETCH(QString, statement);
    QFETCH(bool, alternative);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();
    typeNewTexts(admin, "typed");
    const QStringList typed = fieldTexts(admin);
    QVERIFY(TestSupport::exec(statement));

    showLanguage(admin, alternative);

    QCOMPARE(fieldTexts(admin), typed);
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void PracticeTest::saveWritesOnlyTheShownLanguage_data()
{
    QTest::addColumn<bool>("alternative");
    QTest::newRow("main language") << false;
    QTest::newRow("alternative language") << true;
}

void PracticeTest::saveWritesOnlyTheShownLanguage()
{
    QFETCH(bool, alternative);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();
    showLanguage(admin, alternative);
    const QStringList otherBefore = columnTexts(!alternative);
    typeNewTexts(admin, "new");
    ScriptedPrompter *prompter = TestSupport::prompter();
    prompter->answer(0);

    admin->ui.PushButton4->click();

    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().caption, QString("Quorel Admin"));
    QCOMPARE(prompter->last().text, confirmText);
    QCOMPARE(prompter->last().buttons, QStringList({"&Yes", "&No"}));
    QCOMPARE(prompter->last().defaultIndex, 1);
    QCOMPARE(columnTexts(alternative), fieldTexts(admin));
    // The other language keeps its texts; only the shared rates move with it.
    QStringList expectedOther = otherBefore;
    for (int i = 0; i < expectedOther.size(); ++i)
        if (isRate(practiceFields[i]))
            expectedOther[i] = fieldTexts(admin).at(i);
    QCOMPARE(columnTexts(!alternative), expectedOther);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM SysInfo").toInt(), 1);
    // The shared library reads the saved rates again.
    QCOMPARE(utils->getTax1(), 0.14);
    QCOMPARE(utils->getTax2(), 0.02);
}

void PracticeTest::quotesFollowTheLanguagesEscaping_data()
{
    QTest::addColumn<bool>("alternative");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("column");
    QTest::addColumn<bool>("saved");
    QTest::newRow("alternative title line") << true << "ALINE1" << "ALINE1_A" << true;
    QTest::newRow("alternative tax name") << true << "Tax1Name" << "Tax1Name_A" << true;
    QTest::newRow("alternative footer") << true << "HandOver" << "HandOverFooter_A" << true;
    QTest::newRow("alternative label, written as typed") << true << "label2LineEdit" << "LABEL2_A" << false;
    QTest::newRow("main title line, written as typed") << false << "ALINE1" << "ALINE1" << false;
    QTest::newRow("main footer, written as typed") << false << "RecFooter" << "RecFooter" << false;
}

void PracticeTest::quotesFollowTheLanguagesEscaping()
{
    QFETCH(bool, alternative);
    QFETCH(QString, field);
    QFETCH(QString, column);
    QFETCH(bool, saved);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();
    showLanguage(admin, alternative);
    const QList<QStringList> before = TestSupport::rows("SELECT * FROM SysInfo");
    fieldOf(admin, field.toLatin1())->setText("O'Brien's Vets");
    ScriptedPrompter *prompter = TestSupport::prompter();
    prompter->answer(0);

    admin->PushButton4_clicked();

    if (saved) {
        QCOMPARE(TestSupport::value("SELECT " + column + " FROM SysInfo").toString(), QString("O'Brien's Vets"));
        QCOMPARE(prompter->calls.size(), 1);
    } else {
        // An unescaped quote breaks the statement: the error is shown and nothing changes.
        QCOMPARE(prompter->calls.size(), 2);
        QCOMPARE(prompter->last().icon, int(Prompter::Critical));
        QVERIFY2(prompter->last().text.contains("O'Brien's Vets"), qPrintable(prompter->last().text));
        QCOMPARE(TestSupport::rows("SELECT * FROM SysInfo"), before);
        QCOMPARE(fieldOf(admin, field.toLatin1())->text(), QString("O'Brien's Vets"));
    }
}

void PracticeTest::refusedConfirmationSavesNothing_data()
{
    QTest::addColumn<bool>("alternative");
    QTest::addColumn<bool>("closed"); // the box closed rather than "&No" pressed
    QTest::newRow("main, No") << false << false;
    QTest::newRow("main, closed") << false << true;
    QTest::newRow("alternative, No") << true << false;
}

void PracticeTest::refusedConfirmationSavesNothing()
{
    QFETCH(bool, alternative);
    QFETCH(bool, closed);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();
    showLanguage(admin, alternative);
    const QList<QStringList> before = TestSupport::rows("SELECT * FROM SysInfo");
    typeNewTexts(admin, "new");
    admin->ui.Tax2Name->clear();
    ScriptedPrompter *prompter = TestSupport::prompter();
    if (!closed)
        prompter->answer(1);

    admin->PushButton4_clicked();

    QCOMPARE(prompter->calls.size(), 2);
    QCOMPARE(prompter->last().caption, QString("Update System Information"));
    QCOMPARE(prompter->last().text, QString("Operation cancelled"));
    QCOMPARE(TestSupport::rows("SELECT * FROM SysInfo"), before);
    QCOMPARE(admin->ui.ALINE1->text(), QString("ALINE1 new"));
    QVERIFY(admin->ui.Tax2_checkBox->isEnabled()); // the boxes keep their names too
    QCOMPARE(utils->getTax1(), 0.15);
}

void PracticeTest::mainSaveCaptionsTheTaxBoxes_data()
{
    QTest::addColumn<bool>("alternative");
    QTest::addColumn<QString>("tax1Name");
    QTest::addColumn<QString>("tax2Name");
    QTest::addColumn<QString>("caption1");
    QTest::addColumn<bool>("enabled1");
    QTest::addColumn<QString>("caption2");
    QTest::addColumn<bool>("enabled2");
    QTest::newRow("main, second name emptied") << false << "GST" << "" << "GST" << true << "" << false;
    QTest::newRow("main, first name emptied") << false << "" << "Levy" << "" << false << "Levy" << true;
    QTest::newRow("main, both named") << false << "GST" << "Levy" << "GST" << true << "Levy" << true;
    // The alternative names are not the product form's captions: the boxes keep the main ones.
    QTest::newRow("alternative leaves the boxes") << true << "" << "" << "tax1name main" << true
                                                  << "tax2name main" << true;
}

void PracticeTest::mainSaveCaptionsTheTaxBoxes()
{
    QFETCH(bool, alternative);
    QFETCH(QString, tax1Name);
    QFETCH(QString, tax2Name);
    QFETCH(QString, caption1);
    QFETCH(bool, enabled1);
    QFETCH(QString, caption2);
    QFETCH(bool, enabled2);
    QVERIFY(writeDistinctRow());
    Admin *admin = TestSupport::makeAdmin();
    showLanguage(admin, alternative);
    admin->ui.Tax1Name->setText(tax1Name);
    admin->ui.Tax2Name->setText(tax2Name);
    TestSupport::prompter()->answer(0);

    admin->PushButton4_clicked();

    QCOMPARE(admin->ui.Tax1_checkBox->text(), caption1);
    QCOMPARE(admin->ui.Tax1_checkBox->isEnabled(), enabled1);
    QCOMPARE(admin->ui.Tax2_checkBox->text(), caption2);
    QCOMPARE(admin->ui.Tax2_checkBox->isEnabled(), enabled2);
    QCOMPARE(TestSupport::value(alternative ? "SELECT Tax2Name_A FROM SysInfo" : "SELECT Tax2Name FROM SysInfo")
                 .toString(),
             tax2Name);
}

QTEST_MAIN(PracticeTest)
#include "tst_practice.moc"
