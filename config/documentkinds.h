#pragma once

#include <QLatin1StringView>
#include <QString>

namespace vocabulary {

using namespace Qt::Literals::StringLiterals;

/// A kind of document and the block of the configuration that holds its settings.
struct DocumentKind
{
    QLatin1StringView name;
    QLatin1StringView block;
    bool hasCopyNumber = true; ///< whether a number of copies is ever looked for in the block

    /// What stands in front of its settings: "palvestrin.receiptdoc.".
    QString path() const { return "palvestrin."_L1 + block + u'.'; }
};

inline constexpr DocumentKind documentKinds[] = {
    {"order"_L1, "doc"_L1},
    {"prefiscal"_L1, "prefiscaldoc"_L1},
    {"fiscal"_L1, "fiscaldoc"_L1},
    {"receipt"_L1, "receiptdoc"_L1},
    {"invoice"_L1, "invoicedoc"_L1},
    {"delivery"_L1, "deliverydoc"_L1},
    {"report"_L1, "reportdoc"_L1},
    // The copy number has no word for this kind, on purpose: it takes what stands for "prefiscal".
    {"sold"_L1, "solddoc"_L1, false},
};

/// The kind whose settings stand in for those of an unknown one.
inline constexpr const DocumentKind &fallbackKind = documentKinds[1];

/// The setting of a block that holds its number of copies.
inline constexpr QLatin1StringView copyNumberSetting = "copyNumber"_L1;

/// The kind of that name, in lower case; null when there is none.
inline const DocumentKind *findDocumentKind(QStringView name)
{
    for (const DocumentKind &kind : documentKinds) {
        if (name == kind.name)
            return &kind;
    }
    return nullptr;
}

} // namespace vocabulary
