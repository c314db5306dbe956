#include "noteed.h"

#include "prompter.h"

#include <QShortcut>

NoteEd::NoteEd(QWidget *parent)
    : QDialog(parent)
{
    setupUi(this);
    connect(buttonHelp, &QPushButton::clicked, this, &NoteEd::showHelp);
    // F1 as well as the button's own Alt+H.
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, &NoteEd::showHelp);
}

void NoteEd::languageChange()
{
    retranslateUi(this);
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
