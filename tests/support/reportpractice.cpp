#include "reportpractice.h"

#include "admin.h"
#include "globals.h"
#include "testsupport.h"
#include "zrlistitem.h"

#include <QSettings>

namespace {

using Values = QList<QVariant>;
using ReportPractice::insert;

QString text(const QDate &date)
{
    return date.toString("yyyy-MM-dd");
}

// Code, Description, Schedule, UnitOfMeasure, Cost, Price, Quantity, ReOrder, Active.
bool seedProducts(const QString &table, const QList<Values> &rows)
{
    return insert(table, {"Code", "Description", "Schedule", "UnitOfMeasure", "Cost", "Price", "Quantity", "ReOrder",
                          "Active"}, rows);
}

bool seedCatalogue()
{
    const QString oil = "Ölfilter 100% \"Shampoo\"";
    return insert("Operators", {"Operator", "id", "Initials", "Diary", "Commission"},
                  {{"admin", "admin", "ADM", "N", 0.0}, {"Ännie Smit", "as", "AS", "Y", 10.0},
                   {"Bob O'Brien", "bb", "BB", "Y", 12.5}, {"carl", "cc", "CC", "N", 0.0}})
        && seedProducts("Goods", {{"1", "Bone Treats", 0, "pack", 10.0, 20.0, 5.0, 2.0, "Y"},
                                  {"2", "bone treats", 0, "pack", 3.335, 9.99, 3.0, 0.0, "Y"},
                                  {"3", "Cat Food", 0, "bag", 20.0, 30.0, 2.0, 1.0, "Y"},
                                  {"4", "Cat Food", 0, "tin", 21.0, 31.0, 1.0, 1.0, "Y"},
                                  {"5", oil, 0, "bottle", 7.5, 15.0, 4.0, 1.0, "Y"},
                                  {"6", "Zeta_Brush \\ O'Neil", 0, "each", 2.0, 5.0, 0.0, 0.0, "Y"},
                                  {"7", "Old Lead", 0, "each", 4.0, 8.0, 9.0, 0.0, "N"},
                                  {"8", "Free Leaflet", 0, "each", 0.0, 0.0, 100.0, -1.0, "Y"},
                                  {"X'9\\_%", "Odd Code", 0, "each", 1.0, 2.0, 1.0, 0.0, "Y"}})
        && seedProducts("Hospital", {{"10", "Kennel Day", 0, "day", 50.0, 80.0, 0.0, 0.0, "N"}})
        && seedProducts("Medication", {{"20", "Amoxicillin 250mg", 0, "tab", 1.5, 3.0, 40.0, 10.0, "Y"},
                                       {"21", "Ketamine", 6, "ml", 12.0, 25.0, 10.5, 1.0, "Y"},
                                       {"22", "Morphine", 7, "amp", 30.0, 60.0, 2.0, 1.0, "Y"},
                                       {"23", "ketamine", 6, "ml", 11.0, 24.0, 1.0, 1.0, "Y"},
                                       {"24", "Diazepam", 5, "tab", 2.0, 4.0, 5.0, 1.0, "Y"},
                                       {"25", "Ölbad", 6, "ml", 3.0, 6.0, 7.0, 1.0, "Y"},
                                       {"26", "Retired Drug", 7, "amp", 9.0, 18.0, 3.0, 1.0, "N"}})
        && seedProducts("Injection", {{"30", "Rabies Inj", 0, "dose", 15.0, 35.0, 6.0, 2.0, "Y"}})
        && seedProducts("Vaccination", {{"40", "DHPP", 0, "dose", 40.0, 90.0, 12.0, 4.0, "Y"}})
        && seedProducts("Lab", {{"50", "Blood Panel", 0, "test", 100.0, 250.0, 0.0, -1.0, "Y"}})
        && seedProducts("Consult", {{"60", "Consultation", 0, "each", 0.0, 45.0, 0.0, -1.0, "Y"}})
        && seedProducts("Diagnosis", {{"70", "X-ray", 0, "each", 0.0, 120.0, 0.0, -1.0, "Y"}})
        && seedProducts("Proc", {{"80", "Spay", 0, "each", 0.0, 900.0, 0.0, -1.0, "Y"}});
}

// Surnames are stored in ROT13: Smith, van der Merwe, Van Der Merwe, Östreich, O'Brien, Zulu,
// Taba, Smith (a second one, whose total ties with Van Der Merwe's).
bool seedClients(const QDate &anchor, const QDate &monthStart)
{
    const QDate lastMonthEnd = monthStart.addDays(-1);
    const QDate twoMonthsEnd = QDate(lastMonthEnd.year(), lastMonthEnd.month(), 1).addDays(-1);
    const auto ago = [&](int days) { return text(anchor.addDays(-days)); };
    return insert("Owner", {"AccountNumber", "Title", "Initials", "Surname", "IDno", "TelHome", "TelWork", "Cell",
                            "PhysAddr", "PostalAddr", "Email", "Notes", "BadDebt", "Created"},
                  {{1, "Mr", "J.", "Fzvgu", "7001015000081", "021 555 0101", "021 555 0102", "082 555 0103",
                    "1 Long St\nCape Town", "PO Box 1", "smith@example.org", "", "N", text(lastMonthEnd)},
                   {2, "Mrs", "A.B.", "ina qre Zrejr", "", "021 555 0201", "", "", "2 Kloof St", "", "", "", "N",
                    text(monthStart)},
                   {3, "Dr", "K.", "Ina Qre Zrejr", "", "", "", "083 555 0303", "", "", "vdm@example.org",
                    "Prefers e-mail", "N", ago(400)},
                   {4, "Ms", "Ö.", "Öfgervpu", "", "", "", "", "", "", "", "",
                    "N", text(twoMonthsEnd)},
                   {5, "Mr", "P.", "B'Oevra", "6505055000082", "011 555 0505", "", "", "5 \"Main\" Rd", "", "",
                    "Owes since last year; 50% promised", "Y", ago(800)},
                   {6, "Prof", "Z.", "Mhyh", "", "", "", "084 555 0606", "", "", "", "", "Y", ago(30)},
                   {7, "Mr", "T.", "Gnon", "", "", "", "", "", "", "", "", "N", ago(300)},
                   {8, "Mr", "A.", "Fzvgu", "", "", "", "", "", "", "", "", "N", ago(200)}})
        && insert("Patient", {"PetNumber", "AccountNumber", "Name", "Weight", "Sex", "Breed"},
                  {{101, 1, "Rex", 32.5, "M", "Labrador"}, {102, 2, "Misty", 4.25, "F", "Siamese"},
                   {103, 3, "Ölli", 12.345, "MN", "Dachshund"}, {104, 4, "Bella", 8.0, "FS", "Beagle"},
                   {105, 5, "Max", 40.0, "M", "Boerboel"}, {106, 6, "Kitty", 3.5, "F", "Persian"},
                   {107, 7, "Sam", 20.0, "M", "Collie"}, {108, 8, "Tom", 5.0, "M", "Tabby"},
                   {199, 99, "Stray", 6.0, "F", "Unknown"}});
}

// Invoices, their lines, the stock received, and the journal: charges positive, payments ('R')
// and refunds ('RF') negative, quotations ('Q') and vouchers ('VR') counting nowhere.
bool seedSales(const QDate &anchor, const QDate &monthStart)
{
    const QString a = text(anchor), first = text(monthStart), end = text(monthStart.addDays(-1));
    const QString oil = "Ölfilter 100% \"Shampoo\"", brush = "Zeta_Brush \\ O'Neil";
    const auto day = [&](int back) { return text(anchor.addDays(-back)); };
    return insert("Invoice", {"MyNumber", "AccountNumber", "PetNumber", "MyDate", "Status"},
                  {{1001, 1, 101, a, ""}, {1002, 2, 102, first, ""}, {1003, 3, 103, end, ""},
                   {1004, 4, 104, day(45), ""}, {1005, 5, 105, day(130), ""}, {1006, 6, 106, day(65), ""},
                   {1007, 7, 107, day(10), ""}, {1008, 99, 199, a, "P"}, {1009, 1, 101, day(1), "P"},
                   {1010, 8, 108, end, ""}})
        && insert("InvoiceItem", {"InvoiceNumber", "Petnumber", "MyDate", "Vet", "Category", "Code", "Description",
                                  "Quantity", "Price", "UnitOfMeasure"},
                  {{1001, 101, a, "AS", "Goods", "1", "Bone Treats", 2.0, 20.0, "pack"},
                   {1001, 101, a, "AS", "Goods", "3", "Cat Food", 1.0, 30.0, "bag"},
                   {1001, 101, a, "BB", "Medication", "21", "Ketamine", 0.5, 25.005, "ml"},
                   {1001, 101, a, "AS", "Consult", "60", "Consultation", 1.0, 45.0, "each"},
                   {1002, 102, first, "BB", "Goods", "2", "bone treats", 3.0, 9.99, "pack"},
                   {1002, 102, first, "BB", "Goods", "4", "Cat Food", 1.0, 31.0, "tin"},
                   {1002, 102, first, "AS", "Vaccination", "40", "DHPP", 1.0, 90.0, "dose"},
                   {1003, 103, end, "AS", "Goods", "5", oil, 1.0, 15.0, "bottle"},
                   {1003, 103, end, "BB", "Lab", "50", "Blood Panel", 1.0, 250.0, "test"},
                   {1003, 103, end, "AS", "Proc", "80", "Spay", 1.0, 900.0, "each"},
                   {1003, 103, end, "AS", "Goods", "X'9\\_%", "Odd Code", 2.0, 4.0, "each"},
                   {1004, 104, day(45), "AS", "Goods", "1", "Bone Treats", 3.0, 60.0, "pack"},
                   {1004, 104, day(45), "BB", "Injection", "30", "Rabies Inj", 1.0, 35.0, "dose"},
                   {1005, 105, day(130), "BB", "Medication", "22", "Morphine", 1.0, 60.0, "amp"},
                   {1005, 105, day(130), "AS", "Diagnosis", "70", "X-ray", 1.0, 120.0, "each"},
                   {1006, 106, day(65), "AS", "Hospital", "10", "Kennel Day", 1.0, 80.0, "day"},
                   {1007, 107, day(10), "ZZ", "Goods", "1", "Bone Treats", 1.0, 20.0, "pack"},
                   {1008, 199, a, "AS", "Goods", "6", brush, 1.0, 5.0, "each"},
                   {1009, 101, day(1), "BB", "Goods", "1", "Bone Treats", 1.0, 20.0, "pack"},
                   {1010, 108, end, "BB", "Goods", "3", "Cat Food", 2.0, 60.0, "bag"}})
        && insert("StockTrace", {"TraceNumber", "MyDate", "SP", "Notes", "Supplier", "InvoiceNumber", "Adjustment"},
                  {{1, day(200), "Admin", "Received", "Acme", "S1", "N"}})
        && insert("StockTraceItem", {"TraceNumber", "Category", "Code", "Quantity", "UnitOfMeasure", "Description"},
                  {{1, "Goods", "1", 10.0, "pack", "Bone Treats"}, {1, "Goods", "2", 3.0, "pack", "bone treats"},
                   {1, "Goods", "3", 2.0, "bag", "Cat Food"}, {1, "Medication", "21", 12.0, "ml", "Ketamine"}})
        && insert("Journal", {"MyNumber", "AccountNumber", "MyDate", "Description", "Amount", "Rounding"},
                  {{1001, 1, a, "I", 100.005, 0.005}, {1002, 2, first, "I", 55.555, 0.0},
                   {1002, 2, first, "R", -55.55, 0.0}, {1003, 3, end, "I", 40.0, 0.0},
                   {1003, 3, end, "RF", -10.0, 0.0}, {1004, 4, day(45), "I", 200.0, 0.0},
                   {1004, 4, day(40), "R", -150.0, 0.0}, {1005, 5, day(130), "I", 300.0, 0.0},
                   {1005, 5, day(130), "Q", 50.0, 0.0}, {1005, 5, day(120), "VR", -20.0, 0.0},
                   {1006, 6, day(65), "I", 80.0, 0.0}, {1007, 7, day(10), "I", 20.0, 0.0},
                   {1007, 7, day(9), "R", -70.0, 0.0}, {1010, 8, end, "I", 30.0, 0.0}});
}

// The list's columns that have a title.
QList<int> titledColumns(Admin *admin)
{
    QList<int> columns;
    for (int c = 0; c < admin->ui.report_list->columnCount(); ++c)
        if (!admin->ui.report_list->headerItem()->text(c).isEmpty())
            columns << c;
    return columns;
}

// A right-aligned column's alignment is exactly Qt::AlignRight, any other's automatic.
QString heading(Admin *admin, int column)
{
    const QTreeWidgetItem *header = admin->ui.report_list->headerItem();
    const int alignment = header->textAlignment(column);
    return (alignment == 0 ? "" : alignment == Qt::AlignRight ? ">" : "?") + header->text(column);
}

} // namespace

