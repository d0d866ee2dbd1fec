#pragma once

#include "pages.h"
#include "papertask.h"

#include <QSettings>
#include <QWidget>

class PaperView;
class QComboBox;
class QLabel;
struct Strip;

/// The right side of the window: the paper of a document, printed by the real program from an example job or
/// one of the user's own, and what can be done with it.
class PaperPane : public QWidget
{
    Q_OBJECT

public:
    explicit PaperPane(QWidget *parent = nullptr);

    /// Shows the paper of another page; keeps what it shows when the page has none.
    void showPage(const Page &page);
    /// The configuration to print under, and the same with another value of the current setting: rows that
    /// the two do not share are highlighted. Empty for no highlight.
    void print(const QByteArray &configuration, const QByteArray &otherwise);

    PaperView &paper() { return *view; }
    /// Whether the paper is that of the last call of `print`.
    bool isUpToDate() const { return !task.isRunning(); }

    void chooseJob();
    void copyText();
    void savePicture();

Q_SIGNALS:
    /// The paper is that of the last call of `print`.
    void painted();

private:
    void addTools();
    void nameTools();
    void listJobs();
    void selectJob(int row);
    void printAgain();
    void writePictureTo(const QString &path);
    void takeStream(const QByteArray &stream, const QString &said);
    void takeOther(const QByteArray &stream);
    void highlight();
    std::vector<Strip> stripsOf(const QByteArray &stream) const;
    QList<int> columns() const;
    void showZoom();

    const Page *page = nullptr;
    QByteArray configuration;
    QByteArray otherwise;
    QByteArray otherStream; ///< what it prints
    QByteArray job;
    PaperTask task;
    PaperTask otherTask;
    PaperView *view;
    QComboBox *jobs;
    QLabel *zoomLabel;
    QLabel *note;
};
