#include "logo.h"

#include "commands.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The text of a PBM file, with a place in it.
class PbmText
{
public:
    explicit PbmText(QByteArray content) : text(std::move(content)) {}

    bool atEnd() const { return place >= text.size(); }
    char next() { return atEnd() ? '\0' : text[place++]; }
    /// The next `size` bytes, fewer at the end.
    QByteArray take(qsizetype size)
    {
        place += size;
        return text.mid(place - size, size);
    }

    /// Goes behind white space and comments, which run from "#" to the end of the line.
    void skipBlanks()
    {
        while (!atEnd() && (isBlank(text[place]) || text[place] == '#')) {
            if (text[place] == '#')
                place = endOfLine();
            else
                ++place;
        }
    }
    /// A number of the head; -1 when there is none, or one above `maxNumber`.
    int number()
    {
        skipBlanks();
        int value = -1;
        while (!atEnd() && text[place] >= '0' && text[place] <= '9') {
            value = qMax(value, 0) * 10 + (text[place++] - '0');
            if (value > maxNumber)
                return -1;
        }
        return value;
    }

private:
    static constexpr int maxNumber = 1'000'000;

    static bool isBlank(char character)
    {
        return character == ' ' || (character >= '\t' && character <= '\r');
    }
    qsizetype endOfLine() const
    {
        const qsizetype end = text.indexOf('\n', place);
        return end < 0 ? text.size() : end;
    }

    const QByteArray text;
    qsizetype place = 0;
};

/// The dots of a plain file: a "1" for a black one, blanks or not in between.
QByteArray plainDots(PbmText &text, const paper::Picture &picture)
{
    QByteArray dots(qsizetype(picture.bytesPerRow()) * picture.height, '\0');
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            text.skipBlanks();
            const char dot = text.next();
            if (dot != '0' && dot != '1')
                return {};
            if (dot == '1')
                dots[y * picture.bytesPerRow() + x / 8] |= char(0x80 >> x % 8);
        }
    }
    return dots;
}

QByteArray rawDots(PbmText &text, const paper::Picture &picture)
{
    text.next(); // the one blank behind the head
    const qsizetype size = qsizetype(picture.bytesPerRow()) * picture.height;
    const QByteArray dots = text.take(size);
    return dots.size() == size ? dots : QByteArray();
}

Logo trouble(const QString &path, const QString &what)
{
    return {{}, u"the logo \"%1\" %2"_s.arg(path, what)};
}

} // namespace

Logo readLogo(const QString &path, int maxWidth)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return trouble(path, u"cannot be read: %1"_s.arg(file.errorString()));
    constexpr qint64 maxSize = 8'000'000; // more than a plain picture of the largest size takes
    PbmText text(file.read(maxSize));
    const QByteArray format = text.take(2);
    if (format != "P1" && format != "P4")
        return trouble(path, u"is no PBM picture: save it in that format, in two colours"_s);
    paper::Picture picture;
    picture.width = text.number();
    picture.height = text.number();
    if (picture.width < 1 || picture.height < 1)
        return trouble(path, u"does not tell its size"_s);
    if (picture.width > maxWidth || picture.height > maxLogoHeight)
        return trouble(path, u"is %1 x %2 dots; this printer prints %3 x %4 at most"_s.arg(picture.width)
                                 .arg(picture.height)
                                 .arg(maxWidth)
                                 .arg(maxLogoHeight));
    picture.dots = format == "P1" ? plainDots(text, picture) : rawDots(text, picture);
    if (picture.dots.isEmpty())
        return trouble(path, u"ends before its last dot"_s);
    return {picture, {}};
}

QByteArray rasterCommands(const paper::Picture &picture)
{
    const int width = picture.bytesPerRow();
    const QByteArray head = command::with(command::raster, {0, width % 256, width / 256, 1, 0});
    QByteArray bytes;
    for (int y = 0; y < picture.height; ++y)
        bytes += head + picture.dots.sliced(qsizetype(y) * width, width);
    return bytes;
}
