#include "delivery.h"

#include "proofwait.h"

#include <algorithm>
#include <poll.h>

using namespace std::chrono_literals;

namespace {

constexpr auto longestPatience = 30s; ///< before the first byte; then the scheduler starts anew
constexpr auto patienceInClass = 5s;  ///< then the next printer of the class has its turn
constexpr auto firstAnswer = 10s;     ///< of a printer that was never heard of
constexpr auto shortestPause = 100ms; ///< between two tries to connect; each is twice as long as the last
constexpr auto longestPause = 2s;
constexpr auto closingTime = 5s;    ///< for a printer to close its side when it has taken all
constexpr auto staleAnswers = 50ms; ///< until a device has brought what a printer said to somebody else
constexpr auto stallTime = 3s;      ///< in which a printer that has paper takes some bytes
constexpr int slowestLine = 480;    ///< bytes a second, half of what a line with 9600 baud carries

std::string seconds(Clock::duration duration)
{
    return std::to_string(std::chrono::duration_cast<std::chrono::seconds>(duration).count()) + " seconds";
}

std::string busyWith(pid_t stranger)
{
    if (stranger == 0)
        return "The printer is busy with another ticket; this one waits for it.";
    return "Not printed yet: process " + std::to_string(stranger) +
           " of another user keeps the printer; look what it is, and end it.";
}

} // namespace

Delivery::Delivery(const DeviceAddress &where, const Ticket &what, const Surroundings &surroundings)
    : address(where), ticket(what), around(surroundings), channel(where, surroundings.interrupted)
{
}

Delivery::Outcome Delivery::run()
{
    constexpr End (Delivery::*steps[])() = {&Delivery::findPrinter, &Delivery::takePrinter,
                                            &Delivery::reach,       &Delivery::ask,
                                            &Delivery::send,        &Delivery::confirm};
    for (const auto step : steps) {
        if (const End end = (this->*step)())
            return *end;
    }
    return Outcome::Unknown; // the last step always ends
}

Delivery::End Delivery::findPrinter()
{
    around.report.connecting(true);
    const Clock::time_point until = Clock::now() + patience();
    while ((printer = channel.resolve()).empty()) {
        if (const End end = unreached(until, longestPause))
            return end;
    }
    memory.emplace(around.memoryFolder, printer);
    return {};
}

