#include "printers.h"

#include "childprogram.h"
#include "commanderror.h"
#include "commandline.h"
#include "console.h"
#include "printerchoice.h"
#include "printqueues.h"
#include "serversettings.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Offer> offerModels(const CommandLine &before, const QString &begun)
{
    return offerProfiles(before, begun) + QList{Offer{u"line"_s, u"what speaks no ESC/POS"_s}};
}

constexpr Argument nameArgument{.name = "NAME"_L1};
constexpr Argument addressArgument{.name = "ADDRESS"_L1, .offers = offerFiles};
constexpr Argument modelArgument{.name = "MODEL"_L1, .offers = offerModels};
constexpr Operand addOperands[] = {{&nameArgument}, {&addressArgument}};
constexpr Option listOptions[] = {{.name = "json"_L1, .meaning = "List them as JSON."_L1}};
constexpr Option addOptions[] = {{.name = "model"_L1,
                                  .meaning = "What the printer can do; 80mm is usual."_L1,
                                  .argument = &modelArgument}};

QString described(const PrintQueue &queue)
{
    const QString model = queue.model.isEmpty() ? u"no model"_s : queue.model;
    QStringList sentences = queue.troubles();
    if (!queue.message.isEmpty() && !sentences.contains(queue.message))
        sentences += queue.message;
    return u"%1: %2; %3\n"_s.arg(queue.name, model, (QStringList{queue.state + u'.'} + sentences).join(u' '));
}

QJsonObject asJson(const PrintQueue &queue)
{
    return {{u"name"_s, queue.name},
            {u"model"_s, queue.model},
            {u"profile"_s, profileOfModel(queue.model)},
            {u"address"_s, queue.address},
            {u"state"_s, queue.state},
            {u"reasons"_s, QJsonArray::fromStringList(queue.reasons)},
            {u"message"_s, queue.message},
            {u"troubles"_s, QJsonArray::fromStringList(queue.troubles())}};
}

ExitCode list(const CommandLine &line)
{
    const QList<PrintQueue> queues = printQueues();
    QJsonArray array;
    for (const PrintQueue &queue : queues)
        array += asJson(queue);
    if (line.has(u"json"))
        printBytes(QJsonDocument(array).toJson());
    else if (queues.isEmpty())
        printText(u"There are no printers; \"palvestrin printers add NAME ADDRESS\" adds one.\n"_s);
    else
        std::ranges::for_each(queues, [](const PrintQueue &queue) { printText(described(queue)); });
    return ExitCode::Done;
}

QString modelOf(const CommandLine &line)
{
    const QString model = line.has(u"model") ? line.value(u"model") : QString(usualProfile.name);
    if (modelFile(model).isEmpty())
        throw CommandError(ExitCode::WrongUsage,
                           u"there is no model \"%1\"; there are the profiles and line"_s.arg(model));
    return model;
}

/// "192.0.2.7" or "/dev/usb/lp0" as a URI; one that is given stays. What speaks no ESC/POS is not asked for
/// its state.
QByteArray uriOf(const QString &address, const QString &model)
{
    QString uri = address;
    if (address.startsWith(u'/'))
        uri = u"palvestrin:"_s + address;
    else if (!address.contains("://"_L1) && !address.startsWith("palvestrin:"_L1))
        uri = u"palvestrin://"_s + address;
    if (model == "line"_L1 && !uri.contains("status="_L1))
        uri += (uri.contains(u'?') ? u'&' : u'?') + u"status=never"_s;
    static const QRegularExpression portBeforeOptions(u"^(palvestrin://[^/?]+)\\?"_s);
    return uri.replace(portBeforeOptions, u"\\1/?"_s).toUtf8(); // lpadmin wants the slash
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

void runAdmin(const QByteArrayList &words, const QString &name)
{
    QString said;
    const int status = runChild({u"/usr/sbin/lpadmin"_s, words},
                                [&](const QByteArray &line) { said += fromTerminal(line) + u' '; });
    if (status != 0)
        throw CommandError(ExitCode::PrintFailed,
                           u"printer %1 was not added: %2"_s.arg(name, said.trimmed()));
}

ExitCode add(const CommandLine &line)
{
    const QString model = modelOf(line);
    const QString name = queueName(line.argument(0));
    const QByteArray uri = uriOf(line.argument(1), model);
    runAdmin({"-p", name.toUtf8(), "-D", line.argument(0).toUtf8(), "-E", "-v", uri, "-P",
              QFile::encodeName(modelPath(model)), "-o", "printer-error-policy=retry-current-job"},
             name);
    printText(u"Printer %1 is added, at %2, model %3.\n"_s.arg(name, QString::fromUtf8(uri), model));
    printText(adviceOnServer());
    return ExitCode::Done;
}

constexpr Command listCommand{.name = "list"_L1,
                              .summary = "List printers, models, states and what the printers say."_L1,
                              .options = listOptions,
                              .run = list};
constexpr Command addCommand{.name = "add"_L1,
                             .summary = "Add a printer to the print server."_L1,
                             .operands = addOperands,
                             .options = addOptions,
                             .run = add};
constexpr const Command *commands[] = {&listCommand, &addCommand};

} // namespace

constinit const Command printersCommand{.name = "printers"_L1,
                                        .summary = "List printers, and add them."_L1,
                                        .commands = commands,
                                        .usual = &listCommand};
