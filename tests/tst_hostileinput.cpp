// Whatever is typed into a form is stored and shown back exactly, on every engine, or refused the same way on each:
// texts with quotes, backslashes, LIKE wildcards, control characters, four-byte and right-to-left characters, texts
// that fill their column and one character more; and numbers that are none.
#include "admin.h"
#include "noteed.h"
#include "testsupport.h"

#include <QSqlTableModel>
#include <QTextEdit>
#include <QtTest>

using TestSupport::insert;

namespace {
TestSupport::ScriptedPrompter *prompter() { return TestSupport::prompter(); }
void answer(int yeses) { for (int i = 0; i < yeses; ++i) prompter()->answer(0); }
bool mariadb() { return TestSupport::engine() == Dialect::MySQL; }
QString withoutNul(QString text) { return text.remove(QChar(0)); }
QStringList stored(const QString &sql) { return TestSupport::rows(sql).value(0); }

// The first line of every warning or error shown.
QStringList warnings()
{
    QStringList said;
    for (const auto &call : prompter()->calls)
        if (call.icon == Prompter::Warning || call.icon == Prompter::Critical)
            said << call.text.section('\n', 0, 0);
    return said;
}

// A line edit's or a text edit's text.
QString textOf(Admin *admin, const QString &field)
{
    const auto *line = admin->findChild<QLineEdit *>(field);
    return line ? line->text() : admin->findChild<QTextEdit *>(field)->toPlainText();
}

void type(Admin *admin, const QStringList &fields, const QString &text)
{
    for (const QString &field : fields)
        if (auto *line = admin->findChild<QLineEdit *>(field))
            line->setText(text);
        else
            admin->findChild<QTextEdit *>(field)->setPlainText(text);
}

QStringList shownIn(Admin *admin, const QStringList &fields)
{
    QStringList out;
    for (const QString &field : fields)
        out << textOf(admin, field);
    return out;
}

// Makes the list's row that holds `text` in `column` current, as a click does; returns what the row holds in
// `shown` (a one-line list shows a line break as a blank).
QStringList pick(QTreeWidget *list, const QString &text, int column, const QList<int> &shown = {})
{
    QStringList out;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = list->topLevelItem(i);
        if (item->data(column, Qt::EditRole).toString() != text)
            continue;
        list->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
        for (int c : shown)
            out << item->data(c, Qt::EditRole).toString();
        return out;
    }
    return {"(no row)"};
}

// A text of exactly `size` characters, four-byte ones among them.
QString filled(int size)
{
    const QList<char32_t> cycle{U'é', U'🐾', U'x', U'ש'};
    QList<char32_t> points;
    for (int i = 0; i < size; ++i)
        points << cycle[i % cycle.size()];
    return QString::fromUcs4(points.constData(), points.size());
}

// Where a text is typed, and how it comes back. `save` saves what `fields` hold, answering what is asked, and gives the
// text as typed when no field holds it (a question asked for it). `stored` reads the copies of it back, `shown` what
// the window shows once it has read them again.
struct Form {
    int width;          // characters the column takes; 0: TEXT, which takes 65535 bytes on MariaDB and any length elsewhere
    QString stored;
    QStringList fields;
    std::function<Admin *()> open;
    std::function<QString(Admin *, const QString &)> save;
    std::function<QStringList(Admin *)> shown;
};

// The practice's texts and their columns, in one order.
const QStringList practiceFields{"ALINE1", "ALINE2", "ALINE3", "ALINE4", "ALINE5", "ALINE6", "ALINE7", "InvFooter",
                                 "InvFooter1", "RecFooter", "StatementFooter1", "StatementFooter2", "StatementFooter3",
                                 "HandOver", "label2LineEdit", "label3LineEdit", "Tax1Name", "Tax2Name"};
const QString practiceColumns = "ALINE1,ALINE2,ALINE3,ALINE4,ALINE5,ALINE6,ALINE7,InvFooter,InvFooter1,RecFooter,"
                                "StatementFooter1,StatementFooter2,StatementFooter3,HandOverFooter,LABEL2,LABEL3,Tax1Name,Tax2Name";

