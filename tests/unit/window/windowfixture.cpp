#include "windowfixture.h"

#include "paperpane.h"
#include "paperview.h"
#include "settingfield.h"
#include "settingsform.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

const char exampleConfiguration[] = R"(palvestrin: 
{
    logger: 
    {
        level = "INFO";
        typ = "APPEND";
    };

    receiptdoc: 
    {
        paperWidth = "wide";
        printDate = "true";
    };

};

)";

const char kitchenConfiguration[] = R"(palvestrin: 
{
    doc: 
    {
        paperWidth = "32";
        quantityFieldWidth = "3";
        printTable = "true";
        printWaiter = "true";
    };

};

)";

void prepareForWindows(const QString &folder)
{
    qputenv("HOME", folder.toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.toUtf8());
    qputenv("PATH", QByteArray(BIN_FOLDER) + ':' + qgetenv("PATH"));
    QCoreApplication::setOrganizationName(u"Palvestrin"_s);
    QCoreApplication::setApplicationName(u"window-test"_s);
}

InLanguage::InLanguage(const QString &language)
{
    if (language == "en"_L1)
        return;
    if (!words.load(u"palvestrin-tools_"_s + language, QStringLiteral(BUILT_CATALOGUES)) ||
        !toolkit.load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        qFatal("there is no catalogue for %s", qPrintable(language));
    QCoreApplication::installTranslator(&toolkit);
    QCoreApplication::installTranslator(&words);
}

InLanguage::~InLanguage()
{
    QCoreApplication::removeTranslator(&words);
    QCoreApplication::removeTranslator(&toolkit);
}

void showReady(SettingsWindow &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window does not show");
    waitForPaper(window);
}

bool waitForPaper(SettingsWindow &window)
{
    QSignalSpy painted(&window.paperPane(), &PaperPane::painted);
    return window.paperPane().isUpToDate() || painted.wait(10'000);
}

QString paperText(SettingsWindow &window)
{
    return textOf(window.paperPane().paper().strips());
}

SettingField *fieldOf(SettingsWindow &window, const QString &key)
{
    window.jumpTo(key);
    if (!window.form())
        return nullptr;
    return window.form()->findChild<SettingField *>(key);
}

void typeInto(QWidget *editor, const QString &text)
{
    editor->setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        line->selectAll();
    if (auto *box = qobject_cast<QSpinBox *>(editor))
        box->selectAll();
    for (const QChar c : text) { // QTest::keyClicks knows ASCII only
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(editor, &press);
    }
}

Answer::Answer(QMessageBox::StandardButton with) : button(with)
{
    timer.callOnTimeout([this] { answer(); });
    timer.start(10);
}

void Answer::answer()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->button(button))
        return;
    text = box->text();
    timer.stop();
    box->button(button)->click();
}
