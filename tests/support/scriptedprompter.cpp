#include "testsupport.h"

#include <QDialog>
#include <QPrinter>

using TestSupport::ScriptedPrompter;

// One queue of answers in call order; a null answer cancels an input.
void ScriptedPrompter::answer(int button) { answers.enqueue(button); }
void ScriptedPrompter::answerText(const QString &text) { answers.enqueue(text); }
void ScriptedPrompter::answerInt(int value) { answers.enqueue(value); }
void ScriptedPrompter::cancel() { answers.enqueue(QVariant()); }
void ScriptedPrompter::answerDialog(std::function<int(QDialog *)> handler) { dialogHandlers.enqueue(std::move(handler)); }
void ScriptedPrompter::answerPrinter(bool accept) { answers.enqueue(accept); }
void ScriptedPrompter::answerPrinter(const QString &pdf, int from, int to)
{
    answers.enqueue(QVariantMap{{"pdf", pdf}, {"from", from}, {"to", to}});
}

QStringList ScriptedPrompter::messageTexts() const
{
    QStringList texts;
    for (const Call &call : calls)
        if (call.kind == QLatin1String("message"))
            texts << call.text;
    return texts;
}

namespace {
ScriptedPrompter::Call call(const char *kind, const QString &caption, const QString &text = QString())
{
    ScriptedPrompter::Call made;
    made.kind = kind;
    made.caption = caption;
    made.text = text;
    return made;
}
} // namespace

// The next queued answer; an empty queue or a cancel() leaves `ok` false.
QVariant ScriptedPrompter::nextInput(const Call &call, bool *ok)
{
    calls << call;
    const QVariant answer = answers.isEmpty() ? QVariant() : answers.dequeue();
    if (ok)
        *ok = answer.isValid();
    return answer;
}

int ScriptedPrompter::message(QWidget *, Icon icon, const QString &caption, const QString &text,
                              const QStringList &buttons, int defaultIndex, int escapeIndex)
{
    Call c = call("message", caption, text);
    c.icon = icon;
    c.buttons = buttons;
    c.defaultIndex = defaultIndex;
    bool answered = false;
    const QVariant answer = nextInput(c, &answered);
    return answered ? answer.toInt() : escapeIndex;
}

QString ScriptedPrompter::getText(QWidget *, const QString &caption, const QString &label, QLineEdit::EchoMode echo,
                                  const QString &, bool *ok)
{
    Call c = call("getText", caption, label);
    c.echo = echo;
    return nextInput(c, ok).toString();
}

QString ScriptedPrompter::getItem(QWidget *, const QString &caption, const QString &label, const QStringList &items,
                                  int current, bool editable, bool *ok)
{
    Call c = call("getItem", caption, label);
    c.buttons = items;
    c.defaultIndex = current;
    c.editable = editable;
    return nextInput(c, ok).toString();
}

int ScriptedPrompter::getInt(QWidget *, const QString &caption, const QString &label, int value, int min, int max,
                             int step, bool *ok)
{
    Call c = call("getInt", caption, label);
    c.range = {value, min, max, step};
    bool answered = false;
    const QVariant answer = nextInput(c, &answered);
    if (ok)
        *ok = answered;
    return answered ? answer.toInt() : value;
}

QString ScriptedPrompter::getSaveFileName(QWidget *, const QString &caption, const QString &, const QString &)
{
    return nextInput(call("getSaveFileName", caption), nullptr).toString();
}

int ScriptedPrompter::exec(QDialog *dialog)
{
    Call c = call("exec", dialog->windowTitle());
    c.dialogName = dialog->objectName();
    calls << c;
    if (dialogHandlers.isEmpty())
        return QDialog::Rejected;
    return dialogHandlers.dequeue()(dialog);
}

namespace {
QString offeredPages(const QPrinter *printer)
{
    if (printer->printRange() != QPrinter::PageRange)
        return QString();
    return QString("%1-%2").arg(printer->fromPage()).arg(printer->toPage());
}

void printToPdf(QPrinter *printer, const QVariantMap &answer)
{
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(answer.value("pdf").toString());
    const int from = answer.value("from").toInt();
    if (from == ScriptedPrompter::AllPages) {
        printer->setPrintRange(QPrinter::AllPages);
        printer->setPageRanges(QPageRanges());
    } else if (from > 0) {
        printer->setPrintRange(QPrinter::PageRange);
        printer->setFromTo(from, answer.value("to").toInt());
    }
}
} // namespace

bool ScriptedPrompter::setupPrinter(QPrinter *printer, QWidget *)
{
    Call c = call("setupPrinter", printer->docName(), printer->creator());
    c.pages = offeredPages(printer);
    const QVariant answer = nextInput(c, nullptr);
    if (answer.userType() != QMetaType::QVariantMap)
        return answer.toBool();
    printToPdf(printer, answer.toMap());
    return true;
}
