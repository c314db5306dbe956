#include "demodata.h"

#include "catalogue.h"
#include "practicebuilder.h"
#include "rights.h"
#include "utility.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <cmath>
#include <cstring>

namespace {

const QStringList productColumns = {"Code", "Description", "Description_A", "Schedule", "UnitOfMeasure",
                                    "UnitOfMeasure_A", "Cost", "MarkUp", "Price", "Tax1", "Tax2", "Quantity",
                                    "ReOrder", "ToQuantity", "OnOrder", "OrderDate", "Supplier", "Remarks", "Active"};

// The schedule classes: a right per schedule level.
const QStringList scheduleClasses = Rights::classNames().mid(2, 4);

// Drug schedules by a word of the product name; other medicines are schedule 4.
int scheduleOf(const char *category, const QString &name)
{
    static const std::vector<std::pair<const char *, int>> words = {
        {"Lactulose", 0}, {"Potassium", 0}, {"Omeprazole", 1}, {"Praziquantel", 1}, {"Ivermectin", 2},
        {"Chloramphenicol", 2}, {"Fusidic", 3}, {"Prednisolone", 3}, {"Diazepam", 5}, {"Phenobarbitone", 5},
        {"Gabapentin", 5}, {"Tramadol", 6}, {"Butorphanol", 6}, {"Buprenorphine Oral", 7}, {"Buprenorphine", 6},
        {"Ketamine", 7}, {"Pentobarbitone", 5}, {"Vitamin", 0}, {"Iron", 1}};
    if (std::strcmp(category, "Medication") && std::strcmp(category, "Injection"))
        return 0;
    for (const auto &w : words) {
        if (name.startsWith(QLatin1String(w.first)))
            return w.second;
    }
    return 4;
}

const char *supplierOf(const char *category, int index)
{
    const auto &s = Catalogue::suppliers();
    if (Catalogue::isService(category))
        return "";
    if (!std::strcmp(category, "Lab"))
        return s[5].company;
    if (!std::strcmp(category, "Vaccination"))
        return s[2].company;
    if (!std::strcmp(category, "Goods"))
        return index % 3 ? s[4].company : s[3].company;
    return s[index % 2].company;
}

double markupRange(const char *category, bool high)
{
    if (Catalogue::isService(category))
        return 1.0;
    if (!std::strcmp(category, "Hospital"))
        return high ? 1.3 : 1.0;
    if (!std::strcmp(category, "Goods"))
        return high ? 1.8 : 1.45;
    return high ? 2.4 : 1.6;
}

} // namespace

Shape Shape::demo()
{
    return Shape();
}

Shape Shape::bench(int scale)
{
    Shape s;
    s.products = 50 * scale;
    s.owners = 400 * scale;
    s.ownerYears = 6;
    s.invoiceYears = 5;
    s.invoiceLines = 10000 * scale;
    s.wrongStock = 1 + scale / 10;
    s.hotShare = 0.15; // the benchmark traces the product with the most invoice lines
    return s;
}

PracticeBuilder::PracticeBuilder(RowWriter &writer, const Shape &s)
    : out(writer), shape(s), today(QDate::currentDate()), invoiceStart(today.addYears(-s.invoiceYears))
{
}

bool PracticeBuilder::build()
{
    declareTables();
    makeProducts();
    return writeSysInfo() && writeStaff() && writeSuppliers() && writeBreeds() && writeOwners()
        && writeInvoices() && writeReceipts() && writeProducts() && writeAutoProcs() && out.finish();
}

void PracticeBuilder::declareTables()
{
    for (const char *category : Catalogue::categories())
        out.declare(category, productColumns + (std::strcmp(category, "Vaccination") ? QStringList()
                                                                                     : QStringList{"DaysToReminder"}));
    out.declare("Operators", {"Operator", "id", "Initials", "Diary", "Commission"});
    out.declare("Permissions", {"Operator", "Class", "Description"});
    out.declare("Supply", {"Company", "Contact", "Email", "Tel", "Fax", "Cell", "PostalAddr", "PhysicalAddr", "Lab"});
    out.declare("breeds", {"Description", "Description_A"});
    out.declare("AutoProc", {"Code", "Description"});
    out.declare("AutoProcContents", {"ProcId", "Category", "Code", "Quantity", "Charge"});
    out.declare("Owner", {"AccountNumber", "Title", "Initials", "Surname", "IDno", "TelHome", "TelWork", "Cell",
                          "PhysAddr", "PostalAddr", "Email", "Notes", "BadDebt", "Created"});
    out.declare("Patient", {"PetNumber", "AccountNumber", "Name", "Weight", "Sex", "Breed"});
    out.declare("Invoice", {"MyNumber", "AccountNumber", "PetNumber", "MyDate", "Status"});
    out.declare("InvoiceItem", {"InvoiceNumber", "Petnumber", "MyDate", "Vet", "Category", "Code", "Description",
                                "Quantity", "Price", "UnitOfMeasure"});
    out.declare("Journal", {"MyNumber", "AccountNumber", "MyDate", "Description", "Amount", "Rounding"});
    out.declare("StockTrace", {"TraceNumber", "MyDate", "SP", "Notes", "Supplier", "InvoiceNumber", "Adjustment"});
    out.declare("StockTraceItem", {"TraceNumber", "Category", "Code", "Quantity", "UnitOfMeasure", "Description",
                                   "Schedule", "Batch"});
}

