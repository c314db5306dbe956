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

struct Assignment {
    const char *column;
    QLineEdit *field;
    bool escaped;
};

QString assignments(const QList<Assignment> &list)
{
    QStringList parts;
    for (const Assignment &a : list)
        parts << QString::fromLatin1(a.column) + "='"
                     + (a.escaped ? utils->escapeSQL(a.field->text(), false) : a.field->text()) + "'";
    return parts.join(',');
}

// The alternative language: texts escaped, but the two labels and the rates as typed.
QString alternativeUpdate(Ui::Admin &ui)
{
    return "UPDATE SysInfo SET " + assignments({
        {"ALINE1_A", ui.ALINE1, true}, {"ALINE2_A", ui.ALINE2, true}, {"ALINE3_A", ui.ALINE3, true},
        {"ALINE4_A", ui.ALINE4, true}, {"ALINE5_A", ui.ALINE5, true}, {"ALINE6_A", ui.ALINE6, true},
        {"ALINE7_A", ui.ALINE7, true}, {"InvFooter_A", ui.InvFooter, true}, {"InvFooter1_A", ui.InvFooter1, true},
        {"RecFooter_A", ui.RecFooter, true}, {"StatementFooter1_A", ui.StatementFooter1, true},
        {"StatementFooter2_A", ui.StatementFooter2, true}, {"StatementFooter3_A", ui.StatementFooter3, true},
        {"HandOverFooter_A", ui.HandOver, true}, {"LABEL2_A", ui.label2LineEdit, false},
        {"LABEL3_A", ui.label3LineEdit, false}, {"Tax1", ui.Tax1, false}, {"Tax1Name_A", ui.Tax1Name, true},
        {"Tax2", ui.Tax2, false}, {"Tax2Name_A", ui.Tax2Name, true}});
}

// The main language: every value as typed.
QString mainUpdate(Ui::Admin &ui)
{
    return "UPDATE SysInfo SET " + assignments({
        {"ALINE1", ui.ALINE1, false}, {"ALINE2", ui.ALINE2, false}, {"ALINE3", ui.ALINE3, false},
        {"ALINE4", ui.ALINE4, false}, {"ALINE5", ui.ALINE5, false}, {"ALINE6", ui.ALINE6, false},
        {"ALINE7", ui.ALINE7, false}, {"InvFooter", ui.InvFooter, false}, {"InvFooter1", ui.InvFooter1, false},
        {"RecFooter", ui.RecFooter, false}, {"StatementFooter1", ui.StatementFooter1, false},
        {"StatementFooter2", ui.StatementFooter2, false}, {"StatementFooter3", ui.StatementFooter3, false},
        {"HandOverFooter", ui.HandOver, false}, {"LABEL2", ui.label2LineEdit, false},
        {"LABEL3", ui.label3LineEdit, false}, {"Tax1", ui.Tax1, false}, {"Tax1Name", ui.Tax1Name, false},
        {"Tax2", ui.Tax2, false}, {"Tax2Name", ui.Tax2Name, false}});
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
    QString sql;
    if (ui.alt_lang_tb->isChecked()) {
        sql = alternativeUpdate(ui);
    } else {
        sql = mainUpdate(ui);
        captionTaxBoxes(false);
    }
    QSqlQuery query;
    if (!query.exec(sql) && utils->showDBError(query))
        return;
    utils->initClass(true);
    utils->checkMemoryLeaks();
}
