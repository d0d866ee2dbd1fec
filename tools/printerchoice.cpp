#include "printerchoice.h"

#include "commanderror.h"
#include "configfile.h"

#include <locale.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString profileNames()
{
    QStringList names;
    for (const Profile &profile : profiles)
        names += profile.name;
    return names.join(u", "_s);
}

} // namespace

QList<Offer> offerProfiles(const CommandLine &, const QString &)
{
    QList<Offer> offers;
    for (const Profile &profile : profiles)
        offers += Offer{profile.name, profile.title};
    return offers;
}

bool isForReceiptPrinter(const CommandLine &line)
{
    return line.value(u"device") == "escpos"_L1;
}

const Profile &chosenProfile(const CommandLine &line)
{
    if (!line.has(u"profile"))
        return usualProfile;
    const QString name = line.value(u"profile");
    const Profile *profile = findProfile(name);
    if (!profile)
        throw CommandError(ExitCode::WrongUsage,
                           u"there is no profile \"%1\"; there are %2"_s.arg(name, profileNames()));
    return *profile;
}

FileName chosenConfiguration(const CommandLine &line)
{
    const FileName path = line.file(u"config");
    if (path.isEmpty())
        return path;
    const ConfigFile file(path); // which throws when it cannot be read
    if (!file.exists())
        throw CommandError(ExitCode::Unreadable, path, u"there is no such file"_s);
    if (file.type() == form::xml) {
        throw CommandError(ExitCode::Unreadable, path,
                           u"the renderer reads a configuration as text, and this is XML"_s);
    }
    return path;
}

/// The renderer would take a locale that is not there for one in UTF-8, without a word.
QByteArray chosenLocale(const CommandLine &line)
{
    if (!line.has(u"locale"))
        return {};
    const QByteArray name = line.value(u"locale").toUtf8();
    const locale_t locale = newlocale(LC_ALL_MASK, name.constData(), nullptr);
    if (!locale) {
        throw CommandError(
            ExitCode::WrongUsage,
            u"the locale \"%1\" is not installed here; \"locale -a\" lists those that are"_s.arg(
                line.value(u"locale")));
    }
    freelocale(locale);
    return name;
}
