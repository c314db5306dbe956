// The stock level trace of the dispense tab: what the trace received less what the invoices
// dispensed, against the stock on hand that the form shows, with the offer to correct it.
#include "admin.h"

#include "globals.h"
#include "productform.h"
#include "prompter.h"
#include "session.h"
#include "tabsupport.h"
#include "utility.h"

#include <QApplication>
#include <QSqlQuery>

namespace {
enum TraceAnswer { Close = 0, Trace = 1, Adjust = 2 };

// The answer to the box that shows the three figures; a mismatch also offers "Adjust".
int askAboutFigures(Admin *admin, const QString &code, const QString &description, double received,
                    double dispensed, double onHand, bool mismatch)
{
    const QString text = mismatch ? Admin::tr("Stock Level Calculation Mismatch\n%1 - %2 \nReceived: %3\n"
                                              "Dispensed: %4\nOn Hand: %5")
                                  : Admin::tr("%1 - %2 \nReceived: %3\nDispensed: %4\nOn Hand: %5");
    QStringList buttons{Admin::tr("Close"), Admin::tr("Trace")};
    if (mismatch)
        buttons << Admin::tr("Adjust");
    return Prompter::current()->message(
        admin, mismatch ? Prompter::Warning : Prompter::Information, Admin::tr("Stock level Calculation"),
        text.arg(code, description, Utility::numStr(received, 2), Utility::numStr(dispensed, 2),
                 Utility::numStr(onHand, 2)),
        buttons, Close, Close);
}
} // namespace

void Admin::stockLevelTrace()
{
    if (!ui.list->currentItem())
        return;
    const QString code = ui.code_tf->text();
    const QString table = currentCategoryTable();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Session::ensureOpen();
    QSqlQuery query;
    double received = 0.0;
    double dispensed = 0.0;
    const bool traced = Utility::stockFigures(query, code, table, &received, &dispensed);
    QApplication::restoreOverrideCursor();
    if (!traced) {
        utils->showDBError(query);
        return;
    }
    const double onHand = received - dispensed;
    const bool mismatch = Utility::numStr(onHand, 2) != ui.quantity_tf->text();
    switch (askAboutFigures(this, code, ui.description_tf->text(), received, dispensed, onHand, mismatch)) {
    case Trace:
        utils->stockItemTraceAudit(code, table);
        break;
    case Adjust:
        // The field shows the corrected level once it is stored, not before.
        if (TabSupport::run("UPDATE " + table + " SET Quantity=" + QString::number(onHand, 'g', 15) + " WHERE Code='"
                            + TabSupport::escaped(code) + "'")) {
            ui.quantity_tf->setText(Utility::numStr(onHand, 2));
            ProductForm::setFieldBackground(ui.quantity_tf, QColor(0, 0, 255));
        }
        break;
    default:
        break;
    }
}

void Admin::stockLevelCheck(bool)
{
    categorySelected(currentCategoryTable());
}
