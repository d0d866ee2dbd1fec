#pragma once

#include "documentkinds.h"
#include "valuekind.h"

#include <QLatin1StringView>
#include <QString>

#include <variant>

class PVConfiguration;

/// The settings of one document kind, named like their configuration keys. Widths count characters.
///
/// `PrinterDriver` is one, so that a device finds each by its name. Two share their names with operations of
/// the driver and are reached as `DocumentSettings::printGeometry` and `DocumentSettings::printLogo`.
struct DocumentSettings
{
    int quantityFieldWidth = 0;
    int priceFieldWidth = 0; ///< unit price; the amount in a statement of account
    int totalPriceFieldWidth = 0;
    int paperWidth = 0;
    int paperRows = 0;        ///< of a page, for a device that has pages
    int topMargin = 0;        ///< empty lines
    int descriptionWidth = 0; ///< what a cash register takes of a description; 0 means the printer's width

    bool printGeometry = false;
    bool printHeader = false;
    bool printLogo = false; ///< for the device; the logo element reaches it whatever this says
    bool printCompany = false;
    bool printDeliveryAddress = false;
    bool printTelephone = false;
    bool printDate = false;
    bool printTime = false;
    bool printTable = false;
    bool printCustomer = false;
    bool printBillingAddress = false;
    bool printLicenseNumber = false;
    bool printFiscalCode = false;
    bool printCredit = false;
    bool printWaiter = false;
    bool printNote = false;
    bool openCashDrawer = false; ///< for a device that has a drawer

    /// Reads every setting under the key prefix `docPath`, for instance "palvestrin.receiptdoc.". A number
    /// that is missing or none is 0; a flag is true only for exactly "true".
    static DocumentSettings read(const PVConfiguration &configuration, const QString &docPath);
};

namespace vocabulary {

using CountMember = int DocumentSettings::*;
using FlagMember = bool DocumentSettings::*;

/// A setting in the block of every document kind. Which elements consult it, and so which print methods, is
/// told by the rows of documents.h.
struct DocumentSetting
{
    QLatin1StringView name;
    ValueKind kind;
    QLatin1StringView meaning;
    /// Where it is kept. One that is kept nowhere is asked for by its key, if at all.
    std::variant<std::monostate, CountMember, FlagMember> member = {};
    QLatin1StringView readBy = "printing"_L1; ///< the part of the system that reads it
};

/// To add a setting, add a member above and its row here.
inline constexpr DocumentSetting documentSettings[] = {
    {"quantityFieldWidth"_L1, ValueKind::Count, "characters of the quantity column"_L1,
     &DocumentSettings::quantityFieldWidth},
    {"priceFieldWidth"_L1, ValueKind::Count,
     "characters of the unit price column, and of the amount in a statement of account"_L1,
     &DocumentSettings::priceFieldWidth},
    {"totalPriceFieldWidth"_L1, ValueKind::Count, "characters of the line total column"_L1,
     &DocumentSettings::totalPriceFieldWidth},
    {"paperWidth"_L1, ValueKind::Width, "characters of a line"_L1, &DocumentSettings::paperWidth},
    {"paperRows"_L1, ValueKind::Count, "rows of a page; a receipt printer fills up the last one"_L1,
     &DocumentSettings::paperRows, "receipt printer"_L1},
    {"style"_L1, ValueKind::Text, "no effect: each document has its own layout"_L1},
    {"printGeometry"_L1, ValueKind::Flag, "print the top margin"_L1, &DocumentSettings::printGeometry},
    {"printHeader"_L1, ValueKind::Flag, "print the free header lines"_L1, &DocumentSettings::printHeader},
    {"printLogo"_L1, ValueKind::Flag, "print the logo, on a receipt printer"_L1, &DocumentSettings::printLogo,
     "receipt printer"_L1},
    {"printCompany"_L1, ValueKind::Flag, "print the company's lines"_L1, &DocumentSettings::printCompany},
    {"printDeliveryAddress"_L1, ValueKind::Flag, "print the delivery address, with printCustomer"_L1,
     &DocumentSettings::printDeliveryAddress},
    {"printBillingAddress"_L1, ValueKind::Flag, "print the billing address, with printCustomer"_L1,
     &DocumentSettings::printBillingAddress},
    {"printTelephone"_L1, ValueKind::Flag, "print the customer's telephone, with printCustomer"_L1,
     &DocumentSettings::printTelephone},
    {"printDate"_L1, ValueKind::Flag, "print the order's date"_L1, &DocumentSettings::printDate},
    {"printTime"_L1, ValueKind::Flag, "print the order's time"_L1, &DocumentSettings::printTime},
    {"printTable"_L1, ValueKind::Flag, "print the order's table"_L1, &DocumentSettings::printTable},
    {"printCustomer"_L1, ValueKind::Flag, "print the customer block"_L1, &DocumentSettings::printCustomer},
    {"printLicenseNumber"_L1, ValueKind::Flag, "print the customer's license number, with printCustomer"_L1,
     &DocumentSettings::printLicenseNumber},
    {"printFiscalCode"_L1, ValueKind::Flag, "print the customer's fiscal code, with printCustomer"_L1,
     &DocumentSettings::printFiscalCode},
    {"printCredit"_L1, ValueKind::Flag, "print the order's credit"_L1, &DocumentSettings::printCredit},
    {"printWaiter"_L1, ValueKind::Flag, "print the order's waiter"_L1, &DocumentSettings::printWaiter},
    {"printNote"_L1, ValueKind::Flag, "print the order's note"_L1, &DocumentSettings::printNote},
    {"openCashDrawer"_L1, ValueKind::Flag,
     "open the drawer of a receipt printer, once before the first receipt"_L1,
     &DocumentSettings::openCashDrawer, "receipt printer"_L1},
    {"topMargin"_L1, ValueKind::Count, "empty lines on top, with printGeometry"_L1,
     &DocumentSettings::topMargin},
    {"descriptionWidth"_L1, ValueKind::Width, "characters of an item's name that go to the register"_L1,
     &DocumentSettings::descriptionWidth},
    {copyNumberSetting,
     ValueKind::Text,
     "number of copies that a receipt printer prints, 99 at most"_L1,
     {},
     "receipt printer, copy number"_L1},
};

} // namespace vocabulary
