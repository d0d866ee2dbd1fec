// Whoever pulls the plug during a save finds the old file or the new one, whole.

#include "windowfixture.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SavingWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedWhileItSaves()
    {
        const ScratchFolder folder;
        const ScratchFolder remains;
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        const QByteArray wide = QByteArray(kitchenConfiguration).replace("32", "48");
        QRandomGenerator random(9);
        for (int run = 0; run < 20; ++run) {
            QProcess window;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"TMPDIR"_s, remains.path()); // who is killed does not tidy up
            window.setProcessEnvironment(environment);
            window.start(QStringLiteral(SAVING_WINDOW), {path});
            QVERIFY(window.waitForReadyRead(30'000));
            QTest::qSleep(random.bounded(30));
            window.kill();
            QVERIFY(window.waitForFinished());
            const QByteArray left = folder.read(u"c.conf"_s);
            QVERIFY2(left == kitchenConfiguration || left == wide, left);
        }
        SettingsWindow window(path); // nothing that was left behind keeps anybody out
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"40"_s);
        QVERIFY(window.save());
    }
};

WINDOW_TEST_MAIN(SavingWindowTest)
#include "savingwindow_test.moc"
