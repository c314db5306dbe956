// The remarks of the highlighted product, edited in the note editor.
#include "admin.h"

#include "globals.h"
#include "noteed.h"
#include "prompter.h"
#include "remarksicons.h"
#include "tabsupport.h"
#include "utility.h"

#include <QSqlQuery>
#include <QTextEdit>
#include <memory>

namespace {
// The remarks are stored as UTF-8 bytes. The connection hands text columns over already decoded
// (its character set is UTF-8 on every engine); bytes, as a binary column gives them, are
// decoded here, so accented remarks read the same whichever way they were stored.
QString remarksText(const QVariant &value)
{
    return value.typeId() == QMetaType::QByteArray ? QString::fromUtf8(value.toByteArray()) : value.toString();
}
} // namespace

void Admin::noteEditor()
{
    QTreeWidgetItem *item = ui.list->currentItem();
    if (!item)
        return;
    const QString code = TabSupport::escaped(TabSupport::cell(item, 0));
    const QString table = currentCategoryTable();
    QSqlQuery query;
    if (!TabSupport::run(query, "SELECT Remarks FROM " + table + " " + "WHERE Code='" + code + "'"))
        return;
    const QString remarks = query.next() ? remarksText(query.value(0)) : QString();
    auto editor = std::make_unique<NoteEd>(this);
    editor->textEdit1->setPlainText(remarks);
    if (Prompter::current()->exec(editor.get()) != QDialog::Accepted)
        return;
    const QString text = editor->textEdit1->toPlainText();
    const QString caption = tr("Note Editor");
    // The icon tells whether remarks are stored: it changes only when they were.
    if (!TabSupport::textsFit(this, caption, table, {{"Remarks", text}})
        || !TabSupport::run("UPDATE " + table + " " + "SET Remarks='" + TabSupport::escaped(text) + "' "
                            + "WHERE Code='" + code + "'"))
        return;
    ui.pushButton30->setIcon(remarksIcon(text.isEmpty() ? RemarksIcon::Blank : RemarksIcon::Present));
}
