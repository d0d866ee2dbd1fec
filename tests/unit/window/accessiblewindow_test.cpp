// Who cannot see the window hears what is in it, and who has no mouse reaches it.

#include "pages.h"
#include "paperpane.h"
#include "paperview.h"
#include "settingfield.h"
#include "settingsform.h"
#include "windowfixture.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Everything that takes the keyboard, and has no name.
void collectNameless(QAccessibleInterface *at, QStringList &nameless)
{
    if (!at || at->state().invisible)
        return;
    const bool isPart = at->role() == QAccessible::ListItem || at->role() == QAccessible::Cell ||
                        at->role() == QAccessible::TreeItem || at->role() == QAccessible::ColumnHeader;
    if (at->state().focusable && !isPart && at->text(QAccessible::Name).isEmpty())
        nameless += QString::fromLatin1(at->object() ? at->object()->metaObject()->className() : "?");
    for (int child = 0; child < at->childCount() && !isPart; ++child)
        collectNameless(at->child(child), nameless);
}

QString namelessIn(SettingsWindow &window)
{
    QStringList nameless;
    collectNameless(QAccessible::queryAccessibleInterface(&window), nameless);
    return nameless.join(u' ');
}

/// What is heard for the name: the label beside it for a list of choices, whose own name is what is chosen.
QString heardName(QAccessibleInterface *of)
{
    const auto labels = of->relations(QAccessible::Label);
    return of->role() == QAccessible::ComboBox && !labels.isEmpty()
               ? labels.front().first->text(QAccessible::Name)
               : of->text(QAccessible::Name);
}

} // namespace

class AccessibleWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatTakesTheKeyboardHasAName()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        for (const Page &page : pages()) {
            window.showPage(page);
            QCOMPARE(page.title() + namelessIn(window), page.title());
        }
        window.showAllKeys();
        QCOMPARE(namelessIn(window), QString());
        window.findChild<QLineEdit *>(u"search"_s)->setText(u"paper"_s);
        QCOMPARE(namelessIn(window), QString());
    }

    void theFirstPageIsHeard()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.path(u"none.conf"_s));
        showReady(window);
        QCOMPARE(namelessIn(window), QString());
        const auto *focused = QApplication::focusWidget();
        QCOMPARE(focused->accessibleDescription(), u"48 characters on a line"_s);
    }

    void everyFieldHasANameAndADescription()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        for (const Page &page : pages()) {
            window.showPage(page);
            QVERIFY(!window.form()->fields().isEmpty());
            for (SettingField *field : window.form()->fields()) {
                QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(field->focus());
                QCOMPARE(heardName(heard), humanName(field->key().name));
                QCOMPARE(heard->text(QAccessible::Description), asSentence(field->key().meaning));
            }
        }
    }

    void anErrorIsHeardWithItsField()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QWidget *line = fieldOf(window, u"palvestrin.db.dbname"_s)->focus();
        typeInto(line, u"a;b"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(line)->text(QAccessible::Description),
                 u"A value cannot hold ';'; leave it out\nDatabase name"_s);
    }

    void thePaperIsHeard()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        QAccessibleInterface *paper = QAccessible::queryAccessibleInterface(&window.paperPane().paper());
        QCOMPARE(paper->text(QAccessible::Name), u"Paper"_s);
        QVERIFY(paper->text(QAccessible::Description).contains(u"Tagliatelle al rag\u00f9"_s));
    }

    void theTabKeyReachesEveryFieldOfAPage()
    {
        const ScratchFolder folder;
        SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
        showReady(window);
        window.showPage(pages().front());
        QSet<QString> reached;
        for (int step = 0; step < 120; ++step) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, Qt::Key_Tab);
            for (const QWidget *at = QApplication::focusWidget(); at; at = at->parentWidget()) {
                if (qobject_cast<const SettingField *>(at))
                    reached += at->objectName();
            }
        }
        for (SettingField *field : window.form()->fields())
            QVERIFY2(!field->isVisible() || reached.contains(field->objectName()),
                     qPrintable(field->objectName()));
    }
};

WINDOW_TEST_MAIN(AccessibleWindowTest)
#include "accessiblewindow_test.moc"
