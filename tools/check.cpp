#include "check.h"

#include "catalogue.h"
#include "commanderror.h"
#include "commandline.h"
#include "configfile.h"
#include "configuration.h"
#include "console.h"
#include "content.h"
#include "findingreport.h"
#include "job.h"
#include "localeencoding.h"
#include "output.h"
#include "pvconfiguration.h"
#include "userconfiguration.h"

#include <QCoreApplication>
#include <QTranslator>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument subjectArgument{"job|config|output"_L1};

constexpr Option options[] = {
    {"config"_L1, "Check jobs under this configuration instead of the user's."_L1, &fileArgument},
    {"as"_L1, "What the files are, whatever their content."_L1, &subjectArgument},
    reportOptions[0],
    reportOptions[1],
    reportOptions[2],
    reportOptions[3],
};
constexpr Operand operands[] = {{&fileArgument, Operand::Any}};

check::Subject subjectOf(const CommandLine &line, QFile &file)
{
    const QString given = line.value(u"as");
    if (given.isEmpty())
        return check::subjectOf(file.peek(check::bytesThatTell));
    if (given == "job"_L1)
        return check::Subject::Job;
    return given == "config"_L1 ? check::Subject::Configuration : check::Subject::Output;
}

FileName chosenConfiguration(const CommandLine &line)
{
    return line.has(u"config") ? line.file(u"config") : FileName(PVConfiguration::userFile());
}

/// The content of the configuration that jobs are checked under. Throws a CommandError (Unreadable) when the
/// one that is asked for cannot be read; of the user's own that only means what it means to printing.
QByteArray configurationFor(const CommandLine &line)
{
    const FileName path = chosenConfiguration(line);
    if (line.has(u"config") || path.exists())
        return bytesOf(path);
    printNote(
        u"there is no file %1; jobs are checked with all widths 0 and all settings off"_s.arg(path.shown()));
    return {};
}

/// What jobs are printed with, read when the first one comes.
class PrintingSetup
{
public:
    /// Throws a CommandError (Unreadable) when the configuration that is asked for cannot be read.
    explicit PrintingSetup(const CommandLine &commandLine) : line(commandLine)
    {
        if (line.has(u"config"))
            configuration();
    }

    PVConfiguration &configuration()
    {
        if (!settings) {
            settings.emplace(configurationFor(line), chosenConfiguration(line).shown());
            loadCatalogue(labels, *settings);
            QCoreApplication::installTranslator(&labels);
        }
        return *settings;
    }

private:
    const CommandLine &line;
    std::optional<PVConfiguration> settings;
    QTranslator labels; ///< a label is as wide as its translation
};

void checkFile(check::Subject subject, QFile &file, PrintingSetup &setup, check::FindingSink &sink)
{
    switch (subject) {
    case check::Subject::Job:
        return check::checkJob(file, setup.configuration(), sink);
    case check::Subject::Configuration:
        return check::checkConfiguration(file, sink);
    case check::Subject::Output:
        return check::checkOutput(file, LocaleEncoding().name(), sink);
    }
}

ExitCode run(const CommandLine &line)
{
    int count = 1;
    char name[] = "palvestrin";
    char *words[] = {name, nullptr};
    const QCoreApplication application(count, words); // which the labels need

    FindingReport report(line);
    PrintingSetup setup(line);
    for (qsizetype place = 0; place < line.arguments().size(); ++place) {
        report.add(line.fileArgument(place), [&](QFile &file, check::FindingSink &sink) {
            checkFile(subjectOf(line, file), file, setup, sink);
        });
    }
    if (line.arguments().isEmpty())
        checkUserConfiguration(report);
    return report.end();
}

} // namespace

constinit const Command checkCommand{
    .name = "check"_L1,
    .summary = "What is wrong with a job, a configuration or an output, and where."_L1,
    .operands = operands,
    .options = options,
    .run = run};
