// The practice's activity over time: clients and their animals, invoices with their journal
// entries, and the stock received, so that each product's Quantity is what its trace says.
#include "catalogue.h"
#include "practicebuilder.h"
#include "utility.h"

#include <algorithm>
#include <cmath>

namespace {

const char *const titles[] = {"Mr", "Mrs", "Ms", "Dr", "Mr", "Mrs", "Prof"};
const char *const sexes[] = {"M", "F", "MN", "FS"};
const char *const adjustments[] = {"Breakage", "Expired stock written off", "Stock count correction"};

// The categories an invoice line falls in, by how often a practice charges them.
const std::vector<std::pair<const char *, double>> categoryWeights = {
    {"Consult", 0.20}, {"Medication", 0.22}, {"Injection", 0.12}, {"Vaccination", 0.10}, {"Goods", 0.13},
    {"Lab", 0.06}, {"Proc", 0.07}, {"Diagnosis", 0.05}, {"Hospital", 0.05}};

const double linesPerInvoice = 2.5;

QString digits(std::mt19937 &rng, int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QChar('0' + int(rng() % 10));
    return text;
}

QString phone(std::mt19937 &rng, const char *prefix)
{
    return QString("%1 %2 %3").arg(QLatin1String(prefix), digits(rng, 3), digits(rng, 4));
}

double weekdayWeight(const QDate &day)
{
    return day.dayOfWeek() == 7 ? 0.25 : day.dayOfWeek() == 6 ? 0.6 : 1.0;
}

} // namespace

int PracticeBuilder::monthOf(const QDate &day) const
{
    return (day.year() - invoiceStart.year()) * 12 + day.month() - invoiceStart.month();
}

double PracticeBuilder::poisson(double mean)
{
    return std::poisson_distribution<int>(mean)(rng);
}

// --- clients --------------------------------------------------------------------------------

bool PracticeBuilder::writeOwners()
{
    const int days = int(today.addYears(-shape.ownerYears).daysTo(today));
    std::vector<QDate> created;
    for (int i = 0; i < shape.owners; ++i)
        created.push_back(today.addDays(-below(days + 1)));
    std::sort(created.begin(), created.end());
    owners.resize(created.size());
    for (size_t i = 0; i < created.size(); ++i) {
        owners[i].created = created[i];
        owners[i].badDebt = chance(0.02);
        if (!writeOwner(int(i) + 1, owners[i]))
            return false;
    }
    return true;
}

bool PracticeBuilder::writeOwner(int account, Owner &owner)
{
    const auto &surnames = Catalogue::surnames();
    const QString surname = QString::fromUtf8(surnames[size_t(below(int(surnames.size())))]);
    QString initials(QChar('A' + below(26)));
    if (chance(0.5))
        initials += QChar('A' + below(26));
    const QString town = Catalogue::towns()[size_t(below(int(Catalogue::towns().size())))];
    const QString street = Catalogue::streets()[size_t(below(int(Catalogue::streets().size())))];
    const QString address = QString("%1 %2, %3").arg(1 + below(180)).arg(street, town);
    const QString postal = chance(0.3) ? QString("PO Box %1, %2").arg(100 + below(9000)).arg(town) : address;
    QString mail = (initials + "." + surname).toLower().remove(' ').remove('\'');
    mail.replace(QChar(0xfc), 'u');
    const QVariantList row = {account, titles[below(7)], initials, Utility::rot13(surname), digits(rng, 13),
                              phone(rng, "021"), chance(0.5) ? phone(rng, "021") : QString(), phone(rng, "082"),
                              address, postal, mail + QString("%1@example.com").arg(account),
                              chance(0.05) ? QString("Prefers appointments in the morning.") : QString(),
                              owner.badDebt ? "Y" : "N", date(owner.created)};
    return out.add("Owner", row) && writePets(account, owner);
}

bool PracticeBuilder::writePets(int account, Owner &owner)
{
    const auto &breeds = Catalogue::breeds();
    const auto &names = Catalogue::petNames();
    const int pets = chance(0.6) ? 1 : chance(0.75) ? 2 : 3;
    for (int i = 0; i < pets; ++i) {
        const Catalogue::Breed &breed = breeds[size_t(below(int(breeds.size())))];
        const QString name = QString::fromUtf8(names[size_t(below(int(names.size())))]);
        owner.pets.push_back(nextPet++);
        if (!out.add("Patient", {owner.pets.back(), account, name, round2(breed.weight * uniform(0.6, 1.2)),
                                 sexes[below(4)], QString::fromUtf8(breed.name)}))
            return false;
    }
    return true;
}

// --- invoices and journal -------------------------------------------------------------------

