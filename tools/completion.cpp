#include "completion.h"

#include "commandline.h"
#include "console.h"
#include "knownkeys.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Offer> beginningWith(const QString &begun, const QList<Offer> &offers)
{
    QList<Offer> matching;
    std::ranges::copy_if(offers, std::back_inserter(matching),
                         [&begun](const Offer &offer) { return offer.word.startsWith(begun); });
    return matching;
}

QList<Offer> plainOffers(const QStringList &words)
{
    QList<Offer> offers;
    for (const QString &word : words)
        offers += {word, {}};
    return offers;
}

/// Each known key that begins so, up to its next dot.
QList<Offer> nextParts(const QString &begun)
{
    QList<Offer> offers;
    for (const knownkeys::Key &key : knownkeys::all()) {
        if (!key.name.startsWith(begun))
            continue;
        const qsizetype dot = key.name.indexOf(u'.', begun.size());
        const Offer offer = dot < 0 ? Offer{key.name, key.meaning} : Offer{key.name.first(dot + 1), {}};
        if (offers.isEmpty() || offers.last().word != offer.word) // the keys of a block stand together
            offers += offer;
    }
    return offers;
}

QList<Offer> commandsOf(const Command &group)
{
    QList<Offer> offers;
    for (const Command *command : group.commands)
        offers += {command->name, command->summary};
    return offers;
}

QList<Offer> optionsOf(const Command &command, const CommandLine &before)
{
    QList<Offer> offers;
    for (const Option &option : allOptions(command)) {
        if (!before.has(option.name))
            offers += {"--"_L1 + option.name, option.meaning};
    }
    return offers;
}

QList<Offer> offersOf(const Command &command, const QByteArrayList &words, const QString &begun)
{
    const CommandLine before(command, words, CommandLine::Begun);
    const Argument *expected = before.expected();
    if (before.mayBeOption() && (!expected || begun.startsWith(u'-')))
        return beginningWith(begun, optionsOf(command, before));
    if (!expected)
        return {};
    if (expected->offers)
        return expected->offers(before, begun);
    return expected->name.contains(u'|')
               ? beginningWith(begun, plainOffers(QString(expected->name).split(u'|')))
               : QList<Offer>();
}

QList<Offer> offersIn(const Command &group, QByteArrayList words, const QString &begun)
{
    const bool isHelp = words.value(0) == "help";
    if (isHelp)
        words.removeFirst();
    if (words.isEmpty()) {
        QList<Offer> offers = commandsOf(group);
        if (!isHelp)
            offers += {{u"help"_s, u"Tell about a command."_s}, {u"--help"_s, helpOption.meaning}};
        return beginningWith(begun, offers);
    }
    const auto found = std::ranges::find(group.commands, fromTerminal(words.first()), &Command::name);
    if (found == group.commands.end())
        return {};
    const Command &command = **found;
    words.removeFirst();
    if (isHelp)
        words.prepend("help");
    if (!command.commands.empty())
        return offersIn(command, words, begun);
    return isHelp ? QList<Offer>() : offersOf(command, words, begun);
}

} // namespace

QString offersFor(const Command &root, const QByteArrayList &words)
{
    QString text;
    const QString begun = words.isEmpty() ? QString() : fromTerminal(words.last());
    for (const Offer &offer : offersIn(root, words.first(std::max<qsizetype>(words.size() - 1, 0)), begun))
        text += offer.word + (offer.meaning.isEmpty() ? QString() : u'\t' + offer.meaning) + u'\n';
    return text;
}

QList<Offer> offerFiles(const CommandLine &, const QString &)
{
    return {{u":files"_s, {}}};
}

QList<Offer> offerKeys(const CommandLine &, const QString &begun)
{
    const QList<Offer> offers = nextParts(begun);
    return offers.isEmpty() ? nextParts("palvestrin."_L1 + begun) : offers;
}

QList<Offer> offerNames(const CommandLine &before, const QString &begun)
{
    QList<Offer> offers = offerKeys(before, begun);
    if (!offers.isEmpty())
        return offers;
    QStringList names;
    for (const knownkeys::Key &key : knownkeys::all())
        names += key.name.section(u'.', -1);
    names.removeDuplicates();
    return beginningWith(begun, plainOffers(names));
}

QList<Offer> offerValues(const CommandLine &before, const QString &begun)
{
    QStringList words;
    if (const knownkeys::Key *key = knownkeys::find(before.argument(0))) {
        for (const QLatin1StringView word : vocabulary::wordsOf(key->kind))
            words += word;
    }
    return beginningWith(begun, plainOffers(words));
}
