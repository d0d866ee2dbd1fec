#pragma once

#include "sheet.h"

#include <memory>
#include <vector>

/// The sheets of a picture, one below the other, as they lie on a table.
class Table
{
public:
    /// `strips` must outlive it.
    Table(const std::vector<Strip> &strips, bool marks);

    /// Of the whole picture, in the unit of the type.
    QSizeF size() const { return tableSize; }
    void draw(QPainter &painter) const;

private:
    struct Place
    {
        std::unique_ptr<Sheet> sheet;
        QPointF corner;
    };

    static void drawShadow(QPainter &painter, const QRectF &sheet);

    std::vector<Place> places;
    QSizeF tableSize;
};