// The practice's fields in one language, saved; shown again after switching to the other language and back.
Form practice(bool alternative, const QStringList &fields, const QString &columns)
{
    return {255, "SELECT " + columns + " FROM SysInfo", fields,
            [=] {
                Admin *admin = TestSupport::makeAdmin();
                if (alternative)
                    admin->ui.alt_lang_tb->click();
                return admin;
            },
            [](Admin *admin, const QString &) { answer(1); admin->PushButton4_clicked(); return QString(); },
            [=](Admin *admin) {
                admin->ui.alt_lang_tb->click();
                admin->ui.alt_lang_tb->click();
                return shownIn(admin, fields);
            }};
}

// A product added under the description "Added" (`code` null), or the listed one modified.
Form product(const QString &table, const QString &code, const QStringList &fields, const QString &columns, int listed, int width)
{
    return {width, "SELECT " + columns + " FROM " + table + " WHERE " + (code.isNull() ? "Description='Added'" : "Code='" + code + "'"),
            fields,
            [=] {
                Admin *admin = TestSupport::openCategory(table, code);
                if (code.isNull())
                    admin->ui.description_tf->setText("Added");
                return admin;
            },
            [=](Admin *admin, const QString &) {
                answer(2); // the change, and no supplier
                code.isNull() ? admin->newEntry() : admin->modifyEntry();
                return QString();
            },
            [=](Admin *admin) {
                return (code.isNull() ? pick(admin->ui.list, "Added", 1, {listed}) : pick(admin->ui.list, code, 0, {listed}))
                     + shownIn(admin, fields);
            }};
}

// Vet's details, changed with the update.
Form user(const QString &field, const QString &column, int width)
{
    return {width, "SELECT " + column + " FROM Operators WHERE Operator='Vet'", {field},
            [] {
                Admin *admin = TestSupport::makeAdmin();
                admin->ui.users_list->setCurrentRow(0);
                return admin;
            },
            [](Admin *admin, const QString &) { answer(1); admin->updateUserId(); return QString(); },
            [=](Admin *admin) { admin->reloadData(); return shownIn(admin, {field}); }};
}

// A supplier added with the text in some fields, then made a lab through the name it is listed under (empty when the
// name is not under test).
Form supplier(const QStringList &fields, const QString &columns, const QList<int> &listed, int width)
{
    return {width, "SELECT " + columns + " FROM Supply WHERE Lab='Y'", fields, [] { return TestSupport::makeAdmin(); },
            [](Admin *admin, const QString &) {
                answer(1);
                admin->newSupplier();
                if (pick(admin->ui.supply_list, "N", 8) != QStringList{"(no row)"}) {
                    admin->ui.lab_tb->setChecked(true);
                    answer(1);
                    admin->updateSupplier();
                }
                return QString();
            },
            [=](Admin *admin) { return pick(admin->ui.supply_list, "Y", 8, listed) + shownIn(admin, fields); }};
}

// The forms whose text a question asks for, or which the tab reads otherwise than from its fields.
Form userName()
{
    return {50,
            "SELECT o.Operator, p.Operator FROM Operators o JOIN Permissions p ON p.keynum=(SELECT MAX(keynum) FROM "
            "Permissions) WHERE o.id='c1'",
            {}, [] { return TestSupport::makeAdmin(); },
            [](Admin *admin, const QString &text) { // a right taken away and granted again finds the user
                for (const QString &answer : {text, QString("ab"), QString("c1")})
                    prompter()->answerText(answer);
                admin->newUser();
                admin->ui.users_list->setCurrentItem(admin->ui.users_list->findItems(withoutNul(text), Qt::MatchExactly).value(0));
                if (admin->ui.users_list->currentItem()) {
                    admin->ui.perms_list->setCurrentItem(admin->ui.perms_list->topLevelItem(0));
                    answer(1);
                    admin->deletePermission();
                    admin->classChanged(0);
                    answer(1);
                    admin->newPermission();
                }
                return text;
            },
            [](Admin *admin) { return QStringList{admin->ui.users_list->currentItem() ? admin->ui.users_list->currentItem()->text() : ""}; }};
}

