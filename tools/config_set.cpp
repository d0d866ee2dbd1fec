#include "commanderror.h"
#include "config.h"
#include "keyedit.h"
#include "knownkeys.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Argument valueArgument{.name = "VALUE"_L1, .offers = offerValues, .isAnyText = true};
constexpr Option uncheckedOption{"unchecked"_L1, "Accept keys and values that no program knows."_L1};
constexpr Operand operands[] = {{&keyArgument}, {&valueArgument}};
constexpr Option options[] = {fileOption, forceOption, uncheckedOption};

[[noreturn]] void refuse(const QString &reason)
{
    throw CommandError(ExitCode::Refused, reason);
}

/// What the format itself cannot store.
void requireStorable(const QString &key, const QString &value)
{
    if (const QString objection = keyObjection(key); !objection.isEmpty())
        refuse(objection);
    if (const QString objection = valueObjection(value); !objection.isEmpty())
        refuse(objection);
}

/// What no program makes sense of. Setting "" is always sensible: it is the same as a missing key.
void requireSensible(const QString &key, const QString &value)
{
    requireKnownKey(key);
    const QString objection = knownkeys::objection(*knownkeys::find(key), value);
    if (!value.isEmpty() && !objection.isEmpty())
        refuse(u"\"%1\" is no value for %2; %3"_s.arg(value, key, objection));
}

[[noreturn]] void refuseOtherBlock(ConfigFile &file, const QString &key)
{
    const QString first = file.config().root().firstChildElement().tagName().simplified();
    throw CommandError(
        ExitCode::Refused, file.path,
        u"\"%1\" would never be found, for the first block is \"%2\"; move the block \"%3\" to the "
        "front, without text before its name"_s.arg(key, first, key.section(u'.', 0, 0)));
}

ExitCode run(const CommandLine &line)
{
    const QString key = line.argument(0);
    const QString value = line.argument(1);
    if (!line.has(u"unchecked"))
        requireSensible(key, value);
    requireStorable(key, value);

    changeFile(line, key, [&](ConfigFile &file) {
        if (!setKey(file.config(), key, value))
            refuseOtherBlock(file, key);
    });
    return ExitCode::Done;
}

} // namespace

constinit const Command configSetCommand{.name = "set"_L1,
                                         .summary = "Change one setting."_L1,
                                         .operands = operands,
                                         .options = options,
                                         .run = run};
