#include "findingreport.h"

#include "commanderror.h"
#include "console.h"
#include "inputfile.h"

#include <QJsonDocument>

#include <limits>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostOfACheck = 100;

} // namespace

void FindingReport::add(const FileName &name, const Check &check)
{
    try {
        checkFile(name, check);
    } catch (const CommandError &error) {
        isUnreadable = true;
        printErrors(error);
    }
}

void FindingReport::checkFile(const FileName &name, const Check &check)
{
    const std::unique_ptr<QFile> file = openInput(name);
    FindingList list(name.shown(), line.has(u"verbose") ? check::Severity::Note : check::Severity::Warning,
                     line.has(u"all") ? std::numeric_limits<qsizetype>::max() : mostOfACheck);
    check(*file, list);
    if (file->error() != QFileDevice::NoError)
        throw CommandError(ExitCode::Unreadable, name, file->errorString());
    errors += list.count(check::Severity::Error);
    warnings += list.count(check::Severity::Warning);
    if (!line.has(u"quiet"))
        show(list);
}

void FindingReport::show(const FindingList &list)
{
    if (line.has(u"json")) {
        for (const auto &object : list.asJson())
            objects.append(object);
    } else {
        printText(list.asText());
    }
    for (const QString &remark : list.remarks())
        printNote(remark);
}

ExitCode FindingReport::end()
{
    if (line.has(u"quiet"))
        return exitCode();
    if (line.has(u"json"))
        printBytes(QJsonDocument(objects).toJson());
    if (isatty(STDERR_FILENO))
        printNote(summary());
    return exitCode();
}

QString FindingReport::summary() const
{
    if (errors + warnings == 0)
        return isUnreadable ? u"not everything could be read"_s : u"nothing found"_s;
    return u"errors: %1, warnings: %2"_s.arg(errors).arg(warnings);
}

ExitCode FindingReport::exitCode() const
{
    if (isUnreadable)
        return ExitCode::Unreadable;
    if (errors > 0)
        return ExitCode::Errors;
    return warnings > 0 ? ExitCode::Warnings : ExitCode::Done;
}
