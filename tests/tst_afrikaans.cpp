// The program in Afrikaans: the catalogues the build compiles, loaded as start-up loads them, read
// against the window's tabs, its dialogs, its reports and the messages a scripted run meets. A text
// that the catalogues translate must never reach the screen in English, its arguments must arrive
// in the translation, and a word that names a table must reach the database as the word.
#include "admin.h"
#include "globals.h"
#include "logindialog.h"
#include "noteed.h"
#include "plot.h"
#include "testsupport.h"
#include "utility.h"
#include "zrlistitem.h"
#include "zrrichtext.h"
#include "zrtranslator.h"

#include <QHeaderView>
#include <QFileDialog>
#include <QInputDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QSettings>
#include <QSqlTableModel>
#include <QStatusBar>
#include <QTextBrowser>
#include <QXmlStreamReader>
#include <QtTest>
#include <functional>

using TestSupport::ScriptedPrompter;
using Play = std::function<void(Admin *)>;
Q_DECLARE_METATYPE(Play)

namespace {

// What reads the same in both languages: names, keys, units, numbers and the schedules (no word).
bool sameInBoth(const QString &text)
{
    static const QSet<QString> names{"Quorel",     "Quorel - Admin", "Quorel Admin", "Alias",
                                     "Alt+Left",   "Alt+Right",      "Alt+Up",       "Didot (DD)",
                                     "Cicero (CC)", QString::fromUtf8("Pica (P\u0338)")};
    return names.contains(text) || !text.contains(QRegularExpression("[a-z]{3}"));
}

struct Message {
    QString context, source, translation, state;
};

QList<Message> readCatalogue(const QString &name)
{
    QFile file(QStringLiteral(QUOREL_SOURCE_DIR "/i18n/") + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages << Message{context, {}, {}, {}};
        else if (xml.name() == QLatin1String("source") && !messages.isEmpty())
            messages.last().source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation") && !messages.isEmpty()) {
            messages.last().state = xml.attributes().value("type").toString();
            messages.last().translation = xml.readElementText();
        }
    }
    return messages;
}

// The program's, the suite library's, and that of Qt's own dialogs (compiled into the library's).
const QStringList catalogues{"admin_af.ts", "qrlib_af.ts", "qt/qtbase_af.ts"};

QStringList sortedMatches(const QString &text, const QString &expression)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(expression).globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

// The key a text's "&" marks, lower case; empty when none ("&&" is a plain ampersand).
QString mnemonic(const QString &text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != '&')
            continue;
        if (text.at(i + 1) != '&')
            return text.at(i + 1).toLower();
        ++i;
    }
    return QString();
}

// A catalogue text as a pattern of what it shows: its markers stand for any argument.
QRegularExpression shownAs(const QString &text)
{
    QString expression = QRegularExpression::escape(text);
    expression.replace(QRegularExpression("\\\\%[1-9]"), "(.*)");
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption);
}

// Every message of both catalogues, and what they make of a text on the screen.
class Catalogue
{
public:
    Catalogue()
    {
        for (const QString &name : catalogues)
            messages += readCatalogue(name);
        for (const Message &m : qAsConst(messages)) {
            if (m.translation == m.source)
                continue;
            if (m.source.contains(QRegularExpression("%[1-9]")))
                englishPatterns << m.source;
            else
                english << m.source;
        }
    }
    // The English a translated message would have shown, or the empty text.
    QString englishIn(const QString &shown) const
    {
        if (english.contains(shown))
            return shown;
        for (const QString &source : englishPatterns)
            if (shownAs(source).match(shown).hasMatch())
                return source;
        return QString();
    }
    QList<Message> messages;

private:
    QSet<QString> english;
    QStringList englishPatterns;
};

QStringList englishAmong(const QStringList &texts)
{
    static const Catalogue catalogue;
    QStringList found;
    for (const QString &text : texts)
        if (!text.isEmpty() && !catalogue.englishIn(text).isEmpty())
            found << text;
    return found;
}

// The keys marked twice or more among `texts`.
QStringList clashingMnemonics(const QStringList &texts)
{
    QMap<QString, QStringList> byKey;
    for (const QString &text : texts)
        if (!mnemonic(text).isEmpty())
            byKey[mnemonic(text)] << text;
    QStringList clashes;
    for (auto it = byKey.cbegin(); it != byKey.cend(); ++it)
        if (it.value().size() > 1)
            clashes << it.key() + ": " + it.value().join(", ");
    return clashes;
}

