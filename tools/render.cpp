#include "render.h"

#include "applicationkeys.h"
#include "catalogue.h"
#include "commanderror.h"
#include "commandline.h"
#include "companyprinterdriver.h"
#include "configfile.h"
#include "console.h"
#include "escposprinterdriver.h"
#include "hlogmanager.h"
#include "jobreader.h"
#include "logger.h"
#include "printerchoice.h"
#include "pvconfiguration.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument jobArgument{.name = "JOB"_L1, .offers = offerFiles};
constexpr Operand operands[] = {{&jobArgument}};
constexpr Option options[] = {
    {.name = "output"_L1,
     .meaning = "Write to this file."_L1,
     .argument = &fileArgument,
     .isRequired = true,
     .letter = 'o'},
    deviceOption,
    profileOption,
    configurationOption,
    localeOption,
};

/// The renderer tells its one program on standard output what goes wrong. People get it as an error.
class QuietRenderer
{
public:
    QuietRenderer() : saved(std::cout.rdbuf(nullptr)) {}
    ~QuietRenderer() { std::cout.rdbuf(saved); }
    QuietRenderer(const QuietRenderer &) = delete;
    QuietRenderer &operator=(const QuietRenderer &) = delete;

private:
    std::streambuf *saved;
};

void requireSensible(const CommandLine &line)
{
    if (!isForReceiptPrinter(line) && line.has(u"profile"))
        throw CommandError(ExitCode::WrongUsage, u"the line printer has no profiles; add --device escpos"_s);
    chosenProfile(line);
}

/// The locale of the printer, which is the environment's unless another one is named. It is taken back when
/// catalogue and encoding are chosen: messages are for the terminal.
class PrinterLocale
{
public:
    explicit PrinterLocale(const QByteArray &name) : saved(qgetenv("LC_ALL")), isChanged(!name.isEmpty())
    {
        if (isChanged)
            qputenv("LC_ALL", name);
    }
    ~PrinterLocale()
    {
        if (isChanged)
            saved.isEmpty() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", saved);
    }
    PrinterLocale(const PrinterLocale &) = delete;
    PrinterLocale &operator=(const PrinterLocale &) = delete;

private:
    const QByteArray saved;
    const bool isChanged;
};

void readConfiguration(const FileName &path)
{
    PVConfiguration &configuration = *SyncSingleton<PVConfiguration>::instance();
    if (!path.isEmpty())
        configuration.readContent(bytesOf(path), path.shown(), u"cfg"_s);
}

/// What is emptied before it is read is lost.
void requireOtherFile(const FileName &output, const FileName &input)
{
    std::error_code unknown; // of files that are not there, which are not the same
    if (std::filesystem::equivalent(output.path(), input.path(), unknown))
        throw CommandError(ExitCode::WouldLose, output, u"this is one of the files to read; name another"_s);
}

void openJob(QFile &job, const FileName &path)
{
    const int descriptor = ::open(path.system(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw CommandError(ExitCode::Unreadable, path, qt_error_string(errno));
    job.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

/// A job to be printed into a file.
struct Task
{
    FileName path;
    FileName output;
    QFile job = {};
};

/// Prints the job, and throws where it ends too early.
void print(Task &task, PrinterDriver &printer)
{
    if (!printer.isOpen())
        throw CommandError(ExitCode::WriteFailed, task.output, u"cannot be opened for writing"_s);
    JobSource source(&task.job);
    JobHandler handler(printer, source);
    printJob(source, handler);
    const QString unwritten = printer.close();
    if (!unwritten.isEmpty())
        throw CommandError(ExitCode::WriteFailed, task.output, u"not written completely: "_s + unwritten);
    if (task.job.error() != QFileDevice::NoError)
        throw CommandError(ExitCode::Unreadable, task.path, task.job.errorString());
    if (handler.line() > 0)
        throw CommandError(ExitCode::Refused, task.path, {handler.line(), handler.column()},
                           handler.trouble() + u"; the job is printed up to here"_s);
}

QString lostSentence(const LostCharacters &lost, const Profile &profile)
{
    QStringList letters;
    for (auto each = lost.counts.begin(); each != lost.counts.end(); ++each) {
        const char32_t character = each.key();
        letters += u"%1 (U+%2, %3 times)"_s.arg(QString::fromUcs4(&character, 1))
                       .arg(QString::number(character, 16).toUpper().rightJustified(4, u'0'))
                       .arg(each.value());
    }
    if (lost.others > 0)
        letters += u"and %1 others"_s.arg(lost.others);
    return u"printed as \"?\", for the profile %1 has no such letters: %2"_s.arg(profile.name,
                                                                                 letters.join(u", "_s));
}

/// Tells it to whoever started the program, and to the log where one is configured.
void tell(const FileName &path, const QString &sentence)
{
    printNote(path.shown(), sentence);
    if (SyncSingleton<PVConfiguration>::instance()->getStrValue(applicationkey::loggerType).isEmpty())
        return;
    HLogManager &logs = *SyncSingleton<HLogManager>::instance();
    logs.set(u"render"_s, u"render"_s);
    logs.getLog(u"render"_s)->warning(path.shown() + u": "_s + sentence);
}

void tellWhatIsMissing(const FileName &path, const EscPosPrinterDriver &printer, const Profile &profile)
{
    if (!printer.lostCharacters().isEmpty())
        tell(path, lostSentence(printer.lostCharacters(), profile));
    for (const QString &trouble : printer.troubles())
        tell(path, trouble);
}

void printOnReceiptPrinter(Task &task, EscPosPrinterDriver &printer, const Profile &profile)
{
    try {
        print(task, printer);
    } catch (const CommandError &) {
        tellWhatIsMissing(task.path, printer, profile);
        throw;
    }
    tellWhatIsMissing(task.path, printer, profile);
}

/// Prints the job on the printer that is asked for. `locale` is taken back as soon as it has served.
void printAsAsked(const CommandLine &line, Task &task, std::optional<PrinterLocale> &locale)
{
    const NativeFileName output{task.output.bytes()};
    if (!isForReceiptPrinter(line)) {
        CompanyPrinterDriver printer(output);
        locale.reset();
        print(task, printer);
    } else {
        const Profile &profile = chosenProfile(line);
        EscPosPrinterDriver printer(output, profile);
        locale.reset();
        printOnReceiptPrinter(task, printer, profile);
    }
}

ExitCode run(const CommandLine &line)
{
    Task task{.path = line.fileArgument(0), .output = line.file(u"output")};
    const FileName configuration = chosenConfiguration(line);
    requireSensible(line);
    std::optional<PrinterLocale> locale(chosenLocale(line));
    requireOtherFile(task.output, task.path);
    requireOtherFile(task.output, configuration);
    openJob(task.job, task.path);
    std::signal(SIGPIPE, SIG_IGN); // the write fails, and that is told
    std::signal(SIGXFSZ, SIG_IGN);

    int words = 1;
    char name[] = "palvestrin";
    char *word[] = {name, nullptr};
    const QCoreApplication application(words, word);
    const QuietRenderer quiet;
    readConfiguration(configuration);
    QTranslator translator;
    loadCatalogue(translator, *SyncSingleton<PVConfiguration>::instance());
    QCoreApplication::installTranslator(&translator);
    printAsAsked(line, task, locale);
    return ExitCode::Done;
}

} // namespace

constinit const Command renderCommand{.name = "render"_L1,
                                      .summary = "Print a job into a file, for a printer of your choice."_L1,
                                      .operands = operands,
                                      .options = options,
                                      .run = run};
