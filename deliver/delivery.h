#pragma once

#include "printerchannel.h"
#include "printerlock.h"
#include "printermemory.h"
#include "printerstatus.h"
#include "report.h"
#include "ticket.h"

#include <functional>
#include <optional>
#include <string>

/// Brings one ticket to one printer, step by step, and knows what happened:
///
///     take the printer, reach it, ask whether it is ready   failing means that nothing was printed
///     send                                                  from here on failing means that nobody knows
///     ask for the proof, wait for it                        printed
///
/// Nothing is ever sent twice.
class Delivery
{
public:
    enum class Outcome {
        Printed,     ///< the printer says that the last line is on paper
        Unconfirmed, ///< all was sent to a printer that cannot say so
        NotPrinted,  ///< nothing was sent; it may be tried again
        Unknown,     ///< bytes went out, and no proof came back
        Stopped,     ///< the backend was told to stop
    };

    enum class Beginning {
        Made,
        Cancelled,  ///< nobody wants the job any more
        Impossible, ///< it cannot be written down
    };

    /// What the delivery needs of its surroundings; all of it must outlive the delivery.
    struct Surroundings
    {
        Report &report;
        const OwnFolder *memoryFolder; ///< null: what printers answer is not kept
        Interruptions &interrupted;
        std::function<Beginning()> begin; ///< writes down that bytes go out from now on; else none do
        bool hasStandIn;                  ///< another printer can take the ticket
    };

    Delivery(const DeviceAddress &address, const Ticket &ticket, const Surroundings &surroundings);

    Outcome run();
    /// Why it is not printed or unknown, part of a sentence.
    const std::string &why() const { return reason; }

private:
    using End = std::optional<Outcome>; ///< empty when the next step follows
    using Event = PrinterChannel::Event;
    using Answers = PrinterMemory::Answers;

    End findPrinter();
    End takePrinter();
    End reach();
    End forgetAnswers();
    End ask();
    End askUntilReady(Answers known);
    bool isSilentByNature() const;
    End learnWhetherItProves(Answers known);
    End send();
    End confirm();
    End awaitProof(const std::string &id);
    End awaitReady();
    End finishUnconfirmed();

    Event tryProof();
    Event askAll(PrinterStatus &status, Clock::time_point until);
    Event receiveUntil(const std::function<bool()> &isEnough, Clock::time_point until);
    Event sendAll(std::string_view bytes, Clock::time_point until);
    End notReady(Event event, const PrinterStatus &status, Clock::time_point until);
    End unreached(Clock::time_point until, Clock::duration pause);
    End notPrinted(const std::string &why);
    End unknown(const std::string &why);
    End brokenOff(Event event, const std::string &late);
    Clock::duration patience() const;
    Clock::time_point answerTime() const;

    const DeviceAddress &address;
    const Ticket &ticket;
    const Surroundings &around;
    PrinterChannel channel;
    std::string printer; ///< the same for all ways to write its address
    std::optional<PrinterLock> lock;
    std::optional<PrinterMemory> memory;
    AnswerReader answers;
    Answers level = Answers::Nothing;
    std::string reason;
};
