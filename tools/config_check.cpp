#include "config.h"
#include "configuration.h"
#include "findingreport.h"
#include "userconfiguration.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Option options[] = {fileOption, reportOptions[0], reportOptions[1], reportOptions[2],
                              reportOptions[3]};

ExitCode run(const CommandLine &line)
{
    FindingReport report(line);
    if (line.has(u"file")) {
        report.add(line.file(u"file"),
                   [](QFile &file, check::FindingSink &sink) { check::checkConfiguration(file, sink); });
    } else {
        checkUserConfiguration(report);
    }
    return report.end();
}

} // namespace

constinit const Command configCheckCommand{.name = "check"_L1,
                                           .summary = "What is wrong with the file, and where."_L1,
                                           .options = options,
                                           .run = run};
