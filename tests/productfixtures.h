#ifndef QUOREL_TESTS_PRODUCTFIXTURES_H
#define QUOREL_TESTS_PRODUCTFIXTURES_H

// Products and the dispense tab, for the suites that work on the product list and its form.
#include "admin.h"
#include "testsupport.h"

#include <QComboBox>
#include <QSqlError>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

namespace ProductFixtures {

struct Product {
    QString code, description, active = "Y";
    double cost = 10.0, markup = 1.5, price = 17.25; // 10 x 1.5 plus VAT at 0.15
    double quantity = 0.0;
    int schedule = 0;
    QString unit = "each", supplier{}, tax1 = "Y", tax2 = "N", remarks{};
    double reorder = 2.0, toQuantity = 10.0, onOrder = 0.0;
    QString descriptionA{}, unitA{};
    int daysToReminder = -1; // Vaccination only; -1 leaves the column out
};

inline Product product(const QString &code, const QString &description, const QString &active = "Y")
{
    return {code, description, active};
}

// Written with bound values, independently of the statements under test.
inline bool insertProduct(const QString &table, const Product &p)
{
    QVariantList values{p.code, p.description, p.active, p.cost, p.markup, p.price, p.quantity, p.schedule, p.unit,
                        p.supplier, p.tax1, p.tax2, p.remarks, p.reorder, p.toQuantity, p.onOrder, p.descriptionA,
                        p.unitA, "2026-01-15", p.daysToReminder};
    QSqlQuery query;
    query.prepare("INSERT INTO " + table + " (Code,Description,Active,Cost,MarkUp,Price,Quantity,Schedule,UnitOfMeasure,"
                  "Supplier,Tax1,Tax2,Remarks,ReOrder,ToQuantity,OnOrder,Description_A,UnitOfMeasure_A,OrderDate"
                  + QString(p.daysToReminder < 0 ? ") VALUES (?" : ",DaysToReminder) VALUES (?,?")
                  + QString(",?").repeated(18) + ")");
    for (const QVariant &v : values.mid(0, p.daysToReminder < 0 ? 19 : 20))
        query.addBindValue(v);
    if (!query.exec())
        qWarning() << "insertProduct:" << query.lastError().text();
    return query.isActive();
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
    const QList<QTreeWidgetItem *> found = admin->ui.list->findItems(code, Qt::MatchExactly, 0);
    return found.isEmpty() ? nullptr : found.first();
}

// Highlights a row as a click does; the list's selection signal shows it in the form.
inline bool selectRow(Admin *admin, const QString &code)
{
    QTreeWidgetItem *row = listRow(admin, code);
    if (row)
        admin->ui.list->setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect);
    return row != nullptr;
}

inline QStringList listColumn(Admin *admin, int column)
{
    QStringList texts;
    for (int i = 0; i < admin->ui.list->topLevelItemCount(); ++i)
        texts << admin->ui.list->topLevelItem(i)->text(column);
    return texts;
}

inline QColor baseColour(const QWidget *w) { return w->palette().color(QPalette::Active, QPalette::Base); }

} // namespace ProductFixtures

#endif
