#include "pdfglyphs.h"

#include "characters.h"
#include "pdfpath.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace {

constexpr double unitsOfHeight = 1000; // of a font of the file
constexpr size_t codesOfFont = 256;

QByteArray hex(size_t code)
{
    return QByteArray::number(code, 16).rightJustified(2, '0').toUpper();
}

QByteArray glyphName(const QString &text, size_t code)
{
    const bool isLetter = text.size() == 1 && text[0].unicode() < 128 && text[0].isLetter();
    return '/' + (isLetter ? text.toLatin1() : "c" + hex(code));
}

QByteArray toUnicode(const std::vector<QString> &texts)
{
    QByteArray map = "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                     "/CMapName /Text def\n/CMapType 2 def\n"
                     "1 begincodespacerange\n<00> <FF>\nendcodespacerange\n";
    constexpr size_t mostOfBlock = 100;
    for (size_t first = 0; first < texts.size(); first += mostOfBlock) {
        const size_t end = std::min(texts.size(), first + mostOfBlock);
        map += QByteArray::number(end - first) + " beginbfchar\n";
        for (size_t code = first; code < end; ++code)
            map += '<' + hex(code) + "> <" + PdfObjects::units(texts[code]) + ">\n";
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

QByteArray box(const QRectF &bounds)
{
    return PdfObjects::number(bounds.left()) + ' ' + PdfObjects::number(bounds.top()) + ' ' +
           PdfObjects::number(bounds.right()) + ' ' + PdfObjects::number(bounds.bottom());
}

} // namespace

QByteArray PdfGlyphs::show(const QString &text, const QFont &font)
{
    QByteArray operators;
    int current = -1;
    for (const QString &character : charactersOf(text)) {
        const Code code = codeOf(character, font);
        if (code.font != current)
            operators += (current < 0 ? "" : "> Tj ") + ("/F" + QByteArray::number(code.font)) + ' ' +
                         PdfObjects::number(font.pixelSize()) + " Tf <";
        operators += hex(code.character);
        current = code.font;
    }
    return current < 0 ? operators : operators + "> Tj";
}

PdfGlyphs::Code PdfGlyphs::codeOf(const QString &character, const QFont &type)
{
    const std::pair key(character, type.bold());
    if (const auto known = codes.constFind(key); known != codes.constEnd())
        return *known;
    const int font = fontWithRoom(type.bold());
    std::vector<Glyph> &glyphs = fonts[size_t(font)].glyphs;
    const Code code{font, uchar(glyphs.size())};
    glyphs.push_back(draw(character, type));
    codes.insert(key, code);
    return code;
}

int PdfGlyphs::fontWithRoom(bool isBold)
{
    const auto hasRoom = [isBold](const FileFont &font) {
        return font.isBold == isBold && font.glyphs.size() < codesOfFont;
    };
    const auto found = std::ranges::find_if(fonts, hasRoom);
    const int number = int(found - fonts.begin());
    if (found == fonts.end())
        fonts.push_back({isBold, {}});
    return number;
}

PdfGlyphs::Glyph PdfGlyphs::draw(const QString &character, const QFont &font)
{
    const double scale = unitsOfHeight / font.pixelSize();
    QPainterPath path;
    path.addText(0, 0, font, character);
    path = QTransform::fromScale(scale, -scale).map(path);
    const double column = QFontMetricsF(font).horizontalAdvance(u'0') * scale;
    return {character, box(path.boundingRect()) + " d1\n" + pdfPath(path) + "f\n",
            columnsOf(character) * column};
}

QByteArray PdfGlyphs::writeTo(PdfObjects &objects) const
{
    QByteArray names = "<<";
    for (size_t i = 0; i < fonts.size(); ++i)
        names +=
            " /F" + QByteArray::number(i) + ' ' + PdfObjects::reference(writeFont(objects, fonts[i].glyphs));
    return names + " >>";
}

int PdfGlyphs::writeFont(PdfObjects &objects, const std::vector<Glyph> &glyphs)
{
    QByteArray pictures;
    QByteArray names;
    QByteArray widths;
    std::vector<QString> texts;
    for (const Glyph &glyph : glyphs) {
        const QByteArray advance = QByteArray::number(glyph.advance, 'f', 6);
        const QByteArray name = glyphName(glyph.text, texts.size());
        const int picture = objects.addStream(advance + " 0 " + glyph.picture);
        pictures += name + ' ' + PdfObjects::reference(picture) + '\n';
        names += name + ' ';
        widths += advance + ' ';
        texts.push_back(glyph.text);
    }
    const int map = objects.addStream(toUnicode(texts));
    return objects.add(
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 0 0] /FontMatrix [0.001 0 0 0.001 0 0]\n"
        "/FirstChar 0 /LastChar " +
        QByteArray::number(glyphs.size() - 1) + " /Widths [" + widths + "]\n/CharProcs <<\n" + pictures +
        ">>\n/Encoding << /Type /Encoding /Differences [0 " + names + "] >>\n/Resources << >>\n/ToUnicode " +
        PdfObjects::reference(map) + " >>");
}
