#pragma once

#include "profiles.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <vector>

/// The characters that a printer could not print, and how often each was asked for.
struct LostCharacters
{
    /// No more different ones than this are told apart, so that a hostile job takes no memory.
    static constexpr qsizetype maxDifferent = 1000;

    void add(char32_t character);
    bool isEmpty() const { return counts.isEmpty(); }
    bool operator==(const LostCharacters &) const = default;

    QMap<char32_t, qint64> counts;
    qint64 others = 0; ///< of all the characters beyond `maxDifferent`
};

/// How a text is printed with the code pages of one printer.
class Letters
{
public:
    /// One printed character: a byte, and the number of the code page in which it is what it is.
    struct Letter
    {
        int page;
        char byte;

        bool operator==(const Letter &) const = default;
    };

    explicit Letters(const Profile &profile);

    /// What is printed for `text`: characters of the printer's code pages, one to a column. Control
    /// characters are taken out, here and nowhere else: no text commands the printer. A character that no
    /// page has prints as what the toolkit decomposes it into ("e" for a missing "è"), else as "?", and is
    /// added to `lost`; one that is two columns wide stays so. What comes out goes in again unchanged.
    QString printable(const QString &text, LostCharacters &lost) const;

    /// The bytes of a row of printable characters, with as few changes of the code page as can be, beginning
    /// in the page `current`.
    std::vector<Letter> spell(QStringView row, int current) const;

private:
    QString formOf(char32_t character, LostCharacters &lost) const;
    QString transliterated(char32_t character) const;
    unsigned pagesWith(char16_t character) const;
    void append(std::vector<Letter> &letters, QStringView run, unsigned possible) const;

    std::span<const int> codePages;
    QHash<char16_t, unsigned> pages; ///< that have a character beyond ASCII: a bit for each of `codePages`
};
