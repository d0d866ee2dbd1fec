#pragma once

#include "paper.h"

#include <ostream>
#include <string>

namespace paper {

/// Adds a character in UTF-8.
void appendUtf8(std::string &bytes, char32_t character);

/// Writes the rows of the paper and nothing else: one a line, in UTF-8, trailing blanks kept, register
/// commands as they are sent. Strips are separated by a line that holds a form feed (U+000C) alone. No row
/// can be taken for one, because no cell holds a control character.
class TextPainter : public Painter
{
public:
    /// `output` must outlive this. Whether it took everything is for its owner to ask.
    explicit TextPainter(std::ostream &output) : out(output) {}

    void beginStrip(StripKind kind) override;
    void row(const Row &row) override;
    void event(Event) override {}
    void remark(const QString &) override {}
    void endStrip() override {}

private:
    std::ostream &out;
    std::string line; ///< keeps its memory from row to row
    bool isFirst = true;
};

} // namespace paper
