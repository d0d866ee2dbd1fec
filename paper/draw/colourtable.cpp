#include "colourtable.h"

#include "colours.h"

namespace {

/// The colours from one to another, which the soft edge of one on the other has.
void addShades(QList<QRgb> &table, QColor from, QColor to, int count)
{
    const auto mix = [count](int one, int other, int step) {
        return one + (other - one) * step / (count - 1);
    };
    for (int step = 0; step < count; ++step)
        table += qRgb(mix(from.red(), to.red(), step), mix(from.green(), to.green(), step),
                      mix(from.blue(), to.blue(), step));
}

QList<QRgb> allShades()
{
    QList<QRgb> table;
    addShades(table, colours::paper, colours::ink, 16);
    addShades(table, colours::paper, colours::caption, 8);
    addShades(table, colours::table, colours::shadow, 8);
    addShades(table, colours::paper, colours::edge, 6);
    addShades(table, colours::table, colours::edge, 6);
    addShades(table, colours::paper, colours::rule, 4);
    addShades(table, colours::overPaper, colours::overInk, 12);
    addShades(table, colours::paper, colours::overInk, 6);
    addShades(table, colours::brokenPaper, colours::ink, 10);
    addShades(table, colours::brokenPaper, colours::overInk, 6);
    addShades(table, colours::paper, colours::mark, 8);
    addShades(table, colours::paper, colours::grid, 3);
    return table;
}

} // namespace

QImage withColourTable(const QImage &image)
{
    return image.convertToFormat(QImage::Format_Indexed8, allShades(), Qt::ThresholdDither);
}
