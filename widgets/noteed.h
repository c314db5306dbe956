#ifndef QUOREL_NOTEED_H
#define QUOREL_NOTEED_H

#include <QDialog>

class QPushButton;
class QTextEdit;

// The editor of a product's remarks, with a help that explains the remarks format the
// dispensing side reads (plain lines mixed with "??"-closed parameters).
class NoteEd : public QDialog
{
    Q_OBJECT
public:
    explicit NoteEd(QWidget *parent = nullptr);

    QTextEdit *textEdit1;
    QPushButton *buttonHelp;
    QPushButton *buttonOk;
    QPushButton *buttonCancel;

    static QString helpText();

public slots:
    virtual void showHelp();

protected:
    virtual void languageChange();
};

#endif
