#pragma once

#include "sheet.h"
#include "typeface.h"

/// What goes to a cash register: no paper, but a list of commands with their meaning beside them, and the
/// remarks below, such as the sum.
class RegisterSheet : public Sheet
{
public:
    /// Blank columns at the left and at the right.
    static constexpr int margin = 2;
    /// From the top of a command to the top of the next one, in the unit of the type.
    static constexpr qreal pitch = 1.2 * typeface::rowHeight;
    /// The upper left corner of the first command.
    static QPointF firstRow();

    explicit RegisterSheet(const Strip &toDraw);

    QSizeF size() const override { return cardSize; }
    QPainterPath outline() const override;
    std::vector<QRectF> lineBoxes() const override;
    void draw(QPainter &painter) const override;

private:
    struct Command
    {
        const paper::Row *row;
        QPainterPath meaning;
    };

    void measure();
    void drawCommand(QPainter &painter, const Command &command, qreal top) const;
    void drawRule(QPainter &painter, qreal top, qreal thickness, QColor colour) const;

    const Strip &strip;
    std::vector<Command> commands;
    QPainterPath remarks;
    qreal meaningLeft = 0;
    QSizeF cardSize;
};
