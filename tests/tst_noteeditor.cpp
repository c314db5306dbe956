// The remarks of a product, edited in NoteEd: what the editor shows, what accepting and
// cancelling store, the remarks button's icon, and the editor's help.
#include "admin.h"
#include "noteed.h"
#include "productfixtures.h"
#include "remarksicons.h"
#include "testsupport.h"

#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

using namespace ProductFixtures;
using TestSupport::ScriptedPrompter;

namespace {
QImage iconImage(const QIcon &icon)
{
    return icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32);
}

Admin *showProductWithRemarks(const QString &remarks)
{
    Product p = product("12", "Ear drops");
    p.remarks = remarks;
    if (!insertProduct("Medication", p) || !insertProduct("Medication", product("13", "Eye drops")))
        return nullptr;
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Medication");
    return selectRow(admin, "12") ? admin : nullptr;
}

QString storedRemarks(const QString &code = "12")
{
    return TestSupport::value("SELECT Remarks FROM Medication WHERE Code='" + code + "'").toString();
}

// Runs the editor; `edit` gets the dialog and what it showed, and returns the dialog's result.
QString runEditor(Admin *admin, std::function<int(NoteEd *)> edit)
{
    QString shown;
    TestSupport::prompter()->answerDialog([&](QDialog *dialog) {
        auto *editor = qobject_cast<NoteEd *>(dialog);
        if (!editor)
            return int(QDialog::Rejected);
        shown = editor->textEdit1->toPlainText();
        return edit(editor);
    });
    admin->noteEditor();
    return shown;
}

std::function<int(NoteEd *)> typeAndAccept(const QString &text)
{
    return [text](NoteEd *editor) {
        editor->textEdit1->setPlainText(text);
        return int(QDialog::Accepted);
    };
}
} // namespace

class NoteEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestSupport::initEngine()); }
    void init() { QVERIFY(TestSupport::freshSchema()); }
    void cleanup() { TestSupport::cleanup(); }
    void cleanupTestCase() { TestSupport::finish(); }

    void remarksRoundTrip_data();
    void remarksRoundTrip();
    void cancelLeavesRemarksAndIcon();
    void emptiedRemarksStoreEmptyTextAndBlankIcon();
    void nothingWithoutACurrentRow();
    void editorFormAndHelp();
};

void NoteEditorTest::remarksRoundTrip_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("typed");
    QTest::newRow("accents") << QString::fromUtf8("Réduire la dose à ½ ml, ne pas dépasser 3 jours")
                             << QString::fromUtf8("Ölbad für Hündinnen – çava");
    QTest::newRow("parameters over lines") << "Shake well\nTHE HEART RATE WAS ??HEART RATE?? "
                                           << "DISPENSED ??QUANTITY (ML) OF XXX DISPENSED??5?? ML XXX\nline 2";
    QTest::newRow("quotes and backslashes") << "Don't \"shake\" C:\\vet\\" << "It's 'a' \\' test\\\\ \\n";
}

// What is stored is shown as it was written, and what is typed is stored exactly, with the
// remarks-present icon; the other product keeps its remarks.
void NoteEditorTest::remarksRoundTrip()
{
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    Admin *admin = showProductWithRemarks(stored);
    QVERIFY(admin);
    QCOMPARE(runEditor(admin, typeAndAccept(typed)), stored);
    QCOMPARE(TestSupport::prompter()->last().dialogName, QString("NoteEd"));
    QCOMPARE(storedRemarks(), typed);
    QCOMPARE(storedRemarks("13"), QString());
    QCOMPARE(iconImage(admin->ui.pushButton30->icon()), iconImage(remarksIcon(RemarksIcon::Present)));
    QCOMPARE(runEditor(admin, [](NoteEd *) { return int(QDialog::Rejected); }), typed);
}

void NoteEditorTest::cancelLeavesRemarksAndIcon()
{
    const QString stored = QString::fromUtf8("Garder au frais – élevé");
    Admin *admin = showProductWithRemarks(stored);
    QVERIFY(admin);
    const QImage before = iconImage(admin->ui.pushButton30->icon());
    QCOMPARE(before, iconImage(remarksIcon(RemarksIcon::Present)));
    runEditor(admin, [](NoteEd *editor) {
        editor->textEdit1->clear();
        return int(QDialog::Rejected);
    });
    QCOMPARE(storedRemarks(), stored);
    QCOMPARE(iconImage(admin->ui.pushButton30->icon()), before);
}

void NoteEditorTest::emptiedRemarksStoreEmptyTextAndBlankIcon()
{
    Admin *admin = showProductWithRemarks("Give with food");
    QVERIFY(admin);
    runEditor(admin, typeAndAccept(QString()));
    QCOMPARE(TestSupport::value("SELECT COUNT(*) FROM Medication WHERE Code='12' AND Remarks=''").toInt(), 1);
    QCOMPARE(iconImage(admin->ui.pushButton30->icon()), iconImage(remarksIcon(RemarksIcon::Blank)));
}

void NoteEditorTest::nothingWithoutACurrentRow()
{
    QVERIFY(insertProduct("Medication", product("12", "Ear drops")));
    Admin *admin = TestSupport::makeAdmin();
    showCategory(admin, "Medication");
    admin->ui.list->setCurrentItem(nullptr);
    const int before = TestSupport::prompter()->calls.size();
    admin->noteEditor();
    QCOMPARE(TestSupport::prompter()->calls.size(), before);
}

void NoteEditorTest::editorFormAndHelp()
{
    NoteEd editor;
    QCOMPARE(editor.objectName(), QString("NoteEd"));
    QCOMPARE(editor.windowTitle(), QString("Note Editor"));
    QVERIFY(editor.findChild<QLayout *>("NoteEdLayout"));
    QVERIFY(editor.findChild<QLayout *>("Layout1"));
    QCOMPARE(editor.buttonHelp->text(), QString("&Help"));
    QCOMPARE(editor.buttonOk->text(), QString("&OK"));
    QCOMPARE(editor.buttonCancel->text(), QString("&Cancel"));
    QVERIFY(!editor.textEdit1->acceptRichText());

    ScriptedPrompter *prompter = TestSupport::prompter();
    QTest::mouseClick(editor.buttonHelp, Qt::LeftButton);
    QCOMPARE(prompter->calls.size(), 1);
    QCOMPARE(prompter->last().caption, QString("Help"));
    QVERIFY(prompter->last().text.startsWith("<h3>Simple Remarks</h3>"));
    QVERIFY(prompter->last().text.endsWith(
        "<em>Warning, there may not be any spaces after the opening <b>?\?</b>'s</em>"));
    QVERIFY(prompter->last().text.contains("DISPENSED ??QUANTITY (ML) OF XXX DISPENSED??5?? ML XXX"));

    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QTest::keyClick(&editor, Qt::Key_F1);
    QCOMPARE(prompter->calls.size(), 2);

    QTest::mouseClick(editor.buttonOk, Qt::LeftButton);
    QCOMPARE(editor.result(), int(QDialog::Accepted));
}

QTEST_MAIN(NoteEditorTest)
#include "tst_noteeditor.moc"
