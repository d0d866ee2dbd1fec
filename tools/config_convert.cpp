#include "commanderror.h"
#include "config.h"

#include <QFileInfo>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The new file, or a CommandError that tells what it would lose.
QByteArray converted(ConfigFile &file, const QString &to, bool force)
{
    if (force) {
        tellLosses(file, to);
    } else if (!file.losses().empty()) {
        throw file.lossesAsError();
    }
    return file.written(to, force);
}

/// Writes the file `path`; with `force` in the place of another, which may be anything and is kept for good.
void writeOutput(const QString &path, const QByteArray &content, bool force)
{
    FileReplacement replacement(path);
    if (QFileInfo::exists(path)) {
        if (!force) {
            throw CommandError(
                ExitCode::WouldLose, path,
                u"it is there already; give another name, or --force, which keeps it as a backup"_s);
        }
        tellBackup(keepBackup(path, bytesOf(path), true));
    }
    replacement.commit(content);
}

} // namespace

ExitCode runConfigConvert(const QStringList &arguments)
{
    CommandLine line(
        u"palvestrin config convert --to xml|cfg [--output FILE] [--force] FILE"_s,
        {QCommandLineOption(u"to"_s, u"The form to write: xml or cfg."_s, u"FORM"_s),
         QCommandLineOption(u"output"_s, u"Write this file instead of standard output."_s, u"FILE"_s),
         forceOption()});
    if (!line.parse(arguments, 1, 1))
        return ExitCode::Done;
    const QString to = line.value(u"to"_s);
    if (to != form::text && to != form::xml)
        throw CommandError(ExitCode::WrongUsage, u"no form \"%1\"; give --to xml or --to cfg"_s.arg(to));

    ConfigFile file(line.argument(0));
    requireFile(file);
    const bool force = line.has(u"force"_s);
    const QByteArray content = converted(file, to, force);
    if (line.has(u"output"_s)) {
        writeOutput(line.value(u"output"_s), content, force);
    } else {
        std::cout.write(content.constData(), content.size());
    }
    return ExitCode::Done;
}
