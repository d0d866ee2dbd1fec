#include "missingcharacters.h"

#include "characters.h"
#include "typeface.h"

#include <QSet>

namespace {

/// Looks each character up once.
class Search
{
public:
    void look(const paper::Row &row)
    {
        for (const paper::Cell &cell : row.cells)
            look(shown(cell.character));
    }
    QStringList found() const { return missing; }

private:
    void look(char32_t character)
    {
        if (typeface::isPlain(character) || isSymbolOfControl(character) || seen.contains(character))
            return;
        seen.insert(character);
        const QString text = QString::fromUcs4(&character, 1);
        if (typeface::isMissing(text))
            missing += text;
    }

    /// A fault of the stream, and told as one.
    static bool isSymbolOfControl(char32_t character) { return character >= 0x2400 && character <= 0x2424; }

    QSet<char32_t> seen;
    QStringList missing;
};

} // namespace

QStringList missingCharacters(const std::vector<Strip> &strips)
{
    Search search;
    for (const Strip &strip : strips) {
        for (const Strip::Line &line : strip.lines) {
            if (const auto *row = std::get_if<paper::Row>(&line))
                search.look(*row);
        }
    }
    return search.found();
}
