#include "admin.h"

#include "globals.h"
#include "productform.h"
#include "prompter.h"
#include "reportframe.h"
#include "utility.h"
#include "validators.h"
#include "zrrichtext.h"

#include <QApplication>
#include <QHeaderView>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QStatusBar>

Admin::Admin(QWidget *parent, const char *name, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
    if (name)
        setObjectName(QLatin1String(name));
    ui.setupUi(this);
    // The reports write their progress here: made with the window, so that the tabs do not move up
    // when the first message comes.
    statusBar();
    languageChange();
    resize(minimumSizeHint().expandedTo(QSize(832, 594)));
    makeConnections();
    init();
}

Admin::~Admin()
{
    destroy();
}

void Admin::makeConnections()
{
    connect(ui.active_tb, &QCheckBox::clicked, this, &Admin::active_tb_clicked);
    connect(ui.alt_lang_tb, &QPushButton::clicked, this, &Admin::alt_lang_tb_clicked);
    connect(ui.auto_combo, &QComboBox::textActivated, this, &Admin::autoCategorySelected);
    connect(ui.auto_list, &QTreeWidget::itemSelectionChanged, this,
            [this] { autoProcContSelected(ui.auto_list->selectedItems().value(0)); });
    connect(ui.category_combo, &QComboBox::textActivated, this, &Admin::categorySelected);
    connect(ui.class_combo, qOverload<int>(&QComboBox::activated), this, &Admin::classChanged);
    for (QLineEdit *field : {ui.code_tf, ui.description_tf, ui.description_A_tf, ui.uom_tf, ui.uom_A_tf, ui.level_tf,
                             ui.onorder_tf, ui.toqty_tf, ui.cost_tf, ui.markup_tf, ui.sell_tf})
        connect(field, &QLineEdit::textChanged, this, &Admin::dispense_entry_changed);
    connect(ui.supplier_combo, qOverload<int>(&QComboBox::activated), this, &Admin::dispense_entry_changed);
    connect(ui.cost_tf, &QLineEdit::textChanged, this, &Admin::updateSell);
    connect(ui.markup_tf, &QLineEdit::textChanged, this, &Admin::updateSell);
    connect(ui.sell_tf, &QLineEdit::returnPressed, this, &Admin::forceSell);
    connect(ui.Tax1_checkBox, &QCheckBox::toggled, this, &Admin::taxingChanged);
    connect(ui.Tax2_checkBox, &QCheckBox::toggled, this, &Admin::taxingChanged);
    connect(ui.checkBox9, &QCheckBox::toggled, this, &Admin::stockLevelCheck);
    connect(ui.list, &QTreeWidget::itemSelectionChanged, this,
            [this] { itemSelected(ui.list->selectedItems().value(0)); });
    connect(ui.new_pb, &QPushButton::clicked, this, &Admin::newEntry);
    connect(ui.edit_pb, &QPushButton::clicked, this, &Admin::modifyEntry);
    connect(ui.delete_pb, &QPushButton::clicked, this, &Admin::deleteEntry);
    connect(ui.PushButton5, &QPushButton::clicked, this, &Admin::clear);
    connect(ui.pushButton28, &QPushButton::clicked, this, &Admin::seachDispense);
    connect(ui.pushButton30, &QPushButton::clicked, this, &Admin::noteEditor);
    connect(ui.pushButton29, &QPushButton::clicked, this, &Admin::stockLevelTrace);
    connect(ui.users_list, &QListWidget::currentTextChanged, this, &Admin::userSelected);
    connect(ui.PushButton10, &QPushButton::clicked, this, &Admin::newUser);
    connect(ui.PushButton9, &QPushButton::clicked, this, &Admin::deleteUser);
    connect(ui.PushButton12, &QPushButton::clicked, this, &Admin::newPermission);
    connect(ui.PushButton11, &QPushButton::clicked, this, &Admin::deletePermission);
    connect(ui.PushButton26, &QPushButton::clicked, this, &Admin::updateUserId);
    connect(ui.type_combo, qOverload<int>(&QComboBox::activated), this, &Admin::reportMode);
    connect(ui.type_combo, qOverload<int>(&QComboBox::activated), this, &Admin::clearList);
    connect(ui.PushButton13, &QPushButton::clicked, this, &Admin::processQuery);
    connect(ui.PushButton14, &QPushButton::clicked, this, &Admin::exportQuery);
    connect(ui.PushButton15, &QPushButton::clicked, this, &Admin::graphQuery);
    connect(ui.PushButton16, &QPushButton::clicked, this, &Admin::printQuery);
    connect(ui.supply_list, &QTreeWidget::itemSelectionChanged, this,
            [this] { supplierSelected(ui.supply_list->selectedItems().value(0)); });
    connect(ui.PushButton7_2, &QPushButton::clicked, this, &Admin::newSupplier);
    connect(ui.PushButton8_2, &QPushButton::clicked, this, &Admin::updateSupplier);
    connect(ui.PushButton6_2, &QPushButton::clicked, this, &Admin::deleteSupplier);
    connect(ui.PushButton17, &QPushButton::clicked, this, &Admin::clearSupply);
    connect(ui.proc_list, &QListWidget::currentRowChanged, this, &Admin::autoProcSelected);
    connect(ui.PushButton7_2_2, &QPushButton::clicked, this, &Admin::newAutoProc);
    connect(ui.PushButton8_2_2, &QPushButton::clicked, this, &Admin::updateAutoProc);
    connect(ui.PushButton6_2_2, &QPushButton::clicked, this, &Admin::deleteAutoProc);
    connect(ui.newContents_pb, &QPushButton::clicked, this, &Admin::newAutoProcContents);
    connect(ui.updateContents_pb, &QPushButton::clicked, this, &Admin::updateAutoProcContents);
    connect(ui.deleteContents_pb, &QPushButton::clicked, this, &Admin::deleteAutoProcContents);
    connect(ui.PushButton27_2, &QPushButton::clicked, this, &Admin::showHelp);
    connect(ui.PushButton4, &QPushButton::clicked, this, &Admin::PushButton4_clicked);
    connect(ui.addBreed_pb, &QPushButton::clicked, this, &Admin::addBreed);
    connect(ui.deleteBreed_pb, &QPushButton::clicked, this, &Admin::deleteBreed);
}