namespace ReportPractice {

bool seed(const QDate &anchor)
{
    const QDate monthStart(anchor.year(), anchor.month(), 1);
    return seedCatalogue() && seedClients(anchor, monthStart) && seedSales(anchor, monthStart);
}

bool insert(const QString &table, const QStringList &columns, const QList<QList<QVariant>> &rows)
{
    for (const Values &row : rows)
        if (!TestSupport::insert(table, columns.mid(0, row.size()).join(','), row))
            return false;
    return true;
}

bool prepare(const QStringList &steps)
{
    for (const QString &step : steps) {
        if (step.startsWith('/'))
            settings->setValue(step.section('=', 0, 0), step.section('=', 1));
        else if (!TestSupport::exec(step))
            return false;
    }
    return true;
}

void choose(Admin *admin, int index)
{
    admin->ui.type_combo->setCurrentIndex(index);
    emit admin->ui.type_combo->activated(index);
}

void choose(Admin *admin, int index, const QDate &start, const QDate &end)
{
    choose(admin, index);
    admin->ui.DateEdit1->setDate(start);
    admin->ui.DateEdit2->setDate(end);
}

void process(Admin *admin, int index, const QDate &start, const QDate &end, const QList<QVariant> &answers)
{
    choose(admin, index, start, end);
    for (const QVariant &answer : answers) {
        if (!answer.isValid())
            TestSupport::prompter()->cancel();
        else if (answer.typeId() == QMetaType::Int)
            TestSupport::prompter()->answerInt(answer.toInt());
        else
            TestSupport::prompter()->answerText(answer.toString());
    }
    admin->ui.PushButton13->click();
}

QList<QStringList> rows(Admin *admin)
{
    QList<QStringList> result;
    const QList<int> columns = titledColumns(admin);
    for (int i = 0; i < admin->ui.report_list->topLevelItemCount(); ++i) {
        QStringList row;
        for (int c : columns)
            row << admin->ui.report_list->topLevelItem(i)->text(c);
        result << row;
    }
    return result;
}

QStringList columns(Admin *admin)
{
    QStringList result;
    for (int c : titledColumns(admin))
        result << heading(admin, c) + "/" + QString::number(admin->ui.report_list->columnWidth(c));
    return result;
}

QList<int> looks(Admin *admin)
{
    QList<int> result;
    for (int i = 0; i < admin->ui.report_list->topLevelItemCount(); ++i)
        result << static_cast<ZrListItem *>(admin->ui.report_list->topLevelItem(i))->altVisual();
    return result;
}

QStringList shown(Admin *admin)
{
    QStringList headings;
    for (int c : titledColumns(admin))
        headings << heading(admin, c);
    QStringList lines{headings.join('|')};
    const QList<QStringList> cells = rows(admin);
    const QList<int> rowLooks = looks(admin);
    for (int i = 0; i < cells.size(); ++i)
        lines << (rowLooks.at(i) ? QString("[%1]").arg(rowLooks.at(i)) : QString()) + cells.at(i).join('|');
    return lines;
}

} // namespace ReportPractice
