// Nothing that is written is cut off, in any language, in a small window.

#include "allkeys.h"
#include "configfile.h"
#include "mergedialog.h"
#include "messagebar.h"
#include "pagelist.h"
#include "pages.h"
#include "resultlist.h"
#include "settingsform.h"
#include "windowfixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isCutOff(const QLabel &label)
{
    if (label.wordWrap())
        return label.heightForWidth(label.width()) > label.height() + 1;
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

bool isCutOff(const QAbstractButton &button)
{
    return button.minimumSizeHint().width() > button.width() ||
           button.sizeHint().width() > button.width() + 1;
}

bool isCutOff(const QComboBox &box)
{
    constexpr int arrow = 24;
    return box.fontMetrics().horizontalAdvance(box.currentText()) + arrow > box.width();
}

/// Fields that reach beyond the right edge of their page, which does not scroll there.
QStringList beyondTheEdge(const SettingsForm &form)
{
    QStringList names;
    for (const QWidget *part : form.widget()->findChildren<QWidget *>()) {
        const int right = part->mapTo(form.viewport(), QPoint(part->width(), 0)).x();
        if (part->isVisible() && right > form.viewport()->width())
            names += part->parentWidget()->objectName() + u' ' +
                     QString::fromLatin1(part->metaObject()->className());
    }
    return names;
}

/// Names of pages that are longer than the list of pages is wide.
QStringList longNames(const PageList &list)
{
    QStringList names;
    if (list.isVisible() && list.sizeHintForColumn(0) > list.viewport()->width())
        names += u"the list of pages"_s;
    return names;
}

/// The texts that do not fit their place.
QStringList cutOff(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty() && isCutOff(*label))
            texts += label->text();
    }
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->text().isEmpty() && isCutOff(*button))
            texts += button->text();
    }
    for (const QComboBox *box : window.findChildren<QComboBox *>()) {
        if (box->isVisible() && isCutOff(*box))
            texts += box->currentText();
    }
    for (const SettingsForm *form : window.findChildren<SettingsForm *>()) {
        if (form->isVisible())
            texts += beyondTheEdge(*form);
    }
    for (const PageList *list : window.findChildren<PageList *>())
        texts += longNames(*list);
    return texts;
}

/// Shows what is folded away on the page.
void unfold(SettingsWindow &window)
{
    for (QToolButton *fold : window.form()->findChildren<QToolButton *>(u"fold"_s))
        fold->setChecked(true);
    QCoreApplication::processEvents();
}

} // namespace

class WindowLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCutOff_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : {u"en"_s, u"it"_s, u"de"_s, u"fr"_s, u"es"_s})
            QTest::newRow(qPrintable(language)) << language;
    }
    void nothingIsCutOff()
    {
        QFETCH(QString, language);
        const InLanguage words(language);
        const ScratchFolder folder;
        {
            SettingsWindow first(folder.path(u"new.conf"_s));
            first.resize(1024, 600);
            showReady(first);
            QCOMPARE(first.size(), QSize(1024, 600));
            QCOMPARE(cutOff(first).join(u'|'), QString());
        }
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        window.resize(1024, 600);
        showReady(window);
        QCOMPARE(window.size(), QSize(1024, 600));
        for (const Page &page : pages()) {
            window.showPage(page);
            unfold(window);
            QVERIFY2(cutOff(window).isEmpty(),
                     qPrintable(page.title() + u": "_s + cutOff(window).join(u'|')));
        }
        window.showAllKeys();
        QCoreApplication::processEvents();
        QCOMPARE(cutOff(window).join(u'|'), QString());
        for (const QToolBar *bar : window.findChildren<QToolBar *>()) {
            for (QAction *action : bar->actions())
                QVERIFY(bar->widgetForAction(action)->isVisible());
        }
    }

    void nothingIsCutOffInAMessage_data() { nothingIsCutOff_data(); }
    void nothingIsCutOffInAMessage()
    {
        QFETCH(QString, language);
        const InLanguage words(language);
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        window.resize(1024, 600);
        showReady(window);
        folder.write(u"c.conf"_s, kitchenConfiguration);
        QTRY_VERIFY(window.messages().isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(cutOff(window).join(u'|'), QString());
        ConfigFile theirs{FileName(folder.path(u"c.conf"_s))};
        MergeDialog dialog(window.settings(), theirs);
        dialog.show();
        QCoreApplication::processEvents();
        QCOMPARE(cutOff(dialog).join(u'|'), QString());
    }

    void everyAccessKeyOfAMenuIsItsOwn_data() { nothingIsCutOff_data(); }
    void everyAccessKeyOfAMenuIsItsOwn()
    {
        QFETCH(QString, language);
        const InLanguage words(language);
        const ScratchFolder folder;
        const SettingsWindow window(folder.write(u"c.conf"_s, exampleConfiguration));
        QStringList top;
        for (const QAction *menu : window.menuBar()->actions()) {
            QStringList keys;
            for (const QAction *action : menu->menu()->actions()) {
                const qsizetype mark = action->text().indexOf(u'&');
                if (mark >= 0)
                    keys += action->text().sliced(mark + 1, 1).toLower();
            }
            const qsizetype count = keys.size();
            keys.removeDuplicates();
            QVERIFY2(keys.size() == count, qPrintable(menu->text()));
            top += menu->text().sliced(menu->text().indexOf(u'&') + 1, 1).toLower();
        }
        QCOMPARE(top.removeDuplicates(), 0);
    }

    void theToolkitsButtonsSpeakTheLanguageToo()
    {
        const InLanguage words(u"it"_s);
        QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Save | QMessageBox::Cancel);
        QCOMPARE(box.button(QMessageBox::Cancel)->text().remove(u'&'), u"Annulla"_s);
    }
};

WINDOW_TEST_MAIN(WindowLayoutTest)
#include "layout_test.moc"
