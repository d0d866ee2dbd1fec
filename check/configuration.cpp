#include "configuration.h"

#include "configfile.h"
#include "configurationtext.h"
#include "configurationxml.h"
#include "otherfile.h"
#include "settingsinforce.h"
#include "settingstogether.h"
#include "usercatalogue.h"

#include <QIODevice>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

void tellOther(const QString &what, const QString &hint, FindingSink &sink)
{
    sink.take(
        {named("no-configuration"), {}, UserWords::tr("this is no configuration but %1").arg(what), hint});
}

void checkAs(const QByteArray &content, bool isXml, FindingSink &sink, const Surroundings *surroundings)
{
    SettingsInForce settings;
    if (isXml)
        checkConfigurationXml(content, settings, sink);
    else
        checkConfigurationText(content, settings, sink);
    checkSettingsTogether(settings, sink, surroundings);
}

} // namespace

void checkConfiguration(QIODevice &text, FindingSink &sink, const Surroundings *surroundings)
{
    const QByteArray content = text.read(longestConfiguration + 1);
    const bool isXml = form::isXml(content);
    if (const QString what = otherFile(content, isXml); !what.isEmpty())
        tellOther(what, UserWords::tr("\"palvestrin config set\" begins a new file"), sink);
    else if (isXml && surroundings)
        tellOther(UserWords::tr("XML, and the programs read this file as text"),
                  UserWords::tr("\"palvestrin config convert\" makes it text"), sink);
    else
        checkAs(content, isXml, sink, surroundings);
}

} // namespace check
