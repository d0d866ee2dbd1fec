#include "copies.h"

#include "printmethods.h"
#include "pvconfiguration.h"

#include <algorithm>

int configuredCopies(const QString &method, const PVConfiguration &configuration)
{
    const vocabulary::PrintMethod *row = vocabulary::findPrintMethod(method);
    const vocabulary::DocumentKind *kind = row ? vocabulary::findDocumentKind(QString(row->kind)) : nullptr;
    if (!kind)
        return 1;
    const QString block = (kind->hasCopyNumber ? *kind : vocabulary::fallbackKind).path();
    return std::clamp(configuration.getStrValue(block + vocabulary::copyNumberSetting).toInt(), 1, maxCopies);
}
