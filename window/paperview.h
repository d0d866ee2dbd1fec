#pragma once

#include "rowdifference.h"
#include "sheet.h"

#include <QAbstractScrollArea>

#include <memory>

/// Shows strips as they lie on a desk: paper, and what goes to a cash register. Rows can be highlighted. The
/// text of the paper is what assistive technology reads.
class PaperView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr int leastZoom = 25; ///< per cent of a column of ten pixels
    static constexpr int mostZoom = 400;

    explicit PaperView(QWidget *parent = nullptr);

    void showStrips(std::vector<Strip> newStrips);
    /// Shows a sentence on the desk instead of paper.
    void showMessage(const QString &text);
    const std::vector<Strip> &strips() const { return shown; }

    void highlight(const std::set<LinePlace> &rows);
    const std::set<LinePlace> &highlighted() const { return marked; }

    /// In per cent; 0 fits the paper's width to the view.
    void setZoom(int percent);
    int zoom() const;
    void zoomBy(int steps);

    QSize sizeHint() const override;

Q_SIGNALS:
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    struct Place
    {
        std::unique_ptr<Sheet> sheet;
        QPointF corner; ///< in the unit of the type
    };

    void layOut();
    void updateScrollBars();
    qreal scale() const;
    QPointF origin() const;
    void drawPlace(QPainter &painter, size_t strip) const;
    void scrollToHighlight();

    std::vector<Strip> shown;
    std::vector<Place> places;
    QSizeF deskSize;
    std::set<LinePlace> marked;
    QString message;
    int chosenZoom = 0;
};
