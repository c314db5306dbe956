#include "testsupport.h"

#include <QDialog>

using TestSupport::ScriptedPrompter;

// One queue of answers in call order; a null answer cancels an input.
void ScriptedPrompter::answer(int button) { answers.enqueue(button); }
void ScriptedPrompter::answerText(const QString &text) { answers.enqueue(text); }
void ScriptedPrompter::answerInt(int value) { answers.enqueue(value); }
void ScriptedPrompter::cancel() { answers.enqueue(QVariant()); }
void ScriptedPrompter::answerDialog(std::function<int(QDialog *)> handler) { dialogHandlers.enqueue(std::move(handler)); }
void ScriptedPrompter::answerPrinter(bool accept) { answers.enqueue(accept); }

QStringList ScriptedPrompter::messageTexts() const
{
    QStringList texts;
    for (const Call &call : calls)
        if (call.kind == QLatin1String("message"))
            texts << call.text;
    return texts;
}

int ScriptedPrompter::message(QWidget *, Icon icon, const QString &caption, const QString &text,
                              const QStringList &buttons, int defaultIndex, int escapeIndex)
{
    Call call;
    call.kind = "message";
    call.icon = icon;
    call.caption = caption;
    call.text = text;
    call.buttons = buttons;
    call.defaultIndex = defaultIndex;
    calls << call;
    if (answers.isEmpty())
        return escapeIndex;
    const QVariant answer = answers.dequeue();
    return answer.isValid() ? answer.toInt() : escapeIndex;
}

QString ScriptedPrompter::getText(QWidget *, const QString &caption, const QString &label, QLineEdit::EchoMode echo,
                                  const QString &, bool *ok)
{
    Call call;
    call.kind = "getText";
    call.caption = caption;
    call.text = label;
    call.echo = echo;
    calls << call;
    const QVariant answer = answers.isEmpty() ? QVariant() : answers.dequeue();
    if (ok)
        *ok = answer.isValid();
    return answer.toString();
}

QString ScriptedPrompter::getItem(QWidget *, const QString &caption, const QString &label, const QStringList &items,
                                  int, bool, bool *ok)
{
    Call call;
    call.kind = "getItem";
    call.caption = caption;
    call.text = label;
    call.buttons = items;
    calls << call;
    const QVariant answer = answers.isEmpty() ? QVariant() : answers.dequeue();
    if (ok)
        *ok = answer.isValid();
    return answer.toString();
}

int ScriptedPrompter::getInt(QWidget *, const QString &caption, const QString &label, int value, int, int, int,
                             bool *ok)
{
    Call call;
    call.kind = "getInt";
    call.caption = caption;
    call.text = label;
    calls << call;
    const QVariant answer = answers.isEmpty() ? QVariant() : answers.dequeue();
    if (ok)
        *ok = answer.isValid();
    return answer.isValid() ? answer.toInt() : value;
}

QString ScriptedPrompter::getSaveFileName(QWidget *, const QString &caption, const QString &, const QString &)
{
    Call call;
    call.kind = "getSaveFileName";
    call.caption = caption;
    calls << call;
    return answers.isEmpty() ? QString() : answers.dequeue().toString();
}

int ScriptedPrompter::exec(QDialog *dialog)
{
    Call call;
    call.kind = "exec";
    call.dialogName = dialog->objectName();
    call.caption = dialog->windowTitle();
    calls << call;
    if (dialogHandlers.isEmpty())
        return QDialog::Rejected;
    return dialogHandlers.dequeue()(dialog);
}

bool ScriptedPrompter::setupPrinter(QPrinter *, QWidget *)
{
    Call call;
    call.kind = "setupPrinter";
    calls << call;
    return !answers.isEmpty() && answers.dequeue().toBool();
}
