#include "help.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

class Help
{
    Q_DECLARE_TR_FUNCTIONS(Help)
};

QString paragraph(const QString &title, const QString &text)
{
    return u"<h3>%1</h3><p>%2</p>"_s.arg(title, text);
}

/// The keys of all menus, as a table: a menu that gets another key tells it here, too.
QString keysOf(QWidget &window)
{
    QString rows;
    const auto *main = qobject_cast<QMainWindow *>(&window);
    for (const QAction *menu : main->menuBar()->actions()) {
        for (const QAction *action : menu->menu()->actions()) {
            if (!action->shortcut().isEmpty())
                rows += u"<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>"_s.arg(
                    action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                    QString(action->text()).remove(u'&').remove(u'\u2026').toHtmlEscaped());
        }
    }
    return u"<table>%1</table>"_s.arg(rows);
}

QString helpText(QWidget &window)
{
    return paragraph(Help::tr("Set up a paper"),
                     Help::tr("Choose a document on the left. Its settings are in the middle, its paper is "
                              "on the right, "
                              "printed by the real program. Every change shows there at once.")) +
           paragraph(
               Help::tr("See what a setting does"),
               Help::tr("Go to a field: its meaning is explained below, and the rows that it concerns are "
                        "marked on the "
                        "paper. What runs over the edge is red.")) +
           paragraph(Help::tr("Nothing is lost"), Help::tr("Nothing is written before you save. Undo takes "
                                                           "back every step, and the file as it was stays "
                                                           "beside the new one.")) +
           paragraph(Help::tr("Shortcuts"), keysOf(window));
}

} // namespace

void showHelp(QWidget &window)
{
    auto *dialog = new QDialog(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Help::tr("How it works"));
    auto *text = new QTextBrowser;
    text->setAccessibleName(Help::tr("How it works"));
    text->setHtml(helpText(window));
    text->setFrameShape(QFrame::NoFrame);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(text, 1);
    column->addWidget(buttons);
    dialog->resize(520, 560);
    dialog->show();
}
