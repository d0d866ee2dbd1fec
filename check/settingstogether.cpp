#include "settingstogether.h"

#include "applicationkeys.h"
#include "columnroom.h"
#include "configuration.h"
#include "discreet.h"
#include "flagneeds.h"
#include "settingnames.h"
#include "settingsinforce.h"
#include "usercatalogue.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

using vocabulary::DocumentKind;

/// The value to change when columns do not fit: the paper's width, or else the last column that is set. Null
/// when none is.
const StoredValue *blamed(const ColumnRoom &room, const SettingsInForce &settings, const DocumentKind &kind)
{
    const StoredValue *last = nullptr;
    for (const vocabulary::CountMember member : room.columns) {
        if (const StoredValue *value = settings.find(kind.path() + nameOf(member)))
            last = value;
    }
    return last;
}

/// "quantityFieldWidth 3 + priceFieldWidth 8".
QString sumOf(const ColumnRoom &room, const DocumentSettings &settings)
{
    QStringList sum;
    for (const vocabulary::CountMember member : room.columns) {
        if (member != &DocumentSettings::paperWidth)
            sum += nameOf(member) + u' ' + QString::number(settings.*member);
    }
    return sum.join(" + "_L1);
}

/// Whether the file says anything of the widths of a kind's rows. Without, they fit.
bool hasWidths(const DocumentSettings &settings)
{
    return settings.paperWidth || settings.quantityFieldWidth || settings.priceFieldWidth ||
           settings.totalPriceFieldWidth;
}

void checkColumns(const DocumentKind &kind, const SettingsInForce &settings, FindingSink &sink)
{
    const DocumentSettings widths = settings.of(kind);
    const std::optional<ColumnRoom> room =
        hasWidths(widths) ? leastColumnRoom(kind, widths) : std::optional<ColumnRoom>();
    const StoredValue *value = room && room->description == 0 ? blamed(*room, settings, kind) : nullptr;
    if (!value)
        return;
    sink.take({named("no-room"), value->valuePlace,
               UserWords::tr("on the paper \"%1\", %2 and %3 more take %4 of %5 characters: %6")
                   .arg(inUserLanguage(room->title), sumOf(*room, widths), QString::number(room->between),
                        QString::number(room->taken), QString::number(room->paper),
                        room->isUncut ? UserWords::tr("descriptions are not cut, and run over the edge")
                                      : UserWords::tr("nothing is left for the description")),
               UserWords::tr("make the paper wider or the columns narrower")});
}

void checkFlags(const DocumentKind &kind, const SettingsInForce &settings, FindingSink &sink)
{
    const QString path = kind.path();
    for (const FlagNeed &need : flagNeeds(kind)) {
        const StoredValue *value = settings.find(path + need.setting);
        if (!value || !need.isOn(value->text) || settings.textOf(path + need.needs) == vocabulary::flagOn)
            continue;
        sink.take({named("needs-flag"), value->keyPlace,
                   UserWords::tr("%1 does nothing while %2 is off").arg(path + need.setting, need.needs),
                   UserWords::tr("set %1 to \"true\", or take this one out").arg(need.needs)});
    }
}

void checkCatalogue(const SettingsInForce &settings, FindingSink &sink, const Surroundings &surroundings)
{
    const StoredValue *file = settings.find(applicationkey::languageFile);
    if (!file || file->text.isEmpty() || surroundings.hasCatalogue())
        return;
    const QString folder = settings.textOf(applicationkey::languageBaseDir);
    sink.take(
        {named("no-catalogue"), file->valuePlace,
         u"there is no catalogue for the language of this run at %1 followed by %2: the labels are English"_s
             .arg(discreet(applicationkey::languageBaseDir, folder),
                  discreet(applicationkey::languageFile, file->text)),
         u"correct %1, or install the catalogue"_s.arg(applicationkey::languageBaseDir)});
}

void checkLog(const SettingsInForce &settings, FindingSink &sink, const Surroundings &surroundings)
{
    const StoredValue *type = settings.find(applicationkey::loggerType);
    const knownkeys::Key &key = *knownkeys::find(applicationkey::loggerType);
    if (!type || !knownkeys::objection(key, type->text).isEmpty())
        return; // then no log is wanted
    const QString path = settings.textOf(applicationkey::loggerBaseDir) + u'/' +
                         settings.textOf(applicationkey::loggerFileName);
    if (surroundings.canWriteFile(path))
        return;
    const StoredValue *folder = settings.find(applicationkey::loggerBaseDir);
    sink.take({named("no-log"), (folder ? folder : type)->valuePlace,
               u"the file %1 cannot be written: there is no log"_s.arg(
                   discreet(applicationkey::loggerBaseDir, path)),
               u"make the folder, or correct %1 and %2"_s.arg(applicationkey::loggerBaseDir,
                                                              applicationkey::loggerFileName)});
}

} // namespace

void checkSettingsTogether(const SettingsInForce &settings, FindingSink &sink,
                           const Surroundings *surroundings)
{
    for (const DocumentKind &kind : vocabulary::documentKinds) {
        checkColumns(kind, settings, sink);
        checkFlags(kind, settings, sink);
    }
    if (!surroundings)
        return;
    checkCatalogue(settings, sink, *surroundings);
    checkLog(settings, sink, *surroundings);
}

} // namespace check