// What a widget and its children show a person: titles, captions, tool tips, the items of combo
// boxes and the headings of lists. Line edits and the rows of lists hold data, not captions.
QStringList shownTexts(QWidget *root, const QSet<QString> &dataCombos = {})
{
    QStringList texts{root->windowTitle()};
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets.prepend(root);
    for (QWidget *w : qAsConst(widgets)) {
        texts << w->toolTip();
        if (auto *label = qobject_cast<QLabel *>(w))
            texts << label->text();
        else if (auto *button = qobject_cast<QAbstractButton *>(w))
            texts << button->text();
        else if (auto *group = qobject_cast<QGroupBox *>(w))
            texts << group->title();
        else if (auto *combo = qobject_cast<QComboBox *>(w); combo && !dataCombos.contains(combo->objectName()))
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
        else if (auto *header = qobject_cast<QHeaderView *>(w); header && header->orientation() == Qt::Horizontal)
            for (int c = 0; header->model() && c < header->count(); ++c)
                texts << header->model()->headerData(c, Qt::Horizontal).toString();
        else if (auto *tabs = qobject_cast<QTabWidget *>(w))
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i) << tabs->tabToolTip(i);
    }
    texts.removeAll(QString());
    return texts;
}

QStringList buttonTexts(QWidget *root)
{
    QStringList texts;
    for (QAbstractButton *button : root->findChildren<QAbstractButton *>())
        texts << button->text();
    return texts;
}

// One prompter call as the person meets it.
QString said(const ScriptedPrompter::Call &call)
{
    if (call.kind == QLatin1String("message"))
        return call.caption + ": " + call.text + (call.buttons.isEmpty() ? "" : " [" + call.buttons.join('|') + "]");
    if (call.kind == QLatin1String("getSaveFileName"))
        return "file " + call.caption;
    if (call.kind == QLatin1String("exec") || call.kind == QLatin1String("setupPrinter"))
        return call.kind + " " + call.caption;
    return "ask " + call.caption + ": " + call.text + (call.buttons.isEmpty() ? "" : " [" + call.buttons.join('|') + "]");
}

QStringList promptTexts(const ScriptedPrompter::Call &call)
{
    return QStringList{call.caption, call.text} + (call.kind == QLatin1String("message") ? call.buttons : QStringList());
}

void highlightRow(Admin *admin, const QStringList &cells)
{
    auto *row = new ZrListItem(admin->ui.report_list);
    for (int c = 0; c < cells.size(); ++c)
        row->setText(c, cells.at(c));
    row->setSelected(true);
    admin->ui.report_list->setCurrentItem(row);
}

void chooseReport(Admin *admin, int index)
{
    admin->ui.type_combo->setCurrentIndex(index);
    admin->reportMode(index);
    admin->clearList(index);
}

} // namespace

class AfrikaansTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    QList<ZrTranslator *> translators;

    // Both catalogues, from the folder the build lays out as an installation.
    bool speakAfrikaans()
    {
        QDir installDir(QCoreApplication::applicationDirPath());
        while (!installDir.exists("i18n/Quorel/admin.af.qm") && installDir.cdUp()) {}
        for (const QString name : {"qrlib", "admin"}) {
            auto *translator = new ZrTranslator(qApp);
            if (!translator->load(installDir.filePath("i18n/Quorel/" + name + ".af.qm")))
                return false;
            QCoreApplication::installTranslator(translator);
            translators << translator;
        }
        return true;
    }

    void speakEnglish()
    {
        qDeleteAll(translators);
        translators.clear();
    }

