#ifndef QUOREL_DB_CATALOGUE_H
#define QUOREL_DB_CATALOGUE_H

#include <vector>

// The names a generated practice is made of: products by category, suppliers, breeds, clients.
// Main language English, alternative language Afrikaans.
namespace Catalogue {

struct Product {
    const char *name;
    const char *nameA;
    const char *unit;
    const char *unitA;
    double cost;
};

struct Supplier {
    const char *company;
    const char *contact;
    const char *tel;
    bool lab;
};

struct Breed {
    const char *name;
    const char *nameA;
    double weight; // a typical adult's weight in kg
};

// The nine product tables in the suite's order, and each one's products.
const std::vector<const char *> &categories();
const std::vector<Product> &products(const char *category);
bool isService(const char *category);

const std::vector<Supplier> &suppliers();
const std::vector<Breed> &breeds();
const std::vector<const char *> &surnames();
const std::vector<const char *> &petNames();
const std::vector<const char *> &streets();
const std::vector<const char *> &towns();

} // namespace Catalogue

#endif
