#include "queuelist.h"

#include "commanderror.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString cure()
{
    return isOnThisMachine(serverName())
               ? u"\"systemctl start cups\" starts it, \"systemctl status cups\" tells why it ended"_s
               : u"look after that machine, or name another one in CUPS_SERVER or client.conf"_s;
}

} // namespace

QList<PrintQueue> queuesOfServer()
{
    const std::optional<QList<PrintQueue>> queues = printQueues();
    if (!queues)
        throw CommandError(ExitCode::PrintFailed,
                           u"the print server does not answer: %1; %2"_s.arg(serverTrouble(), cure()));
    return *queues;
}
