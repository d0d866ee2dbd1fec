#include "render.h"

#include "applicationkeys.h"
#include "catalogue.h"
#include "commanderror.h"
#include "commandline.h"
#include "companyprinterdriver.h"
#include "escposprinterdriver.h"
#include "exitcode.h"
#include "hlogmanager.h"
#include "jobreader.h"
#include "logger.h"
#include "pvconfiguration.h"
#include "terminal.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include <csignal>
#include <iostream>
#include <locale.h>
#include <sstream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto lineDevice = "line"_L1;

QList<Offer> offerProfiles(const CommandLine &, const QString &)
{
    QList<Offer> offers;
    for (const Profile &profile : profiles)
        offers += Offer{profile.name, profile.title};
    return offers;
}

constexpr Argument jobArgument{.name = "JOB"_L1, .offers = offerFiles};
constexpr Argument deviceArgument{.name = "line|escpos"_L1};
constexpr Argument profileArgument{.name = "PROFILE"_L1, .offers = offerProfiles};
constexpr Argument localeArgument{.name = "LOCALE"_L1};
constexpr Operand operands[] = {{&jobArgument}};
constexpr Option options[] = {
    {.name = "output"_L1,
     .meaning = "Write to this file."_L1,
     .argument = &fileArgument,
     .isRequired = true,
     .letter = 'o'},
    {.name = "device"_L1,
     .meaning = "For the line printer, or for a receipt printer."_L1,
     .argument = &deviceArgument},
    {.name = "profile"_L1,
     .meaning = "What the receipt printer can do; usually 80mm."_L1,
     .argument = &profileArgument},
    {.name = "config"_L1,
     .meaning = "Use this configuration instead of the user's."_L1,
     .argument = &fileArgument},
    {.name = "locale"_L1,
     .meaning = "Labels and encoding, such as it_IT.ISO-8859-15."_L1,
     .argument = &localeArgument},
};

/// The renderer tells its one program on standard output what goes wrong. People get it as an error.
class QuietRenderer
{
public:
    QuietRenderer() : saved(std::cout.rdbuf(swallowed.rdbuf())) {}
    ~QuietRenderer() { std::cout.rdbuf(saved); }
    QuietRenderer(const QuietRenderer &) = delete;
    QuietRenderer &operator=(const QuietRenderer &) = delete;

private:
    std::ostringstream swallowed;
    std::streambuf *saved;
};

QString profileNames()
{
    QStringList names;
    for (const Profile &profile : profiles)
        names += profile.name;
    return names.join(u", "_s);
}

const Profile &chosenProfile(const CommandLine &line)
{
    const QString name = line.value(u"profile");
    if (name.isEmpty())
        return usualProfile;
    const Profile *profile = findProfile(name);
    if (!profile)
        throw CommandError(ExitCode::WrongUsage,
                           u"there is no profile \"%1\"; there are %2"_s.arg(name, profileNames()));
    return *profile;
}

/// Labels and encoding are those of the environment, as for `palvestrin-print`.
void chooseLocale(const QString &name)
{
    if (name.isEmpty())
        return;
    const locale_t locale = newlocale(LC_ALL_MASK, name.toLocal8Bit().constData(), nullptr);
    if (!locale)
        throw CommandError(
            ExitCode::WrongUsage,
            u"the locale \"%1\" is not installed; \"locale -a\" lists those that are"_s.arg(name));
    freelocale(locale);
    qputenv("LC_ALL", name.toLocal8Bit());
}

void readConfiguration(const QString &path)
{
    PVConfiguration &configuration = *SyncSingleton<PVConfiguration>::instance();
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(ExitCode::Unreadable, path, file.errorString());
    configuration.readContent(file.readAll(), path, u"cfg"_s);
}

/// A job that is emptied before it is read is lost.
void requireOtherFile(const QString &output, const QString &input)
{
    if (!input.isEmpty() && QFileInfo(output).exists() && QFileInfo(output) == QFileInfo(input))
        throw CommandError(
            ExitCode::WrongUsage,
            u"\"%1\" would be overwritten before it is read; name another output"_s.arg(input));
}

/// Prints the job, and throws where it ends too early.
void print(const QString &path, QFile &job, PrinterDriver &printer, const QString &output)
{
    if (!printer.isOpen())
        throw CommandError(ExitCode::WriteFailed, output, u"cannot be opened for writing"_s);
    JobSource source(&job);
    JobHandler handler(printer, source);
    printJob(source, handler);
    const QString unwritten = printer.close();
    if (!unwritten.isEmpty())
        throw CommandError(ExitCode::WriteFailed, output, u"not written completely: "_s + unwritten);
    if (handler.line() > 0)
        throw CommandError(ExitCode::Refused, path, {handler.line(), handler.column()},
                           handler.error() + u"; the job is printed up to here"_s);
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
void tell(const QString &path, const QString &sentence)
{
    printNote(path, sentence);
    if (SyncSingleton<PVConfiguration>::instance()->getStrValue(applicationkey::loggerType).isEmpty())
        return;
    HLogManager &logs = *SyncSingleton<HLogManager>::instance();
    logs.set(u"render"_s, u"render"_s);
    logs.getLog(u"render"_s)->warning(path + u": "_s + sentence);
}

void printOnReceiptPrinter(const QString &path, QFile &job, const QString &output, const Profile &profile)
{
    const QuietRenderer quiet;
    EscPosPrinterDriver printer(QFile::encodeName(output), profile);
    const auto tellAll = [&] {
        if (!printer.lostCharacters().isEmpty())
            tell(path, lostSentence(printer.lostCharacters(), profile));
        for (const QString &trouble : printer.troubles())
            tell(path, trouble);
    };
    try {
        print(path, job, printer, output);
    } catch (const CommandError &) {
        tellAll();
        throw;
    }
    tellAll();
}

ExitCode run(const CommandLine &line)
{
    const QString path = line.fileArgument(0);
    const QString output = line.file(u"output");
    const bool isLine = !line.has(u"device") || line.value(u"device") == lineDevice;
    if (isLine && line.has(u"profile"))
        throw CommandError(ExitCode::WrongUsage, u"the line printer has no profiles; add --device escpos"_s);
    const Profile &profile = chosenProfile(line);
    requireOtherFile(output, path);
    requireOtherFile(output, line.file(u"config"));
    QFile job(path);
    if (!job.open(QIODevice::ReadOnly))
        throw CommandError(ExitCode::Unreadable, path, job.errorString());
    chooseLocale(line.value(u"locale"));
    std::signal(SIGPIPE, SIG_IGN); // the write fails, and that is told
    std::signal(SIGXFSZ, SIG_IGN);

    int argc = 1;
    char name[] = "palvestrin";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    QTranslator translator;
    {
        const QuietRenderer quiet;
        readConfiguration(line.file(u"config"));
        loadCatalogue(translator, *SyncSingleton<PVConfiguration>::instance());
    }
    QCoreApplication::installTranslator(&translator);
    if (!isLine) {
        printOnReceiptPrinter(path, job, output, profile);
        return ExitCode::Done;
    }
    const QuietRenderer quiet;
    CompanyPrinterDriver printer(QFile::encodeName(output));
    print(path, job, printer, output);
    return ExitCode::Done;
}

} // namespace

constinit const Command renderCommand{.name = "render"_L1,
                                      .summary = "Print a job into a file, for a printer of your choice."_L1,
                                      .operands = operands,
                                      .options = options,
                                      .run = run};
