#pragma once

#include <QByteArray>
#include <QStringView>

#include <ostream>
#include <string>
#include <string_view>

class QTextCodec;

namespace paper {

/// What a terminal can show.
struct Screen
{
    QByteArray encoding = "UTF-8"; ///< an unknown one counts as ASCII
    int columns = 0;               ///< 0 when nobody knows, or a file takes the lines
    bool hasColors = false;        ///< takes the escape sequences of ECMA-48
};

/// Writes lines to a terminal: characters in its encoding, and how they look where it has colours.
class TerminalWriter
{
public:
    /// `output` must outlive this.
    TerminalWriter(std::ostream &output, const Screen &screen);

    bool isUnicode() const { return isUtf8; }

    /// A character of `columns` columns; what the encoding lacks becomes as many '?'.
    void put(char32_t character, int columns = 1);
    void put(QStringView text);
    void fill(char32_t character, int count);
    /// What follows looks so, until the end of the line: parameters of the escape sequence SGR, each behind a
    /// semicolon, such as ";1;31"; "" for plain.
    void look(std::string_view parameters);
    void endLine();

private:
    std::ostream &out;
    QTextCodec *codec; ///< owned by the toolkit
    bool isUtf8;
    bool hasColors;
    std::string current; ///< how the last character looks
    std::string line;    ///< keeps its memory from line to line
};

} // namespace paper
