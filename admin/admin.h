#ifndef QUOREL_ADMIN_H
#define QUOREL_ADMIN_H

#include "ui_admin.h"

#include <QMainWindow>

class QSqlTableModel;
class QTreeWidgetItem;
class ZrRichText;

// The administration window. The form (admin.ui) holds the widgets; each tab's behaviour lives
// in a source of its own: practice.cpp, products.cpp, pricing.cpp, productedit.cpp,
// stocktrace.cpp, noteeditor.cpp, users.cpp, suppliers.cpp, autoprocs.cpp; the report writer in
// reports.cpp with its frame (reportframe.cpp), its generators (salesreports.cpp,
// clientreports.cpp, stockreports.cpp) and its output (reportoutput.cpp).
class Admin : public QMainWindow
{
    Q_OBJECT
public:
    Admin(QWidget *parent = nullptr, const char *name = nullptr, Qt::WindowFlags flags = Qt::Window);
    ~Admin() override;

    // The form's widgets, by their object names (tests and the tab sources reach them here).
    Ui::Admin ui;

    virtual QString currentCategoryTable();
    virtual void checkSellPrice();
    virtual bool checkStockLevel();
    virtual void modifyProduct();

    ZrRichText *reportViewer() const { return viewer; }
    QSqlTableModel *breedsModel() const { return breeds; }

    // The report writer's state (the generators, the output slots and the tools that drive the
    // window read it here).
    struct ReportState {
        int clearedIndex = -1; // the report for which the list was last cleared; -1 matches none
        QString subtitle;      // emptied by processQuery; a generator may set it
        qint32 lastPage = 0;   // the list's last page, from 0
        qint32 currentPage = 0;
    };
    ReportState report;
    // Writes the list's column titles and `rows` as Export does; false when the file could not be
    // written. Export writes the highlighted rows through it.
    bool exportRows(const QString &fileName, const QList<const QTreeWidgetItem *> &rows);
    // The same with every row of the list, highlighted or not (the headless tool's --csv).
    bool exportRows(const QString &fileName);

public slots:
    virtual void polish();
    virtual void active_tb_clicked();
    virtual void alt_lang_tb_clicked();
    virtual void init();
    virtual void PushButton4_clicked();
    virtual void destroy();
    virtual void categorySelected(const QString &text);
    virtual void itemSelected(QTreeWidgetItem *item);
    virtual void modifyEntry();
    virtual void newEntry();
    virtual void deleteEntry();
    virtual void clear();
    virtual void updateSell(const QString &text);
    virtual void forceSell();
    virtual void reloadData();
    virtual void userSelected(const QString &name);
    virtual void deleteUser();
    virtual void newUser();
    virtual void deletePermission();
    virtual void newPermission();
    virtual void classChanged(int index);
    virtual void clearList(int index);
    virtual void processQuery();
    virtual void printQuery();
    virtual void exportQuery();
    virtual void graphQuery();
    virtual void processDispenseTotals(const char *category, bool stocked);
    virtual void processNewOwners();
    virtual void processNewOwnersDetailed();
    virtual void processProductSales();
    virtual void processOwnerExpenditure();
    virtual void processFullOwnerExpenditure();
    virtual void processOwnerDebt();
    virtual void processBadDebtors();
    virtual void processStock();
    virtual void processStockValues();
    virtual void processDailyActivity();
    virtual void processPendingInvoices();
    virtual void processAllOwners();
    virtual void processCommission();
    virtual void processPersonnelPerformance();
    virtual void processDrugs();
    virtual void refreshSuppliers();
    virtual void supplierSelected(QTreeWidgetItem *item);
    virtual void clearSupply();
    virtual void newSupplier();
    virtual void updateSupplier();
    virtual void deleteSupplier();
    virtual void reloadAutoProcs();
    virtual void autoProcSelected(int index);
    virtual void newAutoProc();
    virtual void updateAutoProc();
    virtual void deleteAutoProc();
    virtual void autoProcContSelected(QTreeWidgetItem *item);
    virtual void autoCategorySelected(const QString &category);
    virtual void newAutoProcContents();
    virtual void updateAutoProcContents();
    virtual void deleteAutoProcContents();
    virtual void updateUserId();
    virtual QString tableViewLoad();
    virtual void tableViewAction(void *action);
    virtual void showHelp();
    virtual void taxingChanged();
    virtual void dispense_entry_changed();
    virtual void stockLevelCheck(bool on);
    virtual void languageChange();
    virtual void seachDispense();
    virtual void stockLevelTrace();
    virtual void reportMode(int index);
    virtual void noteEditor();

    // The product form's tax boxes take the practice's tax names; a box without a name is
    // disabled (and, with `check`, each box is checked exactly when it has a name).
    void captionTaxBoxes(bool check);

private slots:
    void addBreed();
    void deleteBreed();

private:
    void makeConnections();
    void sizeListColumns();
    void setUpBreeds();
    bool submitBreeds();

    ZrRichText *viewer = nullptr;
    QSqlTableModel *breeds = nullptr;
};

#endif
