// The breeds tab: the table over "breeds", cell edits written at once, adding and deleting rows.
#include "admin.h"
#include "testsupport.h"

#include <QHeaderView>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QtTest>

using TestSupport::ScriptedPrompter;

namespace {

bool addBreedRow(const QString &description, const QString &alternative)
{
    QSqlQuery query;
    query.prepare("INSERT INTO breeds (Description, Description_A) VALUES (?, ?)");
    query.addBindValue(description);
    query.addBindValue(alternative);
    return query.exec();
}

QList<QStringList> storedBreeds()
{
    return TestSupport::rows("SELECT Description, Description_A FROM breeds ORDER BY Description");
}

int column(Admin *admin, const char *field)
{
    return admin->breedsModel()->fieldIndex(QLatin1String(field));
}

// What the table shows, row by row, in its two visible columns.
QList<QStringList> shownBreeds(Admin *admin)
{
    QAbstractItemModel *model = admin->ui.table->model();
    QList<QStringList> out;
    for (int row = 0; row < model->rowCount(); ++row)
        out << QStringList{model->index(row, column(admin, "Description")).data().toString(),
                           model->index(row, column(admin, "Description_A")).data().toString()};
    return out;
}

int rowOf(Admin *admin, const QString &description)
{
    const QList<QStringList> shown = shownBreeds(admin);
    for (int row = 0; row < shown.size(); ++row)
        if (shown.at(row).at(0) == description)
            return row;
    return -1;
}

// Types into a cell as the table's editor would on leaving it.
bool editCell(Admin *admin, int row, const char *field, const QString &text)
{
    QAbstractItemModel *model = admin->ui.table->model();
    return model->setData(model->index(row, column(admin, field)), text);
}

void highlight(Admin *admin, const QString &description)
{
    const int row = rowOf(admin, description);
    QVERIFY2(row >= 0, qPrintable(description));
    admin->ui.table->setCurrentIndex(admin->ui.table->model()->index(row, column(admin, "Description")));
}

QPushButton *button(Admin *admin, const char *name)
{
    return admin->findChild<QPushButton *>(QLatin1String(name));
}

// Two names may not repeat, so that a write can be refused on every engine.
bool refuseRepeatedNames()
{
    return TestSupport::exec("CREATE UNIQUE INDEX breeds_unique_description ON breeds (Description)");
}

const QList<QStringList> threeBreeds = {{"Beagle", "Brak"}, {"Collie", "Skaaphond"}, {"Dachshund", "Worshond"}};

bool addThreeBreeds()
{
    for (const QStringList &breed : threeBreeds)
        if (!addBreedRow(breed.at(0), breed.at(1)))
            return false;
    return true;
}

} // namespace

class BreedsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void showsTheTwoLanguagesUnderTheirHeadings();
    void editedCellIsSaved_data();
    void editedCellIsSaved();
    void addedRowIsSavedWithItsName_data();
    void addedRowIsSavedWithItsName();
    void deleteAsksFirst_data();
    void deleteAsksFirst();
    void deleteWithoutSelectionAsksNothing();
    void refusedWriteIsShownAndUndone_data();
    void refusedWriteIsShownAndUndone();
};

void BreedsTest::showsTheTwoLanguagesUnderTheirHeadings()
{
    QVERIFY(addBreedRow("Poodle", "Poedel"));
    QVERIFY(addThreeBreeds());
    Admin *admin = TestSupport::makeAdmin();
    QTableView *table = admin->ui.table;
    QAbstractItemModel *model = table->model();

    QCOMPARE(shownBreeds(admin), (threeBreeds + QList<QStringList>{{"Poodle", "Poedel"}}));
    QStringList visibleHeadings;
    for (int c = 0; c < model->columnCount(); ++c)
        if (!table->isColumnHidden(c))
            visibleHeadings << model->headerData(c, Qt::Horizontal).toString();
    QCOMPARE(visibleHeadings, QStringList({"Description", "Alt Lang"}));
    QVERIFY(table->isColumnHidden(column(admin, "keynum")));
    QCOMPARE(table->columnWidth(column(admin, "Description_A")), 256);
}

void BreedsTest::editedCellIsSaved_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QStringList>>("stored");
    QTest::newRow("description") << "Description" << "Bearded Collie"
                                 << QList<QStringList>{{"Beagle", "Brak"}, {"Bearded Collie", "Skaaphond"},
                                                       {"Dachshund", "Worshond"}};
    QTest::newRow("alternative language") << "Description_A" << "Boerboel"
                                          << QList<QStringList>{{"Beagle", "Brak"}, {"Collie", "Boerboel"},
                                                                {"Dachshund", "Worshond"}};
    QTest::newRow("quote and accent") << "Description_A" << "Kollie d'Été"
                                      << QList<QStringList>{{"Beagle", "Brak"}, {"Collie", "Kollie d'Été"},
                                                            {"Dachshund", "Worshond"}};
    QTest::newRow("emptied") << "Description" << ""
                             << QList<QStringList>{{"", "Skaaphond"}, {"Beagle", "Brak"},
                                                   {"Dachshund", "Worshond"}};
}

