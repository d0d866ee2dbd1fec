#include "userconfiguration.h"

#include "applicationkeys.h"
#include "catalogue.h"
#include "config.h"
#include "configuration.h"
#include "pvconfiguration.h"
#include "runlocale.h"

#include <QFileInfo>
#include <QTranslator>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The labels are written in English: then there is no catalogue.
bool isEnglish(const QString &locale)
{
    return locale == "C"_L1 || locale.section(u'_', 0, 0) == "en"_L1;
}

/// This machine and this run.
class Machine : public check::Surroundings
{
public:
    explicit Machine(const PVConfiguration &ofUser) : configuration(ofUser) {}

    bool hasCatalogue() const override
    {
        QTranslator labels;
        const bool isOfLocale = configuration.getStrValue(applicationkey::languageFile) == "/"_L1;
        return (isOfLocale && isEnglish(runlocale::name())) || loadCatalogue(labels, configuration);
    }
    bool canWriteFile(const QString &path) const override
    {
        const QFileInfo file(path);
        const QByteArray inWay = QFile::encodeName(file.exists() ? path : file.path());
        const bool isRightKind = file.exists() ? !file.isDir() : QFileInfo(file.path()).isDir();
        return isRightKind && !file.fileName().isEmpty() && ::access(inWay.constData(), W_OK) == 0;
    }

private:
    const PVConfiguration &configuration;
};

} // namespace

void checkUserConfiguration(FindingReport &report)
{
    const FileName path(PVConfiguration::userFile());
    if (!path.exists())
        refuseMissing(path);
    report.add(path, [](QFile &file, check::FindingSink &sink) {
        const PVConfiguration configuration;
        const Machine machine(configuration);
        check::checkConfiguration(file, sink, &machine);
    });
}
