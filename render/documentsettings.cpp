#include "documentsettings.h"

#include "pvconfiguration.h"

using namespace Qt::Literals::StringLiterals;

DocumentSettings DocumentSettings::read(const PVConfiguration &configuration, const QString &docPath)
{
    // A "style" key stands in configurations too. It has no effect, so nothing reads it.
    DocumentSettings settings;
    for (const IntegerSetting &setting : integerSettings)
        settings.*setting.member = configuration.getStrValue(docPath + setting.key).toInt();
    for (const FlagSetting &setting : flagSettings)
        settings.*setting.member = configuration.getStrValue(docPath + setting.key) == "true"_L1;
    return settings;
}
