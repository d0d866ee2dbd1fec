#include "characters.h"

#include "paper.h"

char32_t shown(char32_t character)
{
    constexpr char32_t newLineSymbol = 0x2424;
    if (character == QChar::SoftHyphen)
        return U'-'; // as it is printed; on a screen it would vanish
    if (character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
        return newLineSymbol;
    const bool isNone = QChar::isNonCharacter(character) || character > QChar::LastValidCodePoint;
    return isNone ? char32_t(QChar::ReplacementCharacter) : character;
}

QStringList charactersOf(const QString &text)
{
    QStringList characters;
    for (const char32_t character : text.toStdU32String()) {
        const QString piece = QString::fromUcs4(&character, 1);
        const bool isMark = paper::columnsOf(character) == 0;
        if (characters.isEmpty() || (!isMark && columnsOf(characters.back()) > 0))
            characters += piece;
        else
            characters.back() += piece; // or marks that have nothing else to stand over
    }
    return characters;
}

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const char32_t character : text.toStdU32String())
        columns += paper::columnsOf(character);
    return columns;
}
