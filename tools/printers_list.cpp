#include "commandline.h"
#include "console.h"
#include "printers.h"
#include "queuelist.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Option options[] = {{.name = "json"_L1, .meaning = "List them as JSON."_L1}};

QString described(const PrintQueue &queue)
{
    const QString model = queue.model.isEmpty() ? u"no model"_s : queue.model;
    QStringList sentences = queue.troubles();
    if (!queue.message.isEmpty() && !sentences.contains(queue.message))
        sentences += queue.message;
    if (queue.state == "stopped"_L1)
        sentences += u"\"cupsenable %1\" starts it."_s.arg(queue.name);
    if (!queue.isAccepting)
        sentences += u"It takes no jobs; \"cupsaccept %1\" has it take them."_s.arg(queue.name);
    return u"%1: %2; %3\n"_s.arg(queue.name, model, (QStringList{queue.state + u'.'} + sentences).join(u' '));
}

QJsonObject asJson(const PrintQueue &queue)
{
    return {{u"name"_s, queue.name},
            {u"model"_s, queue.model},
            {u"profile"_s, profileOfModel(queue.model)},
            {u"address"_s, queue.address},
            {u"state"_s, queue.state},
            {u"accepting"_s, queue.isAccepting},
            {u"reasons"_s, QJsonArray::fromStringList(queue.reasons)},
            {u"message"_s, queue.message},
            {u"troubles"_s, QJsonArray::fromStringList(queue.troubles())}};
}

ExitCode run(const CommandLine &line)
{
    const QList<PrintQueue> queues = queuesOfServer();
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

} // namespace

constinit const Command printersListCommand{.name = "list"_L1,
                                            .summary =
                                                "List printers, models, states and what the printers say."_L1,
                                            .options = options,
                                            .run = run};