bool PracticeBuilder::writeInvoices()
{
    for (Product &p : products)
        p.monthly.assign(size_t(monthOf(today) + 1), 0.0);
    double weights = 0;
    for (QDate day = invoiceStart; day <= today; day = day.addDays(1))
        weights += weekdayWeight(day);
    const double perDay = shape.invoiceLines / linesPerInvoice / weights;
    size_t opened = 0; // owners whose account exists on the day
    for (QDate day = invoiceStart; day <= today; day = day.addDays(1)) {
        while (opened < owners.size() && owners[opened].created <= day)
            ++opened;
        const int count = opened ? int(poisson(perDay * weekdayWeight(day))) : 0;
        for (int i = 0; i < count; ++i) {
            if (!writeInvoice(day, below(int(opened))))
                return false;
        }
    }
    return true;
}

bool PracticeBuilder::writeInvoice(const QDate &day, int ownerIndex)
{
    const Owner &owner = owners[size_t(ownerIndex)];
    const int number = nextInvoice++;
    const int account = ownerIndex + 1;
    const int pet = owner.pets[size_t(below(int(owner.pets.size())))];
    const bool pending = day.daysTo(today) < 14 ? chance(0.35) : chance(0.008);
    const std::vector<Line> lines = invoiceLines(day);
    double total = 0;
    for (const Line &line : lines)
        total += round2(products[size_t(line.product)].price * line.quantity);
    if (!out.add("Invoice", {number, account, pet, date(day), pending ? "P" : "C"}))
        return false;
    const int counting = pending ? 1 : writeJournal(number, account, day, round2(total), owner.badDebt);
    if (counting < 0)
        return false;
    for (const Line &line : lines) {
        Product &p = products[size_t(line.product)];
        p.dispensed += line.quantity * counting;
        p.monthly[size_t(monthOf(day))] += line.quantity * counting;
        if (!out.add("InvoiceItem", {number, pet, date(day), line.vet, p.category, p.code, p.name, line.quantity,
                                     round2(p.price * line.quantity), p.unit}))
            return false;
    }
    return true;
}

std::vector<PracticeBuilder::Line> PracticeBuilder::invoiceLines(const QDate &day)
{
    const QString vet = pickVet();
    const int count = 1 + std::min(7, int(poisson(linesPerInvoice - 1)));
    std::vector<Line> lines;
    for (int i = 0; i < count; ++i) {
        const auto &consults = byCategory.at("Consult");
        const int product = i == 0 && chance(0.4) ? consults[size_t(below(std::min(3, int(consults.size()))))]
                                                  : pickProduct(day);
        lines.push_back({product, lineQuantity(products[size_t(product)]), chance(0.85) ? vet : pickVet()});
    }
    return lines;
}

const QString &PracticeBuilder::pickVet()
{
    // The vets do most of the work, the nurse some, the receptionist sells over the counter.
    const double r = uniform(0, 1);
    return staff[r < 0.45 ? 1 : r < 0.85 ? 2 : r < 0.95 ? 3 : 4].initials;
}

int PracticeBuilder::pickProduct(const QDate &day)
{
    if (chance(shape.hotShare))
        return hotProduct;
    double r = uniform(0, 1);
    const char *category = categoryWeights.back().first;
    for (const auto &w : categoryWeights) {
        if ((r -= w.second) < 0) {
            category = w.first;
            break;
        }
    }
    const auto &list = byCategory.at(category);
    int product = list.front();
    for (int attempt = 0; attempt < 4; ++attempt) {
        // A few products of each category sell far more often than the rest.
        product = list[size_t(double(list.size()) * std::pow(uniform(0, 1), 1.8))];
        if (products[size_t(product)].active || day.daysTo(today) > 365)
            break;
    }
    return product;
}

double PracticeBuilder::lineQuantity(const Product &p)
{
    if (p.unit == "ml")
        return std::round(&p == &products[size_t(hotProduct)] ? uniform(5, 30) * 10 : uniform(0.3, 8) * 10) / 10;
    if ((p.unit == "Tablet" || p.unit == "Capsule") && p.category == "Medication")
        return 5 + below(26);
    if (p.unit == "Day" || p.unit == "Night" || p.unit == "Hour")
        return 1 + below(4);
    if (p.unit == "Can" || p.unit == "Sachet")
        return 1 + below(12);
    return chance(0.15) ? 2 : 1;
}

