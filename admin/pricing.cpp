// Pricing on the dispense tab: the selling price follows cost x mark-up plus the taxes that
// apply; a typed selling price can be worked back into the cost or the mark-up.
#include "admin.h"
#include "globals.h"
#include "prompter.h"
#include "utility.h"

namespace {

double fieldValue(const QLineEdit *field)
{
    return Utility::strNum(field->text(), nullptr);
}

double netBase(const Admin *admin)
{
    return fieldValue(admin->ui.cost_tf) * fieldValue(admin->ui.markup_tf);
}

// Writes cost and mark-up without letting updateSell replace the selling price the user typed.
void writeCostAndMarkup(Admin *admin, double cost, double markup)
{
    QLineEdit *costField = admin->ui.cost_tf;
    QLineEdit *markupField = admin->ui.markup_tf;
    costField->blockSignals(true);
    markupField->blockSignals(true);
    costField->setText(Utility::numStr(cost, 2));
    markupField->setText(Utility::numStr(markup, 2));
    costField->blockSignals(false);
    markupField->blockSignals(false);
}

enum ConflictAnswer { Ignore, Cost, Markup };

} // namespace

void Admin::updateSell(const QString &text)
{
    if (text.isEmpty())
        return;
    const double base = netBase(this);
    double tax = 0.0;
    if (ui.Tax1_checkBox->isChecked())
        tax += Utility::calcTax(base, utils->getTax1());
    if (ui.Tax2_checkBox->isChecked())
        tax += Utility::calcTax(base, utils->getTax2());
    ui.sell_tf->setText(Utility::numStr(tax + base, 2));
    checkSellPrice();
}

// Multiplies the rates directly instead of going through calcTax, so that a price that calcTax
// rounded to a different cent shows up in the warning colour.
void Admin::checkSellPrice()
{
    const double base = netBase(this);
    const double expected = base + (ui.Tax1_checkBox->isChecked() ? utils->getTax1() * base : 0.0)
                          + (ui.Tax2_checkBox->isChecked() ? utils->getTax2() * base : 0.0);
    const bool differs = Utility::numStr(expected, 2) != ui.sell_tf->text();
    ui.sell_tf->setPalette(differs ? Utility::warningPalette() : Utility::normalPalette());
}

void Admin::taxingChanged()
{
    if (!ui.markup_tf->text().isEmpty())
        updateSell("0");
    dispense_entry_changed();
}

void Admin::forceSell()
{
    if (!ui.checkBox5->isChecked()) {
        checkSellPrice();
        return;
    }
    const double sell = fieldValue(ui.sell_tf);
    double cost = fieldValue(ui.cost_tf);
    double markup = fieldValue(ui.markup_tf);
    const double base = cost * markup;
    double factor = 1.0;
    double t1 = 0.0;
    double t2 = 0.0;
    if (ui.Tax1_checkBox->isChecked()) {
        t1 = utils->getTax1() * base;
        factor += utils->getTax1();
    }
    if (ui.Tax2_checkBox->isChecked()) {
        t2 = utils->getTax2() * base;
        factor += utils->getTax2();
    }
    const QString calculated = Utility::numStr(t1 + t2 + base, 2);
    const QString selling = Utility::numStr(sell, 2);
    if (calculated == selling) {
        checkSellPrice();
        return;
    }
    // Zeros are replaced before asking, so that neither answer divides by zero; the replacements
    // are part of what gets written.
    const double net = sell / factor;
    if (cost == 0.0)
        cost = net;
    if (markup == 0.0)
        markup = 1.0;
    const int answer = Prompter::current()->message(
        this, Prompter::Question, tr("Quorel"),
        tr("<b>Price calculation conflict</b><br><font color=\"red\"><em>Selling at %1 : Calculated as "
           "%2</em></font><br>Would you like to update the <b>Cost</b> or <b>Markup</b><br>You may "
           "also choose to ignore the issue")
            .arg(selling, calculated),
        {tr("&Ignore"), tr("&Cost"), tr("&Markup")}, Ignore, Ignore);
    if (answer == Cost)
        cost = net / markup;
    else if (answer == Markup)
        markup = net / cost;
    if (answer == Cost || answer == Markup)
        writeCostAndMarkup(this, cost, markup);
    checkSellPrice();
}
