#include "print.h"

#include "childprogram.h"
#include "commanderror.h"
#include "commandline.h"
#include "configfile.h"
#include "console.h"
#include "finishedoutput.h"
#include "inputfile.h"
#include "jobqueue.h"
#include "printerchoice.h"
#include "printqueues.h"
#include "queuelist.h"
#include "terminal.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Offer> offerQueues(const CommandLine &, const QString &)
{
    QList<Offer> offers;
    for (const PrintQueue &queue : printQueues().value_or(QList<PrintQueue>()))
        offers += Offer{queue.name, queue.model};
    return offers;
}

constexpr Argument jobArgument{.name = "JOB"_L1, .offers = offerFiles};
constexpr Argument queueArgument{.name = "PRINTER"_L1, .offers = offerQueues};
constexpr Argument secondsArgument{.name = "SECONDS"_L1};
constexpr Operand operands[] = {{&jobArgument, Operand::OneOrMore}};
constexpr int usualWait = 60;       ///< seconds
constexpr int longestWait = 86'400; ///< seconds
constexpr int pollPause = 100;      ///< milliseconds between questions to the print server
constexpr int progressWidth = 76;   ///< characters, so that the line never wraps

constexpr Option options[] = {
    {.name = "queue"_L1,
     .meaning = "Print on this printer; usual is the one that the job names."_L1,
     .argument = &queueArgument},
    deviceOption,
    profileOption,
    {.name = "wait"_L1,
     .meaning = "Wait so long for the paper; 60 is usual."_L1,
     .argument = &secondsArgument},
    {.name = "check"_L1, .meaning = "Refuse jobs with errors; \"palvestrin check\" finds them."_L1},
    {.name = "json"_L1, .meaning = "Tell what happened as JSON."_L1},
};

/// How the wait for a job may end.
struct Outcome
{
    PrintJob::State state;
    QLatin1StringView word; ///< in JSON
    QLatin1StringView sentence;
    ExitCode code;
};

constexpr Outcome outcomes[] = {
    {PrintJob::State::Printed, "printed"_L1, "printed"_L1, ExitCode::Done},
    {PrintJob::State::NotConfirmed, "not-confirmed"_L1, "sent, but not confirmed"_L1, ExitCode::NotConfirmed},
    {PrintJob::State::Held, "held"_L1, "held"_L1, ExitCode::Unknown},
    {PrintJob::State::Abandoned, "unknown"_L1,
     "unknown: the backend was killed; look for the ticket at the printer"_L1, ExitCode::Unknown},
    {PrintJob::State::Gone, "unknown"_L1,
     "unknown: the print server knows nothing of it any more; look for the ticket at the printer"_L1,
     ExitCode::Unknown},
    {PrintJob::State::Failed, "failed"_L1,
     "the job was ended; look at the printer whether a part of it is on paper"_L1, ExitCode::PrintFailed},
    {PrintJob::State::Waiting, "waiting"_L1, "not over yet"_L1, ExitCode::StillWaiting},
    {PrintJob::State::Printing, "waiting"_L1, "not over yet"_L1, ExitCode::StillWaiting},
};

const Outcome &outcomeOf(PrintJob::State state)
{
    return *std::ranges::find(outcomes, state, &Outcome::state);
}

/// What is to be printed, where, and for which profile; "" is the line printer.
struct Task
{
    FileName file;
    PrintQueue queue;
    QByteArray profile;
};

/// A job that was handed to the print server, or should have been: then it has no number.
struct Submitted
{
    FileName file;
    QString queue;
    int number = 0;
    PrintJob job = {};
};

int chosenWait(const CommandLine &line)
{
    if (!line.has(u"wait"))
        return usualWait;
    bool isNumber = false;
    const int seconds = line.value(u"wait").toInt(&isNumber);
    if (!isNumber || seconds < 0 || seconds > longestWait)
        throw CommandError(ExitCode::WrongUsage,
                           u"--wait takes a number of seconds from 0 to %1, not \"%2\""_s.arg(longestWait)
                               .arg(line.value(u"wait")));
    return seconds;
}

QString namesOf(const QList<PrintQueue> &queues)
{
    QStringList names;
    for (const PrintQueue &queue : queues)
        names += queue.name;
    return names.isEmpty() ? u"there are none"_s : u"there are "_s + names.join(u", ");
}

PrintQueue queueFor(const CommandLine &line, const FileName &file)
{
    const QString name = line.has(u"queue") ? line.value(u"queue") : printerNamedIn(file);
    if (name.isEmpty())
        throw CommandError(ExitCode::WrongUsage, file, u"the job names no printer; name one with --queue"_s);
    const QList<PrintQueue> queues = queuesOfServer();
    const auto queue = std::ranges::find(queues, queueName(name), &PrintQueue::name);
    if (queue == queues.end())
        throw CommandError(ExitCode::Unreadable, file,
                           u"there is no printer \"%1\"; %2; \"palvestrin printers add\" adds one"_s.arg(
                               name, namesOf(queues)));
    return *queue;
}

QByteArray profileFor(const CommandLine &line, const PrintQueue &queue, const FileName &file)
{
    if (isForReceiptPrinter(line) || line.has(u"profile"))
        return QByteArray(chosenProfile(line).name.data());
    if (line.has(u"device"))
        return {};
    const QString profile = profileOfModel(queue.model);
    if (profile.isEmpty())
        throw CommandError(
            ExitCode::WrongUsage, file,
            u"the model of printer %1, \"%2\", does not say what it can do; give --device and --profile"_s
                .arg(queue.name, queue.model));
    return profile == "line"_L1 ? QByteArray() : profile.toLatin1();
}