Form remarks()
{
    const auto editor = [](const std::function<void(QTextEdit *)> &use, int result) {
        prompter()->answerDialog([=](QDialog *dialog) { use(qobject_cast<NoteEd *>(dialog)->textEdit1); return result; });
    };
    return {0, "SELECT Remarks FROM Goods WHERE Code='5'", {}, [] { return TestSupport::openCategory("Goods", "5"); },
            [=](Admin *admin, const QString &text) {
                QString typed;
                editor([&](QTextEdit *edit) { edit->setPlainText(text); typed = edit->toPlainText(); }, QDialog::Accepted);
                admin->noteEditor();
                return typed;
            },
            [=](Admin *admin) {
                QString shown;
                editor([&](QTextEdit *edit) { shown = edit->toPlainText(); }, QDialog::Rejected);
                admin->noteEditor();
                return QStringList{shown};
            }};
}

// A procedure added under the name, and an item added to it, found by that name.
Form procedure()
{
    return {100, "SELECT p.Description FROM AutoProc p JOIN AutoProcContents c ON c.ProcId=p.Code", {},
            [] { return TestSupport::makeAdmin(); },
            [](Admin *admin, const QString &text) {
                prompter()->answerText(text);
                admin->newAutoProc();
                admin->ui.proc_list->setCurrentItem(admin->ui.proc_list->findItems(withoutNul(text), Qt::MatchExactly).value(0));
                if (admin->ui.proc_list->currentItem()) {
                    answer(1);
                    admin->newAutoProcContents();
                }
                return text;
            },
            [](Admin *admin) { return QStringList{admin->ui.proc_tf->text()}; }};
}

// A stored product of that description chosen for an item of Spay: found by its description. Only texts its column
// takes can be stored to be chosen.
Form chosenProduct()
{
    return {100, "SELECT m.Description FROM AutoProcContents c JOIN Medication m ON m.Code=c.Code", {},
            [] { return TestSupport::makeAdmin(); },
            [](Admin *admin, const QString &text) {
                insert("Medication", "Code,Description,Active", {"77", withoutNul(text), "Y"});
                admin->autoCategorySelected("Medication");
                admin->ui.auto_desc_combo->setCurrentText(withoutNul(text));
                answer(1);
                admin->newAutoProcContents();
                return text;
            },
            [](Admin *admin) { return pick(admin->ui.auto_list, "77", 3, {2}); }};
}

Form breed()
{
    return {100, "SELECT Description, Description_A FROM breeds", {}, [] { return TestSupport::makeAdmin(); },
            [](Admin *admin, const QString &text) {
                for (const char *field : {"Description", "Description_A"})
                    admin->breedsModel()->setData(admin->breedsModel()->index(0, admin->breedsModel()->fieldIndex(field)), text);
                return text;
            },
            [](Admin *admin) {
                QSqlTableModel *breeds = admin->breedsModel();
                breeds->select();
                return QStringList{breeds->index(0, breeds->fieldIndex("Description")).data().toString(),
                                   breeds->index(0, breeds->fieldIndex("Description_A")).data().toString()};
            }};
}

const QMap<QString, Form> &forms()
{
    static const QMap<QString, Form> all{
        {"practice", practice(false, practiceFields, practiceColumns)},
        {"practice, other language", practice(true, practiceFields, QString(practiceColumns + ',').replace(",", "_A,").chopped(1))},
        {"new product's code", product("Goods", QString(), {"code_tf"}, "Code", 0, 20)},
        {"product's names", product("Hospital", "3", {"description_tf", "description_A_tf"}, "Description,Description_A", 1, 100)},
        {"product's units", product("Hospital", "3", {"uom_tf", "uom_A_tf"}, "UnitOfMeasure,UnitOfMeasure_A", 3, 30)},
        {"remarks", remarks()},
        {"user's name", userName()},
        {"user's code", user("userCode_tf", "id", 50)},
        {"user's initials", user("initials_tf", "Initials", 10)},
        {"supplier's names", supplier({"company_tf", "contact_tf", "email_tf"}, "Company,Contact,Email", {0, 1, 2}, 100)},
        {"supplier's numbers", supplier({"phone_tf", "fax_tf", "cell_tf"}, "Tel,Fax,Cell", {3, 4, 5}, 30)},
        {"supplier's addresses", supplier({"postal_tf", "collection_tf"}, "PostalAddr,PhysicalAddr", {6, 7}, 255)},
        {"procedure", procedure()},
        {"product chosen for a procedure", chosenProduct()},
        {"breed", breed()},
    };
    return all;
}

