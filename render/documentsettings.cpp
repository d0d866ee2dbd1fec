#include "documentsettings.h"

#include "pvconfiguration.h"

using namespace Qt::Literals::StringLiterals;

DocumentSettings DocumentSettings::read(const PVConfiguration &configuration, const QString &docPath)
{
    DocumentSettings settings;
    for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
        const auto value = [&] { return configuration.getStrValue(docPath + setting.name); };
        if (const auto *count = std::get_if<vocabulary::CountMember>(&setting.member))
            settings.**count = value().toInt();
        else if (const auto *flag = std::get_if<vocabulary::FlagMember>(&setting.member))
            settings.**flag = value() == vocabulary::flagOn;
    }
    return settings;
}