/// Runs this program's own check on the job. Throws a CommandError (Errors) when it finds some, or cannot
/// tell; why is told by then.
void requireSound(const FileName &file)
{
    const ChildProgram check{u"/proc/self/exe"_s, {"check", "--as", "job", "--", file.bytes()}};
    const int status = runChild(check, [](const QByteArray &line) { std::cerr << line.constData() << '\n'; });
    if (status != int(ExitCode::Done) && status != int(ExitCode::Warnings))
        throw CommandError(ExitCode::Errors, file, u"the job has errors; it was not printed"_s);
}

Task taskFor(const CommandLine &line, const FileName &file)
{
    if (line.has(u"check") && isStandardInput(file))
        throw CommandError(ExitCode::WrongUsage,
                           u"what was read from standard input to be checked cannot be read again "
                           "to be printed; give a file"_s);
    if (line.has(u"check"))
        requireSound(file);
    const PrintQueue queue = queueFor(line, file);
    return {file, queue, profileFor(line, queue, file)};
}

Submitted submit(const Task &task)
{
    FinishedOutput output(task.file, Rendering{{}, {}, task.profile});
    QString trouble;
    const std::optional<int> number =
        submitJob(task.queue.name, task.file.shown(), output.stream(), copiesToAskFor(output), trouble);
    if (!number)
        throw CommandError(ExitCode::PrintFailed, task.file,
                           u"the print server does not take it: %1"_s.arg(trouble));
    if (task.queue.state == "stopped"_L1)
        printNote(task.file.shown(),
                  u"printer %1 is stopped; \"cupsenable %1\" starts it"_s.arg(task.queue.name));
    return {task.file, task.queue.name, *number, {PrintJob::State::Waiting, {}}};
}

Submitted failed(const Task &task, const CommandError &error)
{
    printErrors(error);
    const QString message = error.reasons().empty() ? QString() : error.reasons().front();
    return {task.file, task.queue.name, 0, {PrintJob::State::Failed, message}};
}

/// As long as nothing is handed over, trouble ends it; then the other jobs are printed all the same.
QList<Submitted> submitAll(const QList<Task> &tasks)
{
    QList<Submitted> all;
    for (const Task &task : tasks) {
        try {
            all += submit(task);
        } catch (const CommandError &error) {
            if (all.isEmpty())
                throw;
            all += failed(task, error);
        }
    }
    return all;
}

bool isOver(PrintJob::State state)
{
    return state != PrintJob::State::Waiting && state != PrintJob::State::Printing;
}

/// What the backend said last, where that still holds; it says nothing of its own death.
QString messageOf(const Submitted &submitted)
{
    using State = PrintJob::State;
    const State state = submitted.job.state;
    const bool isBackends = state != State::Printed && state != State::Abandoned && state != State::Gone;
    return isBackends && !submitted.job.message.isEmpty() ? submitted.job.message
                                                          : QString(outcomeOf(state).sentence);
}

QString sentenceOf(const Submitted &submitted)
{
    return u"%1: job %2 on %3: %4"_s.arg(submitted.file.shown(), QString::number(submitted.number),
                                         submitted.queue, messageOf(submitted));
}

/// One line, written over and over.
class Progress
{
public:
    ~Progress() { show({}); }
    void show(const QString &text)
    {
        if (!isShown || text == last)
            return;
        printText(u"\r\033[K"_s + text.left(progressWidth));
        std::fflush(stdout);
        last = text;
    }

private:
    const bool isShown = terminal::isThere();
    QString last;
};

void await(Submitted &submitted, const QElapsedTimer &timer, int seconds)
{
    Progress progress;
    while (!isOver(submitted.job.state)) {
        submitted.job = printJob(submitted.number);
        if (timer.elapsed() >= 1000LL * seconds)
            return;
        progress.show(sentenceOf(submitted));
        QThread::msleep(isOver(submitted.job.state) ? 0 : pollPause);
    }
}

QJsonObject asJson(const Submitted &submitted)
{
    return {{u"job"_s, submitted.file.shown()},
            {u"printer"_s, submitted.queue},
            {u"number"_s, submitted.number},
            {u"outcome"_s, outcomeOf(submitted.job.state).word},
            {u"message"_s, messageOf(submitted)}};
}

/// Of several the worst, which is the last one of the table of exit codes.
ExitCode tell(const QList<Submitted> &all, bool isJson)
{
    ExitCode worst = ExitCode::Done;
    QJsonArray array;
    for (const Submitted &submitted : all) {
        worst = std::max(worst, outcomeOf(submitted.job.state).code);
        array += asJson(submitted);
        if (!isJson && submitted.number > 0)
            printText(sentenceOf(submitted) + u'\n');
    }
    if (isJson)
        printBytes(QJsonDocument(array).toJson());
    return worst;
}

ExitCode run(const CommandLine &line)
{
    const int seconds = chosenWait(line);
    QList<Task> tasks;
    for (qsizetype place = 0; place < line.arguments().size(); ++place)
        tasks += taskFor(line, line.fileArgument(place));
    QList<Submitted> all = submitAll(tasks);
    QElapsedTimer timer;
    timer.start();
    for (Submitted &submitted : all)
        await(submitted, timer, seconds);
    return tell(all, line.has(u"json"));
}

} // namespace

constinit const Command printCommand{.name = "print"_L1,
                                     .summary = "Print jobs, and tell whether they are on paper."_L1,
                                     .operands = operands,
                                     .options = options,
                                     .run = run};