// Whether the text is longer than the form's column takes, counted as the servers count: characters, and the bytes of
// MariaDB's TEXT; and the first line of the warning that says so.
bool tooLong(const Form &form, const QString &text)
{
    const QString kept = withoutNul(text);
    return form.width ? kept.toUcs4().size() > form.width : mariadb() && kept.toUtf8().size() > 65535;
}
QString tooLongWarning(const Form &form, const QString &text)
{
    const QList<uint> points = withoutNul(text).toUcs4();
    const QString opening =
        QString::fromUcs4(reinterpret_cast<const char32_t *>(points.constData()), qMin(40, int(points.size())));
    const QString size = form.width ? QString("It has %1 characters; the field takes at most %2.").arg(points.size()).arg(form.width)
                                    : QString("It takes %1 bytes; the field takes at most 65535.").arg(withoutNul(text).toUtf8().size());
    return QString("The text \"%1%2\" is too long. %3").arg(opening, points.size() > 40 ? "..." : "", size);
}

// Types `text` into the form and saves it, answering what is asked; gives the text as typed: the field's, or the
// answer to a question when no field holds it.
QString enter(const Form &form, const QString &text, Admin **window = nullptr)
{
    Admin *admin = form.open();
    type(admin, form.fields, text);
    const QString typed = form.fields.isEmpty() ? QString() : textOf(admin, form.fields.first());
    const QString asked = form.save(admin, text);
    if (window)
        *window = admin;
    return form.fields.isEmpty() ? asked : typed;
}

// The fields where numbers go, each with its name in the warning and whether it takes whole numbers only.
const QMap<QString, std::pair<bool, Form>> &numberForms()
{
    static const QMap<QString, std::pair<bool, Form>> all{
        {"second tax rate", {false, practice(false, {"Tax2"}, "Tax2")}},
        {"cost", {false, product("Goods", QString(), {"cost_tf", "level_tf", "toqty_tf", "onorder_tf"},
                                 "Cost,ReOrder,ToQuantity,OnOrder", 0, 0)}},
        {"number of days to the reminder", {true, product("Vaccination", QString(), {"dtr_tf"}, "DaysToReminder", 0, 0)}},
        {"commission", {false, user("lineEdit45", "Commission", 0)}},
        {"quantity", {false, {0, "SELECT Quantity FROM AutoProcContents", {"auto_qty_tf"}, [] { return TestSupport::makeAdmin(); },
                              [](Admin *a, const QString &) { answer(1); a->newAutoProcContents(); return QString(); }, {}}}},
    };
    return all;
}
} // namespace

class HostileInputTest : public TestSupport::EngineSuite
{
    Q_OBJECT

private slots:
    // Vet (code v1), the products Goods 5 and Hospital 3, the procedure Spay, the breed Beagle.
    void init()
    {
        EngineSuite::init();
        QVERIFY(insert("Operators", "Operator,id,Initials,Diary,Commission", {"Vet", "v1", "VE", "N", 5.0})
                && insert("Permissions", "Operator,Class,Description", {"Vet", "Dispense", "Goods"})
                && insert("Goods", "Code,Description,Active", {"5", "Bone", "Y"})
                && insert("Hospital", "Code,Description,UnitOfMeasure,Active", {"3", "Plain", "each", "Y"})
                && insert("AutoProc", "Description", {"Spay"}) && insert("breeds", "Description,Description_A", {"Beagle", "Brak"}));
    }

