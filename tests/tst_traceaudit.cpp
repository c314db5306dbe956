// The detailed stock trace (Utility::stockItemTraceAudit): every movement that counts, in date
// order with its running balance, and totals that agree with the quick trace.
#include "globals.h"
#include "stockfixtures.h"
#include "testsupport.h"
#include "utility.h"

#include <QDialog>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using TestSupport::ScriptedPrompter;

namespace {
struct Audit {
    QList<QStringList> rows; // date, movement, reference, note/status, quantity, counted, balance
    QStringList totals;
    QString dialogName;
};

// Opens the audit and reads it while it is shown.
Audit runAudit(const QString &code, const QString &table)
{
    Audit audit;
    TestSupport::prompter()->answerDialog([&audit](QDialog *dialog) {
        const QTreeWidget *list = dialog->findChild<QTreeWidget *>("audit_list");
        for (int i = 0; list && i < list->topLevelItemCount(); ++i) {
            QStringList texts;
            for (int column = 0; column < list->columnCount(); ++column)
                texts << list->topLevelItem(i)->text(column);
            audit.rows << texts;
        }
        for (const char *name : {"received_lab", "dispensed_lab", "onhand_lab"})
            if (const QLabel *label = dialog->findChild<QLabel *>(name))
                audit.totals << label->text();
        return int(QDialog::Rejected);
    });
    utils->stockItemTraceAudit(code, table);
    if (!TestSupport::prompter()->calls.isEmpty() && TestSupport::prompter()->last().kind == "exec")
        audit.dialogName = TestSupport::prompter()->last().dialogName;
    return audit;
}
} // namespace

class TraceAuditTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void listsEveryCountedMovementWithItsBalance();
    void totalsAgreeWithTheQuickTrace_data();
    void totalsAgreeWithTheQuickTrace();
    void codeIsBoundNotSpliced();
    void onlyProductTablesAreAudited_data();
    void onlyProductTablesAreAudited();
};

void TraceAuditTest::listsEveryCountedMovementWithItsBalance()
{
    QVERIFY(StockFixtures::trickyPractice());
    const Audit audit = runAudit("1", "Goods");
    QCOMPARE(audit.dialogName, QString("TraceAudit"));
    const QList<QStringList> expected{
        {"2026-01-05", "Received", "1", "Delivery", "10.00", "1", "10.00"},
        {"2026-02-01", "Dispensed", "101", "P", "3.00", "1", "7.00"},
        {"2026-02-02", "Dispensed", "102", "", "2.00", "1", "5.00"},
        {"2026-02-03", "Dispensed", "103", "", "1.50", "2", "2.00"},
        {"2026-02-04", "Dispensed", "104", "", "4.00", "1", "-2.00"},
        {"2026-02-05", "Dispensed", "105", "", "7.00", "0", "-2.00"},
        {"2026-02-06", "Dispensed", "106", "", "6.00", "0", "-2.00"},
        {"2026-02-07", "Dispensed", "107", "p", "0.75", "0", "-2.00"},
        {"2026-02-08", "Dispensed", "108", "", "0.25", "0", "-2.00"},
        {"2026-03-01", "Received", "2", "Top-up", "2.50", "1", "0.50"},
    };
    QCOMPARE(audit.rows, expected);
    QCOMPARE(audit.totals, (QStringList{"Received: 12.50", "Dispensed: 12.00", "On Hand: 0.50"}));
}

void TraceAuditTest::totalsAgreeWithTheQuickTrace_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("rows");
    QTest::newRow("no trace lines") << "Goods" << "2" << 1;
    QTest::newRow("nothing dispensed") << "Goods" << "3" << 1;
    QTest::newRow("same code, other table") << "Medication" << "1" << 2;
    QTest::newRow("no movement") << "Goods" << "99" << 0;
}

void TraceAuditTest::totalsAgreeWithTheQuickTrace()
{
    QFETCH(QString, table);
    QFETCH(QString, code);
    QFETCH(int, rows);
    QVERIFY(StockFixtures::trickyPractice());
    double received = 0, dispensed = 0;
    QVERIFY(StockFixtures::describedLoop(code, table, &received, &dispensed));
    const Audit audit = runAudit(code, table);
    QCOMPARE(audit.rows.size(), rows);
    QCOMPARE(audit.totals, (QStringList{"Received: " + Utility::numStr(received, 2),
                                        "Dispensed: " + Utility::numStr(dispensed, 2),
                                        "On Hand: " + Utility::numStr(received - dispensed, 2)}));
    if (rows)
        QCOMPARE(audit.rows.last().last(), Utility::numStr(received - dispensed, 2));
}

void TraceAuditTest::codeIsBoundNotSpliced()
{
    const QString code = "4' OR '1'='1\\";
    QVERIFY(StockFixtures::received(1, "Goods", code, 3) && StockFixtures::received(2, "Goods", "5", 40));
    const Audit audit = runAudit(code, "Goods");
    QCOMPARE(audit.rows.size(), 1);
    QCOMPARE(audit.totals.value(0), QString("Received: 3.00"));
}

void TraceAuditTest::onlyProductTablesAreAudited_data()
{
    QTest::addColumn<QString>("table");
    QTest::newRow("other table") << "Operators";
    QTest::newRow("injection attempt") << "Goods WHERE 1=1 --";
    QTest::newRow("empty") << "";
}

void TraceAuditTest::onlyProductTablesAreAudited()
{
    QFETCH(QString, table);
    QVERIFY(StockFixtures::trickyPractice());
    ScriptedPrompter *prompter = TestSupport::prompter();
    const int before = prompter->calls.size();
    utils->stockItemTraceAudit("1", table);
    QCOMPARE(prompter->calls.size(), before + 1);
    QCOMPARE(prompter->last().kind, QString("message"));
    QCOMPARE(prompter->last().icon, int(Prompter::Warning));
    QVERIFY(prompter->last().text.contains("is not a product table"));
}

QTEST_MAIN(TraceAuditTest)
#include "tst_traceaudit.moc"