int PracticeBuilder::writeJournal(int number, int account, const QDate &day, double total, bool badDebt)
{
    if (chance(0.003)) // cancelled before it was posted: nothing was dispensed
        return 0;
    // The client pays a round amount; the difference is booked as rounding.
    const double value = std::round(total * 20) / 20;
    int counting = chance(0.002) ? 2 : 1; // now and then an invoice was posted twice
    for (int i = 0; i < counting; ++i) {
        if (!out.add("Journal", {number, account, date(day), "I", total, round2(total - value)}))
            return -1;
    }
    if (chance(0.007)) {
        ++counting;
        const QDate refund = std::min(today, day.addDays(below(20)));
        if (!out.add("Journal", {number, account, date(refund), "RF", -round2(total * uniform(0.1, 1)), 0.0}))
            return -1;
    }
    if (chance(0.01) && !out.add("Journal", {nextInvoice++, account, date(day), "Q", round2(total * uniform(0.5, 2)), 0.0}))
        return -1;
    const bool paid = badDebt ? chance(0.3) : day.daysTo(today) < 30 ? chance(0.7) : chance(0.985);
    if (!paid)
        return counting;
    const QDate payday = std::min(today, day.addDays(chance(0.8) ? 0 : below(45)));
    return writePayment(account, number, payday, value) ? counting : -1;
}

bool PracticeBuilder::writePayment(int account, int number, const QDate &day, double value)
{
    // A receipt voided at the till is booked again as a proper one.
    if (chance(0.005) && !out.add("Journal", {number, account, date(day), "VR", -value, 0.0}))
        return false;
    return out.add("Journal", {number, account, date(day), "R", -value, 0.0});
}

// --- stock received -------------------------------------------------------------------------

bool PracticeBuilder::writeReceipts()
{
    TracePlan plan;
    planReceipts(plan);
    planAdjustments(plan);
    int number = 0;
    for (const auto &trace : plan) {
        if (!writeTrace(++number, trace.first.first, trace.first.second, trace.second))
            return false;
    }
    return true;
}

// Opening stock on the first day, then each month's use replaced early in the next month, one
// delivery per supplier.
void PracticeBuilder::planReceipts(TracePlan &plan)
{
    const int months = monthOf(today) + 1;
    for (size_t i = 0; i < products.size(); ++i) {
        Product &p = products[i];
        if (!p.stocked)
            continue;
        const double peak = *std::max_element(p.monthly.begin(), p.monthly.end());
        const double opening = std::ceil(2 * peak + p.toQuantity);
        plan[{invoiceStart, p.supplier}].push_back({int(i), opening});
        p.received = opening;
        const int offset = int(qHash(p.supplier) % 5);
        for (int m = 0; m + 1 < months; ++m) {
            const QDate delivery = QDate(invoiceStart.year(), invoiceStart.month(), 1).addMonths(m + 1).addDays(offset);
            const double quantity = round2(p.monthly[size_t(m)]);
            if (quantity > 0 && delivery <= today) {
                plan[{delivery, p.supplier}].push_back({int(i), quantity});
                p.received += quantity;
            }
        }
    }
}

// Breakages and write-offs: movements without a supplier, entered as adjustments.
void PracticeBuilder::planAdjustments(TracePlan &plan)
{
    std::vector<int> stocked;
    for (size_t i = 0; i < products.size(); ++i) {
        if (products[i].stocked)
            stocked.push_back(int(i));
    }
    const int days = int(invoiceStart.daysTo(today));
    for (int i = 0; stocked.size() && i < 3 * shape.invoiceYears; ++i) {
        const int product = stocked[size_t(below(int(stocked.size())))];
        const double quantity = -double(1 + below(3));
        plan[{invoiceStart.addDays(1 + below(days)), QString()}].push_back({product, quantity});
        products[size_t(product)].received += quantity;
    }
}

bool PracticeBuilder::writeTrace(int number, const QDate &day, const QString &supplier, const std::vector<Receipt> &items)
{
    const bool adjustment = supplier.isEmpty();
    const QString notes = adjustment ? adjustments[number % 3] : day == invoiceStart ? "Opening stock" : "Stock received";
    if (!out.add("StockTrace", {number, date(day), adjustment ? "Admin" : staff[3].name, notes, supplier,
                                adjustment ? QString() : "INV" + digits(rng, 6), adjustment ? "Y" : "N"}))
        return false;
    for (const Receipt &item : items) {
        const Product &p = products[size_t(item.product)];
        if (!out.add("StockTraceItem", {number, p.category, p.code, item.quantity, p.unit, p.name, p.schedule,
                                        adjustment ? QString() : "B" + digits(rng, 6)}))
            return false;
    }
    return true;
}

// A few products whose stored stock has drifted from what the trace accounts for, spread over
// the stocked products.
void PracticeBuilder::spoilStock()
{
    const double errors[] = {-2, 3, 5.5, -1, 10, 0.5};
    std::vector<size_t> candidates;
    for (size_t i = 0; i < products.size(); ++i) {
        if (products[i].stocked && int(i) != hotProduct)
            candidates.push_back(i);
    }
    const size_t count = std::min(candidates.size(), size_t(shape.wrongStock));
    for (size_t k = 0; k < count; ++k)
        products[candidates[k * candidates.size() / count]].stockError = errors[k % 6];
}
