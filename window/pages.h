#pragma once

#include "printmethods.h"

#include <QString>

#include <vector>

/// What stands at the left of the window: the kinds of documents by their human names, then the parts of the
/// application.
struct Page
{
    const char *name; ///< to be translated in the context "Settings"
    QString path;     ///< what its keys begin with: "palvestrin.doc."
    /// The print methods whose paper it shows, none for a part of the application.
    std::vector<const vocabulary::PrintMethod *> methods;

    QString title() const;
    bool isDocument() const { return !methods.empty(); }
};

/// In the order in which they are shown.
const std::vector<Page> &pages();

/// The page of a key; null when the key belongs to none.
const Page *pageOf(const QString &key);