void Admin::init()
{
    ui.cost_tf->setValidator(new MoneyValidator(ui.cost_tf, 3, "costValidator"));
    ui.sell_tf->setValidator(new MoneyValidator(ui.sell_tf, 2, "sellValidator"));
    ui.markup_tf->setValidator(new DecimalValidator(9999.0, 0.0, 6, ui.markup_tf, "markupValidator"));
    ui.lineEdit45->setValidator(new DecimalValidator(100.0, 0.0, 4, ui.lineEdit45, "commissionValidator"));
    ui.uom_tf->setValidator(new LimitValidator(ui.uom_tf, "uomValidator", 10, false));
    const int descriptionLength = settings ? settings->value("/Global/DescriptionLength", 38).toInt() : 38;
    ui.description_tf->setValidator(new LimitValidator(ui.description_tf, "descriptionValidator", descriptionLength, true));
    ProductForm::followSearchFields(this);

    // The practice fields are shown in the main language first; the tax boxes follow their names.
    alt_lang_tb_clicked();
    captionTaxBoxes(true);
    setUpBreeds();
    ui.category_combo->setCurrentIndex(0);
    categorySelected(ui.category_combo->currentText());

    viewer = new ZrRichText(this);
    connect(viewer, &ZrRichText::nextPage, this, &Admin::tableViewAction);
    connect(viewer, &ZrRichText::prevPage, this, &Admin::tableViewAction);
    connect(viewer, &ZrRichText::printAllPages, this, &Admin::tableViewAction);
    connect(ui.buttonOk, &QPushButton::clicked, qApp, &QApplication::quit);

    sizeListColumns();
    classChanged(ui.class_combo->currentIndex()); // the permission list offers the shown class at once
    reloadData();
    refreshSuppliers();
    reloadAutoProcs();
    ui.DateEdit1->setDate(QDate::currentDate());
    ui.DateEdit2->setDate(QDate::currentDate());
    ReportFrame::resetColumns(ui.report_list);
    reportMode(ui.type_combo->currentIndex()); // the first report's inputs, before any is chosen
}

void Admin::sizeListColumns()
{
    // Names get the room; codes, flags and figures only what they need, and never less than their
    // title, which is longer in some languages.
    const auto size = [](QTreeWidget *list, int column, int width) {
        list->setColumnWidth(column, qMax(width, list->header()->sectionSizeHint(column)));
    };
    size(ui.list, 0, 60);
    size(ui.list, 1, 240);
    size(ui.list, 2, 70);
    size(ui.perms_list, 0, 180);
    size(ui.supply_list, 0, 200);
    size(ui.auto_list, 1, 70);
    size(ui.auto_list, 2, 220);
}

void Admin::captionTaxBoxes(bool check)
{
    const struct { QCheckBox *box; QLineEdit *name; } taxes[] = {{ui.Tax1_checkBox, ui.Tax1Name},
                                                                 {ui.Tax2_checkBox, ui.Tax2Name}};
    for (const auto &tax : taxes) {
        const bool named = !tax.name->text().isEmpty();
        tax.box->setText(tax.name->text());
        tax.box->setEnabled(named);
        if (check)
            tax.box->setChecked(named);
    }
}

void Admin::polish()
{
    ensurePolished();
}

void Admin::destroy()
{
}

void Admin::languageChange()
{
    ui.retranslateUi(this);
}

void Admin::showHelp()
{
    if (utils)
        utils->showHelp();
}
