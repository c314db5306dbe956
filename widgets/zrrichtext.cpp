#include "zrrichtext.h"

#include "prompter.h"

#include <QHBoxLayout>
#include <QPrinter>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
void *actionCode(ZrRichText::Action action)
{
    return reinterpret_cast<void *>(quintptr(action));
}
} // namespace

ZrRichText::ZrRichText(QWidget *parent)
    : QDialog(parent)
{
    setObjectName("ZrRichText");
    setWindowTitle(tr("Quorel Report"));
    textView = new QTextEdit(this);
    textView->setObjectName("textView");
    textView->setReadOnly(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(textView);
    auto *row = new QHBoxLayout;
    const struct { const char *name; const char *caption; void (ZrRichText::*slot)(); } buttons[] = {
        {"closeButton", QT_TR_NOOP("Close"), &ZrRichText::close},
        {"printButton", QT_TR_NOOP("Print"), &ZrRichText::print},
        {"printAllButton", QT_TR_NOOP("Print All"), &ZrRichText::printAll},
        {"prevButton", QT_TR_NOOP("Prev"), &ZrRichText::prev},
        {"nextButton", QT_TR_NOOP("Next"), &ZrRichText::next}};
    for (const auto &b : buttons) {
        auto *button = new QPushButton(tr(b.caption), this);
        button->setObjectName(b.name);
        connect(button, &QPushButton::clicked, this, b.slot);
        row->addWidget(button);
    }
    layout->addLayout(row);
}

ZrRichText::~ZrRichText()
{
    delete printer;
}

void ZrRichText::setText(const QString &html)
{
    textView->setHtml(html);
}

QString ZrRichText::text() const
{
    return textView->toHtml();
}

void ZrRichText::adjustSize()
{
    const QSize contents = textView->document()->size().toSize();
    resize(contents.width() + 60, contents.height() + 60);
}

void ZrRichText::print()
{
    QPrinter job;
    job.setDocName("Quorel_Report");
    if (Prompter::current()->setupPrinter(&job, this))
        textView->document()->print(&job);
}

void ZrRichText::printAll()
{
    emit printAllPages(actionCode(PrintAll));
}

void ZrRichText::close()
{
    hide();
}

void ZrRichText::prev()
{
    emit prevPage(actionCode(PrevPage));
}

void ZrRichText::next()
{
    emit nextPage(actionCode(NextPage));
}
