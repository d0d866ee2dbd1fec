#include "commanderror.h"
#include "configlistview.h"
#include "configwindow.h"
#include "scratchfolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;
using libconfig::SettingColumn;
using libconfig::ValueColumn;

namespace {

constexpr char example[] = R"(palvestrin: 
{
    logger: 
    {
        level = "INFO";
        typ = "APPEND";
    };

    receiptdoc: 
    {
        paperWidth = "wide";
    };

};

)";

/// Presses `button` in the next message box whose text begins with `to`, and keeps what it said.
class Answer
{
public:
    explicit Answer(QMessageBox::StandardButton with, const QString &to = {}) : button(with), beginning(to)
    {
        timer.callOnTimeout([this] { answer(); });
        timer.start(10);
    }
    QString question() const { return text; }

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->button(button) || !box->text().startsWith(beginning))
            return;
        text = box->text();
        timer.stop();
        box->button(button)->click();
    }

    QMessageBox::StandardButton button;
    QString beginning;
    QString text;
    QTimer timer;
};

QTreeWidgetItem *rowOf(const ConfigWindow &window, const QString &key)
{
    QTreeWidgetItem *row = window.tree()->invisibleRootItem();
    for (const QString &name : key.split(u'.')) {
        QTreeWidgetItem *next = nullptr;
        for (int i = 0; i < row->childCount() && !next; ++i) {
            if (row->child(i)->text(SettingColumn) == name)
                next = row->child(i);
        }
        if (!next)
            return nullptr;
        row = next;
    }
    return row;
}

/// Types `text` into the value of `key` as a person does who came there by keyboard, and stays in the cell.
/// Null when the cell opens no editor.
QLineEdit *startTyping(const ConfigWindow &window, const QString &key, const QString &text)
{
    QTreeWidget *view = window.tree();
    view->setCurrentItem(rowOf(window, key));
    QTest::keyClick(view, Qt::Key_Return);
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    if (!editor)
        return nullptr;
    editor->selectAll();
    for (const QChar c : text) { // QTest::keyClicks knows ASCII only
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(editor, &press);
    }
    return editor;
}

/// The same, and leaves the cell with Return.
bool typeValue(const ConfigWindow &window, const QString &key, const QString &text)
{
    QLineEdit *editor = startTyping(window, key, text);
    if (!editor)
        return false;
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents(); // the view takes the text over when the key has been handled
    return true;
}

