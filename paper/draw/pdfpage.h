#pragma once

#include "pdfdocument.h"

#include <QPaintDevice>

#include <memory>

/// A page of a PDF document, for a painter to draw on: paths that are filled or stroked in plain colours, and
/// text in the type of the pictures. Its unit is the point, and its origin the upper left corner. It joins
/// the document, which must outlive it, when the painter ends.
class PdfPage : public QPaintDevice
{
public:
    /// `size` in points.
    PdfPage(PdfDocument &document, QSizeF size);
    ~PdfPage() override;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric what) const override;

private:
    class Engine;

    QSizeF pageSize;
    std::unique_ptr<Engine> engine;
};
