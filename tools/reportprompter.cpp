#include "reportprompter.h"

#include <QDialog>
#include <QPrinter>

int ReportPrompter::message(QWidget *, Icon icon, const QString &caption, const QString &text, const QStringList &,
                            int, int escapeIndex)
{
    said << Said{icon, caption, text};
    return escapeIndex;
}

QString ReportPrompter::getText(QWidget *, const QString &caption, const QString &label, QLineEdit::EchoMode,
                                const QString &, bool *ok)
{
    unanswered << caption + ": " + label;
    *ok = false;
    return {};
}

// The reports offer fixed entries (the mode) or an editable one (the category): the tool's answer
// is an entry's index when it names one by its position, else the text itself where typing is
// allowed.
QString ReportPrompter::getItem(QWidget *, const QString &caption, const QString &label, const QStringList &items,
                                int, bool editable, bool *ok)
{
    bool isIndex = false;
    const int index = choice.toInt(&isIndex);
    *ok = !choice.isEmpty() && ((isIndex && index >= 0 && index < items.size()) || editable);
    if (!*ok) {
        unanswered << caption + ": " + label;
        return {};
    }
    return isIndex ? items.at(index) : choice;
}

int ReportPrompter::getInt(QWidget *, const QString &caption, const QString &label, int value, int min, int max,
                           int, bool *ok)
{
    *ok = number >= min && number <= max;
    if (!*ok)
        unanswered << caption + ": " + label;
    return *ok ? number : value;
}

QString ReportPrompter::getSaveFileName(QWidget *, const QString &, const QString &, const QString &)
{
    return saveFileName;
}

int ReportPrompter::exec(QDialog *dialog)
{
    return dialogHandler ? dialogHandler(dialog) : QDialog::Rejected;
}

bool ReportPrompter::setupPrinter(QPrinter *printer, QWidget *)
{
    if (pdfFileName.isEmpty())
        return false;
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(pdfFileName);
    return true;
}
