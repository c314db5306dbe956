// The practice information tab: the one SysInfo row, in the main or the alternative language.
#include "admin.h"

#include "globals.h"
#include "prompter.h"
#include "tabsupport.h"
#include "utility.h"

#include <QSqlQuery>
#include <QVariant>

namespace {
// The fields in the order of the load statements' columns.
QList<QLineEdit *> practiceFields(Ui::Admin &ui)
{
    return {ui.ALINE1, ui.ALINE2, ui.ALINE3, ui.ALINE4, ui.ALINE5, ui.ALINE6, ui.ALINE7, ui.InvFooter,
            ui.InvFooter1, ui.RecFooter, ui.StatementFooter1, ui.StatementFooter2, ui.StatementFooter3,
            ui.Tax1, ui.Tax1Name, ui.Tax2, ui.Tax2Name, ui.HandOver, ui.label2LineEdit, ui.label3LineEdit};
}

// The texts of the tab with their SysInfo columns, in the order the UPDATE has always written them;
// the alternative language's columns end in "_A".
QList<QPair<QString, QLineEdit *>> practiceTexts(Ui::Admin &ui)
{
    return {{"ALINE1", ui.ALINE1}, {"ALINE2", ui.ALINE2}, {"ALINE3", ui.ALINE3}, {"ALINE4", ui.ALINE4},
            {"ALINE5", ui.ALINE5}, {"ALINE6", ui.ALINE6}, {"ALINE7", ui.ALINE7}, {"InvFooter", ui.InvFooter},
            {"InvFooter1", ui.InvFooter1}, {"RecFooter", ui.RecFooter}, {"StatementFooter1", ui.StatementFooter1},
            {"StatementFooter2", ui.StatementFooter2}, {"StatementFooter3", ui.StatementFooter3},
            {"HandOverFooter", ui.HandOver}, {"LABEL2", ui.label2LineEdit}, {"LABEL3", ui.label3LineEdit}};
}

QString column(const QString &name, bool alternative)
{
    return alternative ? name + "_A" : name;
}

// The UPDATE of either language. Every text is escaped, so that whatever the practice's name or
// footers hold (a quote, a backslash) is stored as typed; the two rates, one column for both
// languages, are written as the numbers they read as.
QString updateStatement(Ui::Admin &ui, bool alternative)
{
    QStringList parts;
    for (const auto &[name, field] : practiceTexts(ui))
        parts << column(name, alternative) + "='" + TabSupport::escaped(field->text()) + "'";
    parts << "Tax1='" + TabSupport::numberText(ui.Tax1->text()) + "'"
          << column("Tax1Name", alternative) + "='" + TabSupport::escaped(ui.Tax1Name->text()) + "'"
          << "Tax2='" + TabSupport::numberText(ui.Tax2->text()) + "'"
          << column("Tax2Name", alternative) + "='" + TabSupport::escaped(ui.Tax2Name->text()) + "'";
    return "UPDATE SysInfo SET " + parts.join(',');
}

// Nothing is asked when the fields cannot be saved as they stand.
bool practiceAcceptable(Admin *admin, const QString &caption)
{
    Ui::Admin &ui = admin->ui;
    const bool alternative = ui.alt_lang_tb->isChecked();
    QList<TabSupport::ColumnText> texts;
    for (const auto &[name, field] : practiceTexts(ui))
        texts.append({column(name, alternative), field->text()});
    texts.append({column("Tax1Name", alternative), ui.Tax1Name->text()});
    texts.append({column("Tax2Name", alternative), ui.Tax2Name->text()});
    return TabSupport::numbersRead(admin, caption,
                                   {{Admin::tr("first tax rate"), ui.Tax1->text()},
                                    {Admin::tr("second tax rate"), ui.Tax2->text()}})
        && TabSupport::textsFit(admin, caption, "SysInfo", texts);
}
} // namespace

void Admin::alt_lang_tb_clicked()
{
    const QString sql = ui.alt_lang_tb->isChecked()
        ? "SELECT ALINE1_A, ALINE2_A, ALINE3_A, ALINE4_A, ALINE5_A,ALINE6_A, ALINE7_A, InvFooter_A, InvFooter1_A, "
          "RecFooter_A,StatementFooter1_A, StatementFooter2_A, StatementFooter3_A,Tax1, Tax1Name_A, Tax2, Tax2Name_A, "
          "HandOverFooter_A,LABEL2_A,LABEL3_A FROM SysInfo"
        : "SELECT ALINE1, ALINE2, ALINE3, ALINE4, ALINE5,ALINE6, ALINE7, InvFooter, InvFooter1, RecFooter,"
          "StatementFooter1, StatementFooter2, StatementFooter3,Tax1, Tax1Name, Tax2, Tax2Name, "
          "HandOverFooter,LABEL2,LABEL3 FROM SysInfo";
    QSqlQuery query;
    if (!TabSupport::run(query, sql))
        return;
    if (!query.next() || query.value(0).isNull())
        return;
    const QList<QLineEdit *> fields = practiceFields(ui);
    for (int column = 0; column < fields.size(); ++column)
        fields[column]->setText(query.value(column).toString());
}

void Admin::PushButton4_clicked()
{
    if (!practiceAcceptable(this, tr("Update System Information")))
        return;
    if (!Prompter::confirm(this, tr("Quorel Admin"),
                           tr("Confirm that you wish to update the system information as shown ?"))) {
        Prompter::inform(this, tr("Update System Information"), tr("Operation cancelled"));
        return;
    }
    const QString sql = updateStatement(ui, ui.alt_lang_tb->isChecked());
    if (!ui.alt_lang_tb->isChecked())
        captionTaxBoxes(false);
    if (!TabSupport::run(sql))
        return;
    utils->initClass(true);
    utils->checkMemoryLeaks();
}
