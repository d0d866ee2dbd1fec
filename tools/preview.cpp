#include "preview.h"

#include "commanderror.h"
#include "commandline.h"
#include "faultlist.h"
#include "localeencoding.h"
#include "printerchoice.h"
#include "stripwidths.h"
#include "terminal.h"

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument formatArgument{"txt|png|pdf|svg"_L1};
constexpr Argument numberArgument{"N"_L1};
constexpr Argument outputArgument{"OUT"_L1, offerFiles};

constexpr Option options[] = {
    configurationOption,
    localeOption,
    {.name = "output"_L1,
     .meaning = "Write this file, - for standard output; its ending tells the format."_L1,
     .argument = &outputArgument,
     .letter = 'o'},
    {"format"_L1, "What to write, whatever the ending."_L1, &formatArgument},
    {"columns"_L1, "How wide the paper is; else as configured, and 32 at least."_L1, &numberArgument},
    {"scale"_L1, "How large a picture is."_L1, &numberArgument},
    {"marks"_L1, "Show a ruler of the columns; on a terminal, blanks too."_L1},
    deviceOption,
    profileOption,
    {"hex"_L1, "List bytes, command and meaning of what goes to a receipt printer."_L1},
};
constexpr Operand operands[] = {{&fileArgument, Operand::OneOrMore}};

[[noreturn]] void refuse(const QString &why)
{
    throw CommandError(ExitCode::WrongUsage, why);
}

QString formatNames(QLatin1StringView separator)
{
    QStringList names;
    for (const PreviewFormat &format : previewFormats)
        names += format.name;
    return names.join(separator);
}

/// Null when there is none of that name.
const PreviewFormat *findFormat(const QString &name)
{
    const auto *format = std::ranges::find(previewFormats, name.toLower(), &PreviewFormat::name);
    return format == std::end(previewFormats) ? nullptr : format;
}

const PreviewFormat *formatOfFile(const FileName &name)
{
    const QString ending = QString::fromStdString(name.path().extension().string()).mid(1);
    const PreviewFormat *format = findFormat(ending);
    if (!format) {
        refuse(u"the ending of \"%1\" tells no format; let it end in .%2, or give --format"_s.arg(
            name.shown(), formatNames(", ."_L1)));
    }
    return format;
}

/// Null when it is shown on the terminal.
const PreviewFormat *chosenFormat(const CommandLine &line)
{
    if (line.has(u"format"))
        return findFormat(line.value(u"format"));
    if (!line.has(u"output"))
        return nullptr;
    const FileName output = line.file(u"output");
    return output.bytes() == "-" ? findFormat(u"txt"_s) : formatOfFile(output);
}

int chosenColumns(const CommandLine &line)
{
    if (!line.has(u"columns"))
        return 0;
    bool isNumber = false;
    const int columns = line.value(u"columns").toInt(&isNumber);
    if (!isNumber || columns < 1 || columns > paper::StripWidths::most) {
        refuse(u"--columns takes a number from 1 to %1, not \"%2\""_s.arg(paper::StripWidths::most)
                   .arg(line.value(u"columns")));
    }
    return columns;
}

/// Options that mean nothing for the form that was chosen.
void refuseIdleOptions(const Preview &preview)
{
    const bool isPicture = preview.format && preview.format->isPicture;
    if (!isPicture && !preview.scale.isEmpty())
        refuse(u"--scale is for pictures; give an output such as -o ticket.png with it"_s);
    if (preview.marks && preview.format && !isPicture)
        refuse(u"--marks is for terminals and pictures; the text form has the rows alone"_s);
}

void refuseToOverwriteInput(const Preview &preview)
{
    for (const FileName &file : preview.files) {
        std::error_code missing; // then it is another
        if (std::filesystem::equivalent(file.path(), preview.output.path(), missing)) {
            throw CommandError(ExitCode::WouldLose, preview.output,
                               u"this is one of the files to show; name another"_s);
        }
    }
}

void refuseUnreadableOnTerminal(const Preview &preview)
{
    const bool isPlain = !preview.format || preview.format->isForTerminal;
    if (!isPlain && preview.isForStandardOutput() && terminal::isThere())
        refuse(u"a %1 is nothing for a terminal; give an output such as -o ticket.%1"_s.arg(
            preview.format->name));
}

Preview previewFrom(const CommandLine &line)
{
    Preview preview;
    for (qsizetype place = 0; place < line.arguments().size(); ++place)
        preview.files += line.fileArgument(place);
    preview.format = chosenFormat(line);
    preview.output = line.file(u"output");
    preview.columns = chosenColumns(line);
    preview.scale = line.value(u"scale");
    preview.marks = line.has(u"marks");
    refuseIdleOptions(preview);
    refuseToOverwriteInput(preview);
    refuseUnreadableOnTerminal(preview);
    preview.hex = line.has(u"hex");
    if (preview.hex &&
        (preview.marks || preview.columns > 0 || (preview.format && preview.format->isPicture)))
        refuse(u"--hex lists bytes as text; leave out --marks, --columns and pictures"_s);
    preview.profile = &chosenProfile(line);
    preview.rendering = {chosenConfiguration(line), chosenLocale(line),
                         isForReceiptPrinter(line) ? QByteArray(preview.profile->name.data()) : QByteArray()};
    return preview;
}

ExitCode show(const Preview &preview, FaultList &faults)
{
    if (preview.hex) {
        writeHex(preview);
        return ExitCode::Done;
    }
    if (preview.format && preview.format->isPicture)
        return drawPicture(preview, faults);
    preview.format ? writeText(preview, faults) : showOnTerminal(preview, faults);
    return ExitCode::Done;
}

ExitCode run(const CommandLine &line)
{
    FaultList faults;
    const ExitCode code = show(previewFrom(line), faults);
    if (faults.isEmpty())
        return code;
    throw faults.asError(code);
}

} // namespace

QByteArray Preview::encoding() const
{
    return LocaleEncoding(rendering.locale).name();
}

constinit const Command previewCommand{.name = "preview"_L1,
                                       .summary = "What a print job prints, before it is printed."_L1,
                                       .operands = operands,
                                       .options = options,
                                       .run = run};
