// The practice information tab: the one SysInfo row, in the main or the alternative language.
#include "admin.h"

#include "globals.h"
#include "prompter.h"
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

// The UPDATE of either language, its columns in the order the suite has always written them. The
// rates have one column for both languages. The main language's values go in as typed (a quote in
// a text breaks the statement, as it always has); the alternative language's texts are escaped,
// but its two labels are not.
QString updateStatement(Ui::Admin &ui, bool alternative)
{
    const QList<QPair<QString, QLineEdit *>> columns{
        {"ALINE1", ui.ALINE1}, {"ALINE2", ui.ALINE2}, {"ALINE3", ui.ALINE3}, {"ALINE4", ui.ALINE4},
        {"ALINE5", ui.ALINE5}, {"ALINE6", ui.ALINE6}, {"ALINE7", ui.ALINE7}, {"InvFooter", ui.InvFooter},
        {"InvFooter1", ui.InvFooter1}, {"RecFooter", ui.RecFooter}, {"StatementFooter1", ui.StatementFooter1},
        {"StatementFooter2", ui.StatementFooter2}, {"StatementFooter3", ui.StatementFooter3},
        {"HandOverFooter", ui.HandOver}, {"LABEL2", ui.label2LineEdit}, {"LABEL3", ui.label3LineEdit},
        {"Tax1", ui.Tax1}, {"Tax1Name", ui.Tax1Name}, {"Tax2", ui.Tax2}, {"Tax2Name", ui.Tax2Name}};
    QStringList parts;
    for (const auto &[column, field] : columns) {
        const bool rate = column == "Tax1" || column == "Tax2";
        const bool escaped = alternative && !rate && !column.startsWith("LABEL");
        parts << column + (alternative && !rate ? "_A" : "") + "='"
                     + (escaped ? utils->escapeSQL(field->text(), false) : field->text()) + "'";
    }
    return "UPDATE SysInfo SET " + parts.join(',');
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
    if (!query.exec(sql) && utils->showDBError(query))
        return;
    if (!query.next() || query.value(0).isNull())
        return;
    const QList<QLineEdit *> fields = practiceFields(ui);
    for (int column = 0; column < fields.size(); ++column)
        fields[column]->setText(query.value(column).toString());
}

void Admin::PushButton4_clicked()
{
    if (!Prompter::confirm(this, tr("Quorel Admin"),
                           tr("Confirm that you wish to update the system information as shown ?"))) {
        Prompter::inform(this, tr("Update System Information"), tr("Operation cancelled"));
        return;
    }
    const QString sql = updateStatement(ui, ui.alt_lang_tb->isChecked());
    if (!ui.alt_lang_tb->isChecked())
        captionTaxBoxes(false);
    QSqlQuery query;
    if (!query.exec(sql) && utils->showDBError(query))
        return;
    utils->initClass(true);
    utils->checkMemoryLeaks();
}
