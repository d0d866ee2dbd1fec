#include "drawprogram.h"

#include "commanderror.h"
#include "decoder.h"
#include "drawoptions.h"
#include "localeencoding.h"
#include "missingcharacters.h"
#include "pictureoutput.h"
#include "streamreader.h"
#include "stripcollector.h"
#include "typeface.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lets the toolkit start without a display, for no window is shown, and without leaving a folder for
/// run-time files in /tmp where the session has none.
class WithoutDisplay
{
public:
    WithoutDisplay()
    {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.emplace().path()));
    }

private:
    std::optional<QTemporaryDir> folder;
};

/// What is wrong with the stream, up to a number that somebody will read.
class Faults
{
public:
    void add(const paper::Fault &fault)
    {
        if (++count <= most)
            error.add(u"standard input"_s, {fault.line, fault.column}, fault.what);
    }
    void throwAny()
    {
        if (count > most)
            error.add(u"%1 more faults were found, which are not listed"_s.arg(count - most));
        if (count > 0)
            throw error;
    }

private:
    static constexpr int most = 100;

    CommandError error{ExitCode::Broken};
    qint64 count = 0;
};

template <typename Take>
void readAll(Take take)
{
    std::array<char, 65536> block;
    for (size_t size = 0; (size = std::fread(block.data(), 1, block.size(), stdin)) > 0;)
        take(QByteArrayView(block.data(), qsizetype(size)));
    if (std::ferror(stdin) != 0)
        throw CommandError(ExitCode::Unreadable, u"the standard input cannot be read"_s);
}

void readStream(const DrawOptions &options, paper::Painter &painter, Faults &faults)
{
    if (options.receiptPrinter) {
        Decoder decoder(painter, *options.receiptPrinter, Decoder::Width::OfPaper);
        readAll([&](QByteArrayView bytes) { decoder.take(bytes); });
        decoder.end();
        return;
    }
    paper::StreamReader reader(options.encoding, painter,
                               [&](const paper::Fault &fault) { faults.add(fault); });
    readAll([&](QByteArrayView bytes) { reader.read(bytes); });
    reader.finish();
}

void tellMissing(const QStringList &characters)
{
    constexpr int most = 10;
    if (characters.isEmpty())
        return;
    const QString warning =
        u"palvestrin-draw: warning: no installed font has %1%2, which are drawn as boxes; the "
        "packages fonts-noto-cjk and fonts-symbola have many characters\n"_s.arg(
            characters.first(qMin(most, characters.size())).join(u' '),
            characters.size() > most ? u" and others"_s : u""_s);
    std::cerr << LocaleEncoding().encode(warning).toStdString();
}

void draw(const DrawOptions &options)
{
    typeface::require();
    StripCollector collector(options.columns);
    Faults faults;
    readStream(options, collector, faults);
    const std::vector<Strip> &strips = collector.strips();
    if (strips.empty())
        throw CommandError(ExitCode::Unreadable, u"there is nothing to draw: the stream has no section"_s);
    tellMissing(missingCharacters(strips));
    writePicture(options.output, options.format->draw(strips, options.picture));
    faults.throwAny();
}

} // namespace

ExitCode runDrawProgram(int argc, char **argv)
{
    try {
        const WithoutDisplay start;
        const QByteArrayList words(argv + 1, argv + argc); // before the toolkit takes its own out
        const QGuiApplication application(argc, argv);
        draw(drawOptions(words));
        return ExitCode::Done;
    } catch (const CommandError &error) {
        for (const QString &line : error.messages())
            std::cerr << LocaleEncoding().encode(line).toStdString() << '\n';
        return error.code();
    }
}
