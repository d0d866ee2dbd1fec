#pragma once

#include "documentkinds.h"
#include "documentsettings.h"

#include <QByteArray>

/// A configuration that sets every width and flag of every document kind.
inline QByteArray houseConfiguration()
{
    QByteArray text = "palvestrin: {\n";
    for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
        text += kind.block.data() + QByteArray(": {\n");
        text += "quantityFieldWidth = 3; priceFieldWidth = 8; totalPriceFieldWidth = 8;\n"
                "paperWidth = 40; topMargin = 2; descriptionWidth = 20;\n";
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
            if (setting.kind == vocabulary::ValueKind::Flag)
                text += setting.name.data() + QByteArray(" = true;\n");
        }
        text += "};\n";
    }
    return text + "};\n";
}
