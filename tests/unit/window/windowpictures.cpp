// Draws the window as docs/settings.md shows it: `window_pictures FOLDER [LANGUAGE] [dark] [every]
// [WIDTHxHEIGHT]`. Each picture is taken of the real window, with the paper of the real program.

#include "allkeys.h"
#include "messagebar.h"
#include "pages.h"
#include "paperpane.h"
#include "resultlist.h"
#include "settingfield.h"
#include "settingsform.h"
#include "windowfixture.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pauseForFindings = 400; // milliseconds

QPalette darkPalette()
{
    QPalette palette;
    const QColor ground(0x23, 0x25, 0x29);
    const QColor text(0xe8, 0xe8, 0xe6);
    const QColor quiet(0x96, 0x98, 0x9c);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, QColor(0x30, 0x33, 0x38));
    palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2c, 0x31));
    palette.setColor(QPalette::Button, QColor(0x31, 0x34, 0x39));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0x68));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, quiet);
    palette.setColor(QPalette::ToolTipBase, ground);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x70, 0x72, 0x76));
    return palette;
}

/// Of the window, as "1024x600"; invalid when none is given.
QSize sizeAmong(const QStringList &words)
{
    static const QRegularExpression form(u"^(\\d+)x(\\d+)$"_s);
    for (const QString &word : words) {
        if (const auto match = form.match(word); match.hasMatch())
            return {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    return {};
}

class Album
{
public:
    Album(const QString &intoFolder, QSize ofWindow) : folder(intoFolder), size(ofWindow) {}

    void open(SettingsWindow &window) const
    {
        if (size.isValid())
            window.resize(size);
        showReady(window);
    }

    void take(SettingsWindow &window, const QString &name) const
    {
        waitForPaper(window);
        QTest::qWait(pauseForFindings);
        save(window, name);
    }
    void takeDialog(QWidget &dialog, const QString &name) const
    {
        save(dialog, name);
        dialog.close();
    }

private:
    void save(QWidget &widget, const QString &name) const
    {
        const QString path = folder + u'/' + name + u".png"_s;
        if (!widget.grab().save(path))
            qFatal("%s cannot be written", qPrintable(path));
    }

    QString folder;
    QSize size;
};

void pictureFirstUse(const Album &album, const ScratchFolder &folder)
{
    SettingsWindow window(folder.path(u"palvestrin.conf"_s));
    album.open(window);
    album.take(window, u"first-use"_s);
}

void picturePages(const Album &album, const ScratchFolder &folder)
{
    QFile example(QStringLiteral(EXAMPLE_CONFIGURATION));
    if (!example.open(QIODevice::ReadOnly))
        qFatal("there is no example");
    SettingsWindow window(folder.write(u"palvestrin.conf"_s, example.readAll()));
    album.open(window);
    window.settings().set(u"palvestrin.doc.printDate"_s, u"true"_s);
    fieldOf(window, u"palvestrin.doc.printWaiter"_s);
    album.take(window, u"kitchen-ticket"_s);
    window.settings().set(u"palvestrin.receiptdoc.paperWidth"_s, u"32"_s);
    window.settings().set(u"palvestrin.receiptdoc.priceFieldWidth"_s, u"12"_s);
    fieldOf(window, u"palvestrin.receiptdoc.priceFieldWidth"_s);
    album.take(window, u"receipt"_s);
    fieldOf(window, u"palvestrin.fiscaldoc.descriptionWidth"_s);
    album.take(window, u"fiscal-receipt"_s);
    typeInto(fieldOf(window, u"palvestrin.db.password"_s)->focus(), u"se;cret"_s);
    album.take(window, u"database"_s);
    window.showAllKeys();
    album.take(window, u"all-keys"_s);
    window.findChild<QLineEdit *>(u"search"_s)->setText(u"paper"_s);
    album.take(window, u"search"_s);
    window.findChild<QLineEdit *>(u"search"_s)->clear();
    window.settings().forgetRefusals();
}

/// Beyond what docs/settings.md shows, for whoever looks whether all of the window is as it should be.
void pictureEveryPage(const Album &album, const ScratchFolder &folder)
{
    SettingsWindow window(folder.write(u"every.conf"_s, exampleConfiguration));
    album.open(window);
    int number = 0;
    for (const Page &page : pages()) {
        window.showPage(page);
        for (QToolButton *fold : window.form()->findChildren<QToolButton *>(u"fold"_s))
            fold->setChecked(true);
        album.take(window, u"page-%1"_s.arg(++number));
    }
    window.findChild<QToolButton *>(u"problems"_s)->setChecked(true);
    album.take(window, u"problems"_s);
    folder.write(u"every.conf"_s, kitchenConfiguration);
    QTRY_VERIFY(!window.messages().text().isEmpty());
    album.take(window, u"changed-outside"_s);
    QTimer::singleShot(pauseForFindings, &window,
                       [&album] { album.takeDialog(*QApplication::activeModalWidget(), u"merge"_s); });
    window.messages().button()->click();
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F1);
    album.takeDialog(*window.findChild<QDialog *>(), u"help"_s);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    prepareForWindows(home.path());
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() < 2)
        qFatal("usage: window_pictures FOLDER [LANGUAGE [dark]]");
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    if (words.contains(u"dark"_s))
        QApplication::setPalette(darkPalette());
    const QString language = words.value(2).size() == 2 ? words[2] : u"en"_s;
    const InLanguage inLanguage(language);
    const Album album(words[1], sizeAmong(words));
    const ScratchFolder folder;
    pictureFirstUse(album, folder);
    picturePages(album, folder);
    if (words.contains(u"every"_s))
        pictureEveryPage(album, folder);
}
