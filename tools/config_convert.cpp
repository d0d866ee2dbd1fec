#include "commanderror.h"
#include "config.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The new file, or a CommandError that tells what it would lose.
QByteArray converted(ConfigFile &file, const QString &to, bool force)
{
    if (!force && !file.losses().empty())
        throw file.lossesAsError();
    return file.written(to, force);
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
    const QByteArray content = converted(file, to, line.has(u"force"_s));
    if (line.has(u"output"_s)) {
        FileReplacement(line.value(u"output"_s)).commit(content);
    } else {
        std::cout.write(content.constData(), content.size());
    }
    return ExitCode::Done;
}
