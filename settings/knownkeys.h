#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// Every key that the programs read, in one place: what it means, what a missing value means, who asks for
/// it.
///
/// The tables below feed `palvestrin config` (list, checks, completion) and docs/configuration.md. The
/// programs themselves do not read them: a key is known here because some reader asks for it.
namespace knownkeys {

using namespace Qt::Literals::StringLiterals;

/// What a reader makes of the text.
enum class ValueKind {
    Text,    ///< taken as it stands
    Count,   ///< a whole number; anything else is 0
    Width,   ///< a whole number of characters; 0 and anything else is 32, the printer's own width
    Flag,    ///< on for exactly "true"
    Level,   ///< DEBUG, INFO, WARNING, ERROR or FATAL in any case; anything else is DEBUG
    LogType, ///< APPEND or OVERWRITE in any case; anything else writes no log
};

/// A key outside the documents' blocks. No print method asks for any of them.
struct ApplicationKey
{
    QLatin1StringView name;
    ValueKind kind;
    QLatin1StringView meaning;
    QLatin1StringView whenMissing;
    QLatin1StringView readBy;
};

inline constexpr std::array applicationKeys{
    ApplicationKey{"palvestrin.language.basedir"_L1, ValueKind::Text, "directory of the translation files"_L1,
                   "\"\""_L1, "start-up"_L1},
    ApplicationKey{
        "palvestrin.language.file"_L1, ValueKind::Text,
        "translation file, joined to basedir without a separator; \"/\" stands for /palvestrin_ and "
        "the locale's name"_L1,
        "no translation: English labels"_L1, "start-up"_L1},
    ApplicationKey{"palvestrin.logger.level"_L1, ValueKind::Level,
                   "least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case"_L1, "DEBUG"_L1,
                   "logger"_L1},
    ApplicationKey{"palvestrin.logger.basedir"_L1, ValueKind::Text, "directory of the log file"_L1,
                   "the root directory"_L1, "logger"_L1},
    ApplicationKey{"palvestrin.logger.filename"_L1, ValueKind::Text, "name of the log file"_L1,
                   "no file can be opened: no log"_L1, "logger"_L1},
    ApplicationKey{"palvestrin.logger.type"_L1, ValueKind::LogType,
                   "APPEND to the log file or OVERWRITE it, in any case"_L1, "no log"_L1, "logger"_L1},
    ApplicationKey{"palvestrin.db.dbname"_L1, ValueKind::Text, "database name"_L1, "\"\""_L1, "database"_L1},
    ApplicationKey{"palvestrin.db.username"_L1, ValueKind::Text, "database user"_L1, "\"\""_L1,
                   "database"_L1},
    ApplicationKey{"palvestrin.db.password"_L1, ValueKind::Text, "database password"_L1, "\"\""_L1,
                   "database"_L1},
    ApplicationKey{"palvestrin.db.hostname"_L1, ValueKind::Text, "database host"_L1, "\"\""_L1,
                   "database"_L1},
    ApplicationKey{"palvestrin.bin.path"_L1, ValueKind::Text,
                   "directory of the application's programs; a \"/\" and the name follow"_L1,
                   "the root directory"_L1, "utilities"_L1},
};

/// What a print method asks for, and what a setting is asked for in.
enum Use : unsigned {
    NoUse = 0,
    QuantityColumn = 1,
    PriceColumn = 2,
    TotalColumn = 4,
    PaperWidth = 8,
    Sections = 16, ///< header sections: geometry, headers, company, order information
    Customer = 32, ///< the customer block
    FiscalDescription = 64,
};

/// The block of settings of one kind of document.
struct DocumentBlock
{
    QLatin1StringView name;
    QLatin1StringView kind;
    bool copyNumber; ///< whether a copy number is ever looked for in it
};

inline constexpr std::array documentBlocks{
    DocumentBlock{"doc"_L1, "order"_L1, true},
    DocumentBlock{"prefiscaldoc"_L1, "prefiscal"_L1, true},
    DocumentBlock{"fiscaldoc"_L1, "fiscal"_L1, true},
    DocumentBlock{"receiptdoc"_L1, "receipt"_L1, true},
    DocumentBlock{"invoicedoc"_L1, "invoice"_L1, true},
    DocumentBlock{"deliverydoc"_L1, "delivery"_L1, true},
    DocumentBlock{"reportdoc"_L1, "report"_L1, true},
    // Copies of a sold list are looked for under prefiscaldoc: the copy number has no word for this kind.
    DocumentBlock{"solddoc"_L1, "sold"_L1, false},
};

struct PrintMethod
{
    QLatin1StringView name;
    QLatin1StringView block;
    unsigned uses; ///< of `Use`
};

inline constexpr unsigned allColumns = QuantityColumn | PriceColumn | TotalColumn | PaperWidth;

inline constexpr std::array printMethods{
    PrintMethod{"printPartialOrder"_L1, "doc"_L1, QuantityColumn | PaperWidth | Sections | Customer},
    PrintMethod{"printFullOrder"_L1, "prefiscaldoc"_L1, allColumns | Sections | Customer},
    PrintMethod{"printFullOrderReceipt"_L1, "receiptdoc"_L1, allColumns | Sections | Customer},
    PrintMethod{"printFullOrderInvoice"_L1, "invoicedoc"_L1, allColumns | Sections | Customer},
    PrintMethod{"printFullOrderDelivery"_L1, "deliverydoc"_L1,
                QuantityColumn | PaperWidth | Sections | Customer},
    PrintMethod{"printFullOrderFiscal"_L1, "fiscaldoc"_L1, FiscalDescription},
    PrintMethod{"printAbstractOrder"_L1, "doc"_L1, NoUse},
    PrintMethod{"printAbstractOrderReceipt"_L1, "receiptdoc"_L1, allColumns | Sections},
    PrintMethod{"printAbstractOrderInvoice"_L1, "invoicedoc"_L1, allColumns | Sections | Customer},
    PrintMethod{"printAbstractOrderFiscal"_L1, "fiscaldoc"_L1, NoUse},
    PrintMethod{"printReport"_L1, "reportdoc"_L1, PaperWidth | Sections},
    PrintMethod{"printSold"_L1, "solddoc"_L1, allColumns | Sections},
    PrintMethod{"printStatementOfAccount"_L1, "reportdoc"_L1, PriceColumn | PaperWidth | Sections},
};

/// When a setting is read at all.
enum class Loading {
    Always,  ///< with the document's settings, whatever prints
    OnUse,   ///< only by a print method that uses it
    Copying, ///< by the copy number, which no print method asks for
};

/// A key inside a document's block.
struct DocumentSetting
{
    QLatin1StringView name;
    ValueKind kind;
    unsigned use; ///< of `Use`: the print methods that share a bit consult it
    QLatin1StringView meaning;
    QLatin1StringView whenMissing;
    Loading loading = Loading::Always;
};

inline constexpr std::array documentSettings{
    DocumentSetting{"quantityFieldWidth"_L1, ValueKind::Count, QuantityColumn,
                    "characters of the quantity column"_L1, "0"_L1},
    DocumentSetting{"priceFieldWidth"_L1, ValueKind::Count, PriceColumn,
                    "characters of the unit price column, and of the amount in a statement of account"_L1,
                    "0"_L1},
    DocumentSetting{"totalPriceFieldWidth"_L1, ValueKind::Count, TotalColumn,
                    "characters of the line total column"_L1, "0"_L1},
    DocumentSetting{"paperWidth"_L1, ValueKind::Width, PaperWidth, "characters of a line"_L1,
                    "32, the printer's own width; the same for 0"_L1},
    DocumentSetting{"paperRows"_L1, ValueKind::Count, NoUse, "rows of a page; no effect"_L1, "0"_L1},
    DocumentSetting{"style"_L1, ValueKind::Text, NoUse, "no effect: each document has its own layout"_L1,
                    "\"\""_L1},
    DocumentSetting{"printGeometry"_L1, ValueKind::Flag, Sections, "print the top margin"_L1, "off"_L1},
    DocumentSetting{"printHeader"_L1, ValueKind::Flag, Sections, "print the free header lines"_L1, "off"_L1},
    DocumentSetting{"printLogo"_L1, ValueKind::Flag, NoUse,
                    "no effect: a logo in the job is always printed"_L1, "off"_L1},
    DocumentSetting{"printCompany"_L1, ValueKind::Flag, Sections, "print the company's lines"_L1, "off"_L1},
    DocumentSetting{"printDeliveryAddress"_L1, ValueKind::Flag, Customer,
                    "print the delivery address, with printCustomer"_L1, "off"_L1},
    DocumentSetting{"printBillingAddress"_L1, ValueKind::Flag, Customer,
                    "print the billing address, with printCustomer"_L1, "off"_L1},
    DocumentSetting{"printTelephone"_L1, ValueKind::Flag, Customer,
                    "print the customer's telephone, with printCustomer"_L1, "off"_L1},
    DocumentSetting{"printDate"_L1, ValueKind::Flag, Sections, "print the order's date"_L1, "off"_L1},
    DocumentSetting{"printTime"_L1, ValueKind::Flag, Sections, "print the order's time"_L1, "off"_L1},
    DocumentSetting{"printTable"_L1, ValueKind::Flag, Sections, "print the order's table"_L1, "off"_L1},
    DocumentSetting{"printCustomer"_L1, ValueKind::Flag, Customer, "print the customer block"_L1, "off"_L1},
    DocumentSetting{"printLicenseNumber"_L1, ValueKind::Flag, Customer,
                    "print the customer's license number, with printCustomer"_L1, "off"_L1},
    DocumentSetting{"printFiscalCode"_L1, ValueKind::Flag, Customer,
                    "print the customer's fiscal code, with printCustomer"_L1, "off"_L1},
    DocumentSetting{"printCredit"_L1, ValueKind::Flag, Sections, "print the order's credit"_L1, "off"_L1},
    DocumentSetting{"printWaiter"_L1, ValueKind::Flag, Sections, "print the order's waiter"_L1, "off"_L1},
    DocumentSetting{"printNote"_L1, ValueKind::Flag, Sections, "print the order's note"_L1, "off"_L1},
    DocumentSetting{"openCashDrawer"_L1, ValueKind::Flag, NoUse, "no effect: the drawer is never opened"_L1,
                    "off"_L1},
    DocumentSetting{"topMargin"_L1, ValueKind::Count, Sections, "empty lines on top, with printGeometry"_L1,
                    "0"_L1, Loading::OnUse},
    DocumentSetting{"descriptionWidth"_L1, ValueKind::Width, FiscalDescription,
                    "characters of an item's name that go to the register"_L1,
                    "32, the printer's own width; the same for 0"_L1, Loading::OnUse},
    DocumentSetting{"copyNumber"_L1, ValueKind::Text, NoUse,
                    "number of copies; one copy is printed all the same"_L1, "\"\""_L1, Loading::Copying},
};

/// One known key, whole.
struct Key
{
    QString name;
    ValueKind kind;
    QString meaning;
    QString whenMissing;
    QStringList printMethods; ///< the print methods that consult it, none for an application key
    QString readBy;           ///< the part of the system that reads it
};

/// Every known key, in the order of the tables.
const std::vector<Key> &all();

const Key *find(const QString &name);

/// The known key that `name` is most likely a slip of; "" when none is near.
QString closest(const QString &name);

/// What the readers make of `value`: 32 for a width that is no number, "false" for a flag that is not "true".
QString effectiveValue(const Key &key, const QString &value);

/// Why `value` makes no sense for the key, and what would; "" when it does.
QString objection(const Key &key, const QString &value);

/// The names of the print methods that consult a document setting, whatever the kind of document.
QStringList methodsUsing(const DocumentSetting &setting);

} // namespace knownkeys
