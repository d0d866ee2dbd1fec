#include "paperpane.h"

#include "configfile.h"
#include "errortext.h"
#include "icons.h"
#include "localeencoding.h"
#include "paperview.h"
#include "picture.h"
#include "pictureoutput.h"
#include "streamreader.h"
#include "stripcollector.h"
#include "stripwidths.h"
#include "usercatalogue.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 longestJob = 4 * 1024 * 1024; // bytes; nobody looks at more

QString ownJobSetting(const Page &page)
{
    return u"jobs/"_s + page.path;
}

QString resourceOf(const vocabulary::PrintMethod &method)
{
    return u":/jobs/%1.xml"_s.arg(method.name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestJob) : QByteArray();
}

} // namespace

PaperPane::PaperPane(QWidget *parent)
    : QWidget(parent), view(new PaperView), jobs(new QComboBox), zoomLabel(new QLabel), note(new QLabel)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    addTools();
    column->addWidget(view, 1);
    note->setWordWrap(true);
    note->setMargin(8);
    note->hide();
    column->addWidget(note);
    connect(&task, &PaperTask::printed, this, &PaperPane::takeStream);
    connect(&otherTask, &PaperTask::printed, this, &PaperPane::takeOther);
    connect(jobs, &QComboBox::activated, this, &PaperPane::selectJob);
    connect(view, &PaperView::zoomChanged, this, &PaperPane::showZoom);
    nameTools();
}

void PaperPane::addTools()
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    auto *choice = new QHBoxLayout;
    choice->setContentsMargins(12, 8, 12, 0);
    jobs->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    jobs->setMinimumContentsLength(12);
    choice->addWidget(jobs);
    column->addLayout(choice);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(12, 4, 12, 4);
    const auto addButton = [&](const QString &icon, const QString &name, auto action) {
        auto *button = new QToolButton;
        button->setObjectName(name);
        button->setAutoRaise(true);
        setThemedIcon(button, icon);
        connect(button, &QToolButton::clicked, this, action);
        bar->addWidget(button);
    };
    addButton(u"zoom-out"_s, u"zoomOut"_s, [this] { view->zoomBy(-1); });
    zoomLabel->setObjectName(u"zoom"_s);
    zoomLabel->setAlignment(Qt::AlignCenter);
    zoomLabel->setMinimumWidth(zoomLabel->fontMetrics().horizontalAdvance(u"400 %"_s));
    bar->addWidget(zoomLabel);
    addButton(u"zoom-in"_s, u"zoomIn"_s, [this] { view->zoomBy(1); });
    addButton(u"fit"_s, u"zoomFit"_s, [this] { view->setZoom(0); });
    bar->addStretch(1);
    addButton(u"copy"_s, u"copyText"_s, [this] { copyText(); });
    addButton(u"save"_s, u"savePicture"_s, [this] { savePicture(); });
    column->addLayout(bar);
}

void PaperPane::nameTools()
{
    const auto name = [this](const QString &button, const QString &text) {
        auto *found = findChild<QToolButton *>(button);
        found->setToolTip(text);
        found->setAccessibleName(text);
    };
    name(u"zoomOut"_s, tr("Smaller"));
    name(u"zoomIn"_s, tr("Larger"));
    name(u"zoomFit"_s, tr("Fit the paper to the window"));
    name(u"copyText"_s, tr("Copy the paper as text"));
    name(u"savePicture"_s, tr("Save the paper as a picture"));
    jobs->setAccessibleName(tr("Print job"));
    jobs->setToolTip(tr("The print job that is shown on the paper"));
}

void PaperPane::showPage(const Page &newPage)
{
    if (page == &newPage || (page && !newPage.isDocument()))
        return;
    page = newPage.isDocument() ? &newPage : &pages().front();
    listJobs();
}

void PaperPane::listJobs()
{
    const QSignalBlocker quiet(jobs);
    jobs->clear();
    for (const vocabulary::PrintMethod *method : page->methods)
        jobs->addItem(tr("Example: %1").arg(inUserLanguage(method->title.data())), resourceOf(*method));
    const QString own = QSettings().value(ownJobSetting(*page)).toString();
    if (!own.isEmpty() && QFile::exists(own)) {
        jobs->addItem(QFileInfo(own).fileName(), own);
        jobs->setCurrentIndex(jobs->count() - 1);
    }
    jobs->addItem(tr("A job of your own\u2026"));
    job = contentOf(jobs->currentData().toString());
    printAgain();
}

