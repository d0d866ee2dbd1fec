#include "faultlist.h"

void FaultList::add(const FileName &file, const paper::Fault &fault)
{
    if (++count <= most)
        entries.push_back({file, fault});
}

CommandError FaultList::asError(ExitCode code) const
{
    CommandError error(code == ExitCode::Done ? ExitCode::Broken : code);
    for (const Entry &entry : entries)
        error.add(entry.file, {entry.fault.line, entry.fault.column}, entry.fault.what);
    if (count > most)
        error.add(QStringLiteral("%1 more faults were found, which are not listed").arg(count - most));
    return error;
}