private slots:
    void initTestCase()
    {
        EngineSuite::initTestCase();
        QVERIFY2(speakAfrikaans(), "the compiled catalogues are not where start-up looks for them");
    }

    void init()
    {
        EngineSuite::init();
        if (translators.isEmpty())
            QVERIFY(speakAfrikaans());
    }

    // Every message has its translation, with the source's arguments, markup, outer blanks and
    // line breaks, and a "&" key where the source has one; a translation that reads as the source
    // is a name or a number.
    void everyMessageIsTranslated_data()
    {
        QTest::addColumn<QString>("catalogue");
        for (const QString &name : catalogues)
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyMessageIsTranslated()
    {
        QFETCH(QString, catalogue);
        const QList<Message> messages = readCatalogue(catalogue);
        QVERIFY(messages.size() > 20);
        QStringList faults;
        for (const Message &m : messages) {
            const QString &s = m.source, &t = m.translation;
            const auto edge = [](const QString &text) {
                const int start = int(text.size() - QString(text).remove(QRegularExpression("^\\s+")).size());
                const int end = int(text.size() - QString(text).remove(QRegularExpression("\\s+$")).size());
                return QString("%1 %2 %3").arg(text.left(start), text.right(end)).arg(text.count('\n'));
            };
            if (!m.state.isEmpty() || t.isEmpty())
                faults << m.context + " " + (m.state.isEmpty() ? "untranslated" : m.state) + ": " + s;
            else if (sortedMatches(s, "%[1-9]") != sortedMatches(t, "%[1-9]"))
                faults << m.context + " arguments: " + s + " -> " + t;
            else if (sortedMatches(s, "<[^>]*>") != sortedMatches(t, "<[^>]*>"))
                faults << m.context + " markup: " + s + " -> " + t;
            else if (edge(s) != edge(t))
                faults << m.context + " blanks or line breaks: " + s + " -> " + t;
            else if (mnemonic(s).isEmpty() != mnemonic(t).isEmpty())
                faults << m.context + " & key: " + s + " -> " + t;
            else if (s == t && !sameInBoth(s))
                faults << m.context + " left in English: " + s;
        }
        QVERIFY2(faults.isEmpty(), qPrintable("\n" + faults.join('\n')));
    }

    // Each tab with the window's own buttons and the tab bar: nothing in English, and no key marked
    // twice. The permission descriptions are the stored words the other programs look for.
    void tabsReadAfrikaans_data()
    {
        QTest::addColumn<int>("tab");
        const QStringList tabs{"practice", "products", "permissions", "reports", "breeds", "suppliers", "procedures"};
        for (int i = 0; i < tabs.size(); ++i)
            QTest::newRow(qPrintable(tabs.at(i))) << i;
    }

    void tabsReadAfrikaans()
    {
        QFETCH(int, tab);
        Admin *admin = TestSupport::makeAdmin();
        QTabWidget *tabs = admin->findChild<QTabWidget *>();
        QVERIFY(tabs && tabs->count() == 7);
        QWidget *page = tabs->widget(tab);
        QStringList texts = shownTexts(page, {"desc_combo"});
        QStringList keys = buttonTexts(page);
        for (int i = 0; i < tabs->count(); ++i)
            keys << tabs->tabText(i);
        for (QWidget *w : admin->findChildren<QWidget *>()) // the window's own, beside the tabs
            if (w->window() == admin && w != tabs && !tabs->isAncestorOf(w)
                && (qobject_cast<QAbstractButton *>(w) || qobject_cast<QLabel *>(w))) {
                texts << shownTexts(w);
                keys << buttonTexts(w) + QStringList{w->property("text").toString()};
            }
        texts << tabs->tabText(tab) << tabs->tabToolTip(tab);
        QVERIFY(texts.size() > 3);
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
        QVERIFY2(clashingMnemonics(keys).isEmpty(), qPrintable(clashingMnemonics(keys).join(" | ")));
        QStringList cut; // list headings too narrow for their title
        for (QTreeWidget *list : page->findChildren<QTreeWidget *>())
            for (int c = 0; c < list->columnCount(); ++c)
                if (!list->headerItem()->text(c).isEmpty() && !list->isColumnHidden(c)
                    && list->columnWidth(c) < list->header()->sectionSizeHint(c))
                    cut << list->headerItem()->text(c);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(" | ")));
    }

    // The viewer, the chart, the note editor, the login and Qt's own input dialog (whose standard
    // buttons the suite's catalogue translates): nothing in English, no key marked twice.
    void dialogsReadAfrikaans_data()
    {
        QTest::addColumn<QString>("dialog");
        for (const char *name : {"report viewer", "chart", "note editor", "login", "input dialog", "file dialog",
                                 "print dialog"})
            QTest::newRow(name) << name;
    }

    void dialogsReadAfrikaans()
    {
        QFETCH(QString, dialog);
        Admin *admin = TestSupport::makeAdmin();
        QPrinter printer;
        std::unique_ptr<QDialog> made;
        QDialog *shown = admin->reportViewer();
        if (dialog == "chart")
            made.reset(new Plot(admin));
        else if (dialog == "note editor")
            made.reset(new NoteEd(admin));
        else if (dialog == "login")
            made.reset(new LoginDialog(admin));
        else if (dialog == "input dialog") {
            auto *input = new QInputDialog(admin);
            input->setComboBoxItems({"x"});
            made.reset(input);
        } else if (dialog == "file dialog") { // as Export asks for its file
            auto *files = new QFileDialog(admin, QString(), QString(), "*.csv");
            files->setOption(QFileDialog::DontUseNativeDialog);
            files->setAcceptMode(QFileDialog::AcceptSave);
            made.reset(files);
        } else if (dialog == "print dialog") {
            made.reset(new QPrintDialog(&printer, admin));
        }
        if (made)
            shown = made.get();
        shown->show(); // some dialogs make their buttons only when shown
        const QStringList texts = shownTexts(shown);
        QVERIFY(!buttonTexts(shown).isEmpty());
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
        QVERIFY2(clashingMnemonics(buttonTexts(shown)).isEmpty(),
                 qPrintable(clashingMnemonics(buttonTexts(shown)).join(" | ")));
        shown->hide();
    }

    // Every report of the catalogue on a small practice: its column titles, its fixed rows, its
    // status messages and its questions (left unanswered) are in Afrikaans. A question that offers
    // categories offers the table names as they are stored.
    void reportsReadAfrikaans_data()
    {
        QTest::addColumn<int>("report");
        for (int index = 0; index < 24; ++index)
            QTest::addRow("%d", index) << index;
    }

    void reportsReadAfrikaans()
    {
        QFETCH(int, report);
        QVERIFY(TestSupport::exec("INSERT INTO Owner (AccountNumber, Title, Initials, Surname, Created, BadDebt) "
                                  "VALUES (7, 'Mnr', 'J', 'Zbyrxn', '" + QDate::currentDate().toString("yyyy-MM-dd")
                                  + "', 'Y')")
                && TestSupport::exec("INSERT INTO Journal (AccountNumber, MyNumber, MyDate, Description, Amount, Rounding) "
                                     "VALUES (7, 1, '" + QDate::currentDate().toString("yyyy-MM-dd") + "', 'I', 150, 0)"));
        Admin *admin = TestSupport::makeAdmin();
        QStringList status;
        connect(admin->statusBar(), &QStatusBar::messageChanged, [&status](const QString &text) { status << text; });
        chooseReport(admin, report);
        QVERIFY(englishAmong({admin->ui.type_combo->currentText()}).isEmpty());
        admin->processQuery();
        QStringList texts = shownTexts(admin->ui.report_list) + status;
        // Stock Values names each product table by its stored word: data, like the tables' own rows.
        const int firstShown = report == 17 ? 1 : 0;
        for (int r = 0; r < admin->ui.report_list->topLevelItemCount(); ++r)
            for (int c = firstShown; c < 2; ++c)
                texts << admin->ui.report_list->topLevelItem(r)->text(c);
        for (const ScriptedPrompter::Call &call : qAsConst(TestSupport::prompter()->calls)) {
            texts << promptTexts(call);
            const QStringList categories = Utility::categories();
            if (call.kind == QLatin1String("getItem") && !call.buttons.isEmpty()
                && std::all_of(call.buttons.cbegin(), call.buttons.cend(),
                               [&](const QString &item) { return categories.contains(item); }))
                continue; // table names, which must stay as they are stored
            texts << call.buttons;
        }
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
    }

    // The messages a person meets on each tab, as the prompter is asked them: declined
    // confirmations, missing selections, cancelled questions and a report's dialogs, each in
    // Afrikaans with its arguments in place and no key marked twice.
    void messagesReadAfrikaans_data()
    {
        QTest::addColumn<Play>("play");
        QTest::addColumn<QStringList>("heard");
        const QString no = "Handeling gekanselleer", yesNo = " [&Ja|&Nee]";

        QTest::newRow("practice: update declined") << Play([](Admin *a) { a->PushButton4_clicked(); })
            << QStringList{"Quorel Admin: Bevestig dat u die stelselinligting soos getoon wil opdateer?" + yesNo,
                           "Opdateer stelselinligting: " + no};
        QTest::newRow("products: delete without a product") << Play([](Admin *a) { a->deleteEntry(); })
            << QStringList{"Skrap inskrywing: U moet 'n inskrywing merk om dit te skrap"};
        QTest::newRow("products: modify without a product") << Play([](Admin *a) { a->modifyEntry(); })
            << QStringList{"Wysig inskrywing: U moet 'n inskrywing merk om dit te wysig"};
        QTest::newRow("products: new product declined") << Play([](Admin *a) {
            a->ui.code_tf->setText("G7");
            a->ui.description_tf->setText("Halsband");
            a->newEntry();
        }) << QStringList{"Nuwe inskrywing: Bevestig dat u die produk Halsband met kode G7 wil byvoeg" + yesNo,
                          "Nuwe inskrywing: " + no};
        QTest::newRow("products: description not found") << Play([](Admin *a) {
            a->ui.description_tf->setText("Zebra");
            a->seachDispense();
        }) << QStringList{"Soek volgens beskrywing: <b></b>Geen inskrywing stem met <b>Zebra</b> ooreen nie"};
        QTest::newRow("products: price conflict ignored") << Play([](Admin *a) {
            a->ui.checkBox5->setChecked(true);
            a->ui.Tax1_checkBox->setChecked(true);
            a->ui.cost_tf->setText("10.00");
            a->ui.markup_tf->setText("2.000000");
            a->ui.sell_tf->setText("30.00");
            a->forceSell();
        }) << QStringList{"Quorel: <b>Prysberekening verskil</b><br><font color=\"red\"><em>Verkoop teen 30.00 : "
                          "Bereken as 23.00</em></font><br>Wil u die <b>Kosprys</b> of die <b>Opslag</b> aanpas?<br>"
                          "U kan die verskil ook ignoreer [&Ignoreer|&Kosprys|&Opslag]"};
        QTest::newRow("permissions: delete without a user") << Play([](Admin *a) { a->deleteUser(); })
            << QStringList{"Skrap gebruiker: U moet 'n gebruiker kies om te skrap"};
        QTest::newRow("permissions: new user cancelled") << Play([](Admin *a) { a->newUser(); })
            << QStringList{"ask Nuwe gebruiker: Tik die nuwe gebruiker se naam", "Nuwe gebruiker: " + no};
        QTest::newRow("permissions: right without a user") << Play([](Admin *a) { a->newPermission(); })
            << QStringList{"Nuwe toestemming: U moet 'n gebruiker kies om 'n toestemming toe te ken"};
        QTest::newRow("reports: export without rows") << Play([](Admin *a) { a->exportQuery(); })
            << QStringList{"Voer resultate uit: U moet inskrywings merk om uit te voer"};
        QTest::newRow("reports: export cancelled") << Play([](Admin *a) {
            highlightRow(a, {"Nuwe kliënte", "3"});
            a->exportQuery();
        }) << QStringList{"file Voer resultate uit", "Voer resultate uit: " + no};
        QTest::newRow("reports: chart of a list") << Play([](Admin *a) {
            chooseReport(a, 16);
            a->graphQuery();
        }) << QStringList{"Grafiek van resultate: Dit maak nie sin om 'n grafiek van hierdie verslag te teken nie"};
        QTest::newRow("reports: chart without rows") << Play([](Admin *a) {
            chooseReport(a, 9);
            a->graphQuery();
        }) << QStringList{"Grafiek van resultate: U moet inskrywings merk om 'n grafiek te teken"};
        QTest::newRow("reports: chart shown") << Play([](Admin *a) {
            chooseReport(a, 9);
            a->processQuery();
            a->ui.report_list->topLevelItem(0)->setSelected(true);
            a->ui.report_list->setCurrentItem(a->ui.report_list->topLevelItem(0));
            TestSupport::prompter()->answerDialog([](QDialog *chart) {
                const QStringList english = englishAmong(shownTexts(chart));
                if (!english.isEmpty())
                    QTest::qFail(qPrintable("the chart shows " + english.join(" | ")), __FILE__, __LINE__);
                return int(QDialog::Accepted);
            });
            a->graphQuery();
        }) << QStringList{"exec Resultate"};
        QTest::newRow("breeds: delete without a breed")
            << Play([](Admin *a) { QMetaObject::invokeMethod(a, "deleteBreed"); })
            << QStringList{"Skrap ras: U moet 'n ras merk om dit te skrap"};
        QTest::newRow("breeds: delete declined") << Play([](Admin *a) {
            TestSupport::exec("INSERT INTO breeds (Description, Description_A) VALUES ('Boerboel', 'Boerboel')");
            a->breedsModel()->select();
            a->findChild<QTableView *>("table")->selectRow(0);
            QMetaObject::invokeMethod(a, "deleteBreed");
        }) << QStringList{"Skrap ras: Bevestig dat u die ras 'Boerboel' wil skrap" + yesNo, "Skrap ras: " + no};
        QTest::newRow("suppliers: update without a supplier") << Play([](Admin *a) { a->updateSupplier(); })
            << QStringList{"Opdateer verskaffer: U het nie 'n geldige verskaffer gekies nie. Probeer weer."};
        QTest::newRow("suppliers: delete declined") << Play([](Admin *a) {
            TestSupport::exec("INSERT INTO Supply (Company) VALUES ('Afrivet')");
            a->refreshSuppliers();
            a->ui.supply_list->setCurrentItem(a->ui.supply_list->topLevelItem(0));
            a->deleteSupplier();
        }) << QStringList{"Skrap verskaffer: Bevestig dat u Afrivet\nuit die lys verskaffers wil skrap." + yesNo,
                          "Skrap verskaffer: " + no};
        QTest::newRow("procedures: new one cancelled") << Play([](Admin *a) { a->newAutoProc(); })
            << QStringList{"ask Nuwe outoprosedure: Tik die naam van die nuwe outoprosedure", "Nuwe outoprosedure: " + no};
        QTest::newRow("procedures: update without an item") << Play([](Admin *a) { a->updateAutoProcContents(); })
            << QStringList{"Opdateer die inhoud: U moet 'n item van die prosedure merk om dit op te dateer"};
    }

    void messagesReadAfrikaans()
    {
        QFETCH(Play, play);
        QFETCH(QStringList, heard);
        Admin *admin = TestSupport::makeAdmin();
        TestSupport::prompter()->calls.clear();
        play(admin);
        QStringList transcript, texts;
        for (const ScriptedPrompter::Call &call : qAsConst(TestSupport::prompter()->calls)) {
            transcript << said(call);
            texts << promptTexts(call);
            QVERIFY2(clashingMnemonics(call.buttons).isEmpty(), qPrintable(clashingMnemonics(call.buttons).join(" | ")));
        }
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
        QCOMPARE(transcript, heard);
        QCOMPARE(TestSupport::prompter()->pending(), 0);
    }

    // The category shown translated still names its table: choosing it loads that table's
    // products, and the form's statements go to that table.
    void categoryChoiceLoadsItsTable_data()
    {
        QTest::addColumn<QString>("table");
        for (const QString &table : Utility::categories())
            QTest::newRow(qPrintable(table)) << table;
    }

    void categoryChoiceLoadsItsTable()
    {
        QFETCH(QString, table);
        const QStringList categories = Utility::categories();
        for (const QString &category : categories)
            QVERIFY(TestSupport::exec("INSERT INTO " + category + " (Code, Description, Active) VALUES ('" + category
                                      + "1', '" + category + " item', 'Y')"));
        Admin *admin = TestSupport::makeAdmin();
        QComboBox *combo = admin->ui.category_combo;
        const int index = int(categories.indexOf(table));
        QCOMPARE(combo->count(), categories.size());
        QVERIFY(englishAmong({combo->itemText(index)}).isEmpty());
        combo->setCurrentIndex(index);
        emit combo->textActivated(combo->itemText(index));
        QCOMPARE(admin->currentCategoryTable(), table);
        QCOMPARE(admin->ui.list->topLevelItemCount(), 1);
        QCOMPARE(admin->ui.list->topLevelItem(0)->text(0), table + "1");
        QCOMPARE(admin->ui.dtr_tf->isHidden(), table != "Vaccination");
    }

    // Help shows the guide in the language of the catalogues, and the guide describes every
    // report of the catalogue under the name the window gives it.
    void helpFollowsTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("heading");
        QTest::newRow("English") << "" << "The 24 reports";
        QTest::newRow("Afrikaans") << "af" << "Die 24 verslae";
    }

    void helpFollowsTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, heading);
        if (language.isEmpty())
            speakEnglish();
        settings->setValue("/Personal/Lang", language);
        Admin *admin = TestSupport::makeAdmin();
        utils->showHelp();
        settings->remove("/Personal/Lang");
        QTextBrowser *help = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String("QuorelHelp"))
                help = qobject_cast<QTextBrowser *>(w);
        QVERIFY(help && help->isVisible());
        const QString guide = help->toPlainText();
        QVERIFY2(guide.contains(heading), qPrintable(guide.left(200)));
        QCOMPARE(englishAmong({help->windowTitle()}).isEmpty(), !language.isEmpty());
        QCOMPARE(admin->ui.type_combo->count(), 24);
        QStringList missing;
        for (int i = 0; i < admin->ui.type_combo->count(); ++i)
            if (!guide.contains(admin->ui.type_combo->itemText(i)))
                missing << admin->ui.type_combo->itemText(i);
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(", ")));
        help->close();
    }
};

QTEST_MAIN(AfrikaansTest)

#include "tst_afrikaans.moc"
