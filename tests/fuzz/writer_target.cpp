// The configuration writers: what is written reads back as what it was.
//
// An input is a configuration file in the text form.

#include "libconfig.h"
#include "target.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace {

QByteArray written(Config &config)
{
    const MemoryFile file;
    require(config.buildConfigFile(file.path()), "the text form can be written");
    return file.content();
}

/// The reader does not see a block with nothing in it, so a configuration that holds one changes when it is
/// written.
bool hasEmptyBlock(const QByteArray &text)
{
    static const QRegularExpression emptyBlock(u"\\{\n *\\};"_s);
    return QString::fromLatin1(text).contains(emptyBlock);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const CapturedOutput messages;
    const MemoryFile file(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    Config config(file.path(), u"cfg"_s);
    const QByteArray once = written(config);

    if (!hasEmptyBlock(once)) {
        const MemoryFile copy(once);
        Config readBack(copy.path(), u"cfg"_s);
        require(written(readBack) == once, "a written configuration reads back as what it was");
        for (const QString &key : {u"palvestrin.a"_s, u"palvestrin.a.b.c"_s, u"palvestrin.logger.filename"_s})
            require(readBack.lookup(key) == config.lookup(key), "a written configuration answers the same");
    }
    const MemoryFile xml; // holds what it can: see the writer
    require(config.buildConfigXmlFile(xml.path()), "the XML form can be written");
    return 0;
}
