// The program in Afrikaans: the catalogues the build compiles, loaded as start-up loads them, read
// against the window's tabs, its dialogs, its reports and the messages a scripted run meets. A text
// that the catalogues translate must never reach the screen in English, its arguments must arrive
// in the translation, and a word that names a table must reach the database as the word.
#include "admin.h"
#include "globals.h"
#include "logindialog.h"
#include "noteed.h"
#include "plot.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"
#include "zrlistitem.h"
#include "zrrichtext.h"
#include "zrtranslator.h"

#include <QFileDialog>
#include <QHeaderView>
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
using Make = std::function<QWidget *(Admin *)>;
Q_DECLARE_METATYPE(Play)
Q_DECLARE_METATYPE(Make)

namespace {

// The program's, the suite library's, and that of Qt's own dialogs (compiled into the library's).
const QStringList catalogues{"admin_af.ts", "qrlib_af.ts", "qt/qtbase_af.ts"};

struct Message {
    QString context, source, translation, state;
};

// Every message of a catalogue; none when it cannot be read to its end.
QList<Message> readCatalogue(const QString &name)
{
    QFile file(QStringLiteral(QUOREL_SOURCE_DIR "/i18n/") + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (xml.readNext() != QXmlStreamReader::EndDocument && !xml.hasError()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"message")
            messages << Message{context, {}, {}, {}};
        else if (xml.name() == u"source" && !messages.isEmpty())
            messages.last().source = xml.readElementText();
        else if (xml.name() == u"translation" && !messages.isEmpty()) {
            messages.last().state = xml.attributes().value("type").toString();
            messages.last().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

// What reads the same in both languages: names, keys, units, numbers and the schedules (no word).
bool sameInBoth(const QString &text)
{
    static const QSet<QString> names{"Quorel",     "Quorel - Admin", "Quorel Admin", "Alias",
                                     "Alt+Left",   "Alt+Right",      "Alt+Up",       "Didot (DD)",
                                     "Cicero (CC)", QString::fromUtf8("Pica (P\u0338)")};
    return names.contains(text) || !text.contains(QRegularExpression("[a-z]{3}"));
}

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

// The texts among `texts` that show the English of a message the catalogues translate, its
// markers (%1 ...) standing for any argument.
QStringList englishAmong(const QStringList &texts)
{
    static const QList<QRegularExpression> translated = [] {
        QList<QRegularExpression> sources;
        for (const QString &name : catalogues)
            for (const Message &m : readCatalogue(name)) {
                if (m.translation == m.source)
                    continue;
                QString pattern = QRegularExpression::escape(m.source);
                pattern.replace(QRegularExpression("\\\\%[1-9]"), "(.*)");
                sources << QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                              QRegularExpression::DotMatchesEverythingOption);
            }
        return sources;
    }();
    QStringList found;
    for (const QString &text : texts)
        for (const QRegularExpression &source : translated)
            if (!text.isEmpty() && source.match(text).hasMatch()) {
                found << text;
                break;
            }
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
    if (call.kind == QLatin1String("getSaveFileName"))
        return "file " + call.caption;
    return (call.kind == QLatin1String("message") ? "" : "ask ") + call.caption + ": " + call.text
           + (call.buttons.isEmpty() ? "" : " [" + call.buttons.join('|') + "]");
}

} // namespace

class AfrikaansTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    QList<ZrTranslator *> translators;
    QPrinter printer; // the print dialog's

    // Both catalogues, from the folder the build lays out as an installation.
    bool speakAfrikaans()
    {
        QDir installDir(QCoreApplication::applicationDirPath());
        while (!installDir.exists("i18n/Quorel/admin.af.qm") && installDir.cdUp()) {}
        for (const QString name : {"qrlib", "admin"}) {
            translators << new ZrTranslator(qApp);
            if (!translators.last()->load(installDir.filePath("i18n/Quorel/" + name + ".af.qm")))
                return false;
            QCoreApplication::installTranslator(translators.last());
        }
        return true;
    }

private slots:
    void init()
    {
        EngineSuite::init();
        if (translators.isEmpty())
            QVERIFY2(speakAfrikaans(), "the compiled catalogues are not where start-up looks for them");
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
        const auto edge = [](const QString &text) {
            const int start = int(text.size() - QString(text).remove(QRegularExpression("^\\s+")).size());
            const int end = int(text.size() - QString(text).remove(QRegularExpression("\\s+$")).size());
            return QString("%1 %2 %3").arg(text.left(start), text.right(end)).arg(text.count('\n'));
        };
        QStringList faults;
        for (const Message &m : messages) {
            const QString &s = m.source, &t = m.translation;
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

    // Each tab, with the tab bar and the window's own buttons, and each dialog, Qt's own as the
    // program uses them: nothing in English, no key marked twice, no list heading cut short. The
    // permission descriptions are the stored words the other programs look for.
    void windowReadsAfrikaans_data()
    {
        QTest::addColumn<Make>("make");
        const QStringList tabs{"practice", "products", "permissions", "reports", "breeds", "suppliers", "procedures"};
        for (int i = 0; i < tabs.size(); ++i)
            QTest::addRow("%s tab", qPrintable(tabs.at(i)))
                << Make([i](Admin *a) -> QWidget * { return a->findChild<QTabWidget *>()->widget(i); });
        QTest::newRow("report viewer") << Make([](Admin *a) -> QWidget * { return a->reportViewer(); });
        QTest::newRow("chart") << Make([](Admin *a) -> QWidget * { return new Plot(a); });
        QTest::newRow("note editor") << Make([](Admin *a) -> QWidget * { return new NoteEd(a); });
        QTest::newRow("login") << Make([](Admin *a) -> QWidget * { return new LoginDialog(a); });
        QTest::newRow("input dialog") << Make([](Admin *a) -> QWidget * {
            auto *input = new QInputDialog(a);
            input->setComboBoxItems({"x"});
            return input;
        });
        QTest::newRow("file dialog, as Export asks") << Make([](Admin *a) -> QWidget * {
            auto *files = new QFileDialog(a, QString(), QString(), "*.csv");
            files->setOption(QFileDialog::DontUseNativeDialog);
            files->setAcceptMode(QFileDialog::AcceptSave);
            return files;
        });
        QTest::newRow("print dialog") << Make([this](Admin *a) -> QWidget * { return new QPrintDialog(&printer, a); });
    }
    void windowReadsAfrikaans()
    {
        QFETCH(Make, make);
        Admin *admin = TestSupport::makeAdmin();
        QWidget *shown = make(admin);
        if (shown->isWindow())
            shown->show(); // some dialogs make their buttons only when shown
        QStringList texts = shownTexts(shown, {"desc_combo"}), keys = buttonTexts(shown);
        QVERIFY(texts.size() > 2 && !keys.isEmpty());
        if (!shown->isWindow()) {
            auto *tabs = admin->findChild<QTabWidget *>();
            texts << tabs->tabText(tabs->indexOf(shown)) << tabs->tabToolTip(tabs->indexOf(shown));
            for (int i = 0; i < tabs->count(); ++i)
                keys << tabs->tabText(i);
            const auto beside = admin->centralWidget()->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
            for (QAbstractButton *button : beside) { // the window's own, beside the tabs
                texts << shownTexts(button);
                keys << button->text();
            }
        }
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
        QVERIFY2(clashingMnemonics(keys).isEmpty(), qPrintable(clashingMnemonics(keys).join(" | ")));
        QStringList cut;
        for (QTreeWidget *list : shown->findChildren<QTreeWidget *>())
            for (int c = 0; c < list->columnCount(); ++c)
                if (!list->headerItem()->text(c).isEmpty() && !list->isColumnHidden(c)
                    && list->columnWidth(c) < list->header()->sectionSizeHint(c))
                    cut << list->headerItem()->text(c);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(" | ")));
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
        const QString today = QDate::currentDate().toString("yyyy-MM-dd");
        QVERIFY(TestSupport::exec("INSERT INTO Owner (AccountNumber, Title, Initials, Surname, Created, BadDebt) "
                                  "VALUES (7, 'Mnr', 'J', 'Zbyrxn', '" + today + "', 'Y')")
                && TestSupport::exec("INSERT INTO Journal (AccountNumber, MyNumber, MyDate, Description, Amount, Rounding) "
                                     "VALUES (7, 1, '" + today + "', 'I', 150, 0)"));
        Admin *admin = TestSupport::makeAdmin();
        QStringList status;
        connect(admin->statusBar(), &QStatusBar::messageChanged, [&status](const QString &text) { status << text; });
        ReportPractice::choose(admin, report);
        admin->processQuery();
        QStringList texts = shownTexts(admin->ui.report_list) + status;
        texts << admin->ui.type_combo->currentText();
        // Stock Values names each product table by its stored word: data, like the tables' own rows.
        for (int r = 0; r < admin->ui.report_list->topLevelItemCount(); ++r)
            for (int c = report == 17 ? 1 : 0; c < 2; ++c)
                texts << admin->ui.report_list->topLevelItem(r)->text(c);
        const QStringList categories = Utility::categories();
        for (const ScriptedPrompter::Call &call : qAsConst(TestSupport::prompter()->calls)) {
            texts << call.caption << call.text;
            if (call.kind != QLatin1String("getItem") || call.buttons.isEmpty()
                || !std::all_of(call.buttons.cbegin(), call.buttons.cend(),
                                [&](const QString &item) { return categories.contains(item); }))
                texts << call.buttons; // table names must stay as they are stored
        }
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
    }

    // The messages a person meets on each tab, as the prompter is asked them: declined
    // confirmations, missing selections, cancelled questions and a report's refusal, each in
    // Afrikaans with its arguments in place and no key marked twice.
    void messagesReadAfrikaans_data()
    {
        QTest::addColumn<Play>("play");
        QTest::addColumn<QStringList>("heard");
        const QString no = "Handeling gekanselleer", yesNo = " [&Ja|&Nee]";

        QTest::newRow("practice: update declined") << Play([](Admin *a) { a->PushButton4_clicked(); })
            << QStringList{"Quorel Admin: Bevestig dat u die stelselinligting soos getoon wil opdateer?" + yesNo,
                           "Opdateer stelselinligting: " + no};
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
        QTest::newRow("permissions: new user cancelled") << Play([](Admin *a) { a->newUser(); })
            << QStringList{"ask Nuwe gebruiker: Tik die nuwe gebruiker se naam", "Nuwe gebruiker: " + no};
        QTest::newRow("reports: export cancelled") << Play([](Admin *a) {
            a->ui.report_list->setCurrentItem(new ZrListItem(a->ui.report_list));
            a->ui.report_list->currentItem()->setSelected(true);
            a->exportQuery();
        }) << QStringList{"file Voer resultate uit", "Voer resultate uit: " + no};
        QTest::newRow("reports: chart of a list") << Play([](Admin *a) {
            ReportPractice::choose(a, 16);
            a->graphQuery();
        }) << QStringList{"Grafiek van resultate: Dit maak nie sin om 'n grafiek van hierdie verslag te teken nie"};
        QTest::newRow("breeds: delete declined") << Play([](Admin *a) {
            TestSupport::exec("INSERT INTO breeds (Description, Description_A) VALUES ('Boerboel', 'Boerboel')");
            a->breedsModel()->select();
            a->findChild<QTableView *>("table")->selectRow(0);
            QMetaObject::invokeMethod(a, "deleteBreed");
        }) << QStringList{"Skrap ras: Bevestig dat u die ras 'Boerboel' wil skrap" + yesNo, "Skrap ras: " + no};
        QTest::newRow("suppliers: delete declined") << Play([](Admin *a) {
            TestSupport::exec("INSERT INTO Supply (Company) VALUES ('Afrivet')");
            a->refreshSuppliers();
            a->ui.supply_list->setCurrentItem(a->ui.supply_list->topLevelItem(0));
            a->deleteSupplier();
        }) << QStringList{"Skrap verskaffer: Bevestig dat u Afrivet\nuit die lys verskaffers wil skrap." + yesNo,
                          "Skrap verskaffer: " + no};
        QTest::newRow("procedures: update without an item") << Play([](Admin *a) { a->updateAutoProcContents(); })
            << QStringList{"Opdateer die inhoud: U moet 'n item van die prosedure merk om dit op te dateer"};
    }
    void messagesReadAfrikaans()
    {
        QFETCH(Play, play);
        Admin *admin = TestSupport::makeAdmin();
        TestSupport::prompter()->calls.clear();
        play(admin);
        QStringList transcript, texts;
        for (const ScriptedPrompter::Call &call : qAsConst(TestSupport::prompter()->calls)) {
            transcript << said(call);
            texts << call.caption << call.text << call.buttons;
            QVERIFY2(clashingMnemonics(call.buttons).isEmpty(), qPrintable(clashingMnemonics(call.buttons).join(" | ")));
        }
        QVERIFY2(englishAmong(texts).isEmpty(), qPrintable(englishAmong(texts).join(" | ")));
        QTEST(transcript, "heard");
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
            qDeleteAll(std::exchange(translators, {}));
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
