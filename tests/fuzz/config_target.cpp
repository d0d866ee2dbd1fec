// The configuration reader and its look-up.
//
// An input is the form of the file ('x' for XML, any other byte for text), a key up to the end of that line,
// and the file.

#include "libconfig.h"
#include "target.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace {

/// Keys of the application, so that an input need not guess a whole path to find something.
const QStringList commonKeys = {u"palvestrin.language.file"_s,
                                u"palvestrin.doc.paperWidth"_s,
                                u"palvestrin.a"_s,
                                u"palvestrin.a.b.c"_s,
                                u"palvestrin"_s,
                                u"palvestrin."_s,
                                u"..."_s,
                                QString()};

QStringList answers(const Config &config, const QString &key)
{
    QStringList values;
    for (const QString &asked : commonKeys + QStringList(key))
        values.append(config.lookup(asked));
    return values;
}

/// What no file in the text form can put into a value.
void checkTextValue(const QString &value)
{
    require(value.size() <= libconfig::maxTextLength, "a value is cut to its limit");
    require(!value.contains(u';') && !value.contains(u'"'), "a value holds neither ';' nor '\"'");
    require(std::all_of(value.begin(), value.end(), [](QChar c) { return c.unicode() <= 0xff; }),
            "a byte of the file is one character");
}

/// Puts the bytes of a file together again.
class Collector : public libconfig::TokenListener
{
public:
    void token(const libconfig::Token &token) override { bytes += token.bytes.toByteArray(); }
    QByteArray bytes;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return notForTheCorpus;
    const CapturedOutput messages;
    const auto input = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString type = input[0] == 'x' ? u"xml"_s : u"cfg"_s;
    const qsizetype lineEnd = input.indexOf('\n');
    const QString key = QString::fromUtf8(input.sliced(1, qMax<qsizetype>(0, lineEnd - 1)));
    const QByteArray content = input.sliced(lineEnd + 1);
    const MemoryFile file(content);

    Config config(file.path(), type);
    const QStringList values = answers(config, key);
    if (type == "cfg"_L1)
        std::for_each(values.begin(), values.end(), checkTextValue);
    require(config.lookup(key.section(u'.', 0, 0)).isEmpty(), "a key has at least two components");

    config.readContent(content, file.path(), type);
    require(answers(config, key) == values, "a reading from memory finds what the file held");
    config.readFile(file.path(), type);
    require(answers(config, key) == values, "a second reading finds what the first found");
    config.readFile(file.path(), u"other"_s);
    require(answers(config, key) == QStringList(values.size(), QString()),
            "no reading finds anything from before");
    require(messages.bytes().isEmpty(), "a file that can be opened is read without a message");

    Collector pieces;
    libconfig::tokenize(content, pieces);
    require(pieces.bytes == content, "the pieces of a file are the file");
    return 0;
}
