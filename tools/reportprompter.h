#ifndef QUOREL_REPORTPROMPTER_H
#define QUOREL_REPORTPROMPTER_H

#include "prompter.h"

#include <QList>
#include <functional>

// The prompter of quorel-report: it answers the report's question from the command line, the
// output's file and printer questions with the files the tool writes, and never waits for a
// person. A question it has no answer for is recorded and cancelled, so that the report ends and
// the tool can say which option was missing.
class ReportPrompter : public Prompter
{
public:
    struct Said {
        Icon icon;
        QString caption;
        QString text;
    };

    // The answer to the report's choice (mode or category) and to its number (schedule); an
    // empty choice or a negative number: not given.
    QString choice;
    int number = -1;
    // Where the next export goes, the printer's PDF file, and what to do with a dialog it is given.
    QString saveFileName;
    QString pdfFileName;
    std::function<int(QDialog *)> dialogHandler;

    QList<Said> said;          // every message box, in order
    QStringList unanswered;    // the questions nothing answered ("caption: label")

    int message(QWidget *parent, Icon icon, const QString &caption, const QString &text,
                const QStringList &buttons, int defaultIndex, int escapeIndex) override;
    QString getText(QWidget *parent, const QString &caption, const QString &label, QLineEdit::EchoMode echo,
                    const QString &text, bool *ok) override;
    QString getItem(QWidget *parent, const QString &caption, const QString &label, const QStringList &items,
                    int current, bool editable, bool *ok) override;
    int getInt(QWidget *parent, const QString &caption, const QString &label, int value, int min, int max,
               int step, bool *ok) override;
    QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                            const QString &filter) override;
    int exec(QDialog *dialog) override;
    bool setupPrinter(QPrinter *printer, QWidget *parent) override;
};

#endif