bool PracticeBuilder::writeSysInfo()
{
    const QStringList main = {"Kloof Street Veterinary Clinic", "12 Kloof Street", "Stellenbosch", "7600",
                              "Tel: 021 887 4410", "Fax: 021 887 4411", "VAT Reg: 4190123456",
                              "Thank you for trusting us with your pet.", "Accounts are payable on presentation.",
                              "Payment received with thanks.", "Accounts older than 30 days attract interest.",
                              "Banking details: Example Bank, Acc 1234567890", "Please quote your account number.",
                              "Your pet was handed over in good health.", "Kloof Street Vet",
                              "For animal treatment only", "VAT", ""};
    const QStringList alternative = {"Kloofstraat Veeartskliniek", "Kloofstraat 12", "Stellenbosch", "7600",
                                     "Tel: 021 887 4410", "Faks: 021 887 4411", "BTW Reg: 4190123456",
                                     "Dankie dat u ons met u troeteldier vertrou.", "Rekeninge is betaalbaar by aanbieding.",
                                     "Betaling met dank ontvang.", "Rekeninge ouer as 30 dae dra rente.",
                                     "Bankbesonderhede: Voorbeeldbank, Rek 1234567890", "Verwys asseblief na u rekeningnommer.",
                                     "U troeteldier is in goeie gesondheid oorhandig.", "Kloofstraat Veearts",
                                     "Slegs vir behandeling van diere", "BTW", ""};
    const QStringList textColumns = {"ALINE1", "ALINE2", "ALINE3", "ALINE4", "ALINE5", "ALINE6", "ALINE7",
                                     "InvFooter", "InvFooter1", "RecFooter", "StatementFooter1", "StatementFooter2",
                                     "StatementFooter3", "HandOverFooter", "LABEL2", "LABEL3", "Tax1Name", "Tax2Name"};
    QStringList columns = textColumns;
    QVariantList values;
    for (const QString &text : main)
        values << text;
    for (int i = 0; i < textColumns.size(); ++i) {
        columns << textColumns[i] + "_A";
        values << alternative[i];
    }
    out.declare("SysInfo", columns + QStringList{"Tax1", "Tax2"});
    return out.add("SysInfo", values + QVariantList{0.15, 0.0});
}

bool PracticeBuilder::writeStaff()
{
    staff = {{"admin", "admin", "ADM", 0.0, false}, {"Sarah", "sj01", "SJ", 7.5, true},
             {"Pieter", "pm02", "PM", 10.0, true}, {"Thandi", "tn03", "TN", 5.0, false},
             {"Marc", "mb04", "MB", 2.5, false}};
    const int levels[] = {7, 6, 6, 3, 1}; // highest schedule each may handle
    for (size_t i = 0; i < staff.size(); ++i) {
        const Staff &s = staff[i];
        if (!out.add("Operators", {s.name, s.code, s.initials, s.vet ? "Y" : "N", s.commission})
            || !writePermissions(s, levels[i]))
            return false;
    }
    return true;
}

bool PracticeBuilder::writePermissions(const Staff &s, int level)
{
    const bool admin = s.name == "admin";
    QList<QPair<QString, QString>> rights;
    for (const QString &right : Rights::dispense(true)) {
        if (admin || s.vet || !right.endsWith("Overide"))
            rights << qMakePair(QString("Dispense"), right);
    }
    const QStringList &utilityRights = Rights::utility();
    for (int i = 0; i < utilityRights.size(); ++i) {
        if (admin || (s.vet && i % 4 != 0) || i % 3 == 0)
            rights << qMakePair(QString("Utility"), utilityRights[i]);
    }
    for (const QString &cls : scheduleClasses) {
        for (int l = 0; l <= level; ++l)
            rights << qMakePair(cls, QString::number(l));
    }
    if (admin || s.vet)
        rights << qMakePair(QString("Stock"), QString("Price Adjustment")) << qMakePair(QString("Stock"), QString("Cost Price View"));
    for (const auto &r : std::as_const(rights)) {
        if (!out.add("Permissions", {s.name, r.first, r.second}))
            return false;
    }
    return true;
}