    // Each text into every form. A text longer than the column is refused with the same warning on every engine, and
    // nothing is written; NUL, which no engine keeps, is dropped everywhere alike.
    void textsComeBackAsTyped_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("text"); // "fill" or "fill+1": as many characters as the column takes, or one more
        // At most ten characters, so that each fits every field, the initials too.
        for (const auto &[kind, text] : QList<std::pair<const char *, QString>>{
                 {"quotes", "O'B \"x\" ''"}, {"backslashes", "\\'x\\\\y\\n"}, {"wildcards", "100%_a%_"},
                 {"trailing backslash", "ends in \\"}, {"NUL", QString("be") + QChar(0) + "af"},
                 {"tab and line breaks", "a\tb\nc\r\nd\re"}, {"four-byte characters", "🐾 🐕‍🦺 𝄞"}, {"right to left", "כלב كلب"},
                 {"longest", "fill"}, {"one too long", "fill+1"}})
            for (const QString &form : forms().keys())
                if (form != "product chosen for a procedure" || text != "fill+1") // never stored, so never chosen
                    QTest::addRow("%s, %s", qPrintable(form), kind) << form << text;
    }
    void textsComeBackAsTyped()
    {
        QFETCH(QString, form);
        QFETCH(QString, text);
        const Form &f = forms()[form];
        const QString typed = !text.startsWith("fill") ? text
                            : f.width ? filled(f.width + (text == "fill+1"))
                                      : QString("🐾").repeated(16383) + (text == "fill+1" ? "abcd" : "abc"); // 65535 bytes
        const QStringList before = stored(f.stored);
        Admin *admin = nullptr;
        const QString expected = withoutNul(enter(f, typed, &admin));

        const QStringList said = warnings(), now = stored(f.stored);
        if (tooLong(f, typed)) { // the breeds table refuses each of its two fields
            QVERIFY(!said.isEmpty());
            QCOMPARE(said, QStringList(said.size(), tooLongWarning(f, typed)));
            QCOMPARE(now, before);
            return;
        }
        QCOMPARE(said, QStringList());
        QVERIFY(!now.isEmpty());
        QCOMPARE(now, QStringList(now.size(), expected));
        const QStringList shown = f.shown(admin);
        QCOMPARE(shown, QStringList(shown.size(), expected));
    }

    // Numbers typed where numbers go are read the same way on every engine: an empty field as 0, a number as its value
    // (rounded where the column holds whole numbers), anything else refused before a question is asked.
    void numbersAreReadAlike_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("read"); // the value stored; empty: refused
        for (const auto &[typed, read] : QList<std::pair<QString, QString>>{
                 {"", "0"}, {"12.5", "12.5"}, {"-0", "0"}, {" 7 ", "7"}, {"1,234.5", "1234.5"}, {"1e10", "10000000000"},
                 {"abc", ""}, {"1e400", ""}, {"15%", ""}, {"12,5", ""}})
            for (const QString &field : numberForms().keys())
                QTest::addRow("%s \"%s\"", qPrintable(field), qPrintable(typed)) << field << typed << read;
    }
    void numbersAreReadAlike()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, read);
        const auto &[whole, form] = numberForms()[field];
        const QStringList before = stored(form.stored);
        enter(form, typed);

        if (read.isEmpty() || (whole && read.toDouble() > 2147483647.0)) { // days no more than an integer column takes
            const QString refusal = whole ? "The %1 \"%2\" is not a whole number." : "The %1 \"%2\" is not a number.";
            QCOMPARE(warnings(), QStringList{refusal.arg(field, typed)});
            QCOMPARE(stored(form.stored), before);
            return;
        }
        QCOMPARE(warnings(), QStringList());
        QStringList numbers;
        for (const QString &number : stored(form.stored))
            numbers << QString::number(number.toDouble(), 'g', 15);
        const double value = whole ? double(qRound64(read.toDouble())) : read.toDouble();
        QCOMPARE(numbers, QStringList(form.fields.size(), QString::number(value, 'g', 15)));
    }
};

QTEST_MAIN(HostileInputTest)
#include "tst_hostileinput.moc"
