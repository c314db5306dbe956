#ifndef QUOREL_TESTS_PRODUCTFIXTURES_H
#define QUOREL_TESTS_PRODUCTFIXTURES_H

// Products and the dispense tab, for the suites of the product list, pricing and editing.
#include "admin.h"
#include "testsupport.h"

#include <QComboBox>
#include <QSqlError>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

namespace ProductFixtures {

struct Product {
    QString code;
    QString description;
    QString active = "Y";
    double cost = 10.0;
    double markup = 1.5;
    double price = 17.25; // 10 x 1.5 plus VAT at 0.15
    double quantity = 0.0;
    int schedule = 0;
    QString unit = "each";
    QString supplier;
    QString tax1 = "Y";
    QString tax2 = "N";
    QString remarks;
    double reorder = 2.0;
    double toQuantity = 10.0;
    double onOrder = 0.0;
    QString descriptionA;
    QString unitA;
    int daysToReminder = -1; // Vaccination only; -1 leaves the column out
};

// Written with bound values, independently of the statements under test.
inline bool insertProduct(const QString &table, const Product &p)
{
    QString columns = "Code,Description,Active,Cost,MarkUp,Price,Quantity,Schedule,UnitOfMeasure,Supplier,"
                      "Tax1,Tax2,Remarks,ReOrder,ToQuantity,OnOrder,Description_A,UnitOfMeasure_A,OrderDate";
    QString marks = "?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?";
    if (p.daysToReminder >= 0) {
        columns += ",DaysToReminder";
        marks += ",?";
    }
    QSqlQuery query;
    query.prepare("INSERT INTO " + table + " (" + columns + ") VALUES (" + marks + ")");
    for (const QVariant &v : {QVariant(p.code), QVariant(p.description), QVariant(p.active), QVariant(p.cost),
                              QVariant(p.markup), QVariant(p.price), QVariant(p.quantity), QVariant(p.schedule),
                              QVariant(p.unit), QVariant(p.supplier), QVariant(p.tax1), QVariant(p.tax2),
                              QVariant(p.remarks), QVariant(p.reorder), QVariant(p.toQuantity),
                              QVariant(p.onOrder), QVariant(p.descriptionA), QVariant(p.unitA),
                              QVariant(QString("2026-01-15"))})
        query.addBindValue(v);
    if (p.daysToReminder >= 0)
        query.addBindValue(p.daysToReminder);
    if (!query.exec()) {
        qWarning() << "insertProduct:" << query.lastError().text();
        return false;
    }
    return true;
}

inline Product product(const QString &code, const QString &description, const QString &active = "Y")
{
    Product p;
    p.code = code;
    p.description = description;
    p.active = active;
    return p;
}

inline bool insertSupplier(const QString &company)
{
    QSqlQuery query;
    query.prepare("INSERT INTO Supply (Company) VALUES (?)");
    query.addBindValue(company);
    if (!query.exec()) {
        qWarning() << "insertSupplier:" << query.lastError().text();
        return false;
    }
    return true;
}

// Shows the category as a choice in category_combo would.
inline void showCategory(Admin *admin, const QString &table)
{
    QComboBox *combo = admin->ui.category_combo;
    combo->setCurrentIndex(combo->findText(table));
    admin->categorySelected(combo->currentText());
}

inline QTreeWidgetItem *listRow(Admin *admin, const QString &code)
{
    QTreeWidget *list = admin->ui.list;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->text(0) == code)
            return list->topLevelItem(i);
    return nullptr;
}

// Highlights a row as a click does; the list's selection signal shows it in the form.
inline bool selectRow(Admin *admin, const QString &code)
{
    QTreeWidgetItem *row = listRow(admin, code);
    if (!row)
        return false;
    admin->ui.list->setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect);
    return true;
}

inline QStringList listColumn(Admin *admin, int column)
{
    QStringList texts;
    for (int i = 0; i < admin->ui.list->topLevelItemCount(); ++i)
        texts << admin->ui.list->topLevelItem(i)->text(column);
    return texts;
}

inline QString currentCode(Admin *admin)
{
    QTreeWidgetItem *current = admin->ui.list->currentItem();
    return current && current->isSelected() ? current->text(0) : QString();
}

inline QColor baseColour(const QWidget *w)
{
    return w->palette().color(QPalette::Active, QPalette::Base);
}

inline QColor titleColour(Admin *admin)
{
    return admin->ui.TextLabel8->palette().color(QPalette::Active, QPalette::Window);
}

} // namespace ProductFixtures

#endif
