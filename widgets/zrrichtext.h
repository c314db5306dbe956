#ifndef QUOREL_ZRRICHTEXT_H
#define QUOREL_ZRRICHTEXT_H

#include <QDialog>

class QPrinter;
class QPushButton;
class QTextEdit;

// Shows one page of a report as rich text and prints it. It knows nothing of reports: the
// window hands it each page and hears, through the signals, when the user wants another page or
// all pages printed. The pointer each signal carries is an action code, not an address.
class ZrRichText : public QDialog
{
    Q_OBJECT
public:
    enum Action { PrevPage = 10, NextPage = 11, PrintAll = 12 };

    explicit ZrRichText(QWidget *parent = nullptr);
    ~ZrRichText() override;

    void setText(const QString &html);
    QString text() const;
    QTextEdit *view() const { return textView; }
    void adjustSize();

signals:
    void nextPage(void *action);
    void prevPage(void *action);
    void printAllPages(void *action);

public slots:
    void print();
    void printAll();
    void close();
    void prev();
    void next();

private:
    QTextEdit *textView;
    QPrinter *printer = nullptr;
};

#endif
