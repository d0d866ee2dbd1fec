// The window as a person uses it: setting, undoing, saving, searching, and other programs at the same file.

#include "icons.h"
#include "mergedialog.h"
#include "messagebar.h"
#include "pagelist.h"
#include "paperpane.h"
#include "resultlist.h"
#include "settingfield.h"
#include "settingsform.h"
#include "troublelabel.h"
#include "windowfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSettings>
#include <QSpinBox>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include <ctime>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

/// Accepts the next merge dialog, with `choose` done before.
void answerMerge(const std::function<void(MergeDialog &)> &choose)
{
    auto *timer = new QTimer(qApp);
    timer->callOnTimeout([timer, choose] {
        auto *dialog = qobject_cast<MergeDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        choose(*dialog);
    });
    timer->start(10);
}

QString troubleOf(SettingField *field)
{
    const auto *trouble = field->findChild<TroubleLabel *>();
    return trouble->isHidden() ? QString() : trouble->text();
}

} // namespace

class SettingsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentsHaveTheirHumanNames()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        QStringList names;
        const auto *list = window.findChild<PageList *>();
        for (int row = 0; row < list->count(); ++row)
            names += list->item(row)->text();
        QCOMPARE(names.join(u'|'),
                 u"Documents|Kitchen ticket|Bill|Receipt|Invoice|Delivery note|Fiscal receipt|Report|"
                 "List of items sold|Application|Language|Log|Database|Programs|Receipt printer|"
                 "File|All keys"_s);
        QCOMPARE(list->currentItem()->text(), u"Kitchen ticket"_s);
    }

    void everyKnownSettingHasAFieldWithItsKeyAndHelp()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.path(u"none.conf"_s));
        for (const knownkeys::Key &key : knownkeys::all()) {
            const SettingField *field = fieldOf(window, key.name);
            QVERIFY2(field, qPrintable(key.name));
            QVERIFY2(settingName(key.name).setting == key.name.section(u'.', -1), qPrintable(key.name));
        }
        QVERIFY(!window.settings().isModified());
    }

    void aSettingIsChangedSeenAndSaved()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QVERIFY(paperText(window).contains("Table:"_L1));
        auto *table = qobject_cast<QCheckBox *>(fieldOf(window, u"palvestrin.doc.printTable"_s)->focus());
        QVERIFY(table->isChecked());
        QTest::mouseClick(table, Qt::LeftButton, {}, {6, table->height() / 2});
        QVERIFY(waitForPaper(window));
        QVERIFY(!paperText(window).contains("Table:"_L1));
        QVERIFY(window.isWindowModified());
        QTest::keySequence(&window, QKeySequence::Save);
        QVERIFY(!window.isWindowModified());
        QCOMPARE(folder.read(u"c.conf"_s),
                 QByteArray(kitchenConfiguration).replace("printTable = \"true\"", "printTable = \"false\""));
        QCOMPARE(folder.read(u"c.conf.bak"_s), kitchenConfiguration);
    }

    void saveDoesNothingWhenNothingHasChanged()
    {
        const ScratchFolder folder;
        const QByteArray content = QByteArray("# mine\n") + kitchenConfiguration; // which saving would lose
        SettingsWindow window(folder.write(u"c.conf"_s, content));
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});
    }

    void whatIsUnsetShowsItsDefault()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, "palvestrin: { doc: { printTable = true; }; };"));
        window.show();
        SettingField *width = fieldOf(window, u"palvestrin.doc.paperWidth"_s);
        QCOMPARE(qobject_cast<QSpinBox *>(width->focus())->text(), u"32 characters"_s);
        const auto *reset = width->findChild<QToolButton *>();
        QVERIFY(reset->isHidden());
        typeInto(width->focus(), u"40"_s);
        QVERIFY(!reset->isHidden());
        QCOMPARE(window.settings().value(u"palvestrin.doc.paperWidth"_s), u"40"_s);
    }

    void resettingTakesTheSettingOut()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        window.show();
        SettingField *width = fieldOf(window, u"palvestrin.doc.paperWidth"_s);
        QTest::mouseClick(width->findChild<QToolButton *>(), Qt::LeftButton);
        QCOMPARE(window.settings().value(u"palvestrin.doc.paperWidth"_s), QString());
        QVERIFY(!window.settings().text().contains("paperWidth"));
    }

    void aPasswordThatCannotBeStoredIsRefusedWithTheReason_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("reason");
        QTest::newRow("semicolon") << u"se;cret"_s << u"A value cannot hold ';'; leave it out"_s;
        QTest::newRow("quote") << u"se\"cret"_s << u"A value cannot hold '\"'; leave it out"_s;
        QTest::newRow("euro") << u"\u20acuro"_s << u"A value cannot hold '\u20ac'; leave it out"_s;
    }
    void aPasswordThatCannotBeStoredIsRefusedWithTheReason()
    {
        QFETCH(QString, typed);
        QFETCH(QString, reason);
        const ScratchFolder folder;
        const QByteArray content = "palvestrin: { db: { password = \"old\"; }; };";
        SettingsWindow window(folder.write(u"c.conf"_s, content));
        showReady(window);
        SettingField *field = fieldOf(window, u"palvestrin.db.password"_s);
        auto *line = qobject_cast<QLineEdit *>(field->focus());
        QCOMPARE(line->echoMode(), QLineEdit::Password);
        typeInto(line, typed);
        QCOMPARE(line->text(), typed); // nothing vanishes
        QCOMPARE(troubleOf(field), u"\u26a0 "_s + reason);
        QVERIFY(line->accessibleDescription().startsWith(reason));
        {
            const Answer ok(QMessageBox::Ok);
            QVERIFY(!window.save());
            QCOMPARE(ok.question(), u"Database: Password cannot be stored as it stands. "_s + reason);
        }
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(window.findChild<QToolButton *>(u"problems"_s)->text(), u"Problems (1)"_s);
        typeInto(line, u"n\u00e8w"_s);
        QCOMPARE(troubleOf(field), QString());
        QVERIFY(window.save());
        QVERIFY(folder.read(u"c.conf"_s).contains("password = \"n\xe8w\";")); // accents stay
    }

    void whatWasRefusedIsStillThereAfterLookingElsewhere()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        typeInto(fieldOf(window, u"palvestrin.db.dbname"_s)->focus(), u"a;b"_s);
        fieldOf(window, u"palvestrin.logger.level"_s);
        SettingField *field = fieldOf(window, u"palvestrin.db.dbname"_s);
        QCOMPARE(qobject_cast<QLineEdit *>(field->focus())->text(), u"a;b"_s);
        const Answer cancel(QMessageBox::Cancel);
        QVERIFY(!window.close());
    }

    void everyStepIsUndoneAndRedone()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        const QByteArray before = window.settings().text();
        typeInto(fieldOf(window, u"palvestrin.doc.paperWidth"_s)->focus(), u"48"_s);
        fieldOf(window, u"palvestrin.doc.printWaiter"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        const QByteArray after = window.settings().text();
        QCOMPARE(window.settings().undoStack().count(), 2); // typing is one step
        QTest::keySequence(&window, QKeySequence::Undo);
        QTest::keySequence(&window, QKeySequence::Undo);
        QCOMPARE(window.settings().text(), before);
        QVERIFY(!window.isWindowModified());
        QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier);
        QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(window.settings().text(), after);
    }

    void undoWorksWhileAFieldHasTheKeyboard()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        const QString width = u"palvestrin.doc.paperWidth"_s;
        const QString database = u"palvestrin.db.dbname"_s;
        QTest::keyClick(fieldOf(window, width)->focus(), Qt::Key_Up);
        QCOMPARE(window.settings().value(width), u"33"_s);
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
        QCOMPARE(window.settings().value(width), u"32"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(window.settings().value(width), u"33"_s);
        typeInto(fieldOf(window, database)->focus(), u"shop"_s);
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
        QCOMPARE(window.settings().value(database), QString());
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
        QCOMPARE(window.settings().value(width), u"32"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.settings().value(width), u"33"_s);
    }

    void undoTakesBackWhatWasTypedAndRefused()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        auto *line = qobject_cast<QLineEdit *>(fieldOf(window, u"palvestrin.db.dbname"_s)->focus());
        typeInto(line, u"a;"_s);
        QTest::keySequence(line, QKeySequence::Undo);
        QCOMPARE(line->text(), QString());
        QCOMPARE(window.settings().firstRefusedKey(), QString());
    }

    void randomEditsUndoneToTheStartGiveTheSameFile()
    {
        const ScratchFolder folder;
        const QByteArray content = QByteArray(exampleConfiguration);
        SettingsWindow window(folder.write(u"c.conf"_s, content));
        SettingsModel &model = window.settings();
        QRandomGenerator random(20261121);
        const QStringList values{QString(), u"true"_s, u"false"_s,    u"7"_s,
                                 u"INFO"_s, u"x;y"_s,  u"caf\u00e9"_s};
        for (int step = 0; step < 300; ++step) {
            const auto &key = knownkeys::all()[random.bounded(quint32(knownkeys::all().size()))];
            if (random.bounded(3) == 0)
                model.endStep();
            if (random.bounded(4) == 0)
                model.undoStack().undo();
            else
                model.set(key.name, values[random.bounded(values.size())]);
        }
        model.forgetRefusals();
        while (model.undoStack().canUndo())
            model.undoStack().undo();
        QCOMPARE(model.text(), content);
        QVERIFY(!model.isModified());
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});
    }

    void aSaveThatTakesKeysOutKeepsANumberedBackupEachTime()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        window.settings().set(u"palvestrin.doc.printTable"_s, QString());
        QVERIFY(window.save());
        const QByteArray second = folder.read(u"c.conf"_s);
        window.settings().set(u"palvestrin.doc.printWaiter"_s, QString());
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), kitchenConfiguration);
        QCOMPARE(folder.read(u"c.conf.bak.2"_s), second);
    }

    void aSaveThatLosesARemarkAsksAndKeepsANumberedBackup()
    {
        const ScratchFolder folder;
        const QByteArray content = QByteArray(kitchenConfiguration) + "# the end\n";
        SettingsWindow window(folder.write(u"c.conf"_s, content));
        window.show();
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.save());
            QCOMPARE(cancel.question(),
                     u"Saving loses what the details name. A backup keeps the file as it was."_s);
        }
        QCOMPARE(folder.read(u"c.conf"_s), content);
        const Answer save(QMessageBox::Save);
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(kitchenConfiguration).replace("32", "48"));
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), content);
    }

    void aReadOnlyFileIsToldAtOnce()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup);
        QFile::setPermissions(folder.path(),
                              QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup);
        const bool isRoot = ::geteuid() == 0;
        if (isRoot)
            QCOMPARE(::seteuid(nobody), 0);
        QString told;
        {
            SettingsWindow window(path);
            told = window.messages().text();
        }
        if (isRoot)
            QCOMPARE(::seteuid(0), 0);
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(told,
                 u"You have no permission to change this file. You can look and try here, but not save."_s);
    }

    void anotherProgramsChangeIsToldAndMergedKeyByKey()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.settings().set(u"palvestrin.doc.printWaiter"_s, u"false"_s);              // mine
        folder.write(u"c.conf"_s, QByteArray(kitchenConfiguration).replace("32", "48")); // theirs
        QTRY_COMPARE(window.messages().text(), u"Another program has changed the file."_s);
        answerMerge([](MergeDialog &dialog) {
            QCOMPARE(dialog.differences()->topLevelItemCount(), 2);
            dialog.accept();
        });
        window.messages().button()->click();
        QCOMPARE(window.settings().value(u"palvestrin.doc.paperWidth"_s), u"48"_s);
        QCOMPARE(window.settings().value(u"palvestrin.doc.printWaiter"_s), u"false"_s);
        QCOMPARE(window.messages().text(), QString());
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(kitchenConfiguration)
                                               .replace("32", "48")
                                               .replace("printWaiter = \"true\"", "printWaiter = \"false\""));
    }

    void reloadingDropsNothingThatUndoCannotBringBack()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.settings().set(u"palvestrin.doc.printWaiter"_s, u"false"_s);
        QTest::keyClick(&window, Qt::Key_F5);
        QCOMPARE(window.settings().value(u"palvestrin.doc.printWaiter"_s), u"true"_s);
        QVERIFY(!window.isWindowModified());
        QTest::keySequence(&window, QKeySequence::Undo);
        QCOMPARE(window.settings().value(u"palvestrin.doc.printWaiter"_s), u"false"_s);
    }

    void aQuestionHoldsUpNobodyElse()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, QByteArray(kitchenConfiguration) + "# the end\n");
        SettingsWindow window(path);
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        bool isFree = false;
        QTimer asking;
        asking.callOnTimeout([&] {
            auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!question)
                return;
            asking.stop();
            try {
                const FileReplacement another(path);
                isFree = true;
            } catch (const CommandError &) { // the lock is held
            }
            question->button(QMessageBox::Cancel)->click();
        });
        asking.start(10);
        QVERIFY(!window.save());
        QVERIFY(isFree);
    }

    void whatCannotBeKeptIsTakenFromTheFile()
    {
        const ScratchFolder folder;
        const QString path =
            folder.write(u"c.conf"_s, "palvestrin: { doc: { x.y = 1; }; }; b: { c = 1; }; d = 1;");
        SettingsModel model(path);
        folder.write(u"c.conf"_s, "palvestrin: { doc: { x.y = 2; z = 2; }; }; b: { c = 2; }; d = 2;");
        ConfigFile theirs(path);
        MergeDialog dialog(model, theirs);
        QStringList kept;
        for (int row = 0; row < dialog.differences()->topLevelItemCount(); ++row) {
            QTreeWidgetItem *item = dialog.differences()->topLevelItem(row);
            if (item->isDisabled())
                QCOMPARE(item->toolTip(0), u"This can only be as it is in the file."_s);
            else
                kept += item->toolTip(0);
            if (!item->isDisabled())
                item->setCheckState(0, Qt::Unchecked);
            else
                QCOMPARE(item->checkState(0), Qt::Checked);
        }
        QCOMPARE(kept, QStringList{u"palvestrin.doc.z"_s});
        model.adopt(std::make_unique<ConfigFile>(path), dialog.merged(), u"Merge"_s);
        QCOMPARE(model.value(u"palvestrin.doc.z"_s), QString());
        QVERIFY(model.isModified());
    }

    void copiesAreShownAsTheyAreStored_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("not set") << QByteArray("") << u"1 copy"_s;
        QTest::newRow("none") << QByteArray("copyNumber = 0;") << u"0 copies"_s;
        QTest::newRow("most") << QByteArray("copyNumber = 99;") << u"99 copies"_s;
        QTest::newRow("more") << QByteArray("copyNumber = 150;") << u"150 copies"_s;
    }
    void copiesAreShownAsTheyAreStored()
    {
        QFETCH(QByteArray, stored);
        QFETCH(QString, shown);
        const ScratchFolder folder;
        SettingsWindow window(
            folder.write(u"c.conf"_s, "palvestrin: { invoicedoc: { paperWidth = 48; " + stored + " }; };"));
        SettingField *field = fieldOf(window, u"palvestrin.invoicedoc.copyNumber"_s);
        QCOMPARE(qobject_cast<QSpinBox *>(field->focus())->text(), shown);
        QCOMPARE(defaultText(field->key()), u"1"_s);
        QVERIFY(!window.settings().isModified());
    }

    void aNumberIsShownAsItIsStored()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, "palvestrin: { doc: { paperWidth = 1500; }; };"));
        SettingField *field = fieldOf(window, u"palvestrin.doc.paperWidth"_s);
        QCOMPARE(qobject_cast<QSpinBox *>(field->focus())->text(), u"1500 characters"_s);
    }

    void aFileThatIsGoneIsToldAndWrittenAnew_data()
    {
        QTest::addColumn<bool>("isChanged");
        QTest::newRow("as it was") << false;
        QTest::newRow("changed") << true;
    }
    void aFileThatIsGoneIsToldAndWrittenAnew()
    {
        QFETCH(bool, isChanged);
        const ScratchFolder folder;
        const QByteArray content = QByteArray(kitchenConfiguration) + "# the end\n";
        const QString path = folder.write(u"c.conf"_s, content);
        SettingsWindow window(path);
        showReady(window);
        if (isChanged)
            window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        QVERIFY(QFile::remove(path));
        QTRY_COMPARE(window.messages().text(), u"The file is gone. Save writes it anew."_s);
        QTest::keyClick(&window, Qt::Key_F5); // there is nothing to read
        QCOMPARE(window.settings().value(u"palvestrin.doc.printTable"_s), u"true"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.close());
            QCOMPARE(cancel.question(), u"The file is gone. Save writes it anew."_s);
        }
        const Answer save(QMessageBox::Save); // of the remark, when something is changed
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.conf"_s),
                 isChanged ? QByteArray(kitchenConfiguration).replace("32", "48") : content);
        if (isChanged)
            QCOMPARE(folder.read(u"c.conf.bak.1"_s), content);
        QTRY_COMPARE(window.messages().text(), QString());
        QVERIFY(window.close());
    }

    void twoWindowsOnOneFileLoseNothing()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        SettingsWindow one(path);
        SettingsWindow other(path);
        one.show();
        other.show();
        one.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        other.settings().set(u"palvestrin.doc.quantityFieldWidth"_s, u"5"_s);
        QVERIFY(one.save());
        answerMerge([](MergeDialog &dialog) { dialog.reject(); });
        QVERIFY(!other.save());
        answerMerge([](MergeDialog &dialog) { dialog.accept(); });
        QVERIFY(other.save());
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(kitchenConfiguration)
                                               .replace("32", "48")
                                               .replace("FieldWidth = \"3\"", "FieldWidth = \"5\""));
    }

    void aFileThatAnotherProgramWritesIsNotSaved()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        SettingsWindow window(path);
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        {
            const FileReplacement another(path);
            const Answer ok(QMessageBox::Ok);
            QVERIFY(!window.save());
            QCOMPARE(ok.question(),
                     path + u": another program is writing this file; try again when it is done"_s);
        }
        QVERIFY(window.save());
    }

    void closingWithUnsavedChangesAsks()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        {
            const Answer cancel(QMessageBox::Cancel);
            QVERIFY(!window.close());
            QCOMPARE(cancel.question(), u"Save the changes to c.conf?"_s);
        }
        const Answer discard(QMessageBox::Discard);
        QVERIFY(window.close());
        QCOMPARE(folder.read(u"c.conf"_s), kitchenConfiguration);
    }

    void searchLooksInNamesHelpKeysAndValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("found");
        QTest::newRow("name") << u"kitchen line width"_s << u"palvestrin.doc.paperWidth"_s;
        QTest::newRow("help") << u"least level written"_s << u"palvestrin.logger.level"_s;
        QTest::newRow("key") << u"DB.HOSTNAME"_s << u"palvestrin.db.hostname"_s;
        QTest::newRow("value") << u"info"_s << u"palvestrin.logger.level"_s;
        QTest::newRow("unknown key") << u"logger.typ"_s << u"palvestrin.logger.typ"_s;
    }
    void searchLooksInNamesHelpKeysAndValues()
    {
        QFETCH(QString, text);
        QFETCH(QString, found);
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        QTest::keySequence(&window, QKeySequence::Find);
        auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QTest::keyClicks(field, text);
        QStringList keys;
        const QAbstractItemModel *model = window.results().list()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            keys += model->index(row, 0).data(SettingsModel::KeyRole).toString();
        QVERIFY2(keys.contains(found), qPrintable(keys.join(u' ')));
        QVERIFY(keys.size() < 10);
    }

    void aSearchThatFindsNothingSaysSo()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        QTest::keySequence(&window, QKeySequence::Find);
        QTest::keyClicks(QApplication::focusWidget(), u"xyzzy"_s);
        QCOMPARE(window.results().emptyText(),
                 u"No setting has \u201cxyzzy\u201d in its name, its explanation or its value."_s);
        QVERIFY(window.results().isVisible());
    }

    void choosingAResultJumpsToItsField()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        QTest::keySequence(&window, QKeySequence::Find);
        QTest::keyClicks(QApplication::focusWidget(), u"invoice copies"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(window.form());
        QCOMPARE(window.form()->page().title(), u"Invoice"_s);
        QCOMPARE(QApplication::focusWidget()->parentWidget()->objectName(),
                 u"palvestrin.invoicedoc.copyNumber"_s);
    }

    void whatNoLookUpReachesIsNotChanged()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, "palvestrin:{doc:{x.y=1;};}; b:{c=2;}; d=3;"));
        window.results().find({}, true, false);
        QCOMPARE(window.results().emptyText(), u"Nothing has been changed."_s);
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        QCOMPARE(window.results().count(), 1);
    }

    void theTimeOfAChangeGrowsNoFasterThanTheFile()
    {
        const ScratchFolder folder;
        const auto timeOf = [&](int pairs) {
            QByteArray content = "palvestrin: { doc: { paperWidth = 32; }; mine: {";
            for (int number = 0; number < pairs; ++number)
                content += " k" + QByteArray::number(number) + " = 1;";
            SettingsModel model(folder.write(u"c.conf"_s, content + " }; };"));
            PageList list(model);
            connect(&model, &SettingsModel::changed, &list, &PageList::refresh);
            const std::clock_t begin = std::clock(); // of this process, whatever else runs
            model.set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
            return std::clock() - begin;
        };
        const std::clock_t small = timeOf(5'000);
        const std::clock_t large = timeOf(50'000);
        QVERIFY2(large < 30 * small, qPrintable(u"%1 against %2"_s.arg(large).arg(small)));
    }

    void aSearchThatIsOverFindsNothing()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        auto *field = window.findChild<QLineEdit *>(u"search"_s);
        field->setText(u"level"_s);
        QVERIFY(window.results().count() > 0);
        field->clear();
        QCOMPARE(window.results().count(), 0); // so that no change has to look through all settings
    }

    void filtersShowWhatIsChangedAndWhatIsWrong()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        ResultList &results = window.results();
        results.find({}, true, false);
        QCOMPARE(results.emptyText(), u"Nothing has been changed."_s);
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"48"_s);
        results.find({}, true, false);
        QCOMPARE(results.count(), 1);
        results.find({}, false, true);
        QCOMPARE(results.count(), 2); // the width that is none, the key that nobody reads
    }

    void findingsStandBesideTheirField()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        SettingField *field = fieldOf(window, u"palvestrin.receiptdoc.paperWidth"_s);
        QVERIFY2(troubleOf(field).contains("\"wide\" counts as 32"_L1), qPrintable(troubleOf(field)));
        typeInto(field->focus(), u"48"_s);
        QTRY_COMPARE(troubleOf(field), QString());
    }

    void whatHasNoEffectIsFoldedAway()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        window.show();
        window.showPage(pages().front());
        const auto *style = window.form()->findChild<SettingField *>(u"palvestrin.doc.style"_s);
        QVERIFY(!style->isVisible());
        fieldOf(window, u"palvestrin.doc.style"_s);
        QVERIFY(style->isVisible());
    }

    void searchSpeaksTheUsersLanguage()
    {
        const InLanguage words(u"de"_s);
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        window.results().find(u"K\u00fcchenbon Tisch"_s, false, false);
        QCOMPARE(window.results().count(), 1);
        QCOMPARE(window.results().list()->model()->index(0, 0).data().toString(), u"K\u00fcchenbon: Tisch"_s);
        window.results().find(u"xyzzy"_s, false, false);
        QCOMPARE(window.results().emptyText(),
                 u"Keine Einstellung hat \u201exyzzy\u201c in Name, Erkl\u00e4rung oder Wert."_s);
    }

    void endingTheSearchLeadsBack()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.showPage(pages()[3]);
        auto *field = window.findChild<QLineEdit *>(u"search"_s);
        field->setText(u"level"_s);
        QVERIFY(window.results().isVisible());
        field->clear();
        QCOMPARE(window.form()->page().title(), u"Invoice"_s);
        QCOMPARE(window.findChild<PageList *>()->currentItem()->text(), u"Invoice"_s);
    }

    void aProblemIsToldInTheListAndLeadsToItsField()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        showReady(window);
        window.findChild<QToolButton *>(u"problems"_s)->click();
        const QAbstractItemModel *model = window.results().list()->model();
        QVERIFY(model->index(0, 1).data().toString().startsWith(u"\"wide\" counts as 32"_s));
        window.results().list()->setFocus();
        QTest::keyClick(window.results().list(), Qt::Key_Return);
        QVERIFY(window.form());
        QCOMPARE(QApplication::focusWidget()->parentWidget()->objectName(),
                 u"palvestrin.receiptdoc.paperWidth"_s);
        QVERIFY(!window.findChild<QToolButton *>(u"problems"_s)->isChecked());
    }

    void itsSizeIsRemembered()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        {
            SettingsWindow window(path);
            showReady(window);
            window.resize(1111, 666);
            QVERIFY(window.close());
        }
        const SettingsWindow another(path);
        QCOMPARE(another.size(), QSize(1111, 666));
        QSettings().clear();
    }

    void f1TellsHowItWorks()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QTest::keyClick(&window, Qt::Key_F1);
        auto *help = window.findChild<QTextBrowser *>();
        QVERIFY(help && help->isVisible());
        QVERIFY(help->toPlainText().contains(u"Ctrl+S"_s));
    }

    void iconsFollowTheTheme()
    {
        const auto inkOf = [](const QColor &text) {
            QPalette palette;
            palette.setColor(QPalette::WindowText, text);
            const QImage image = themedIcon(u"save"_s, palette).pixmap(48).toImage();
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(image.width() / 2, y).alpha() == 255)
                    return image.pixelColor(image.width() / 2, y);
            }
            return QColor();
        };
        QCOMPARE(inkOf(Qt::black), QColor(Qt::black));
        QCOMPARE(inkOf(Qt::white), QColor(Qt::white));
    }

    void aFileThatCannotBeReadOpensNoWindow()
    {
        const ScratchFolder folder;
        try {
            const SettingsWindow window(folder.write(u"c.xml"_s, "<p>"));
            QFAIL("it opened");
        } catch (const CommandError &error) {
            QCOMPARE(error.code(), ExitCode::Unreadable);
        }
    }

    void theXmlFormStaysXml()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.xml"_s, "<palvestrin><db dbname='shop'/></palvestrin>"));
        window.settings().set(u"palvestrin.db.dbname"_s, QString());
        QVERIFY(window.save());
        QCOMPARE(folder.read(u"c.xml"_s), "\n<palvestrin>\n</palvestrin>\n");
    }
};

WINDOW_TEST_MAIN(SettingsWindowTest)
#include "settingswindow_test.moc"