void showActive(ConfigWindow &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class ConfigWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensEditsSaves()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QVERIFY(!window.isWindowModified());
        QVERIFY(typeValue(window, u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s));
        QVERIFY(window.isWindowModified());
        QCOMPARE(folder.read(u"c.conf"_s), example);
        QTest::keySequence(&window, QKeySequence::Save);
        QVERIFY(!window.isWindowModified());
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("wide", "42"));
        QCOMPARE(folder.read(u"c.conf.bak"_s), example);
    }

    void savingTakesWhatIsBeingTyped()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QLineEdit *editor = startTyping(window, u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s);
        QVERIFY(editor);
        QTest::keySequence(editor, QKeySequence::Save);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("wide", "42"));
    }

    void closingAsksAboutWhatIsBeingTyped()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QVERIFY(startTyping(window, u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s));
        const Answer save(QMessageBox::Save);
        QVERIFY(window.close());
        QCOMPARE(save.question(), u"Save the changes to c.conf?"_s);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("wide", "42"));
    }

    void revertingAsksAboutWhatIsBeingTyped()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QLineEdit *editor = startTyping(window, u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s);
        QVERIFY(editor);
        const Answer no(QMessageBox::No);
        QTest::keyClick(editor, Qt::Key_F5);
        QCOMPARE(no.question(), u"Drop all changes and read the file again?"_s);
        QCOMPARE(rowOf(window, u"palvestrin.receiptdoc.paperWidth"_s)->text(ValueColumn), u"42"_s);
    }

    void marksWhatNobodyReadsAndWhatMakesNoSense()
    {
        const ScratchFolder folder;
        const ConfigWindow window(folder.write(u"c.conf"_s, QByteArray(example) + "old: { level = INFO; };"));
        const auto mark = [&window](const QString &key) {
            return rowOf(window, key)->toolTip(SettingColumn);
        };
        QCOMPARE(mark(u"palvestrin.logger.level"_s), QString());
        QVERIFY(rowOf(window, u"palvestrin.logger.level"_s)->icon(SettingColumn).isNull());
        QCOMPARE(mark(u"palvestrin.logger.typ"_s),
                 u"no program reads this; did you mean palvestrin.logger.type?"_s);
        QVERIFY(!rowOf(window, u"palvestrin.logger.typ"_s)->icon(SettingColumn).isNull());
        QCOMPARE(mark(u"palvestrin.receiptdoc.paperWidth"_s),
                 u"\"wide\" counts as 32; give a whole number from 0 to 999"_s);
        QCOMPARE(mark(u"old"_s), u"never found: only the first top-level block is searched"_s);
        QCOMPARE(mark(u"old.level"_s), u"never found: only the first top-level block is searched"_s);
    }

    void aMarkGoesWhenTheValueIsMended()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QVERIFY(typeValue(window, u"palvestrin.receiptdoc.paperWidth"_s, u"42"_s));
        QCOMPARE(rowOf(window, u"palvestrin.receiptdoc.paperWidth"_s)->toolTip(SettingColumn), QString());
    }

    void nobodyCanTypeWhatNoFileHolds()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QVERIFY(typeValue(window, u"palvestrin.logger.level"_s, u"a;\"b\u20ac\u00e8"_s));
        QCOMPARE(rowOf(window, u"palvestrin.logger.level"_s)->text(ValueColumn), u"ab\u00e8"_s);
    }

    void searches()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        QTest::keySequence(&window, QKeySequence::Find);
        auto *search = window.findChild<QLineEdit *>();
        QTest::keyClicks(QApplication::focusWidget(), u"WIDTH"_s);
        QCOMPARE(search->text(), u"WIDTH"_s);
        QVERIFY(!rowOf(window, u"palvestrin.receiptdoc.paperWidth"_s)->isHidden());
        QVERIFY(!rowOf(window, u"palvestrin.receiptdoc"_s)->isHidden());
        QVERIFY(rowOf(window, u"palvestrin.logger"_s)->isHidden());
        search->setText(u"info"_s); // values too
        QVERIFY(!rowOf(window, u"palvestrin.logger.level"_s)->isHidden());
        QVERIFY(rowOf(window, u"palvestrin.logger.typ"_s)->isHidden());
        search->clear();
        QVERIFY(!rowOf(window, u"palvestrin.logger.typ"_s)->isHidden());
        QVERIFY(!window.isWindowModified());
    }

    void removeDoesNotTouchWhatTheSearchHides()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        auto *search = window.findChild<QLineEdit *>();
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.logger.typ"_s));
        search->setText(u"width"_s); // the blocks around the match are shown, and are none
        QCOMPARE(window.tree()->currentItem(), rowOf(window, u"palvestrin.receiptdoc.paperWidth"_s));
        search->setText(u"nothing has this"_s);
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.logger.typ"_s));
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        QVERIFY(!window.isWindowModified());
        QVERIFY(rowOf(window, u"palvestrin.logger.typ"_s));
        search->setText(u"level"_s);
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        QTest::keyClick(window.tree(), Qt::Key_Delete); // nothing is left that it could mean
        QVERIFY(!rowOf(window, u"palvestrin.logger.level"_s));
        QVERIFY(rowOf(window, u"palvestrin.logger.typ"_s));
        QVERIFY(rowOf(window, u"palvestrin.receiptdoc.paperWidth"_s));
    }

    void addsAndRemoves()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        window.addSetting(u"palvestrin.db.dbname"_s)->setText(ValueColumn, u"shop"_s);
        window.addBlock(rowOf(window, u"palvestrin"_s), u"mine"_s);
        window.addSetting(u"palvestrin.mine.k"_s)->setText(ValueColumn, u"v"_s);
        QCOMPARE(window.addSetting(u"palvestrin.db.dbname"_s)->text(ValueColumn),
                 u"shop"_s); // it is there already
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.logger.typ"_s));
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.receiptdoc"_s));
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        QVERIFY(window.save());
        QCOMPARE(
            folder.read(u"c.conf"_s),
            "palvestrin: \n{\n    logger: \n    {\n        level = \"INFO\";\n    };\n\n    db: \n    {\n"
            "        dbname = \"shop\";\n    };\n\n    mine: \n    {\n        k = \"v\";\n    };\n\n};\n\n");
    }

    void addsASettingByKeyboard()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.logger.level"_s));
        QString offered;
        QTimer::singleShot(0, this, [&offered] {
            auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
            offered = dialog->textValue();
            dialog->setTextValue(u"palvestrin.logger.basedir"_s);
            dialog->accept();
        });
        QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(offered, u"palvestrin.logger.basedir"_s); // the first of the block at hand that is not set
        showActive(window);
        auto *editor = window.tree()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, u"/var/log"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(rowOf(window, u"palvestrin.logger.basedir"_s)->text(ValueColumn), u"/var/log"_s);
    }

    void aNewFile()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.path(u"new/c.conf"_s));
        window.addSetting(u"palvestrin.db.dbname"_s)->setText(ValueColumn, u"shop"_s);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"new/c.conf"_s),
                 "palvestrin: \n{\n    db: \n    {\n        dbname = \"shop\";\n    };\n\n};\n\n");
    }

    void reverts()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        {
            const Answer no(QMessageBox::No);
            QTest::keyClick(&window, Qt::Key_F5);
            QCOMPARE(no.question(), u"Drop all changes and read the file again?"_s);
        }
        QCOMPARE(rowOf(window, u"palvestrin.logger.level"_s)->text(ValueColumn), u"FATAL"_s);
        showActive(window); // the question took the keyboard
        {
            const Answer yes(QMessageBox::Yes);
            QTest::keyClick(&window, Qt::Key_F5);
            QCOMPARE(yes.question(), u"Drop all changes and read the file again?"_s);
        }
        QCOMPARE(rowOf(window, u"palvestrin.logger.level"_s)->text(ValueColumn), u"INFO"_s);
        QVERIFY(!window.isWindowModified());
    }

    void closingWithUnsavedChangesAsks()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.close());
            QCOMPARE(cancel.question(), u"Save the changes to c.conf?"_s);
        }
        {
            const Answer discard(QMessageBox::Discard);
            QVERIFY(window.close());
        }
        QCOMPARE(folder.read(u"c.conf"_s), example);
        window.show();
        {
            const Answer save(QMessageBox::Save);
            QVERIFY(window.close());
        }
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "FATAL"));
    }

    void savingThatLosesSomethingAsks()
    {
        const ScratchFolder folder;
        const QByteArray content = QByteArray(example) + "# the end\n";
        ConfigWindow window(folder.write(u"c.conf"_s, content));
        window.show();
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.save());
            QCOMPARE(cancel.question(),
                     u"Saving loses what the details name. A backup keeps the file as it was."_s);
        }
        QCOMPARE(folder.read(u"c.conf"_s), content);
        {
            const Answer save(QMessageBox::Save);
            QVERIFY(window.save());
        }
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "FATAL"));
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), content);
    }

    void aSecondBlockMadeHereIsNotDroppedUnasked()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        window.addSetting(u"second.k"_s)->setText(ValueColumn, u"v"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.save());
            QCOMPARE(cancel.question(),
                     u"Saving loses what the details name. A backup keeps the file as it was."_s);
        }
        QCOMPARE(folder.read(u"c.conf"_s), example);
        QCOMPARE(rowOf(window, u"second.k"_s)->text(ValueColumn), u"v"_s);
        const Answer save(QMessageBox::Save);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "FATAL"));
        QVERIFY(!rowOf(window, u"second"_s)); // what is not in the file is not shown either
    }

    void savingKeepsTheCurrentRowAndTheSearch()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        showActive(window);
        window.findChild<QLineEdit *>()->setText(u"logger"_s);
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin.logger.level"_s));
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        QVERIFY(window.save());
        QCOMPARE(window.tree()->currentItem(), rowOf(window, u"palvestrin.logger.level"_s));
        QVERIFY(rowOf(window, u"palvestrin.receiptdoc"_s)->isHidden());
    }

    void savingOverSomebodyElsesChangeAsks()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        window.show();
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        const QByteArray theirs = QByteArray(example).replace("wide", "40");
        folder.write(u"c.conf"_s, theirs);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.save());
        }
        QCOMPARE(folder.read(u"c.conf"_s), theirs);
        {
            const Answer save(QMessageBox::Save);
            QVERIFY(window.save());
        }
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "FATAL"));
        QCOMPARE(folder.read(u"c.conf.bak"_s), theirs);
    }

    void somebodyElsesChangeIsAskedAboutUntilItIsSavedOver()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.conf"_s, example));
        window.show();
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        const QByteArray theirs = QByteArray(example) + "# theirs\n";
        folder.write(u"c.conf"_s, theirs);
        {
            const Answer overwrite(QMessageBox::Save, u"Another program"_s);
            const Answer keepRemark(QMessageBox::Cancel, u"Saving loses"_s);
            QVERIFY(!window.save());
            QVERIFY(!overwrite.question().isEmpty());
            QVERIFY(!keepRemark.question().isEmpty());
        }
        const Answer cancel(QMessageBox::Cancel);
        QVERIFY(!window.save());
        QVERIFY(cancel.question().startsWith(u"Another program has changed the file"_s));
        QCOMPARE(folder.read(u"c.conf"_s), theirs);
    }

    void removingEverythingKeepsTheXmlForm()
    {
        const ScratchFolder folder;
        ConfigWindow window(folder.write(u"c.xml"_s, "<palvestrin><db dbname='shop'/></palvestrin>"));
        showActive(window);
        window.tree()->setCurrentItem(rowOf(window, u"palvestrin"_s));
        QTest::keyClick(window.tree(), Qt::Key_Delete);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.xml"_s), "\n<palvestrin>\n</palvestrin>\n");
    }

    void aLockedFileIsNotSavedAndNothingIsLost()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        ConfigWindow window(path);
        window.show();
        rowOf(window, u"palvestrin.logger.level"_s)->setText(ValueColumn, u"FATAL"_s);
        {
            const FileReplacement another(path);
            const Answer ok(QMessageBox::Ok);
            QVERIFY(!window.save());
            QCOMPARE(ok.question(),
                     path + u": error: another program is writing this file; try again when it is done"_s);
        }
        QVERIFY(window.isWindowModified());
        QVERIFY(window.save());
    }

    void aFileThatCannotBeReadOpensNoWindow()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.xml"_s, "<p>");
        try {
            const ConfigWindow window(path);
            QFAIL("it opened");
        } catch (const CommandError &error) {
            QCOMPARE(error.code(), ExitCode::Unreadable);
        }
    }
};

QTEST_MAIN(ConfigWindowTest)
#include "configwindow_test.moc"
