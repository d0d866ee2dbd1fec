#include "catalogue.h"

#include "applicationkeys.h"
#include "pvconfiguration.h"
#include "runlocale.h"

#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

bool loadCatalogue(QTranslator &translator, const PVConfiguration &configuration)
{
    const QString basedir = configuration.getStrValue(applicationkey::languageBaseDir);
    const QString file = configuration.getStrValue(applicationkey::languageFile);
    if (file == "/"_L1) // the marker for a catalogue named after the locale
        return translator.load(basedir + "/palvestrin_"_L1 + runlocale::name(), u"."_s);
    return translator.load(basedir + file);
}
