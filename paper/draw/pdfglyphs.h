#pragma once

#include "pdfobjects.h"

#include <QFont>
#include <QHash>
#include <QString>

#include <vector>

/// The pictures of the characters in a PDF file: each is drawn once, as an outline, and carries its text.
///
/// The toolkit's own writer goes from a picture back to the first character that looks so: a soft hyphen
/// becomes a hyphen, and what the font lacks, or what stands outside the basic plane, nothing at all. Here a
/// character keeps its own picture, so that the text that is taken out of the file is the one that was put
/// in.
class PdfGlyphs
{
public:
    /// The operators that show a text in that font, between BT and ET. Every character takes its columns.
    QByteArray show(const QString &text, const QFont &font);
    /// Adds the fonts to the file; the dictionary in which the operators find them.
    QByteArray writeTo(PdfObjects &objects) const;

private:
    /// A font of the file, and a character of it.
    struct Code
    {
        int font = 0;
        uchar character = 0;
    };
    struct Glyph
    {
        QString text;
        QByteArray picture; ///< bounding box and outline, in thousandths of the font's height
        double advance;
    };

    Code codeOf(const QString &character, const QFont &font);
    static Glyph draw(const QString &character, const QFont &font);

    /// A font of the file: as many characters of one weight as a code has values. A program that finds no
    /// size for the type of such a font guesses it from the width of the letter m, so letters have their
    /// names.
    struct FileFont
    {
        bool isBold;
        std::vector<Glyph> glyphs;
    };

    int fontWithRoom(bool isBold);
    static int writeFont(PdfObjects &objects, const std::vector<Glyph> &glyphs);

    QHash<std::pair<QString, bool>, Code> codes; ///< by character, and whether it is bold
    std::vector<FileFont> fonts;
};
