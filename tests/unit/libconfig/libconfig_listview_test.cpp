#include "configlistview.h"
#include "libconfig.h"
#include "pvconfiguration.h"
#include "scratchfolder.h"
#include "temporaryhome.h"

#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

class LibconfigListViewTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder{};

    QString path() const { return folder.path(u"test.conf"_s); }
    void write(const QByteArray &content) const { folder.write(u"test.conf"_s, content); }
    QByteArray written() const { return folder.read(u"test.conf"_s); }
    /// Types `text` into the cell as a person does; false when the cell opens no editor.
    static bool typeInto(QTreeWidget *view, QTreeWidgetItem *row, int column, const QString &text)
    {
        view->setCurrentItem(row, column);
        view->editItem(row, column);
        auto *editor = view->viewport()->findChild<QLineEdit *>();
        if (!editor)
            return false;
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the view takes the text over when the key has been handled
        return true;
    }

private Q_SLOTS:
    void showsSettingsAndValues()
    {
        write("top=1; p: { z = 2; a = 3; q: { k = v; }; }; r: { m = w; };");
        const std::unique_ptr<QTreeWidget> view(libconfig::Config(path(), u"cfg"_s).newConfigListView());
        QCOMPARE(view->columnCount(), 2);
        QCOMPARE(view->headerItem()->text(0), u"Setting"_s);
        QCOMPARE(view->headerItem()->text(1), u"Value"_s);
        QCOMPARE(view->topLevelItemCount(), 3);
        QCOMPARE(view->topLevelItem(0)->text(0), u"top"_s);
        QCOMPARE(view->topLevelItem(0)->text(1), u"1"_s);
        const QTreeWidgetItem *block = view->topLevelItem(1);
        QVERIFY(libconfig::isBlockRow(block));
        QCOMPARE(block->text(0), u"p"_s);
        QCOMPARE(block->text(1), QString());
        QCOMPARE(block->child(0)->text(0), u"z"_s);
        QCOMPARE(block->child(1)->text(0), u"a"_s);
        QCOMPARE(block->child(2)->child(0)->text(1), u"v"_s);
        QCOMPARE(view->topLevelItem(2)->text(0), u"r"_s);
    }

    void aValueIsEditedInPlaceAndNothingElse()
    {
        write("p: { k = v; };");
        libconfig::Config config(path(), u"cfg"_s);
        const std::unique_ptr<QTreeWidget> view(config.newConfigListView());
        view->show();
        QTreeWidgetItem *block = view->topLevelItem(0);
        QTreeWidgetItem *setting = block->child(0);
        QVERIFY(!typeInto(view.get(), setting, libconfig::SettingColumn, u"renamed"_s));
        QTest::ignoreMessage(QtWarningMsg, "edit: editing failed"); // the view's own remark about a block
        QVERIFY(!typeInto(view.get(), block, libconfig::ValueColumn, u"value"_s));
        QVERIFY(typeInto(view.get(), setting, libconfig::ValueColumn, u"new value"_s));
        QVERIFY(config.loadListView(view.get()));
        QCOMPARE(written(), "p: \n{\n    k = \"new value\";\n};\n\n");
        QCOMPARE(config.lookup(u"p.k"_s), u"new value"_s);
    }

    void addsAndRemovesSettingsAndBlocks()
    {
        write("p: { k = v; gone = 1; q: { m = w; }; old: { n = x; }; };");
        libconfig::Config config(path(), u"cfg"_s);
        const std::unique_ptr<QTreeWidget> view(config.newConfigListView());
        QTreeWidgetItem *block = view->topLevelItem(0);
        delete block->child(1); // gone
        delete block->child(2); // old
        libconfig::addSettingRow(block, u"new"_s, u"2"_s);
        libconfig::addSettingRow(libconfig::addBlockRow(block, u"s"_s), u"a"_s, u"3"_s);
        libconfig::addSettingRow(view->invisibleRootItem(), u"top"_s, u"4"_s);
        QVERIFY(config.loadListView(view.get()));
        QCOMPARE(written(),
                 "top = \"4\";\np: \n{\n    k = \"v\";\n    new = \"2\";\n    q: \n    {\n"
                 "        m = \"w\";\n    };\n\n    s: \n    {\n        a = \"3\";\n    };\n\n};\n\n");
    }

    void writesTheFormThatWasRead()
    {
        write("<p k='v'/>");
        libconfig::Config config(path(), u"xml"_s);
        const std::unique_ptr<QTreeWidget> view(config.newConfigListView());
        QVERIFY(config.loadListView(view.get()));
        QCOMPARE(written(), "\n<p\n    k = \"v\">\n</p>\n");
    }

    void anUnknownFormWritesNothing()
    {
        write("p: { k = v; };");
        libconfig::Config config(path(), u"ini"_s);
        const std::unique_ptr<QTreeWidget> view(config.newConfigListView());
        QCOMPARE(view->topLevelItemCount(), 0);
        QVERIFY(!config.loadListView(view.get()));
        QCOMPARE(written(), "p: { k = v; };");
    }

    void theApplicationsConfigurationShowsItsOwn()
    {
        const TemporaryHome home;
        home.configure("palvestrin: { db: { dbname = shop; }; };");
        const std::unique_ptr<QTreeWidget> view(PVConfiguration().newConfigListView());
        QCOMPARE(view->topLevelItem(0)->child(0)->child(0)->text(1), u"shop"_s);
    }
};

QTEST_MAIN(LibconfigListViewTest)
#include "libconfig_listview_test.moc"
