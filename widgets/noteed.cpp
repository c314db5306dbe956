#include "noteed.h"

#include "prompter.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QTextEdit>
#include <QVBoxLayout>

NoteEd::NoteEd(QWidget *parent)
    : QDialog(parent)
{
    setObjectName("NoteEd");
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    layout->setObjectName("NoteEdLayout");
    textEdit1 = new QTextEdit(this);
    textEdit1->setObjectName("textEdit1");
    textEdit1->setAcceptRichText(false);
    layout->addWidget(textEdit1);
    auto *buttons = new QHBoxLayout;
    buttons->setObjectName("Layout1");
    buttonHelp = new QPushButton(this);
    buttonHelp->setObjectName("buttonHelp");
    buttonOk = new QPushButton(this);
    buttonOk->setObjectName("buttonOk");
    buttonOk->setDefault(true);
    buttonCancel = new QPushButton(this);
    buttonCancel->setObjectName("buttonCancel");
    buttons->addWidget(buttonHelp);
    buttons->addStretch();
    buttons->addWidget(buttonOk);
    buttons->addWidget(buttonCancel);
    layout->addLayout(buttons);
    connect(buttonOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttonCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(buttonHelp, &QPushButton::clicked, this, &NoteEd::showHelp);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, &NoteEd::showHelp);
    languageChange();
    resize(520, 360);
}

void NoteEd::languageChange()
{
    setWindowTitle(tr("Note Editor"));
    buttonHelp->setText(tr("&Help"));
    buttonOk->setText(tr("&OK"));
    buttonCancel->setText(tr("&Cancel"));
}

QString NoteEd::helpText()
{
    return tr("<h3>Simple Remarks</h3>"
              "<p>Plain text over as many lines as needed. It is shown when the item is dispensed "
              "and may be mixed with parameters.</p>"
              "<h3>Parameters</h3>"
              "<p>A parameter is three fields on one line, each closed by <b>?\?</b>: the prelude printed "
              "on the invoice before the value, the prompt shown in the input dialog at dispense time, "
              "and the default value put into that dialog (it may be empty but is still closed by "
              "<b>?\?</b>). Text after the last <b>?\?</b> is printed after the value.</p>"
              "<p>Examples:<br><tt>THE HEART RATE WAS ?\?HEART RATE?\? </tt><br>"
              "<tt>DISPENSED ?\?QUANTITY (ML) OF XXX DISPENSED?\?5?\? ML XXX</tt></p>"
              "<em>Warning, there may not be any spaces after the opening <b>?\?</b>'s</em>");
}

void NoteEd::showHelp()
{
    Prompter::inform(this, tr("Help"), helpText());
}
