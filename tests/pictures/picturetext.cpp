#include "picturetext.h"

#include "characters.h"
#include "papersheet.h"
#include "registersheet.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the rows of a strip are, in some unit.
struct Place
{
    QPointF start; ///< the left end of the first row's baseline
    qreal column;
    qreal row;
};

/// In the unit of the type.
Place placeOf(const Strip &strip)
{
    const bool isPaper = strip.kind == paper::StripKind::Paper;
    const QPointF corner = isPaper ? PaperSheet::firstRow(false) : RegisterSheet::firstRow();
    return {corner + QPointF(0, typeface::baseline), typeface::cellWidth,
            isPaper ? typeface::rowHeight : RegisterSheet::pitch};
}

constexpr qreal tolerance = 0.1; ///< of rows and columns

/// A whole number near `value`; -1 when there is none.
int whole(qreal value)
{
    const qreal nearest = std::round(value);
    return std::abs(value - nearest) < tolerance ? int(nearest) : -1;
}

QStringList columnsIn(const QString &text)
{
    QStringList columns;
    for (const QString &character : charactersOf(text)) {
        columns += character;
        for (int second = 1; second < columnsOf(character); ++second)
            columns += QString();
    }
    return columns;
}

/// A blank of any kind, whatever stands over it, is a blank; a mark over it is told with the character
/// behind.
QString asWordsTell(QString character)
{
    while (character.size() > 1 && columnsOf(character.first(1)) == 0)
        character.remove(0, 1);
    const bool isBlank = !character.isEmpty() && character.at(0).isSpace();
    return isBlank ? u" "_s : character;
}

/// Puts text on its place.
class GridWriter
{
public:
    explicit GridWriter(const Place &of) : place(of) {}

    void write(QPointF baseline, const QString &text)
    {
        const int row = whole((baseline.y() - place.start.y()) / place.row);
        const qreal column = (baseline.x() - place.start.x()) / place.column;
        if (columnsOf(text) == 0)
            addMarks(row, column, text);
        else if (row < 0 || whole(column) < 0)
            errors += u"\"%1\" at %2, %3"_s.arg(text).arg(baseline.x()).arg(baseline.y());
        else
            pieces.push_back({row, whole(column), text});
    }
    Grid grid()
    {
        std::ranges::sort(pieces, {}, [](const Piece &piece) { return std::pair(piece.row, piece.column); });
        for (const Piece &piece : pieces)
            put(piece);
        return errors.isEmpty() ? rows : Grid{errors};
    }

private:
    struct Piece
    {
        int row;
        int column;
        QString text;
    };

    /// Marks that are told by themselves belong to the character over which they stand; over none, they
    /// belong to a blank.
    void addMarks(int row, qreal column, const QString &text)
    {
        const auto isUnder = [row, column](const Piece &piece) {
            return piece.row == row && piece.column < column &&
                   column <= piece.column + columnsOf(piece.text) + tolerance;
        };
        const auto base = std::ranges::find_if(pieces, isUnder);
        if (base != pieces.end())
            base->text += text;
    }
    void put(const Piece &piece)
    {
        rows.resize(std::max(rows.size(), size_t(piece.row) + 1));
        QStringList &columns = rows.back();
        if (columns.size() > piece.column)
            errors += u"\"%1\" stands on something else"_s.arg(piece.text);
        while (columns.size() < piece.column)
            columns += u" "_s;
        columns += columnsIn(piece.text);
    }

    Place place;
    std::vector<Piece> pieces;
    Grid rows;
    QStringList errors;
};

QByteArray wordsIn(const QByteArray &pdf)
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s});
    process.write(pdf);
    process.closeWriteChannel();
    process.waitForFinished(-1);
    return process.readAllStandardOutput();
}

/// A paper as wide as the page, unless something runs over its edge.
qreal scaleOf(const Strip &strip, qreal pageWidth)
{
    constexpr qreal narrow = 58 / 25.4 * 72;
    constexpr qreal wide = 80 / 25.4 * 72;
    if (strip.kind == paper::StripKind::Register)
        return pageWidth / sheetOf(strip, false)->size().width();
    const qreal paper = (strip.columns + 4) * typeface::cellWidth;
    return (strip.columns <= 32 ? narrow : wide) / paper;
}

/// Reads what pdftotext tells.
class WordReader
{
public:
    WordReader(const QByteArray &words, const std::vector<Strip> &all) : xml(words), strips(all) {}

    std::vector<Grid> read()
    {
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == "page"_L1)
                beginPage();
            else if (xml.isStartElement() && xml.name() == "word"_L1)
                readWord();
        }
        endPage();
        return grids;
    }

private:
    qreal number(const char *name) const
    {
        return xml.attributes().value(QLatin1StringView(name)).toDouble();
    }
    void beginPage()
    {
        endPage();
        const Strip &strip = strips.at(grids.size());
        const qreal scale = scaleOf(strip, number("width"));
        Place place = placeOf(strip);
        place = {place.start * scale, place.column * scale, place.row * scale};
        page.emplace(place);
    }
    void endPage()
    {
        if (page)
            grids.push_back(page->grid());
    }
    void readWord()
    {
        // The program knows no height of such type. It takes 0.95 above and 0.35 below the baseline.
        const qreal top = number("yMin");
        const QPointF baseline(number("xMin"), top + (number("yMax") - top) * 0.95 / 1.3);
        page->write(baseline, xml.readElementText());
    }

    QXmlStreamReader xml;
    const std::vector<Strip> &strips;
    std::optional<GridWriter> page;
    std::vector<Grid> grids;
};

} // namespace

QStringList gridRow(const paper::Row &row)
{
    QString text;
    for (const paper::Cell &cell : row.cells) {
        const char32_t character = shown(cell.character);
        text += QString::fromUcs4(&character, 1);
    }
    return columnsIn(text);
}

std::vector<Grid> gridsInPdf(const QByteArray &pdf, const std::vector<Strip> &strips)
{
    return WordReader(wordsIn(pdf), strips).read();
}

Grid gridInSvg(const QByteArray &svg, const Strip &strip)
{
    GridWriter writer(placeOf(strip)); // places in an SVG count from the corner of the paper
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement() || xml.name() != "text"_L1)
            continue;
        const QPointF start(xml.attributes().value("x"_L1).toDouble(),
                            xml.attributes().value("y"_L1).toDouble());
        writer.write(start, xml.readElementText());
    }
    return xml.hasError() ? Grid{{xml.errorString()}} : writer.grid();
}

Grid asWordsTell(const Grid &grid)
{
    Grid result;
    for (QStringList row : grid) {
        for (QString &character : row)
            character = asWordsTell(character);
        while (!row.isEmpty() && row.back() == " "_L1)
            row.pop_back();
        result.push_back(row);
    }
    while (!result.empty() && result.back().isEmpty())
        result.pop_back();
    return result;
}
