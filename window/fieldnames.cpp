#include "fieldnames.h"

#include "pages.h"
#include "secrets.h"
#include "usercatalogue.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unit characters{QT_TRANSLATE_NOOP("Settings", "character"),
                          QT_TRANSLATE_NOOP("Settings", "characters")};
constexpr Unit lines{QT_TRANSLATE_NOOP("Settings", "line"), QT_TRANSLATE_NOOP("Settings", "lines")};
constexpr Unit copies{QT_TRANSLATE_NOOP("Settings", "copy"), QT_TRANSLATE_NOOP("Settings", "copies")};
constexpr Unit rows{QT_TRANSLATE_NOOP("Settings", "row"), QT_TRANSLATE_NOOP("Settings", "rows")};

constexpr SettingName names[] = {
    {"paperWidth"_L1, QT_TRANSLATE_NOOP("Settings", "Line width"), Group::Columns, &characters},
    {"quantityFieldWidth"_L1, QT_TRANSLATE_NOOP("Settings", "Quantity column"), Group::Columns, &characters},
    {"priceFieldWidth"_L1, QT_TRANSLATE_NOOP("Settings", "Price column"), Group::Columns, &characters},
    {"totalPriceFieldWidth"_L1, QT_TRANSLATE_NOOP("Settings", "Total column"), Group::Columns, &characters},
    {"descriptionWidth"_L1, QT_TRANSLATE_NOOP("Settings", "Item name"), Group::Columns, &characters},
    {"printGeometry"_L1, QT_TRANSLATE_NOOP("Settings", "Top margin"), Group::Top},
    {"topMargin"_L1, QT_TRANSLATE_NOOP("Settings", "Height of the top margin"), Group::Top, &lines},
    {"printHeader"_L1, QT_TRANSLATE_NOOP("Settings", "Header lines"), Group::Top},
    {"printCompany"_L1, QT_TRANSLATE_NOOP("Settings", "Company"), Group::Top},
    {"printCustomer"_L1, QT_TRANSLATE_NOOP("Settings", "Customer"), Group::Customer},
    {"printDeliveryAddress"_L1, QT_TRANSLATE_NOOP("Settings", "Delivery address"), Group::Customer},
    {"printBillingAddress"_L1, QT_TRANSLATE_NOOP("Settings", "Billing address"), Group::Customer},
    {"printTelephone"_L1, QT_TRANSLATE_NOOP("Settings", "Telephone"), Group::Customer},
    {"printLicenseNumber"_L1, QT_TRANSLATE_NOOP("Settings", "Licence number"), Group::Customer},
    {"printFiscalCode"_L1, QT_TRANSLATE_NOOP("Settings", "Fiscal code"), Group::Customer},
    {"printCredit"_L1, QT_TRANSLATE_NOOP("Settings", "Credit"), Group::Order},
    {"printDate"_L1, QT_TRANSLATE_NOOP("Settings", "Date"), Group::Order},
    {"printTime"_L1, QT_TRANSLATE_NOOP("Settings", "Time"), Group::Order},
    {"printTable"_L1, QT_TRANSLATE_NOOP("Settings", "Table"), Group::Order},
    {"printWaiter"_L1, QT_TRANSLATE_NOOP("Settings", "Waiter"), Group::Order},
    {"printNote"_L1, QT_TRANSLATE_NOOP("Settings", "Note"), Group::Order},
    {"copyNumber"_L1, QT_TRANSLATE_NOOP("Settings", "Copies"), Group::Printer, &copies, Editor::Number},
    {"printLogo"_L1, QT_TRANSLATE_NOOP("Settings", "Logo"), Group::Printer},
    {"openCashDrawer"_L1, QT_TRANSLATE_NOOP("Settings", "Open the cash drawer"), Group::Printer},
    {"paperRows"_L1, QT_TRANSLATE_NOOP("Settings", "Rows per page"), Group::Printer, &rows},
    {"style"_L1, QT_TRANSLATE_NOOP("Settings", "Style"), Group::WithoutEffect},

    {"basedir"_L1, QT_TRANSLATE_NOOP("Settings", "Folder"), Group::General, nullptr, Editor::Folder},
    {"file"_L1, QT_TRANSLATE_NOOP("Settings", "Translation file"), Group::General},
    {"level"_L1, QT_TRANSLATE_NOOP("Settings", "Lowest level"), Group::General},
    {"filename"_L1, QT_TRANSLATE_NOOP("Settings", "File name"), Group::General},
    {"type"_L1, QT_TRANSLATE_NOOP("Settings", "Existing log"), Group::General},
    {"dbname"_L1, QT_TRANSLATE_NOOP("Settings", "Database name"), Group::General},
    {"username"_L1, QT_TRANSLATE_NOOP("Settings", "User"), Group::General},
    {"password"_L1, QT_TRANSLATE_NOOP("Settings", "Password"), Group::General},
    {"hostname"_L1, QT_TRANSLATE_NOOP("Settings", "Host"), Group::General},
    {"path"_L1, QT_TRANSLATE_NOOP("Settings", "Folder of the programs"), Group::General, nullptr,
     Editor::Folder},
    {"logo"_L1, QT_TRANSLATE_NOOP("Settings", "Logo picture"), Group::General, nullptr, Editor::File},
};