bool PracticeBuilder::writeSuppliers()
{
    int n = 0;
    for (const Catalogue::Supplier &s : Catalogue::suppliers()) {
        const QString company = s.company;
        const QString mail = "orders@" + company.toLower().remove(' ').left(12) + ".example.com";
        const QString postal = QString("PO Box %1\nCape Town\n8000").arg(1000 + 37 * ++n);
        if (!out.add("Supply", {company, s.contact, mail, s.tel, "", QString("082 555 01%1").arg(n, 2, 10, QChar('0')),
                                postal, QString("Unit %1, Airport Industria, Cape Town").arg(n), s.lab ? "Y" : "N"}))
            return false;
    }
    return true;
}

bool PracticeBuilder::writeBreeds()
{
    for (const Catalogue::Breed &b : Catalogue::breeds()) {
        if (!out.add("breeds", {QString::fromUtf8(b.name), QString::fromUtf8(b.nameA)}))
            return false;
    }
    return true;
}

void PracticeBuilder::makeProducts()
{
    size_t catalogueSize = 0;
    for (const char *category : Catalogue::categories())
        catalogueSize += Catalogue::products(category).size();
    for (const char *category : Catalogue::categories()) {
        const int size = int(Catalogue::products(category).size());
        const int count = shape.products ? qMax(1, int(std::lround(double(shape.products) * size / catalogueSize))) : size;
        makeCategory(category, count);
    }
    hotProduct = productIndex("Medication", 0);
}

void PracticeBuilder::makeCategory(const char *category, int count)
{
    for (int i = 0; i < count; ++i) {
        byCategory[category].push_back(int(products.size()));
        products.push_back(makeProduct(category, i));
    }
    // A shop item sold under its bar code: codes of 100000 and above stay out of code allocation.
    if (!std::strcmp(category, "Goods") && count > 1)
        products.back().code = "6009801234567";
}

PracticeBuilder::Product PracticeBuilder::makeProduct(const char *category, int index)
{
    const auto &catalogue = Catalogue::products(category);
    const Catalogue::Product &c = catalogue[size_t(index) % catalogue.size()];
    const int round = index / int(catalogue.size());
    const QString suffix = round ? QString(" #%1").arg(round + 1) : QString();
    Product p;
    p.category = category;
    p.code = QString::number(index + 1);
    p.name = QString::fromUtf8(c.name) + suffix;
    p.nameA = QString::fromUtf8(c.nameA) + suffix;
    p.unit = QString::fromUtf8(c.unit);
    p.unitA = QString::fromUtf8(c.unitA);
    p.schedule = scheduleOf(category, p.name);
    p.supplier = supplierOf(category, index);
    p.cost = round2(c.cost * uniform(0.9, 1.1) * (1 + 0.03 * round));
    p.active = index == 0 || !chance(0.07);
    // The first product of a category is always kept in stock (the Medication one sells most).
    p.stocked = !Catalogue::isService(category) && std::strcmp(category, "Lab") && (index == 0 || !chance(0.12));
    if (p.stocked) {
        p.reorder = double(2 + below(18));
        p.toQuantity = p.reorder * 3;
    }
    if (p.stocked && chance(0.1)) {
        p.onOrder = p.toQuantity;
        p.orderDate = date(today.addDays(-below(10)));
    }
    if (!std::strcmp(category, "Vaccination"))
        p.daysToReminder = p.name.contains("Puppy") || p.name.contains("Kennel") ? 28 : 365;
    if (p.schedule >= 5)
        p.remarks = "Controlled substance: record every dose in the register.";
    if (!std::strcmp(category, "Vaccination"))
        p.remarks = QString::fromUtf8("Keep refrigerated (2–8 °C).");
    priceProduct(p);
    return p;
}

void PracticeBuilder::priceProduct(Product &p)
{
    const QByteArray category = p.category.toLatin1();
    const double low = markupRange(category, false), high = markupRange(category, true);
    // Most mark-ups are round figures; some were worked back from a price and carry six decimals.
    p.markup = chance(0.8) ? std::round(uniform(low, high) * 20) / 20 : std::round(uniform(low, high) * 1e6) / 1e6;
    p.tax1 = !chance(0.04);
    const double base = p.cost * p.markup;
    p.price = round2(base + (p.tax1 ? Utility::calcTax(base, 0.15) : 0.0));
}

int PracticeBuilder::productIndex(const char *category, int catalogueIndex) const
{
    const auto &list = byCategory.at(category);
    return catalogueIndex < int(list.size()) ? list[size_t(catalogueIndex)] : -1;
}

