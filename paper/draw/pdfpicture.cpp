#include "pdfpage.h"
#include "picture.h"
#include "sheet.h"

namespace {

constexpr qreal pointsOfMillimetre = 72 / 25.4;
/// No page may be longer: readers of the format need not show more.
constexpr qreal longestPage = 14'400;

/// The paper that printers take: 58 mm for up to 32 columns, else 80 mm. On it, more than 48 columns are
/// printed in smaller type.
qreal paperWidth(const Strip &strip)
{
    constexpr int columnsOfNarrowPaper = 32;
    const bool isNarrow = strip.kind == paper::StripKind::Paper && strip.columns <= columnsOfNarrowPaper;
    return (isNarrow ? 58 : 80) * pointsOfMillimetre;
}

/// How a sheet comes to its page.
class PageLayout
{
public:
    PageLayout(const Strip &strip, const Sheet &sheet)
        : content(sheet.size() + QSizeF(sheet.overhang(), 0)),
          scale(std::min(paperWidth(strip) / sheet.size().width(), longestPage / content.width()))
    {
    }
    QSizeF size() const { return content * scale; }
    qreal factor() const { return scale; }

private:
    QSizeF content;
    qreal scale;
};

qreal lengthOf(const Strip &strip, bool marks)
{
    return PageLayout(strip, *sheetOf(strip, marks)).size().height();
}

/// Shortens a strip until it fits on a page. One line does.
void shorten(Strip &strip, bool marks)
{
    for (qreal length = lengthOf(strip, marks); length > longestPage && strip.lines.size() > 1;
         length = lengthOf(strip, marks)) {
        const auto fitting = size_t(double(strip.lines.size()) * longestPage / length);
        strip.lines.resize(std::clamp<size_t>(fitting, 1, strip.lines.size() - 1));
    }
}

/// A strip that is longer than a page is torn into several.
std::vector<Strip> pagesOf(const Strip &strip, bool marks)
{
    std::vector<Strip> pages;
    auto line = strip.lines.begin();
    do {
        pages.push_back({strip.kind, strip.columns, {line, strip.lines.end()}});
        shorten(pages.back(), marks);
        line += std::ptrdiff_t(pages.back().lines.size());
    } while (line != strip.lines.end());
    return pages;
}

void addPage(PdfDocument &document, const Strip &strip, bool marks)
{
    const std::unique_ptr<Sheet> sheet = sheetOf(strip, marks);
    const PageLayout layout(strip, *sheet);
    PdfPage page(document, layout.size());
    QPainter painter(&page);
    painter.scale(layout.factor(), layout.factor());
    sheet->draw(painter);
}

} // namespace

QByteArray pdfPicture(const std::vector<Strip> &strips, const PictureOptions &options)
{
    PdfDocument document(options.title);
    for (const Strip &strip : strips) {
        for (const Strip &page : pagesOf(strip, options.marks))
            addPage(document, page, options.marks);
    }
    return document.file();
}
