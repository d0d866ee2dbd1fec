#include "printqueues.h"

#include "printerstatus.h"
#include "sentences.h"

#include <QSysInfo>

#include <algorithm>
#include <array>
#include <cups/cups.h>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/// The models of deliver/ppd/palvestrin.drv.
struct Model
{
    QLatin1StringView profile;
    QLatin1StringView file;
};

constexpr std::array models{
    Model{"80mm"_L1, "pv80mm.ppd"_L1}, Model{"80mm-42"_L1, "pv80mm42.ppd"_L1},
    Model{"58mm"_L1, "pv58mm.ppd"_L1}, Model{"generic"_L1, "pvgener.ppd"_L1},
    Model{"line"_L1, "pvline.ppd"_L1},
};

constexpr auto maker = "Palvestrin "_L1;
constexpr int connectionTime = 3000; ///< milliseconds
constexpr auto messageName = "job-printer-state-message";

QString optionOf(const cups_dest_t &destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

QString stateWord(const QString &state)
{
    const int number = state.toInt();
    return number == IPP_PSTATE_PROCESSING ? u"printing"_s
           : number == IPP_PSTATE_STOPPED  ? u"stopped"_s
                                           : u"idle"_s;
}

QStringList reasonsIn(const QString &reasons)
{
    QStringList list = reasons.split(u',', Qt::SkipEmptyParts);
    list.removeAll(u"none"_s);
    return list;
}

PrintQueue queueOf(const cups_dest_t &destination)
{
    return {QString::fromUtf8(destination.name),
            optionOf(destination, "printer-make-and-model"),
            optionOf(destination, "device-uri"),
            stateWord(optionOf(destination, "printer-state")),
            optionOf(destination, "printer-state-message"),
            reasonsIn(optionOf(destination, "printer-state-reasons")),
            optionOf(destination, "printer-is-accepting-jobs") != "false"_L1};
}

QString textIn(const Answer &answer, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    return attribute ? QString::fromUtf8(ippGetString(attribute, 0, nullptr)) : QString();
}

int numberIn(const Answer &answer, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

/// Whether a printer's queue goes through the backend of the house.
bool isOurs(const QString &printer)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printer.toUtf8().constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "device-uri");
    const Answer answer(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete);
    return textIn(answer, "device-uri").startsWith("palvestrin:"_L1);
}

bool wentThroughOurs(const Answer &job)
{
    const QString ofClass = textIn(job, "job-printer-uri-actual"); // the printer that a class chose
    return isOurs(ofClass.isEmpty() ? textIn(job, "job-printer-uri") : ofClass);
}

/// The backend counts a sheet when it has the printer's word for it; those of others count what they please.
bool isConfirmed(const Answer &job)
{
    return numberIn(job, "job-media-sheets-completed") > 0 && wentThroughOurs(job);
}

/// The server takes a job for printed whose backend was killed, and that one could not say how it ended.
PrintJob::State stateOfUnconfirmed(const Answer &job)
{
    const QByteArray message = textIn(job, messageName).toUtf8();
    const bool isTold = std::ranges::any_of(
        std::array{sentence::unconfirmed, sentence::empty},
        [&](std::string_view sentence) { return message.startsWith(QByteArrayView(sentence)); });
    return isTold || !wentThroughOurs(job) ? PrintJob::State::NotConfirmed : PrintJob::State::Abandoned;
}

/// A server that was killed while it noted the end may call a job pending that is confirmed.
PrintJob::State stateOf(const Answer &job)
{
    const int state = numberIn(job, "job-state");
    if (state != IPP_JSTATE_HELD && isConfirmed(job))
        return PrintJob::State::Printed;
    switch (state) {
    case IPP_JSTATE_PENDING:
        return PrintJob::State::Waiting;
    case IPP_JSTATE_PROCESSING:
        return PrintJob::State::Printing;
    case IPP_JSTATE_HELD:
        return PrintJob::State::Held;
    case IPP_JSTATE_COMPLETED:
        return stateOfUnconfirmed(job);
    default:
        return PrintJob::State::Failed;
    }
}

/// Null when the server does not answer.
Answer attributesOf(int job)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return {cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete};
}

/// Also when that cannot be told.
bool wasStarted(int job)
{
    const Answer answer = attributesOf(job);
    return !answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE ||
           ippFindAttribute(answer.get(), "time-at-processing", IPP_TAG_INTEGER);
}

