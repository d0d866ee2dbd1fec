#include "currentsetting.h"

#include "fieldnames.h"
#include "pages.h"
#include "settingsmodel.h"
#include "usercatalogue.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

class CurrentSetting
{
    Q_DECLARE_TR_FUNCTIONS(CurrentSetting)
};

/// What a block holds that programs read; "" for any other key.
QString contentOf(const QString &key)
{
    const QString path = key + u'.';
    for (const Page &page : pages()) {
        if (page.path == path)
            return CurrentSetting::tr("The settings of: %1").arg(page.title());
    }
    return pages().front().path.startsWith(path)
               ? CurrentSetting::tr("Holds the settings of all documents and programs.")
               : QString();
}

} // namespace

QString explanationOf(const QString &key)
{
    if (key.isEmpty())
        return CurrentSetting::tr(
            "Choose a setting: its meaning is explained here, and what it does is marked on the paper.");
    const knownkeys::Key *known = knownkeys::find(key);
    if (!known) {
        const QString content = contentOf(key);
        return content.isEmpty() ? CurrentSetting::tr("No program reads this.") : content;
    }
    const QString missing = CurrentSetting::tr("Default: %1").arg(defaultText(*known));
    return u"<b>%1</b><p style='margin:4px 0'>%2</p><span>%3</span>"_s.arg(
        humanName(key).toHtmlEscaped(), asSentence(inUserLanguage(known->meaning)).toHtmlEscaped(),
        missing.toHtmlEscaped());
}

QByteArray withLessOf(const QString &key, const SettingsModel &model)
{
    const knownkeys::Key *known = knownkeys::find(key);
    if (!known || known->printMethods.isEmpty())
        return {};
    const QString value = knownkeys::effectiveValue(*known, model.value(key));
    if (known->kind == vocabulary::ValueKind::Flag)
        return value == vocabulary::flagOn ? model.textWith(key, vocabulary::flagWords[1]) : QByteArray();
    const int number = value.toInt();
    return model.textWith(key, QString::number(number > 1 ? number - 1 : number + 1));
}
