#ifndef QUOREL_PROMPTER_H
#define QUOREL_PROMPTER_H

#include <QLineEdit>
#include <QString>
#include <QStringList>

class QDialog;
class QPrinter;
class QWidget;

// Every modal interaction of the suite goes through the current prompter, so that tests can
// script the answers and record the questions. Production uses the widget-based one.
class Prompter
{
public:
    enum Icon { Information, Warning, Critical, Question };
    virtual ~Prompter();
    // A message box; `buttons` are the button texts in order (empty: one "OK"). Returns the index
    // of the pressed button, or `escapeIndex` when the box is closed without one.
    virtual int message(QWidget *parent, Icon icon, const QString &caption, const QString &text,
                        const QStringList &buttons = {}, int defaultIndex = 0, int escapeIndex = -1) = 0;
    virtual QString getText(QWidget *parent, const QString &caption, const QString &label,
                            QLineEdit::EchoMode echo, const QString &text, bool *ok) = 0;
    virtual QString getItem(QWidget *parent, const QString &caption, const QString &label,
                            const QStringList &items, int current, bool editable, bool *ok) = 0;
    virtual int getInt(QWidget *parent, const QString &caption, const QString &label,
                       int value, int min, int max, int step, bool *ok) = 0;
    virtual QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                    const QString &filter) = 0;
    virtual int exec(QDialog *dialog) = 0;
    virtual bool setupPrinter(QPrinter *printer, QWidget *parent) = 0; // false: cancelled

    static Prompter *current();       // never null: the widget-based one unless one is installed
    static void install(Prompter *p); // nullptr restores the widget-based one; no ownership taken

    // The suite's confirmation: "&Yes"/"&No" with "&No" the default; true only for "&Yes".
    static bool confirm(QWidget *parent, const QString &caption, const QString &text);
    // A box with the single default button.
    static void inform(QWidget *parent, const QString &caption, const QString &text);
    static void warn(QWidget *parent, const QString &caption, const QString &text);
    static void critical(QWidget *parent, const QString &caption, const QString &text);
};

// The production prompter: real Qt dialogs.
class WidgetPrompter : public Prompter
{
public:
    int message(QWidget *parent, Icon icon, const QString &caption, const QString &text,
                const QStringList &buttons, int defaultIndex, int escapeIndex) override;
    QString getText(QWidget *parent, const QString &caption, const QString &label,
                    QLineEdit::EchoMode echo, const QString &text, bool *ok) override;
    QString getItem(QWidget *parent, const QString &caption, const QString &label,
                    const QStringList &items, int current, bool editable, bool *ok) override;
    int getInt(QWidget *parent, const QString &caption, const QString &label,
               int value, int min, int max, int step, bool *ok) override;
    QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                            const QString &filter) override;
    int exec(QDialog *dialog) override;
    bool setupPrinter(QPrinter *printer, QWidget *parent) override;
};

#endif
