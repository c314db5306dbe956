#ifndef QUOREL_DB_PRACTICEBUILDER_H
#define QUOREL_DB_PRACTICEBUILDER_H

#include "demodata.h"
#include "rowwriter.h"

#include <QDate>
#include <QString>
#include <map>
#include <random>
#include <vector>

// Builds one practice row by row through a RowWriter. The fixed parts (practice, staff,
// suppliers, breeds, products, procedures) are in demodata.cpp; the activity over time (clients,
// invoices, journal, stock receipts) in demoactivity.cpp.
class PracticeBuilder
{
public:
    PracticeBuilder(RowWriter &out, const Shape &shape);
    bool build();

private:
    struct Product {
        QString category, code, name, nameA, unit, unitA, supplier, remarks, orderDate;
        int schedule = 0, daysToReminder = 0;
        double cost = 0, markup = 1, price = 0, reorder = -1, toQuantity = 0, onOrder = 0;
        bool tax1 = true, active = true, stocked = false;
        double dispensed = 0, received = 0, stockError = 0;
        std::vector<double> monthly; // dispensed per month of the invoice period
    };
    struct Owner {
        QDate created;
        bool badDebt = false;
        std::vector<int> pets;
    };
    struct Staff {
        QString name, code, initials;
        double commission;
        bool vet;
    };
    struct Line {
        int product;
        double quantity;
        QString vet;
    };
    struct Receipt { // one line of a stock movement
        int product;
        double quantity;
    };

    // demodata.cpp
    void declareTables();
    bool writeSysInfo();
    bool writeStaff();
    bool writePermissions(const Staff &staff, int level);
    bool writeSuppliers();
    bool writeBreeds();
    void makeProducts();
    void makeCategory(const char *category, int count);
    Product makeProduct(const char *category, int index);
    void priceProduct(Product &p);
    bool writeProducts();
    bool writeAutoProcs();
    int productIndex(const char *category, int catalogueIndex) const;

    // demoactivity.cpp
    bool writeOwners();
    bool writeOwner(int account, Owner &owner);
    bool writePets(int account, Owner &owner);
    bool writeInvoices();
    bool writeInvoice(const QDate &day, int owner);
    std::vector<Line> invoiceLines(const QDate &day);
    const QString &pickVet();
    int pickProduct(const QDate &day);
    double lineQuantity(const Product &p);
    // The journal rows of an invoice; returns how often its lines count as dispensed, -1 on failure.
    int writeJournal(int number, int account, const QDate &day, double total, bool badDebt);
    bool writePayment(int account, int number, const QDate &day, double value);
    bool writeReceipts();
    using TracePlan = std::map<std::pair<QDate, QString>, std::vector<Receipt>>;
    void planReceipts(TracePlan &plan);
    void planAdjustments(TracePlan &plan);
    bool writeTrace(int number, const QDate &day, const QString &supplier, const std::vector<Receipt> &items);
    void spoilStock();
    int monthOf(const QDate &day) const;
    double poisson(double mean);

    // helpers
    double uniform(double low, double high);
    int below(int n);
    bool chance(double p);
    static double round2(double value);
    static QString date(const QDate &day);

    RowWriter &out;
    Shape shape;
    std::mt19937 rng{20040601u};
    QDate today, invoiceStart;
    std::vector<Product> products;
    std::map<QString, std::vector<int>> byCategory;
    std::vector<Owner> owners;
    std::vector<Staff> staff;
    int hotProduct = -1;
    int nextInvoice = 10001;
    int nextPet = 1;
};

#endif
