#ifndef QUOREL_ZRRICHTEXT_H
#define QUOREL_ZRRICHTEXT_H

#include <QDialog>
#include <QPainter>

class QPrinter;
class QPushButton;
class QTextEdit;

// Shows one page of a report as rich text and prints it: the page on show as a job of its own,
// or every page of the report as one job. It knows nothing of reports: the window hands it each
// page and hears, through the signals, when the user wants another page or all pages printed.
// The pointer each signal carries is an action code, not an address, so that one slot can take
// all three.
class ZrRichText : public QDialog
{
    Q_OBJECT
public:
    enum Action { PrevPage = 10, NextPage = 11, PrintAll = 12 };

    explicit ZrRichText(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false);
    ~ZrRichText() override;

    // The page on show. Any Unicode text survives (names beyond Latin-1 included).
    void setText(const QString &html);
    QString text() const { return html; }
    void setButtons(bool prevEnabled, bool nextEnabled);

    // Opens a job for pages 1 to `pages`; the set-up decides which of them are printed. A
    // cancelled set-up leaves no job, and every printPage() then does nothing.
    void beginPrintAll(int pages);
    // Prints page `page` of the open job when it lies in the chosen range; the job ends with the
    // last page of that range.
    void printPage(int page, const QString &html);
    // Whether the open job will print page `page` (false when no job is open).
    bool wantsPage(int page) const;
    bool printing() const { return printer != nullptr; }

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
    QPushButton *addButton(const char *objectName, const char *caption, void (ZrRichText::*slot)());
    bool openPrinter();
    void endJob();
    void render(const QString &page);
    int lastPageOfJob() const;

    QTextEdit *textView;
    QPushButton *prevButton = nullptr;
    QPushButton *nextButton = nullptr;
    QString html;
    QPainter painter;
    QPrinter *printer = nullptr;
    int jobPages = 0;
};

#endif
