#ifndef QUOREL_TESTSUPPORT_H
#define QUOREL_TESTSUPPORT_H

#include "dialect.h"
#include "prompter.h"

#include <QList>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QVariant>
#include <functional>

class Admin;
class QDialog;

// The engine matrix: every suite runs once per engine; the engine and its server come from the
// environment that the test script sets (QUOREL_TEST_ENGINE = sqlite | mariadb | postgres, and
// QUOREL_MARIADB_* / QUOREL_PG_* for the servers). SQLite always runs; an unreachable server
// skips the suite, except under CI=true, where it fails it.
namespace TestSupport {

QString engineName();
Dialect::Engine engine();

// initTestCase(): points `settings` at a temporary INI file naming the engine's driver
// ("QSQLITE", "QMYSQL3" or "QPSQL7") and opens the default connection. False: the suite must
// stop (the reason was already given to QTest as a skip or a failure).
bool initEngine();
// init(): drops every table, creates the schema anew, writes the demo-free SysInfo row below,
// and makes a fresh `utils` (initClass(false) done) and a fresh ScriptedPrompter installed.
bool freshSchema();
// cleanup(): deletes the window made by makeAdmin, `utils`, and uninstalls the prompter.
void cleanup();
// cleanupTestCase(): closes the connection and removes the temporary files.
void finish();

// The SysInfo row that freshSchema() writes: ALINE1 "Test Practice", Tax1Name "VAT", Tax1 0.15,
// Tax2Name "" and Tax2 0, every "_A" text the main text with " (A)" appended.
// Runs a statement on the default connection; on failure prints the error and returns false.
bool exec(const QString &sql);
// The first column of the first row (invalid when none or on failure).
QVariant value(const QString &sql);
// Every row, each column as text (NULL as the empty text).
QList<QStringList> rows(const QString &sql);

// The window, constructed offscreen on the fresh schema (deleted by cleanup()).
Admin *makeAdmin();

class ScriptedPrompter;
ScriptedPrompter *prompter();

// A suite's life on its engine: connected once, a fresh schema for every case, closed at the end.
// A suite that needs more in one of these declares the slot again and calls this one from it.
class EngineSuite : public QObject
{
    Q_OBJECT

protected slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
};

} // namespace TestSupport

// Records every modal interaction and answers from a queue. An empty queue answers as a person
// closing the box would: message() returns escapeIndex, the input dialogs are cancelled,
// exec() rejects, setupPrinter() is cancelled.
class TestSupport::ScriptedPrompter : public Prompter
{
public:
    struct Call {
        QString kind;        // "message", "getText", "getItem", "getInt", "getSaveFileName", "exec", "setupPrinter"
        int icon = -1;       // Prompter::Icon for messages
        QString caption;     // for setupPrinter the printer's document name
        QString text;        // message text or input label; for setupPrinter the printer's creator
        QStringList buttons; // message buttons, or the items of getItem
        int defaultIndex = -1;  // a message's default button, or getItem's current item
        bool editable = false;  // getItem
        QList<int> range;       // getInt: value, minimum, maximum, step
        int echo = -1;       // QLineEdit::EchoMode of getText
        QString dialogName;  // object name of the dialog given to exec()
        QString pages;       // setupPrinter: the page range offered, "from-to", empty when none
    };
    QList<Call> calls;

    void answer(int button);                                  // a message box's button
    void answerText(const QString &text);                     // getText / getItem / getSaveFileName
    void answerInt(int value);                                // getInt
    void cancel();                                            // the next input is cancelled
    void answerDialog(std::function<int(QDialog *)> handler); // exec(): fill the dialog, return its result
    void answerPrinter(bool accept);                          // setupPrinter
    // setupPrinter accepted with the printer writing a PDF to `pdf`: the range offered left as it
    // is (from = 0), pages `from` to `to`, or every page (from = AllPages, as a person choosing
    // "All" in the dialog, which clears the range).
    enum { AllPages = -1 };
    void answerPrinter(const QString &pdf, int from = 0, int to = 0);
    int pending() const { return answers.size(); }
    const Call &last() const { return calls.last(); }
    QStringList messageTexts() const;                        // the texts of every message so far

    int message(QWidget *parent, Icon icon, const QString &caption, const QString &text,
                const QStringList &buttons, int defaultIndex, int escapeIndex) override;
    QString getText(QWidget *parent, const QString &caption, const QString &label,
                    QLineEdit::EchoMode echo, const QString &text, bool *ok) override;
    QString getItem(QWidget *parent, const QString &caption, const QString &label,
                    const QStringList &items, int current, bool editable, bool *ok) override;
    int getInt(QWidget *parent, const QString &caption, const QString &label, int value, int min,
               int max, int step, bool *ok) override;
    QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                            const QString &filter) override;
    int exec(QDialog *dialog) override;
    bool setupPrinter(QPrinter *printer, QWidget *parent) override;

private:
    QVariant nextInput(const Call &call, bool *ok);
    QQueue<QVariant> answers;
    QQueue<std::function<int(QDialog *)>> dialogHandlers;
};

#endif
