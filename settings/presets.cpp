#include "presets.h"

#include "applicationkeys.h"
#include "documentkinds.h"
#include "keyedit.h"
#include "valuekind.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace presets {

namespace {

constexpr auto catalogues = "/usr/share/palvestrin/translations"_L1;

/// The houses that switch a setting on, one bit each, in the order of the table.
enum In { Kitchen = 1, Bar = 2, Shop = 4, Dining = Kitchen | Bar, All = Dining | Shop };

struct Switch
{
    QLatin1StringView setting;
    QLatin1StringView kinds; ///< separated by blanks
    int houses;
};

constexpr auto withHeader = "order prefiscal receipt invoice delivery report sold"_L1;
constexpr auto forGuests = "prefiscal receipt invoice delivery"_L1;

constexpr Switch switches[] = {
    {"printGeometry"_L1, withHeader, All},
    {"printHeader"_L1, withHeader, All},
    {"printCompany"_L1, forGuests, All},
    {"printDate"_L1, forGuests, All},
    {"printTime"_L1, "order prefiscal receipt"_L1, All},
    {"printDate"_L1, "report sold"_L1, All},
    {"printTime"_L1, "report sold"_L1, All},
    {"printTable"_L1, "order"_L1, Dining},
    {"printTable"_L1, "prefiscal receipt"_L1, Kitchen},
    {"printWaiter"_L1, "order prefiscal"_L1, Kitchen},
    {"printNote"_L1, "order delivery"_L1, All},
    {"printCustomer"_L1, "invoice delivery"_L1, All},
    {"printBillingAddress"_L1, "invoice"_L1, All},
    {"printLicenseNumber"_L1, "invoice"_L1, All},
    {"printFiscalCode"_L1, "invoice"_L1, All},
    {"printDeliveryAddress"_L1, "delivery"_L1, All},
    {"printTelephone"_L1, "delivery"_L1, All},
    {"openCashDrawer"_L1, "receipt"_L1, Bar | Shop},
};

struct Width
{
    QLatin1StringView setting;
    int narrow; ///< on paper of 32 characters
    int wide;
};

constexpr Width widths[] = {
    {"quantityFieldWidth"_L1, 3, 4},
    {"priceFieldWidth"_L1, 7, 9},
    {"totalPriceFieldWidth"_L1, 8, 10},
};

constexpr int widthOfRegisterDescription = 24;

bool isFor(const Switch &row, const House &house, const vocabulary::DocumentKind &kind)
{
    const auto bit =
        1 << std::distance(std::begin(houses), std::ranges::find(houses, house.name, &House::name));
    return (row.houses & bit) != 0 && QString(row.kinds).split(u' ').contains(kind.name);
}

void applyWidths(libconfig::Config &config, const vocabulary::DocumentKind &kind, const Paper &paper)
{
    const bool isNarrow = paper.columns == papers[0].columns;
    setKey(config, kind.path() + "paperWidth"_L1, QString::number(paper.lineWidth));
    for (const Width &row : widths)
        setKey(config, kind.path() + row.setting, QString::number(isNarrow ? row.narrow : row.wide));
}

void applyTo(libconfig::Config &config, const vocabulary::DocumentKind &kind, const House &house,
             const Paper &paper)
{
    if (kind.name == "fiscal"_L1) {
        setKey(config, kind.path() + "descriptionWidth"_L1, QString::number(widthOfRegisterDescription));
        return;
    }
    applyWidths(config, kind, paper);
    for (const Switch &row : switches) {
        if (isFor(row, house, kind))
            setKey(config, kind.path() + row.setting, vocabulary::flagOn);
    }
    if (kind.name == "order"_L1)
        setKey(config, kind.path() + "topMargin"_L1, u"1"_s);
}

} // namespace

const Paper *findPaper(const QString &name)
{
    const auto *found = std::ranges::find(papers, name, &Paper::name);
    return found == std::end(papers) ? nullptr : found;
}

const House *findHouse(const QString &name)
{
    const auto *found = std::ranges::find(houses, name, &House::name);
    return found == std::end(houses) ? nullptr : found;
}

void apply(libconfig::Config &config, const House &house, const Paper &paper)
{
    setKey(config, applicationkey::languageBaseDir, catalogues);
    setKey(config, applicationkey::languageFile, u"/"_s);
    for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds)
        applyTo(config, kind, house, paper);
}

} // namespace presets
