#include "letters.h"

#include "codepages.h"
#include "paper.h"

#include <algorithm>
#include <bit>

namespace {

constexpr char16_t firstCombining = 0x300; ///< below it nothing is composed of two characters

bool isPlain(QChar character)
{
    return character.unicode() >= u' ' && character.unicode() <= CodePage::lastPlain;
}

/// What has no place on paper: control characters, invisible formatting, ends of lines and paragraphs.
bool isUnprintable(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

bool isAccent(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

QString composed(const QString &text)
{
    const bool hasParts =
        std::any_of(text.begin(), text.end(), [](QChar each) { return each.unicode() >= firstCombining; });
    return hasParts ? text.normalized(QString::NormalizationForm_C) : text;
}

constexpr unsigned everyPage = ~0U;

} // namespace

void LostCharacters::add(char32_t character)
{
    if (counts.contains(character) || counts.size() < maxDifferent)
        ++counts[character];
    else
        ++others;
}

Letters::Letters(const Profile &profile) : codePages(profile.codePages)
{
    for (std::size_t i = 0; i < codePages.size(); ++i) {
        for (const char16_t character : findCodePage(codePages[i])->high)
            pages[character] |= 1U << i;
    }
    pages.remove(CodePage::noCharacter);
}

QString Letters::printable(const QString &text, LostCharacters &lost) const
{
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QString visible = text;
    visible.removeIf(
        [](QChar each) { return isUnprintable(each.unicode()); }); // first: they may part accents
    QString result;
    for (const char32_t character : composed(visible).toUcs4())
        result += formOf(character, lost);
    return result;
}

QString Letters::formOf(char32_t character, LostCharacters &lost) const
{
    if (isUnprintable(character))
        return {};
    if (character <= 0xFFFF && pagesWith(char16_t(character)))
        return QChar(char16_t(character));
    if (isAccent(character))
        return {}; // the letter under it is there, and read without it
    const int columns = std::max(1, paper::columnsOf(character));
    const QString letters = transliterated(character);
    if (!letters.isEmpty())
        return letters.leftJustified(columns, u' ');
    lost.add(character);
    return QString(columns, u'?');
}

/// "" when a part of what the character is decomposed into cannot be printed either.
QString Letters::transliterated(char32_t character) const
{
    QString result;
    for (const char32_t part : QChar::decomposition(character).toUcs4()) {
        if (isAccent(part) || isUnprintable(part))
            continue;
        const bool isThere = part <= 0xFFFF && pagesWith(char16_t(part));
        const QString letters = isThere ? QString(QChar(char16_t(part))) : transliterated(part);
        if (letters.isEmpty())
            return {};
        result += letters;
    }
    return result;
}

/// A bit for each place in the profile's list of pages.
unsigned Letters::pagesWith(char16_t character) const
{
    return isPlain(character) ? everyPage : pages.value(character);
}

std::vector<Letters::Letter> Letters::spell(QStringView row, int current) const
{
    // Staying in a page, or in one of several that are still possible, for as long as it has the letters:
    // no other choice of pages gets further with as few changes.
    const auto place = std::find(codePages.begin(), codePages.end(), current) - codePages.begin();
    unsigned possible = 1U << place;
    std::vector<Letter> letters;
    letters.reserve(row.size());
    qsizetype start = 0;
    for (qsizetype i = 0; i < row.size(); ++i) {
        const unsigned having = pagesWith(row[i].unicode());
        if (!(possible & having)) {
            append(letters, row.sliced(start, i - start), possible);
            start = i;
            possible = everyPage;
        }
        possible &= having;
    }
    append(letters, row.sliced(start), possible);
    return letters;
}

/// A run of letters that all stand in each of the `possible` pages.
void Letters::append(std::vector<Letter> &letters, QStringView run, unsigned possible) const
{
    if (run.isEmpty())
        return;
    const CodePage &page = *findCodePage(codePages[std::countr_zero(possible)]);
    for (const QChar character : run)
        letters.push_back({page.number, char(page.byteOf(character.unicode()))});
}