void BreedsTest::editedCellIsSaved()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(QList<QStringList>, stored);
    QVERIFY(addThreeBreeds());
    Admin *admin = TestSupport::makeAdmin();

    QVERIFY(editCell(admin, rowOf(admin, "Collie"), field.toLatin1(), text));

    QCOMPARE(storedBreeds(), stored);
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM breeds").toInt(), 3);
    QVERIFY(TestSupport::prompter()->calls.isEmpty());
}

void BreedsTest::addedRowIsSavedWithItsName_data()
{
    QTest::addColumn<bool>("withAlternative");
    QTest::newRow("name only") << false;
    QTest::newRow("name, then the alternative") << true;
}

void BreedsTest::addedRowIsSavedWithItsName()
{
    QFETCH(bool, withAlternative);
    QVERIFY(addThreeBreeds());
    Admin *admin = TestSupport::makeAdmin();
    QAbstractItemModel *model = admin->ui.table->model();

    button(admin, "addBreed_pb")->click();

    QCOMPARE(model->rowCount(), 4);
    const QModelIndex current = admin->ui.table->currentIndex();
    QCOMPARE(current.row(), 3);
    QCOMPARE(current.column(), column(admin, "Description"));
    QVERIFY(editCell(admin, current.row(), "Description", "Airedale"));
    if (withAlternative)
        QVERIFY(editCell(admin, rowOf(admin, "Airedale"), "Description_A", "Airedale Terrier"));

    const QList<QStringList> added{{"Airedale", withAlternative ? "Airedale Terrier" : ""}};
    QCOMPARE(storedBreeds(), added + threeBreeds);
    QCOMPARE(shownBreeds(admin).size(), 4);
}

void BreedsTest::deleteAsksFirst_data()
{
    QTest::addColumn<int>("answer"); // -1: the box is closed
    QTest::addColumn<bool>("deleted");
    QTest::newRow("yes") << 0 << true;
    QTest::newRow("no") << 1 << false;
    QTest::newRow("closed") << -1 << false;
}

void BreedsTest::deleteAsksFirst()
{
    QFETCH(int, answer);
    QFETCH(bool, deleted);
    QVERIFY(addThreeBreeds());
    Admin *admin = TestSupport::makeAdmin();
    highlight(admin, "Collie");
    ScriptedPrompter *prompter = TestSupport::prompter();
    if (answer >= 0)
        prompter->answer(answer);

    button(admin, "deleteBreed_pb")->click();

    const ScriptedPrompter::Call &question = prompter->calls.value(0);
    QCOMPARE(question.text, QString("Confirm that you will delete the breed 'Collie'"));
    QCOMPARE(question.buttons, QStringList({"&Yes", "&No"}));
    QCOMPARE(question.defaultIndex, 1);
    const QList<QStringList> remaining{{"Beagle", "Brak"}, {"Dachshund", "Worshond"}};
    QCOMPARE(storedBreeds(), deleted ? remaining : threeBreeds);
    QCOMPARE(shownBreeds(admin), deleted ? remaining : threeBreeds);
    QCOMPARE(prompter->calls.size(), deleted ? 1 : 2);
    if (!deleted)
        QCOMPARE(prompter->last().text, QString("Operation cancelled"));
}

void BreedsTest::deleteWithoutSelectionAsksNothing()
{
    QVERIFY(addThreeBreeds());
    Admin *admin = TestSupport::makeAdmin();
    admin->ui.table->setCurrentIndex(QModelIndex());
    ScriptedPrompter *prompter = TestSupport::prompter();

    button(admin, "deleteBreed_pb")->click();

    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().icon, int(Prompter::Warning));
    QCOMPARE(prompter->last().text, QString("You must highlight a breed to delete"));
    QCOMPARE(storedBreeds(), threeBreeds);
}

void BreedsTest::refusedWriteIsShownAndUndone_data()
{
    QTest::addColumn<bool>("newRow");
    QTest::newRow("renamed to an existing name") << false;
    QTest::newRow("added under an existing name") << true;
}

void BreedsTest::refusedWriteIsShownAndUndone()
{
    QFETCH(bool, newRow);
    QVERIFY(addThreeBreeds());
    QVERIFY(refuseRepeatedNames());
    Admin *admin = TestSupport::makeAdmin();
    int row = rowOf(admin, "Collie");
    if (newRow) {
        button(admin, "addBreed_pb")->click();
        row = admin->ui.table->currentIndex().row();
    }
    ScriptedPrompter *prompter = TestSupport::prompter();

    editCell(admin, row, "Description", "Beagle");

    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().icon, int(Prompter::Critical));
    QVERIFY2(prompter->last().text.contains("could not be saved"), qPrintable(prompter->last().text));
    QCOMPARE(storedBreeds(), threeBreeds);
    QCOMPARE(shownBreeds(admin), threeBreeds);

    // The table goes on working after the refusal.
    QVERIFY(editCell(admin, rowOf(admin, "Collie"), "Description_A", "Bordercollie"));
    QCOMPARE(TestSupport::value("SELECT Description_A FROM breeds WHERE Description='Collie'").toString(),
             QString("Bordercollie"));
}

QTEST_MAIN(BreedsTest)
#include "tst_breeds.moc"
