// The page with the whole tree of the file.

#include "allkeys.h"
#include "configlistview.h"
#include "windowfixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::Literals::StringLiterals;
using libconfig::ValueColumn;

namespace {

QTreeWidgetItem *rowOf(const AllKeys &page, const QString &key)
{
    QTreeWidgetItemIterator row(page.tree());
    while (*row && keyOfRow(*row) != key)
        ++row;
    return *row;
}

/// Types `text` into the value of `key` by keyboard, and stays in the cell.
QLineEdit *typeValue(const AllKeys &page, const QString &key, const QString &text)
{
    page.tree()->setCurrentItem(rowOf(page, key));
    QTest::keyClick(page.tree(), Qt::Key_Return);
    auto *editor = page.tree()->viewport()->findChild<QLineEdit *>();
    if (editor)
        typeInto(editor, text);
    return editor;
}

void press(const AllKeys &page, const QString &text)
{
    for (QAbstractButton *button : page.findChildren<QAbstractButton *>()) {
        if (button->text() == text)
            button->click();
    }
}

/// Runs what asks for a text, answers with `text`, and returns what was offered.
QString answerInput(const QString &text, const std::function<void()> &ask)
{
    QString offered;
    QTimer::singleShot(0, qApp, [&] {
        if (auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget())) {
            offered = dialog->textValue();
            dialog->setTextValue(text);
            dialog->accept();
        }
    });
    ask();
    return offered;
}

/// What the window tells of the current setting.
QString helpOf(const SettingsWindow &window)
{
    const auto *help = window.findChild<QLabel *>(u"help"_s);
    return help ? help->text() : QString();
}

} // namespace

class AllKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteAndSaveAtTheStartEmptyNothing()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        QVERIFY(!libconfig::isBlockRow(page.tree()->currentItem())); // never the root
        page.tree()->setFocus();
        QTest::keyClick(page.tree(), Qt::Key_Delete);
        QTest::keySequence(&window, QKeySequence::Save);
        QVERIFY(folder.read(u"c.conf"_s).contains("paperWidth = \"wide\""));
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), exampleConfiguration);
    }

    void aBlockGoesOnlyWhenTheUserAgrees()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.logger"_s));
        {
            const Answer cancel(QMessageBox::Cancel);
            page.removeCurrent();
            QCOMPARE(cancel.question(),
                     u"Remove the block \u201clogger\u201d with everything in it? You can undo this."_s);
        }
        QVERIFY(!window.settings().isModified());
        const Answer yes(QMessageBox::Yes);
        page.removeCurrent();
        QVERIFY(!rowOf(page, u"palvestrin.logger.level"_s));
        window.settings().undoStack().undo();
        QVERIFY(rowOf(page, u"palvestrin.logger.level"_s));
        QCOMPARE(window.settings().text(), exampleConfiguration);
    }

    void aBlockTellsWhatItHolds()
    {
        const ScratchFolder folder;
        SettingsWindow window(
            folder.write(u"c.conf"_s, "palvestrin: { doc: { x = 1; }; mine: { y = 2; }; };"));
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin"_s));
        QCOMPARE(helpOf(window), u"Holds the settings of all documents and programs."_s);
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.doc"_s));
        QCOMPARE(helpOf(window), u"The settings of: Kitchen ticket"_s);
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.mine"_s));
        QCOMPARE(helpOf(window), u"No program reads this."_s);
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.doc.x"_s));
        QCOMPARE(helpOf(window), u"No program reads this."_s);
    }

    void printDateYesIsRefusedAsOnTheCommandLine()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        QLineEdit *editor = typeValue(page, u"palvestrin.receiptdoc.printDate"_s, u"yes"_s);
        QVERIFY(editor);
        QCOMPARE(page.message(), u"\u26a0 Give true or false, in small letters"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(editor->text(), u"yes"_s); // it is still being typed
        QVERIFY(editor->isVisible());
        QCOMPARE(window.settings().value(u"palvestrin.receiptdoc.printDate"_s), u"true"_s);
        typeInto(editor, u"false"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(window.settings().value(u"palvestrin.receiptdoc.printDate"_s), u"false"_s);
        QCOMPARE(page.message(), QString());
    }

    void aSemicolonIsRefusedAndDoesNotVanish()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        const QLineEdit *editor = typeValue(page, u"palvestrin.logger.typ"_s, u"a;\u00e8"_s);
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"a;\u00e8"_s);
        QCOMPARE(page.message(), u"\u26a0 A value cannot hold ';'; leave it out"_s);
    }

    void aKeyThatNobodyReadsIsReached()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.jumpTo(u"palvestrin.logger.typ"_s);
        QCOMPARE(keyOfRow(window.allKeys().tree()->currentItem()), u"palvestrin.logger.typ"_s);
    }

    void savingTakesWhatIsBeingTyped()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        QLineEdit *editor = typeValue(window.allKeys(), u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s);
        QVERIFY(editor);
        QTest::keySequence(editor, QKeySequence::Save);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(exampleConfiguration).replace("wide", "42"));
    }

    void closingAsksAboutWhatIsBeingTyped()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        QVERIFY(typeValue(window.allKeys(), u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s));
        const Answer save(QMessageBox::Save);
        QVERIFY(window.close());
        QCOMPARE(save.question(), u"Save the changes to c.conf?"_s);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(exampleConfiguration).replace("wide", "42"));
    }

    void aSettingIsAddedByKeyboard()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.logger.level"_s));
        QCOMPARE(answerInput(u"palvestrin.logger.basedir"_s, [&] { press(page, u"Add setting\u2026"_s); }),
                 u"palvestrin.logger.basedir"_s); // offered: the first of the block at hand that is not set
        auto *editor = page.tree()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        typeInto(editor, u"/var/log"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(window.settings().value(u"palvestrin.logger.basedir"_s), u"/var/log"_s);
    }

    void settingsAndBlocksAreAddedAndRemoved()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin"_s));
        answerInput(u"mine"_s, [&] { press(page, u"Add block\u2026"_s); });
        answerInput(u"palvestrin.mine.k"_s, [&] { press(page, u"Add setting\u2026"_s); });
        window.settings().set(u"palvestrin.mine.k"_s, u"v"_s);
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.logger.typ"_s));
        press(page, u"Remove"_s);
        const Answer yes(QMessageBox::Yes);
        page.tree()->setCurrentItem(rowOf(page, u"palvestrin.receiptdoc"_s));
        press(page, u"Remove"_s);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s),
                 "palvestrin: \n{\n    logger: \n    {\n        level = \"INFO\";\n    };\n\n"
                 "    mine: \n    {\n        k = \"v\";\n    };\n\n};\n\n");
    }

    void aSecondBlockMadeHereIsNotDroppedUnasked()
    {
        const ScratchFolder folder;
        const QByteArray content = QByteArray("top = \"1\";\n") + exampleConfiguration;
        SettingsWindow window(folder.write(u"c.conf"_s, content));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        page.tree()->setCurrentItem(rowOf(page, u"top"_s)); // which stands outside the blocks
        answerInput(u"second"_s, [&] { press(page, u"Add block\u2026"_s); });
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.save());
            QCOMPARE(cancel.question(),
                     u"Saving loses what the details name. A backup keeps the file as it was."_s);
        }
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QVERIFY(rowOf(page, u"second"_s));
    }

    void aSettingThatNobodyWouldFindIsRefused()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showAllKeys();
        AllKeys &page = window.allKeys();
        answerInput(u"second.k"_s, [&] { press(page, u"Add setting\u2026"_s); });
        QCOMPARE(page.message(),
                 u"\u26a0 It would never be found: the first block of the file is another."_s);
        answerInput(u"k"_s, [&] { press(page, u"Add setting\u2026"_s); });
        QVERIFY2(page.message().startsWith(u"\u26a0 \"k\" is no key"_s), qPrintable(page.message()));
        QVERIFY(!window.settings().isModified());
    }

    void savingKeepsTheCurrentRow()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.jumpTo(u"palvestrin.logger.typ"_s);
        window.settings().set(u"palvestrin.logger.level"_s, u"FATAL"_s);
        QVERIFY(window.save());
        QCOMPARE(keyOfRow(window.allKeys().tree()->currentItem()), u"palvestrin.logger.typ"_s);
    }

    void removingEverythingKeepsTheXmlForm()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.xml"_s, "<palvestrin><db dbname='shop'/></palvestrin>"));
        showReady(window);
        window.showAllKeys();
        window.allKeys().tree()->setCurrentItem(window.allKeys().tree()->topLevelItem(0));
        const Answer yes(QMessageBox::Yes);
        press(window.allKeys(), u"Remove"_s);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.xml"_s), "\n<palvestrin>\n</palvestrin>\n");
    }

    void aChangeElsewhereShowsHere()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        window.settings().set(u"palvestrin.receiptdoc.paperWidth"_s, u"48"_s);
        QCOMPARE(rowOf(window.allKeys(), u"palvestrin.receiptdoc.paperWidth"_s)->text(ValueColumn), u"48"_s);
    }
};

WINDOW_TEST_MAIN(AllKeysTest)
#include "allkeys_test.moc"