void PaperPane::selectJob(int row)
{
    if (row == jobs->count() - 1) {
        chooseJob();
        return;
    }
    const QString path = jobs->itemData(row).toString();
    if (path.startsWith(u':'))
        QSettings().remove(ownJobSetting(*page));
    job = contentOf(path);
    printAgain();
}

void PaperPane::chooseJob()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("A job of your own"), QString(),
                                                      tr("Print jobs (*.xml);;All files (*)"));
    if (!path.isEmpty())
        QSettings().setValue(ownJobSetting(*page), path);
    listJobs();
}

void PaperPane::print(const QByteArray &newConfiguration, const QByteArray &newOtherwise)
{
    if (newConfiguration == configuration && newOtherwise == otherwise)
        return;
    const bool isSamePaper = newConfiguration == configuration;
    configuration = newConfiguration;
    otherwise = newOtherwise;
    if (!isSamePaper)
        task.print(configuration, job);
    if (otherwise.isEmpty())
        view->highlight({});
    else
        otherTask.print(otherwise, job);
}

void PaperPane::printAgain()
{
    task.print(configuration, job);
    if (!otherwise.isEmpty())
        otherTask.print(otherwise, job);
}

QList<int> PaperPane::columns() const
{
    libconfig::Config config;
    config.readContent(configuration, QString(), form::text);
    const int width = config.lookup(page->path + "paperWidth"_L1).toInt();
    return {std::clamp(width, paper::StripWidths::least, paper::StripWidths::most)};
}

std::vector<Strip> PaperPane::stripsOf(const QByteArray &stream) const
{
    StripCollector collector(columns());
    paper::StreamReader reader(LocaleEncoding().name(), collector, [](const paper::Fault &) {});
    reader.read(stream);
    reader.finish();
    return collector.strips();
}

void PaperPane::takeStream(const QByteArray &stream, const QString &said)
{
    try {
        view->showStrips(stripsOf(stream));
        if (view->strips().empty())
            view->showMessage(said.isEmpty() ? tr("The job prints nothing.") : said);
    } catch (const CommandError &error) { // more than a picture holds
        view->showMessage(errorText(error));
    }
    note->setText(said);
    note->setVisible(!said.isEmpty() && !view->strips().empty());
    highlight();
    view->viewport()->repaint();
    Q_EMIT painted();
}

void PaperPane::takeOther(const QByteArray &stream)
{
    otherStream = stream;
    highlight();
}

/// When both papers are there.
void PaperPane::highlight()
{
    std::set<LinePlace> rows;
    try {
        if (!otherwise.isEmpty() && !task.isRunning() && !otherTask.isRunning())
            rows = rowsMissingIn(stripsOf(otherStream), view->strips());
    } catch (const CommandError &) { // more than anybody looks at
    }
    view->highlight(rows);
}

void PaperPane::showZoom()
{
    zoomLabel->setText(tr("%1%").arg(view->zoom()));
}

void PaperPane::copyText()
{
    QGuiApplication::clipboard()->setText(textOf(view->strips()));
}

void PaperPane::savePicture()
{
    QFileDialog dialog(this, tr("Save the paper as a picture"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("PNG picture (*.png)"), tr("PDF document (*.pdf)")});
    const auto followFilter = [&dialog] { // who names no suffix means the one that is chosen
        dialog.setDefaultSuffix(dialog.nameFilters().indexOf(dialog.selectedNameFilter()) == 0 ? u"png"_s
                                                                                               : u"pdf"_s);
    };
    followFilter();
    connect(&dialog, &QFileDialog::filterSelected, this, followFilter);
    if (dialog.exec() == QDialog::Accepted)
        writePictureTo(dialog.selectedFiles().constFirst());
}

void PaperPane::writePictureTo(const QString &path)
{
    try {
        const PictureOptions options{2, false, page->title()};
        const bool isPdf = path.endsWith(u".pdf"_s, Qt::CaseInsensitive);
        writePicture(path, isPdf ? pdfPicture(view->strips(), options) : pngPicture(view->strips(), options));
    } catch (const CommandError &error) {
        QMessageBox::critical(this, tr("Not saved"), errorText(error));
    }
}