struct GroupTitle
{
    Group group;
    const char *title;
};

constexpr GroupTitle groupTitles[] = {
    {Group::Columns, QT_TRANSLATE_NOOP("Settings", "Columns")},
    {Group::Top, QT_TRANSLATE_NOOP("Settings", "Header")},
    {Group::Customer, QT_TRANSLATE_NOOP("Settings", "Customer")},
    {Group::Order, QT_TRANSLATE_NOOP("Settings", "Order")},
    {Group::Printer, QT_TRANSLATE_NOOP("Settings", "Receipt printer")},
    {Group::General, ""},
    {Group::WithoutEffect, QT_TRANSLATE_NOOP("Settings", "Without effect")},
};

} // namespace

const SettingName &settingName(const QString &key)
{
    static constexpr SettingName none{{}, "", Group::General};
    const QString setting = key.section(u'.', -1);
    const auto *found = std::ranges::find(names, setting, &SettingName::setting);
    return found == std::end(names) ? none : *found;
}

QString humanName(const QString &key)
{
    const char *name = settingName(key).name;
    return knownkeys::find(key) && *name ? inUserLanguage(name) : key;
}

QString nameWithPage(const QString &key)
{
    const Page *page = knownkeys::find(key) ? pageOf(key) : nullptr;
    return page ? UserWords::tr("%1: %2").arg(page->title(), humanName(key)) : key.simplified();
}

Group groupOf(const knownkeys::Key &key)
{
    const Group group = settingName(key.name).group;
    const bool isForPaper = key.readBy == "printing"_L1 && group != Group::Printer;
    return isForPaper && key.printMethods.isEmpty() ? Group::WithoutEffect : group;
}

QString groupTitle(Group group)
{
    const char *title = std::ranges::find(groupTitles, group, &GroupTitle::group)->title;
    return *title ? inUserLanguage(title) : QString();
}

QString unitOf(const Unit &unit, int number)
{
    return inUserLanguage(number == 1 ? unit.one : unit.many);
}

QString asSentence(const QString &text)
{
    const qsizetype end = std::ranges::find_if_not(text, [](QChar c) { return c.isLetter(); }) - text.begin();
    const bool isName = end < text.size() && text[end] == u'.' && end + 1 < text.size();
    return text.isEmpty() || isName ? text : text.front().toUpper() + text.sliced(1);
}

QString maskedValue(const QString &key, const QString &value)
{
    return !value.isEmpty() && mayBeSecret(key, value) ? u"\u2022\u2022\u2022\u2022\u2022\u2022"_s : value;
}

QString defaultText(const knownkeys::Key &key)
{
    if (settingName(key.name).editor == Editor::Number) // of copies
        return u"1"_s;
    return key.whenMissing == "\"\""_L1 ? UserWords::tr("empty") : inUserLanguage(key.whenMissing);
}