bool PracticeBuilder::writeProducts()
{
    // Remarks with a dispensing parameter and with accented text, as the note editor writes them.
    products[size_t(hotProduct)].remarks = "GIVE ??DOSE (ML)??0.5?? ML ONCE DAILY WITH FOOD";
    products[size_t(byCategory["Goods"].front())].remarks =
        QString::fromUtf8("Bêre koel en droog. Geskik vir honde én katte — nie vir hondjies jonger as 8 weke nie.");
    spoilStock();
    for (const Product &p : products) {
        QVariantList row = {p.code, p.name, p.nameA, p.schedule, p.unit, p.unitA, p.cost, p.markup, p.price,
                            p.tax1 ? "Y" : "N", "N", round2(p.received - p.dispensed + p.stockError), p.reorder,
                            p.toQuantity, p.onOrder, p.orderDate, p.supplier, p.remarks, p.active ? "Y" : "N"};
        if (p.category == "Vaccination")
            row << p.daysToReminder;
        if (!out.add(p.category, row))
            return false;
    }
    return true;
}

bool PracticeBuilder::writeAutoProcs()
{
    struct Item { const char *category; int index; double quantity; bool charge; };
    struct Proc { const char *name; std::vector<Item> items; };
    const std::vector<Proc> procs = {
        {"Cat Spay Package", {{"Proc", 2, 1, true}, {"Proc", 8, 2, true}, {"Injection", 3, 0.1, true},
                              {"Medication", 0, 3, true}, {"Consult", 15, 1, false}}},
        {"Dog Castration Package", {{"Proc", 3, 1, true}, {"Proc", 8, 3, true}, {"Injection", 4, 1, true},
                                    {"Medication", 7, 10, true}, {"Goods", 17, 1, true}, {"Consult", 15, 1, false}}},
        {"Puppy First Visit", {{"Consult", 7, 1, true}, {"Vaccination", 0, 1, true}, {"Goods", 12, 1, true},
                               {"Proc", 20, 1, false}}},
        {"Annual Dog Wellness", {{"Consult", 0, 1, true}, {"Vaccination", 1, 1, true}, {"Vaccination", 2, 1, false},
                                 {"Goods", 9, 1, true}}},
        {"Annual Cat Wellness", {{"Consult", 0, 1, true}, {"Vaccination", 6, 1, true}, {"Vaccination", 2, 1, false}}},
        {"Dental Package", {{"Proc", 5, 1, true}, {"Proc", 8, 2, true}, {"Lab", 2, 1, true}, {"Injection", 0, 1.5, true}}},
        {"Euthanasia and Cremation", {{"Consult", 13, 1, false}, {"Injection", 19, 5, true}, {"Proc", 22, 1, true}}},
        {"Hospital Admission (Drip)", {{"Hospital", 0, 1, true}, {"Hospital", 4, 1, true}, {"Hospital", 5, 2, true},
                                       {"Hospital", 7, 1, true}}},
    };
    for (size_t i = 0; i < procs.size(); ++i) {
        const int code = int(i) + 1;
        if (!out.add("AutoProc", {code, procs[i].name}))
            return false;
        for (const Item &item : procs[i].items) {
            const int p = productIndex(item.category, item.index);
            if (p >= 0 && !out.add("AutoProcContents", {code, item.category, products[size_t(p)].code, item.quantity,
                                                        item.charge ? "Y" : "N"}))
                return false;
        }
    }
    return true;
}

double PracticeBuilder::uniform(double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(rng);
}

int PracticeBuilder::below(int n)
{
    return std::uniform_int_distribution<int>(0, n - 1)(rng);
}

bool PracticeBuilder::chance(double p)
{
    return uniform(0.0, 1.0) < p;
}

double PracticeBuilder::round2(double value)
{
    return std::round(value * 100.0) / 100.0;
}

QString PracticeBuilder::date(const QDate &day)
{
    return day.toString("yyyy-MM-dd");
}

namespace {

// Keys written explicitly leave PostgreSQL's sequences behind; move them past the rows.
bool advanceSequences(QSqlDatabase db, QString *error)
{
    const QStringList statements = {
        "SELECT setval('stocktrace_seq', (SELECT COALESCE(MAX(TraceNumber), 0) + 1 FROM StockTrace), false)",
        "SELECT setval(pg_get_serial_sequence('autoproc', 'code'), (SELECT COALESCE(MAX(Code), 0) + 1 FROM AutoProc), false)"};
    for (const QString &sql : statements) {
        QSqlQuery query(db);
        if (!query.exec(sql)) {
            *error = query.lastError().text();
            return false;
        }
    }
    return true;
}

} // namespace

bool writePractice(QSqlDatabase db, Dialect::Engine engine, const Shape &shape, QString *error)
{
    RowWriter writer(db);
    PracticeBuilder builder(writer, shape);
    if (!builder.build()) {
        *error = writer.error();
        return false;
    }
    return engine != Dialect::PostgreSQL || advanceSequences(db, error);
}
