// The paper at the right: the real program's, at every change, with the rows marked that the field concerns.

#include "allkeys.h"
#include "colours.h"
#include "pages.h"
#include "paperpane.h"
#include "papertask.h"
#include "paperview.h"
#include "settingfield.h"
#include "settingsform.h"
#include "windowfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList highlightedRows(SettingsWindow &window)
{
    const PaperView &view = window.paperPane().paper();
    QStringList rows;
    for (const LinePlace &place : view.highlighted()) {
        QString text;
        for (const paper::Cell &cell :
             std::get<paper::Row>(view.strips()[place.first].lines[place.second]).cells)
            text += QString::fromUcs4(&cell.character, 1);
        rows += text.simplified();
    }
    return rows;
}

/// Where programs are looked for, as long as it lives.
class SearchPath
{
public:
    explicit SearchPath(const QString &path) : before(qgetenv("PATH")) { qputenv("PATH", path.toUtf8()); }
    ~SearchPath() { qputenv("PATH", before); }

private:
    QByteArray before;
};

/// Accepts the next file dialog, with `choose` done before.
void answerFileDialog(const std::function<void(QFileDialog &)> &choose)
{
    auto *timer = new QTimer(qApp);
    timer->callOnTimeout([timer, choose] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        choose(*dialog);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    timer->start(10);
}

} // namespace

class PaperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QSettings().clear(); }

    void everyDocumentHasItsPaper()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        for (const Page &page : pages()) {
            if (!page.isDocument())
                continue;
            window.showPage(page);
            QVERIFY(waitForPaper(window));
            QVERIFY2(!window.paperPane().paper().strips().empty(), qPrintable(page.title()));
        }
    }

    void theRowsThatTheFieldConcernsAreMarked()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        fieldOf(window, u"palvestrin.doc.printWaiter"_s);
        QTRY_COMPARE(highlightedRows(window), QStringList{u"Waiter: No\u00e8"_s});
        fieldOf(window, u"palvestrin.doc.printTable"_s);
        QTRY_COMPARE(highlightedRows(window), QStringList{u"Table: 12"_s});
        fieldOf(window, u"palvestrin.doc.printDate"_s); // off: there is no row of it
        QTRY_COMPARE(highlightedRows(window), QStringList());
    }

    void fiscalDocumentsShowCommandsWithTheirMeaning()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.showPage(*pageOf(u"palvestrin.fiscaldoc.descriptionWidth"_s));
        QVERIFY(waitForPaper(window));
        const Strip &strip = window.paperPane().paper().strips().front();
        QCOMPARE(strip.kind, paper::StripKind::Register);
        QVERIFY(!std::get<paper::Row>(strip.lines.front()).meaning.isEmpty());
    }

    void aJobOfOnesOwnIsShownAndRemembered()
    {
        const ScratchFolder folder;
        const QString job = folder.write(
            u"mine.xml"_s,
            "<job><method name=\"printPartialOrder\"/><receipe number=\"7\" name=\"My soup\"/></job>");
        QSettings().setValue(u"jobs/palvestrin.doc."_s, job);
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QVERIFY2(paperText(window).contains("My soup"_L1), qPrintable(paperText(window)));
        QCOMPARE(window.paperPane().findChild<QComboBox *>()->currentText(), u"mine.xml"_s);
    }

    void aJobThatPrintsNothingSaysSo()
    {
        const ScratchFolder folder;
        QSettings().setValue(u"jobs/palvestrin.doc."_s, folder.write(u"none.xml"_s, "<job/>"));
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QCOMPARE(window.paperPane().paper().accessibleDescription(), u"The job prints nothing."_s);
    }

    void aJobThatIsChosenIsShownAndRemembered()
    {
        const ScratchFolder folder;
        const QString job = folder.write(
            u"mine.xml"_s,
            "<job><method name=\"printPartialOrder\"/><receipe number=\"7\" name=\"My soup\"/></job>");
        const QString path = folder.write(u"c.conf"_s, kitchenConfiguration);
        {
            SettingsWindow window(path);
            showReady(window);
            answerFileDialog([&](QFileDialog &dialog) { dialog.selectFile(job); });
            QTest::keySequence(&window, QKeySequence::Open);
            QTRY_VERIFY2(paperText(window).contains("My soup"_L1), qPrintable(paperText(window)));
        }
        SettingsWindow another(path);
        showReady(another);
        QVERIFY(paperText(another).contains("My soup"_L1));
        another.showPage(pages()[1]); // the job belongs to its document
        QVERIFY(waitForPaper(another));
        QVERIFY(!paperText(another).contains("My soup"_L1));
    }

    void whatRunsOverTheEdgeIsMarked()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, "palvestrin: { doc: { paperWidth = 30; }; };"));
        showReady(window);
        const PaperView &view = window.paperPane().paper();
        const auto isMarked = [&view] {
            const QImage image = view.viewport()->grab().toImage();
            for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
                if (image.pixelColor(pixel % image.width(), pixel / image.width()) == colours::overPaper)
                    return true;
            }
            return false;
        };
        QVERIFY(!isMarked());
        window.settings().set(u"palvestrin.doc.paperWidth"_s, u"32"_s); // its rule is set off by one
        QVERIFY(waitForPaper(window));
        QVERIFY(isMarked());
    }

    void aSlowPaperDoesNotHoldUpTyping()
    {
        const ScratchFolder folder;
        const QString slow = folder.write(u"palvestrin-print"_s, "#!/bin/sh\nexec sleep 5\n");
        QFile::setPermissions(slow, QFile::ReadOwner | QFile::ExeOwner);
        const SearchPath path(folder.path() + u':' + qEnvironmentVariable("PATH"));
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        window.show();
        QWidget *width = fieldOf(window, u"palvestrin.doc.paperWidth"_s)->focus();
        QElapsedTimer clock;
        clock.start();
        typeInto(width, u"45"_s);
        QCoreApplication::processEvents();
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(!window.paperPane().isUpToDate());
        QCOMPARE(window.settings().value(u"palvestrin.doc.paperWidth"_s), u"45"_s);
    }

    void withoutTheProgramItSaysWhichPackageIsMissing()
    {
        const ScratchFolder folder;
        const SearchPath path(folder.path());
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        window.show();
        QCOMPARE(window.paperPane().paper().accessibleDescription(),
                 u"The program palvestrin-print is not installed; install the package "
                 "palvestrin-print"_s);
    }

    void thePaperIsSavedAsAPicture_data()
    {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begins");
        QTest::newRow("PNG") << 0 << u"ticket.png"_s << QByteArray("\x89PNG");
        QTest::newRow("PDF") << 1 << u"ticket.pdf"_s << QByteArray("%PDF-");
    }
    void thePaperIsSavedAsAPicture()
    {
        QFETCH(int, filter);
        QFETCH(QString, file);
        QFETCH(QByteArray, begins);
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        answerFileDialog([&](QFileDialog &dialog) {
            dialog.setDirectory(folder.path());
            dialog.selectNameFilter(dialog.nameFilters().at(filter));
            Q_EMIT dialog.filterSelected(dialog.nameFilters().at(filter));
            dialog.selectFile(folder.path(u"ticket"_s)); // who names no suffix means that of the filter
        });
        window.paperPane().savePicture();
        QVERIFY2(folder.read(file).startsWith(begins), folder.read(file).left(40));
    }

    void thePaperIsCopiedAsText()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.paperPane().copyText();
        QCOMPARE(QApplication::clipboard()->text(), paperText(window));
    }

    void whatKeepsThePaperAwayIsTold_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("said");
        QTest::newRow("it hangs") << QByteArray("#!/bin/sh\nexec sleep 30\n")
                                  << u"The job takes too long to be shown."_s;
        QTest::newRow("it crashes") << QByteArray("#!/bin/sh\nkill -SEGV $$\n")
                                    << u"The program that prints has crashed."_s;
        QTest::newRow("it does not start")
            << QByteArray("#!/no/such/interpreter\n") << u"The program that prints cannot be started: "_s;
    }
    void whatKeepsThePaperAwayIsTold()
    {
        QFETCH(QByteArray, program);
        QFETCH(QString, said);
        const ScratchFolder folder;
        QFile::setPermissions(folder.write(u"palvestrin-print"_s, program),
                              QFile::ReadOwner | QFile::ExeOwner);
        const SearchPath path(folder.path() + u':' + qEnvironmentVariable("PATH"));
        PaperTask task(nullptr, 1000);
        QSignalSpy printed(&task, &PaperTask::printed);
        task.print("", "<job/>");
        QTRY_COMPARE(printed.size(), 1);
        QVERIFY2(printed.first().at(1).toString().startsWith(said),
                 qPrintable(printed.first().at(1).toString()));
        QVERIFY(!task.isRunning());
    }

    void thePaperFollowsAllKeys()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(
            u"c.conf"_s, "palvestrin: { doc: { printTable = true; }; billdoc: { printTable = true; }; "
                         "invoicedoc: { printDate = true; }; };"));
        showReady(window);
        window.showAllKeys();
        window.allKeys().jumpTo(u"palvestrin.invoicedoc.printDate"_s);
        QCOMPARE(window.paperPane().findChild<QComboBox *>()->itemText(0), u"Example: Invoice"_s);
        QVERIFY(waitForPaper(window));
        window.allKeys().jumpTo(u"palvestrin.doc"_s); // of a block, too
        QCOMPARE(window.paperPane().findChild<QComboBox *>()->itemText(0), u"Example: Kitchen ticket"_s);
    }

    void theLastRequestWins()
    {
        const ScratchFolder folder;
        PaperTask task;
        QSignalSpy printed(&task, &PaperTask::printed);
        const QByteArray job =
            "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"Soup\"/></job>";
        for (int width = 1; width < 40; ++width)
            task.print("palvestrin: { doc: { quantityFieldWidth = " + QByteArray::number(width) + "; }; };",
                       job);
        QTRY_VERIFY(!task.isRunning() && printed.size() > 0);
        QCOMPARE(printed.size(), 1);
        QVERIFY(printed.first().first().toByteArray().contains("\"" + QByteArray(38, ' ') + "1"));
    }

    void theZoomIsThatOfThePaperThatIsShown()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        const auto shown = [&window] { return window.paperPane().findChild<QLabel *>(u"zoom"_s)->text(); };
        window.jumpTo(u"palvestrin.fiscaldoc.copyNumber"_s);
        QVERIFY(waitForPaper(window));
        const QString ofRegister = shown();
        window.jumpTo(u"palvestrin.doc.copyNumber"_s);
        QVERIFY(waitForPaper(window));
        QVERIFY(shown() != ofRegister);
        QCOMPARE(shown(), u"%1%"_s.arg(window.paperPane().paper().zoom()));
    }

    void zoomHasLimits()
    {
        PaperView view;
        view.setZoom(100);
        QCOMPARE(view.zoom(), 100);
        view.setZoom(100'000);
        QCOMPARE(view.zoom(), PaperView::mostZoom);
        view.zoomBy(-1000);
        QCOMPARE(view.zoom(), PaperView::leastZoom);
    }
};

WINDOW_TEST_MAIN(PaperTest)
#include "paper_test.moc"
