#pragma once

#include <QLatin1StringView>
#include <QString>

class PVConfiguration;

/// The settings of one document kind, named like their configuration keys. Widths count characters.
///
/// They stand in a struct of their own because two of them, `printGeometry` and `printLogo`, share their
/// names with operations of the driver.
struct DocumentSettings
{
    int quantityFieldWidth = 0;
    int priceFieldWidth = 0; ///< unit price; the amount in a statement of account
    int totalPriceFieldWidth = 0;
    int paperWidth = 0;
    int paperRows = 0; ///< kept for a device that feeds sheets; nothing consults it yet
    /// What a cash register takes of a description; 0 means the width of the printer. It holds for every item
    /// as it stands in the configuration at that moment; the configuration never changes in a run, so it is
    /// read with the others.
    int descriptionWidth = 0;

    bool printGeometry = false;
    bool printHeader = false;
    bool printLogo = false; ///< kept for the device; the logo element reaches it whatever this says
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
    bool openCashDrawer = false; ///< kept for the device; nothing consults it yet

    /// Reads every setting under the key prefix `docPath`, for instance "palvestrin.receiptdoc.". A width
    /// that is missing or no number is 0; a flag is true only for exactly "true".
    static DocumentSettings read(const PVConfiguration &configuration, const QString &docPath);
};

struct IntegerSetting
{
    QLatin1StringView key;
    int DocumentSettings::*member;
};

struct FlagSetting
{
    QLatin1StringView key;
    bool DocumentSettings::*member;
};

inline constexpr IntegerSetting integerSettings[] = {
    {QLatin1StringView("quantityFieldWidth"), &DocumentSettings::quantityFieldWidth},
    {QLatin1StringView("priceFieldWidth"), &DocumentSettings::priceFieldWidth},
    {QLatin1StringView("totalPriceFieldWidth"), &DocumentSettings::totalPriceFieldWidth},
    {QLatin1StringView("paperWidth"), &DocumentSettings::paperWidth},
    {QLatin1StringView("paperRows"), &DocumentSettings::paperRows},
    {QLatin1StringView("descriptionWidth"), &DocumentSettings::descriptionWidth},
};

inline constexpr FlagSetting flagSettings[] = {
    {QLatin1StringView("printGeometry"), &DocumentSettings::printGeometry},
    {QLatin1StringView("printHeader"), &DocumentSettings::printHeader},
    {QLatin1StringView("printLogo"), &DocumentSettings::printLogo},
    {QLatin1StringView("printCompany"), &DocumentSettings::printCompany},
    {QLatin1StringView("printDeliveryAddress"), &DocumentSettings::printDeliveryAddress},
    {QLatin1StringView("printBillingAddress"), &DocumentSettings::printBillingAddress},
    {QLatin1StringView("printTelephone"), &DocumentSettings::printTelephone},
    {QLatin1StringView("printDate"), &DocumentSettings::printDate},
    {QLatin1StringView("printTime"), &DocumentSettings::printTime},
    {QLatin1StringView("printTable"), &DocumentSettings::printTable},
    {QLatin1StringView("printCustomer"), &DocumentSettings::printCustomer},
    {QLatin1StringView("printLicenseNumber"), &DocumentSettings::printLicenseNumber},
    {QLatin1StringView("printFiscalCode"), &DocumentSettings::printFiscalCode},
    {QLatin1StringView("printCredit"), &DocumentSettings::printCredit},
    {QLatin1StringView("printWaiter"), &DocumentSettings::printWaiter},
    {QLatin1StringView("printNote"), &DocumentSettings::printNote},
    {QLatin1StringView("openCashDrawer"), &DocumentSettings::openCashDrawer},
};
