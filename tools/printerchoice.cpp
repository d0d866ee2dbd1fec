#include "printerchoice.h"

#include "commanderror.h"

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