/// 0 when the server does not take it.
int createJob(const QByteArray &queue, const QByteArray &title, int copies)
{
    cups_option_t *options = nullptr;
    const int count = cupsAddIntegerOption("copies", copies, 0, &options);
    const int job = cupsCreateJob(CUPS_HTTP_DEFAULT, queue.constData(), title.constData(), count, options);
    cupsFreeOptions(count, options);
    return job;
}

bool sendData(QIODevice &data)
{
    QByteArray piece;
    while (!(piece = data.read(65536)).isEmpty()) {
        if (cupsWriteRequestData(CUPS_HTTP_DEFAULT, piece.constData(), std::size_t(piece.size())) !=
            HTTP_STATUS_CONTINUE)
            return false;
    }
    return true;
}

} // namespace

QStringList PrintQueue::troubles() const
{
    QStringList sentences;
    for (const TroubleKind &kind : troubleKinds) {
        if (reasons.contains(QLatin1StringView(kind.reason)))
            sentences += QString::fromUtf8(kind.sentence);
    }
    return sentences;
}

QString queueName(const QString &name)
{
    QString queue = name;
    const auto isUnfit = [](QChar character) {
        return character <= u' ' || character == u'\x7F' || QStringView(u"/\\?'\"#<").contains(character);
    };
    std::ranges::replace_if(queue, isUnfit, u'_');
    return queue;
}

/// Without the entries that people made of a queue and options of theirs: "Cassa/draft".
std::optional<QList<PrintQueue>> printQueues()
{
    cups_dest_t *destinations = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &destinations);
    QList<PrintQueue> queues;
    for (int place = 0; place < count; ++place) {
        if (!destinations[place].instance)
            queues += queueOf(destinations[place]);
    }
    cupsFreeDests(count, destinations);
    const bool isAnswered = cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ||
                            cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND; // it has none
    return isAnswered ? std::optional(queues) : std::nullopt;
}

std::optional<int> submitJob(const QString &queue, const QString &title, QIODevice &data, int copies,
                             QString &trouble)
{
    const QByteArray name = queue.toUtf8();
    const QByteArray shown = title.toUtf8();
    const int job = createJob(name, shown, copies);
    if (job == 0) {
        trouble = serverTrouble();
        return {};
    }
    const http_status_t begun =
        cupsStartDocument(CUPS_HTTP_DEFAULT, name.constData(), job, shown.constData(), CUPS_FORMAT_RAW, 1);
    const bool isSent = begun == HTTP_STATUS_CONTINUE && sendData(data);
    if (isSent && cupsFinishDocument(CUPS_HTTP_DEFAULT, name.constData()) <= IPP_STATUS_OK_EVENTS_COMPLETE)
        return job;
    trouble = serverTrouble();
    const bool isCancelled =
        cupsCancelJob2(CUPS_HTTP_DEFAULT, name.constData(), job, 0) <= IPP_STATUS_OK_EVENTS_COMPLETE;
    // The answer was lost, and perhaps not the job: it may be on paper by now, or a part of it.
    return isCancelled && !wasStarted(job) ? std::nullopt : std::optional(job);
}

PrintJob printJob(int number)
{
    const Answer answer = attributesOf(number);
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return {};
    if (!answer || cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
        return {PrintJob::State::Waiting, u"The print server does not answer: "_s + serverTrouble()};
    return {stateOf(answer), textIn(answer, messageName)};
}

/// Without a connection the library's words are those of some later call, such as "Bad file descriptor".
QString serverTrouble()
{
    const QString words = QString::fromUtf8(cupsLastErrorString());
    if (cupsLastError() != IPP_STATUS_ERROR_SERVICE_UNAVAILABLE)
        return words;
    http_t *const connection = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                            connectionTime, nullptr);
    httpClose(connection);
    return connection ? words : u"nothing takes the connection at "_s + serverName();
}

QString serverName()
{
    return QString::fromUtf8(cupsServer());
}

bool isOnThisMachine(const QString &server)
{
    return server.startsWith(u'/') || server == "localhost"_L1 || server.startsWith("127."_L1) ||
           server == "::1"_L1 || server == "[::1]"_L1 || server == QSysInfo::machineHostName();
}

QString profileOfModel(const QString &model)
{
    for (const Model &each : models) {
        const QString name = maker + each.profile;
        if (model == name || model.startsWith(name + u','))
            return each.profile;
    }
    return {};
}

QString modelFile(const QString &profile)
{
    for (const Model &each : models) {
        if (profile == each.profile)
            return each.file;
    }
    return {};
}
