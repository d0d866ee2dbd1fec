#include "drawoptions.h"

#include "commanderror.h"
#include "localeencoding.h"
#include "picturelimits.h"

#include <QCommandLineParser>
#include <QTextCodec>

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastColumns = 1;
constexpr int usualColumns = 32; // of a printer of which nothing is known

QString formatNames(QLatin1StringView separator)
{
    QStringList names;
    for (const PictureFormat &format : pictureFormats)
        names += format.name;
    return names.join(separator);
}

/// The file that --output names, as bytes, which the toolkit's parser does not keep.
FileName outputIn(const QByteArrayList &words)
{
    FileName output;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words[i].startsWith("--output="))
            output = FileName(words[i].sliced(qstrlen("--output=")));
        else if (words[i] == "--output" && i + 1 < words.size())
            output = FileName(words[++i]);
    }
    return output;
}

/// The command line, as the toolkit's parser wants to know it.
class DrawParser
{
public:
    DrawParser()
    {
        parser.setApplicationDescription(u"Draws what palvestrin-print wrote, read on standard input."_s);
        parser.addOptions({format, output, scale, marks, columns, encoding, escpos, title, help});
    }

    /// All but the output, whose name is bytes.
    DrawOptions parse(const QStringList &words)
    {
        if (!parser.parse(QStringList(u"palvestrin-draw"_s) + words))
            refuse(parser.errorText());
        if (parser.isSet(help))
            showHelp();
        if (!parser.positionalArguments().isEmpty())
            refuse(u"\"%1\" is no option; the stream is read on standard input"_s.arg(
                parser.positionalArguments().constFirst()));
        DrawOptions options;
        options.format = &parseFormat();
        required(output, u"--output FILE"_s);
        options.picture = {parseScale(*options.format), parser.isSet(marks), parser.value(title)};
        options.columns = parseColumns();
        options.encoding = parseEncoding();
        options.receiptPrinter = parseProfile();
        return options;
    }

private:
    [[noreturn]] static void refuse(const QString &what)
    {
        throw CommandError(ExitCode::WrongUsage, what + u"; see \"palvestrin-draw --help\""_s);
    }
    [[noreturn]] void showHelp() const
    {
        std::cout << parser.helpText().toStdString();
        std::cout.flush();
        std::exit(static_cast<int>(ExitCode::Done));
    }
    QString required(const QCommandLineOption &option, const QString &words) const
    {
        if (parser.value(option).isEmpty())
            refuse(words + u" is missing"_s);
        return parser.value(option);
    }
    const PictureFormat &parseFormat() const
    {
        const QString name = required(format, "--format "_L1 + formatNames("|"_L1));
        const auto *found = std::ranges::find(pictureFormats, name, &PictureFormat::name);
        if (found == pictureFormats.end())
            refuse(u"the format \"%1\" is none of %2"_s.arg(name, formatNames(", "_L1)));
        return *found;
    }
    int parseScale(const PictureFormat &wanted) const
    {
        if (!parser.isSet(scale))
            return 1;
        if (!wanted.hasScale)
            refuse(u"--scale does not go with %1, which is as wide as the paper; leave it out"_s.arg(
                wanted.name));
        return number(parser.value(scale), u"--scale"_s, limits::scale);
    }
    QList<int> parseColumns() const
    {
        QList<int> list;
        for (const QString &text : parser.value(columns).split(u','))
            list += number(text, u"--columns"_s, limits::columns);
        return list;
    }
    QByteArray parseEncoding() const
    {
        const QByteArray name = parser.value(encoding).toLatin1();
        if (QTextCodec::codecForName(name) == nullptr)
            refuse(u"the encoding \"%1\" is not known"_s.arg(parser.value(encoding)));
        return name;
    }
    /// Null when the stream is the line printer's.
    const Profile *parseProfile() const
    {
        if (!parser.isSet(escpos))
            return nullptr;
        const Profile *profile = findProfile(parser.value(escpos));
        if (!profile)
            refuse(u"the profile \"%1\" is not known"_s.arg(parser.value(escpos)));
        return profile;
    }
    static int number(const QString &text, const QString &option, int most)
    {
        bool isNumber = false;
        const int value = text.toInt(&isNumber);
        if (!isNumber || value < leastColumns || value > most)
            refuse(u"%1 takes a number from 1 to %2, not \"%3\""_s.arg(option).arg(most).arg(text));
        return value;
    }

    const QCommandLineOption format{u"format"_s, u"The kind of picture: %1."_s.arg(formatNames(", "_L1)),
                                    u"NAME"_s};
    const QCommandLineOption output{u"output"_s, u"Where the picture goes; - is standard output."_s,
                                    u"FILE"_s};
    const QCommandLineOption scale{
        u"scale"_s,
        u"How large a png or svg is, 1 to %1: a column is ten times as many pixels wide."_s.arg(
            limits::scale),
        u"N"_s};
    const QCommandLineOption marks{u"marks"_s, u"Draw a ruler, the columns and the middle of the paper."_s};
    const QCommandLineOption columns{
        u"columns"_s,
        u"Columns of the paper; of the paper of each section: N,N,... (the last one goes on)."_s, u"N"_s,
        QString::number(usualColumns)};
    const QCommandLineOption encoding{u"encoding"_s, u"The encoding of the stream."_s, u"NAME"_s, u"UTF-8"_s};
    const QCommandLineOption escpos{u"escpos"_s, u"The stream is for a receipt printer with this profile."_s,
                                    u"PROFILE"_s};
    const QCommandLineOption title{u"title"_s, u"The title that programs show for the picture."_s, u"TEXT"_s};
    const QCommandLineOption help{{u"h"_s, u"help"_s}, u"Show this help."_s};
    QCommandLineParser parser;
};

} // namespace

DrawOptions drawOptions(const QByteArrayList &words)
{
    const LocaleEncoding encoding;
    QStringList texts;
    for (const QByteArray &word : words)
        texts += encoding.decode(word);
    DrawOptions options = DrawParser().parse(texts);
    options.output = outputIn(words);
    return options;
}
