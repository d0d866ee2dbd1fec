#pragma once

#include "libconfig.h"

#include <QCoreApplication>
#include <QLatin1StringView>

/// Settings to begin with, for the window's first page and `palvestrin config init`.
namespace presets {

/// Paper as it is sold, and how many characters a printer puts on a line of it.
struct Paper
{
    QLatin1StringView name; ///< the width in millimetres, as the command line takes it
    int columns;
    int lineWidth; ///< for the setting: of narrow paper less, or a rule that is centred runs over the edge
};

inline constexpr Paper papers[] = {
    {QLatin1StringView("58"), 32, 30},
    {QLatin1StringView("80"), 48, 48},
};

/// A kind of house, and what it prints first.
struct House
{
    QLatin1StringView name; ///< for the command line
    const char *title;      ///< for people, to be translated in the context "Settings"
    const char *purpose;    ///< the same, a sentence
    QLatin1StringView kind; ///< the kind of its first document
};

inline constexpr House houses[] = {
    {QLatin1StringView("kitchen"), QT_TRANSLATE_NOOP("Settings", "Restaurant"),
     QT_TRANSLATE_NOOP("Settings", "Kitchen tickets with table and waiter, bills and receipts."),
     QLatin1StringView("order")},
    {QLatin1StringView("bar"), QT_TRANSLATE_NOOP("Settings", "Bar"),
     QT_TRANSLATE_NOOP("Settings", "Short receipts with date and time; the drawer opens."),
     QLatin1StringView("receipt")},
    {QLatin1StringView("shop"), QT_TRANSLATE_NOOP("Settings", "Shop"),
     QT_TRANSLATE_NOOP("Settings", "Receipts without tables, and invoices and delivery notes for customers."),
     QLatin1StringView("receipt")},
};

const Paper *findPaper(const QString &name);
const House *findHouse(const QString &name);

/// Gives the tree the settings of that house on that paper. What it sets otherwise stays.
void apply(libconfig::Config &config, const House &house, const Paper &paper);

} // namespace presets
