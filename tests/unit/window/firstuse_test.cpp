// Beginning with nothing: presets that are seen before they are chosen.

#include "firstuse.h"
#include "keyfindings.h"
#include "pages.h"
#include "paperpane.h"
#include "settingsform.h"
#include "windowfixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Clicks the button of that name, as somebody does who has never read the manual.
template <typename Button>
bool click(const QWidget &page, const QString &text)
{
    for (Button *button : page.findChildren<Button *>()) {
        if (button->text() == text) {
            button->click();
            return true;
        }
    }
    return false;
}

qsizetype widestRow(const QString &paper)
{
    qsizetype widest = 0;
    for (const QString &row : paper.split(u'\n'))
        widest = std::max(widest, row.size());
    return widest;
}

} // namespace

class FirstUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKitchenTicketOf58MillimetresFromNothing()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.path(u"conf/new.conf"_s));
        showReady(window);
        const auto *page = window.findChild<FirstUse *>();
        QVERIFY(page->isVisible());
        QCOMPARE(widestRow(paperText(window)), 48); // the paper is there before anything is chosen
        QVERIFY(click<QRadioButton>(*page, u"58 mm"_s));
        QVERIFY(waitForPaper(window));
        QVERIFY(widestRow(paperText(window)) <= 32);
        QVERIFY(!window.isWindowModified());
        QVERIFY(click<QPushButton>(*page, u"Use these settings"_s));
        QVERIFY(waitForPaper(window));
        QVERIFY(widestRow(paperText(window)) <= 32);
        QVERIFY(paperText(window).contains("Table:"_L1));
        QCOMPARE(window.form()->page().title(), u"Kitchen ticket"_s);
        QVERIFY(window.save());
        QVERIFY(folder.read(u"conf/new.conf"_s).contains("paperWidth = \"30\";"));
    }

    void choosingCanBeUndone()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.path(u"new.conf"_s));
        window.show();
        QVERIFY(click<QPushButton>(*window.findChild<FirstUse *>(), u"Use these settings"_s));
        QVERIFY(window.isWindowModified());
        window.settings().undoStack().undo();
        QVERIFY(!window.isWindowModified());
        QCOMPARE(folder.names(), QStringList());
    }

    void startingEmptyLeadsToTheSettings()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.path(u"new.conf"_s));
        window.show();
        QVERIFY(click<QPushButton>(*window.findChild<FirstUse *>(), u"Start empty"_s));
        QVERIFY(window.form());
        QVERIFY(!window.isWindowModified());
    }

    void aFileThatIsThereAsksNothing()
    {
        const ScratchFolder folder;
        const SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        QVERIFY(!window.findChild<FirstUse *>());
        QVERIFY(window.form());
    }

    void noPresetHasAFault_data()
    {
        QTest::addColumn<QString>("house");
        QTest::addColumn<QString>("paper");
        for (const presets::House &house : presets::houses) {
            for (const presets::Paper &paper : presets::papers)
                QTest::addRow("%s %s", house.name.data(), paper.name.data())
                    << QString(house.name) << QString(paper.name);
        }
    }
    void noPresetHasAFault()
    {
        QFETCH(QString, house);
        QFETCH(QString, paper);
        libconfig::Config config;
        presets::apply(config, *presets::findHouse(house), *presets::findPaper(paper));
        QBuffer memory;
        memory.open(QIODevice::WriteOnly);
        config.buildConfigFile(memory);
        QStringList faults;
        for (const KeyFinding &finding : findingsIn(memory.data()))
            faults += finding.text();
        QCOMPARE(faults.join(u'\n'), QString());
    }
};

WINDOW_TEST_MAIN(FirstUseTest)
#include "firstuse_test.moc"