Delivery::End Delivery::takePrinter()
{
    const Clock::time_point until = Clock::now() + patience();
    lock.emplace(printer);
    while (!lock->tryTake()) {
        const int holder = lock->waiter();
        around.report.waiting(busyWith(lock->stranger()));
        if (around.hasStandIn && Clock::now() >= until)
            return notPrinted("the printer is busy with another ticket.");
        const Clock::time_point next = Clock::now() + (holder < 0 ? 20ms : 60'000ms);
        if (channel.waitFor(holder, POLLIN, around.hasStandIn ? std::min(next, until) : next) ==
            Event::Stopped)
            return Outcome::Stopped;
    }
    return {};
}

Delivery::End Delivery::reach()
{
    const Clock::time_point until = Clock::now() + patience();
    for (Clock::duration pause = shortestPause;; pause = std::min<Clock::duration>(2 * pause, longestPause)) {
        if (!channel.isStillThere()) // it moved while another ticket was printed, and has another lock
            return notPrinted("the printer is not where it was.");
        const Event event = channel.open(std::max(until, Clock::now() + 1s));
        if (event == Event::Stopped)
            return Outcome::Stopped;
        if (event == Event::Ready)
            break;
        if (const End end = unreached(until, pause))
            return end;
    }
    around.report.connecting(false);
    around.report.setReason("offline-report", false);
    return forgetAnswers();
}

/// To questions on an earlier connection. A device keeps them for the next one who reads, and brings them in
/// a moment.
Delivery::End Delivery::forgetAnswers()
{
    const bool isStopped = !channel.isNetwork() &&
                           receiveUntil([] { return false; }, Clock::now() + staleAnswers) == Event::Stopped;
    answers = {};
    return isStopped ? End(Outcome::Stopped) : End();
}

/// Tells why, and waits for the next attempt; ends when there shall be none.
Delivery::End Delivery::unreached(Clock::time_point until, Clock::duration pause)
{
    const std::string why = "the printer at " + address.shown() + " cannot be reached: " + channel.trouble();
    around.report.waiting("Not printed yet: " + why + ".");
    around.report.setReason("offline-report", true);
    if (Clock::now() >= until)
        return notPrinted(why + ".");
    if (channel.waitFor(-1, 0, Clock::now() + pause) == Event::Stopped)
        return Outcome::Stopped;
    return {};
}

Delivery::End Delivery::ask()
{
    const Answers known = memory->answers();
    const bool isRequired = address.status == DeviceAddress::Status::Required;
    const bool isAsked =
        isRequired || (address.status == DeviceAddress::Status::Ask && known != Answers::Nothing);
    if (isAsked) {
        if (const End end = askUntilReady(known))
            return end;
    }
    if (level == Answers::Nothing)
        around.report.status({});
    if (isRequired && level != Answers::Proof)
        return notPrinted("the printer cannot confirm what is on paper, and its queue requires that.");
    return {};
}

Delivery::End Delivery::askUntilReady(Answers known)
{
    const Clock::time_point until = Clock::now() + patience();
    for (;;) {
        PrinterStatus status;
        const Event event = askAll(status, answerTime());
        if (event == Event::Ready && status.isReady()) {
            around.report.status(status);
            return learnWhetherItProves(known);
        }
        if (event == Event::Late && known == Answers::NotAsked && isSilentByNature()) {
            memory->remember(Answers::Nothing);
            return {};
        }
        if (const End end = notReady(event, status, until))
            return end;
    }
}

/// A printer that takes no question, such as one on a serial line that is offline, is not silent.
bool Delivery::isSilentByNature() const
{
    return !memory->hasAnswered() && address.status == DeviceAddress::Status::Ask &&
           channel.bytesOnTheWay() == 0;
}

/// Tells why, and waits for the next attempt; ends when there shall be none.
Delivery::End Delivery::notReady(Event event, const PrinterStatus &status, Clock::time_point until)
{
    if (event == Event::Stopped)
        return Outcome::Stopped;
    std::string why(status.sentence());
    if (event == Event::Ready) {
        around.report.status(status);
    } else {
        why =
            event == Event::Late
                ? "the printer takes the connection and does not say how it is; switch it off and on."
                : "the connection broke off when the printer was asked how it is: " + channel.trouble() + ".";
        around.report.waiting("Not printed yet: " + why);
    }
    if (Clock::now() >= until)
        return notPrinted(why);
    if (channel.waitFor(-1, 0, Clock::now() + 500ms) == Event::Stopped)
        return Outcome::Stopped;
    return event == Event::Ready ? End() : reach();
}

Delivery::End Delivery::learnWhetherItProves(Answers known)
{
    level = known == Answers::Proof ? Answers::Proof : Answers::Status;
    const bool isRequired = address.status == DeviceAddress::Status::Required;
    if (known == Answers::Proof || (known == Answers::Status && !isRequired))
        return {};
    constexpr int attempts = 2; // some printers hang up at such a question; a line may break by chance
    Event event = Event::Broken;
    for (int attempt = 0; attempt < attempts && event == Event::Broken; ++attempt) {
        event = tryProof();
        if (event == Event::Stopped)
            return Outcome::Stopped;
        const End end = event == Event::Broken ? reach() : End();
        if (end)
            return end;
    }
    level = event == Event::Ready ? Answers::Proof : Answers::Status;
    memory->remember(level);
    return {};
}

PrinterChannel::Event Delivery::tryProof()
{
    const std::string id = freshProofId();
    const Clock::time_point until = answerTime();
    // It answers in real time, so it knows what the zero bytes are for.
    const Event event = sendAll(Ticket::restOfTorn() + proofQuestion(id), until);
    return event == Event::Ready ? receiveUntil([&] { return answers.hasProof(id); }, until) : event;
}

Delivery::End Delivery::send()
{
    const Beginning beginning = around.begin();
    if (beginning == Beginning::Cancelled)
        return Outcome::Stopped;
    if (beginning == Beginning::Impossible)
        return notPrinted(
            "the record of the job cannot be written; look for room on the disk of the print server.");
    around.report.info("Printing.");
    for (off_t place = 0; place < ticket.size();) {
        const std::string piece = ticket.piece(place);
        if (piece.empty())
            return unknown("the data of the job could not be read to their end");
        const Event event = sendAll(piece, Clock::now() + address.wait);
        if (event != Event::Ready)
            return brokenOff(event, "the printer took no more of it for " + seconds(address.wait));
        place += off_t(piece.size());
    }
    return {};
}

Delivery::End Delivery::confirm()
{
    if (level != Answers::Proof)
        return finishUnconfirmed();
    const std::string id = freshProofId();
    const Event event = sendAll(proofQuestion(id), Clock::now() + address.wait);
    return event == Event::Ready
               ? awaitProof(id)
               : brokenOff(event, "the printer took no question for " + seconds(address.wait));
}

Delivery::End Delivery::awaitProof(const std::string &id)
{
    ProofWait wait(Clock::now() + address.wait + std::chrono::seconds(ticket.size() / slowestLine),
                   address.wait);
    for (;;) {
        const Event event =
            receiveUntil([&] { return answers.hasProof(id) || answers.hasStatus(); }, wait.next());
        if (answers.hasProof(id))
            break; // also after the time, for the machine may have stood still
        if (event == Event::Broken || event == Event::Stopped)
            return brokenOff(event, {});
        if (wait.isOver()) {
            if (wait.isHeardReady()) // it was replaced by one that cannot confirm
                memory->remember(Answers::Something);
            return unknown("the printer did not confirm it within " + seconds(address.wait));
        }
        if (const int answer = answers.takeStatus();
            answer >= 0 && wait.take(static_cast<unsigned char>(answer))) {
            around.report.status(wait.status());
            // Nobody can stop a backend without a guard, so it does not wait forever.
            if (!wait.status().isReady() && !around.interrupted.isOrphan())
                wait.extend();
        }
        const int question = wait.dueQuestion(); // a printer that takes nothing now is asked later
        if (question > 0 && sendAll(statusQuestion(question), Clock::now()) != Event::Ready)
            wait.postpone();
    }
    around.report.goesOn();
    return Outcome::Printed;
}

/// What a printer has in its memory is not on paper as long as something stops it.
Delivery::End Delivery::awaitReady()
{
    for (;;) {
        PrinterStatus status;
        const Event event = askAll(status, Clock::now() + address.wait);
        if (event != Event::Ready)
            return brokenOff(event, "the printer did not say how it is within " + seconds(address.wait));
        around.report.status(status);
        if (status.isReady() || around.interrupted.isOrphan()) // nobody can stop a backend without a guard
            return {};
        if (channel.waitFor(-1, 0, Clock::now() + 500ms) == Event::Stopped)
            return brokenOff(Event::Stopped, {});
    }
}

/// The printer has taken all when it closes its side. Not all of them do.
Delivery::End Delivery::finishUnconfirmed()
{
    if (level == Answers::Status) {
        if (const End end = awaitReady())
            return end;
    }
    const Clock::time_point until = Clock::now() + address.wait;
    channel.finishWriting();
    const Clock::time_point closes = Clock::now() + std::min<Clock::duration>(closingTime, address.wait);
    Event event = Event::Late;
    if (channel.isNetwork())
        event = receiveUntil([] { return false; }, closes);
    // It may close its side early, and take what is on the way after that.
    while (event == Event::Late || (event == Event::Broken && channel.isClosedInOrder())) {
        const bool isTaken = channel.bytesOnTheWay() == 0;
        if (channel.look() == Event::Broken) // then nobody knows what became of them
            return brokenOff(Event::Broken, {});
        if (isTaken)
            return Outcome::Unconfirmed;
        if (Clock::now() >= until)
            return unknown("the printer did not take all of it within " + seconds(address.wait));
        event = channel.waitFor(-1, 0, Clock::now() + 100ms);
    }
    return brokenOff(event, {});
}

PrinterChannel::Event Delivery::askAll(PrinterStatus &status, Clock::time_point until)
{
    for (int question = 1; question <= PrinterStatus::questions; ++question) {
        receiveUntil([] { return false; }, Clock::now());
        answers.takeStatus(); // what nobody asked for
        Event event = sendAll(statusQuestion(question), until);
        if (event == Event::Ready)
            event = receiveUntil([&] { return answers.hasStatus(); }, until);
        if (event != Event::Ready)
            return event;
        status.take(question, static_cast<unsigned char>(answers.takeStatus()));
    }
    return Event::Ready;
}

PrinterChannel::Event Delivery::receiveUntil(const std::function<bool()> &isEnough, Clock::time_point until)
{
    std::string bytes;
    while (!isEnough()) {
        const Event event = channel.read(bytes, until);
        if (event != Event::Ready)
            return event;
        answers.take(bytes);
        if (Clock::now() >= until && !isEnough()) // a printer that never stops talking is late, too
            return Event::Late;
    }
    return Event::Ready;
}

/// What the printer says meanwhile is taken: a printer that cannot get rid of its answers stops reading.
PrinterChannel::Event Delivery::sendAll(std::string_view bytes, Clock::time_point until)
{
    const Clock::duration silence = until - Clock::now();
    while (!bytes.empty()) {
        std::size_t written = 0;
        Event event = channel.write(bytes, written, std::min(until, Clock::now() + stallTime));
        if (event == Event::Late && Clock::now() < until) {
            around.report.waiting(
                "The printer takes nothing more at present; look at its paper and its cover.");
            continue;
        }
        if (event != Event::Ready)
            return event;
        bytes.remove_prefix(written);
        if (written > 0)
            until = Clock::now() + silence;
        else if (Clock::now() >= until)
            return Event::Late;
        else if (event = receiveUntil([] { return false; }, Clock::now()); event != Event::Late)
            return event;
    }
    return Event::Ready;
}

Delivery::End Delivery::notPrinted(const std::string &why)
{
    reason = why;
    return Outcome::NotPrinted;
}

Delivery::End Delivery::unknown(const std::string &why)
{
    channel.dropUnsent();
    reason = why;
    return Outcome::Unknown;
}

/// For what ended otherwise than hoped, after the first byte.
Delivery::End Delivery::brokenOff(Event event, const std::string &late)
{
    if (event == Event::Stopped) {
        channel.dropUnsent();
        return Outcome::Stopped;
    }
    return unknown(event == Event::Late ? late : "the connection broke off: " + channel.trouble());
}

Clock::duration Delivery::patience() const
{
    return around.hasStandIn ? patienceInClass : longestPatience;
}

/// When an answer is no longer waited for.
Clock::time_point Delivery::answerTime() const
{
    return Clock::now() + std::min({patience(), Clock::duration(firstAnswer), Clock::duration(address.wait)});
}
