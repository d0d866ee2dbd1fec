#include "childprogram.h"
#include "commanderror.h"
#include "commandline.h"
#include "console.h"
#include "deviceaddress.h"
#include "printerchoice.h"
#include "printers.h"
#include "printqueues.h"
#include "serversettings.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Offer> offerModels(const CommandLine &before, const QString &begun)
{
    return offerProfiles(before, begun) + QList{Offer{u"line"_s, u"what speaks no ESC/POS"_s}};
}

constexpr Argument nameArgument{.name = "NAME"_L1};
constexpr Argument addressArgument{.name = "ADDRESS"_L1, .offers = offerFiles};
constexpr Argument modelArgument{.name = "MODEL"_L1, .offers = offerModels};
constexpr Operand operands[] = {{&nameArgument}, {&addressArgument}};
constexpr Option options[] = {{.name = "model"_L1,
                               .meaning = "What the printer can do; 80mm is usual."_L1,
                               .argument = &modelArgument}};

QString modelOf(const CommandLine &line)
{
    const QString model = line.has(u"model") ? line.value(u"model") : QString(usualProfile.name);
    if (!modelFile(model).isEmpty())
        return model;
    QStringList models;
    for (const Offer &offer : offerModels(line, {}))
        models += offer.word;
    throw CommandError(ExitCode::WrongUsage,
                       u"there is no model \"%1\"; there are %2"_s.arg(model, models.join(u", ")));
}

QString nameTrouble(const QString &name)
{
    constexpr qsizetype longest = 127; // bytes
    if (name.isEmpty())
        return u"it is empty"_s;
    if (name.startsWith(u'-'))
        return u"it begins with \"-\", as options do"_s;
    if (name == "."_L1 || name == ".."_L1)
        return u"folders are called so"_s;
    return name.toUtf8().size() > longest ? u"it is longer than %1 bytes"_s.arg(longest) : QString();
}

QString nameFor(const CommandLine &line)
{
    const QString name = queueName(line.argument(0));
    const QString trouble = nameTrouble(name);
    if (!trouble.isEmpty())
        throw CommandError(
            ExitCode::WrongUsage,
            u"\"%1\" cannot be the name of a printer: %2; take another"_s.arg(line.argument(0), trouble));
    return name;
}

/// What speaks no ESC/POS is not asked for its state.
QString placeFor(const CommandLine &line, const QString &model)
{
    const QString place = line.argument(1);
    if (model != "line"_L1 || place.contains("status="_L1))
        return place;
    return place + (place.contains(u'?') ? u'&' : u'?') + u"status=never"_s;
}

bool isForOtherBackend(const QString &place)
{
    static const QRegularExpression otherScheme(u"^(?!palvestrin:)[A-Za-z][A-Za-z0-9+.-]*:/"_s);
    return place.contains(otherScheme);
}

constexpr auto goodPlaces = "a host such as 192.0.2.7 or a device such as /dev/usb/lp0"_L1;

void requireAddress(const CommandLine &line, const std::string &uri)
{
    std::string trouble;
    if (!deviceAddress(uri, trouble))
        throw CommandError(ExitCode::WrongUsage,
                           u"\"%1\" is no address of a printer: %2; give %3"_s.arg(
                               line.argument(1), QString::fromStdString(trouble), goodPlaces));
}

/// The URI for the address that was given.
std::string uriFor(const CommandLine &line, const QString &model)
{
    if (isForOtherBackend(line.argument(1)))
        throw CommandError(ExitCode::WrongUsage,
                           u"\"%1\" is for another backend; this command adds printers through the backend "
                           "palvestrin, by %2; lpadmin adds others"_s.arg(line.argument(1), goodPlaces));
    const std::string uri = deviceUri(placeFor(line, model).toStdString());
    requireAddress(line, uri);
    return uri;
}

/// A printer that is switched off has no device, and a second one another.
void noteMissingDevice(const std::string &uri)
{
    std::string trouble;
    const QString path = QString::fromStdString(deviceAddress(uri, trouble).value_or(DeviceAddress()).path);
    if (!path.isEmpty() && isOnThisMachine(serverName()) && !QFile::exists(path))
        printNote(u"there is no %1 at present; switch the printer on, and look for its device in %2"_s.arg(
            path, QFileInfo(path).path()));
}

/// Beside this program, as it is installed, or as it was built.
QString modelPath(const QString &model)
{
    const QDir programs = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).dir();
    for (const QString &folder : {u"../share/ppd/palvestrin/"_s, u"../cups/ppd/"_s}) {
        const QString path = QDir::cleanPath(programs.filePath(folder + modelFile(model)));
        if (QFile::exists(path))
            return path;
    }
    throw CommandError(ExitCode::NotInstalled,
                       u"the models of printers are not installed; install the package palvestrin-cups"_s);
}

/// It may ask for a password.
void runAdmin(const QByteArrayList &words, const QString &name)
{
    QStringList said;
    ChildProgram admin{u"/usr/sbin/lpadmin"_s, words};
    admin.isOutputHeard = false;
    const int status = runChild(admin, [&](const QByteArray &line) { said += fromTerminal(line); });
    if (status != 0)
        throw CommandError(ExitCode::PrintFailed,
                           u"printer %1 was not added: %2"_s.arg(name, said.join(u' ')));
    for (const QString &warning : said)
        printNote(warning);
}

ExitCode run(const CommandLine &line)
{
    const QString name = nameFor(line);
    const QString model = modelOf(line);
    const std::string uri = uriFor(line, model);
    runAdmin({"-p", name.toUtf8(), "-D", line.argument(0).toUtf8(), "-E", "-v",
              QByteArray::fromStdString(uri), "-P", QFile::encodeName(modelPath(model)), "-o",
              "printer-error-policy=retry-current-job"},
             name);
    printText(u"Printer %1 is added, at %2, model %3.\n"_s.arg(name, QString::fromStdString(uri), model));
    noteMissingDevice(uri);
    printText(adviceOnServer(serverName()));
    return ExitCode::Done;
}

} // namespace

constinit const Command printersAddCommand{.name = "add"_L1,
                                           .summary = "Add a printer to the print server."_L1,
                                           .operands = operands,
                                           .options = options,
                                           .run = run};
