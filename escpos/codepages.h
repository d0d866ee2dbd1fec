#pragma once

#include <QLatin1StringView>

#include <span>
#include <string_view>

/// What a printer prints for the bytes from 80 to FF. Below them every code page is ASCII.
struct CodePage
{
    static constexpr int firstHigh = 0x80;
    static constexpr char16_t lastPlain = 0x7E;
    static constexpr char16_t noCharacter = 0xFFFD; ///< stands in a page for a byte that prints nothing

    int number; ///< by which the printer knows it
    QLatin1StringView name;
    std::u16string_view high; ///< the 128 characters

    /// `noCharacter` when the byte prints nothing. Bytes below 80 are given back as they are.
    char16_t characterOf(unsigned char byte) const;
    /// -1 when the page has no such character. Not for control characters.
    int byteOf(char16_t character) const;
};

/// What a printer prints in one country for the twelve ASCII characters that others may do without.
struct InternationalSet
{
    static constexpr std::u16string_view replaced = u"#$@[\\]^`{|}~";

    QLatin1StringView name;
    std::u16string_view characters; ///< in the order of `replaced`
};

/// Every code page that a profile may name.
std::span<const CodePage> codePages();
/// Null when there is none of that number.
const CodePage *findCodePage(int number);
/// By its number. Null when there is none.
const InternationalSet *findInternationalSet(int number);

/// What a printer prints for a byte, as it has been told to; at first as if it had just been initialised.
struct CharacterTable
{
    const CodePage *page = findCodePage(0);
    const InternationalSet *set = findInternationalSet(0);

    /// `CodePage::noCharacter` when the byte prints nothing. Not for control characters.
    char16_t characterOf(unsigned char byte) const;
};
