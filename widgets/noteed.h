#ifndef QUOREL_NOTEED_H
#define QUOREL_NOTEED_H

#include "ui_noteed.h"

#include <QDialog>

// The editor of a product's remarks (noteed.ui), with a help that explains the remarks format the
// dispensing side reads (plain lines mixed with "??"-closed parameters). The form's widgets
// (textEdit1, buttonHelp, buttonOk, buttonCancel) are public members, as the window reaches them.
class NoteEd : public QDialog, public Ui::NoteEd
{
    Q_OBJECT
public:
    explicit NoteEd(QWidget *parent = nullptr);

    static QString helpText();

public slots:
    virtual void showHelp();

protected:
    virtual void languageChange();
};

#endif
