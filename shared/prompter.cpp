#include "prompter.h"

#include <QCoreApplication>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace {
Prompter *installed = nullptr;

Prompter *widgetPrompter()
{
    static WidgetPrompter instance;
    return &instance;
}
} // namespace

Prompter::~Prompter() = default;

Prompter *Prompter::current()
{
    return installed ? installed : widgetPrompter();
}

void Prompter::install(Prompter *p)
{
    installed = p;
}

bool Prompter::confirm(QWidget *parent, const QString &caption, const QString &text)
{
    const QStringList buttons{QCoreApplication::translate("Utility", "&Yes"),
                              QCoreApplication::translate("Utility", "&No")};
    return current()->message(parent, Information, caption, text, buttons, 1, 1) == 0;
}

void Prompter::inform(QWidget *parent, const QString &caption, const QString &text)
{
    current()->message(parent, Information, caption, text);
}

void Prompter::warn(QWidget *parent, const QString &caption, const QString &text)
{
    current()->message(parent, Warning, caption, text);
}

void Prompter::critical(QWidget *parent, const QString &caption, const QString &text)
{
    current()->message(parent, Critical, caption, text);
}

int WidgetPrompter::message(QWidget *parent, Icon icon, const QString &caption, const QString &text,
                            const QStringList &buttons, int defaultIndex, int escapeIndex)
{
    static const QMessageBox::Icon icons[] = {QMessageBox::Information, QMessageBox::Warning,
                                              QMessageBox::Critical, QMessageBox::Question};
    QMessageBox box(icons[icon], caption, text, QMessageBox::NoButton, parent);
    const QStringList texts = buttons.isEmpty() ? QStringList{QCoreApplication::translate("Utility", "OK")} : buttons;
    QList<QPushButton *> made;
    for (const QString &t : texts)
        made << box.addButton(t, QMessageBox::ActionRole);
    if (defaultIndex >= 0 && defaultIndex < made.size())
        box.setDefaultButton(made[defaultIndex]);
    if (escapeIndex >= 0 && escapeIndex < made.size())
        box.setEscapeButton(made[escapeIndex]);
    box.exec();
    const int pressed = made.indexOf(static_cast<QPushButton *>(box.clickedButton()));
    return pressed < 0 ? escapeIndex : pressed;
}

QString WidgetPrompter::getText(QWidget *parent, const QString &caption, const QString &label,
                                QLineEdit::EchoMode echo, const QString &text, bool *ok)
{
    return QInputDialog::getText(parent, caption, label, echo, text, ok);
}

QString WidgetPrompter::getItem(QWidget *parent, const QString &caption, const QString &label,
                                const QStringList &items, int current, bool editable, bool *ok)
{
    return QInputDialog::getItem(parent, caption, label, items, current, editable, ok);
}

int WidgetPrompter::getInt(QWidget *parent, const QString &caption, const QString &label, int value,
                           int min, int max, int step, bool *ok)
{
    return QInputDialog::getInt(parent, caption, label, value, min, max, step, ok);
}

QString WidgetPrompter::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, dir, filter);
}

int WidgetPrompter::exec(QDialog *dialog)
{
    return dialog->exec();
}

bool WidgetPrompter::setupPrinter(QPrinter *printer, QWidget *parent)
{
    QPrintDialog dialog(printer, parent);
    // The program prints whole pages: there is no selection or current page to offer, and a
    // range offered on the printer is the most that can be chosen.
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    if (printer->printRange() == QPrinter::PageRange && printer->toPage() > 0)
        dialog.setMinMax(1, printer->toPage());
    return dialog.exec() == QDialog::Accepted;
}
