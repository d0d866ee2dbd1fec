#pragma once

#include "lines.h"

/// The vocabulary of a print job: which elements each document prints, what prints them, and which attributes
/// they read.
///
/// To add an attribute, add its row to its element. One with a line of its own needs nothing else: the row
/// says how it prints. One that joins the columns of a row must also be read by its element's function.

// headers.cpp
void printPrintersSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printGeometrySection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printHeadersSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printLogoSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printCompanySection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printInvoiceSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printDeliverySection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printOrderInfoSection(PrinterDriver &driver, const QXmlAttributes &attributes);
void printCustomer(PrinterDriver &driver, const QXmlAttributes &attributes);

// ordertickets.cpp
void printTicketItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTicketOtherItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTicketVariant(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedVariant(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedTotal(PrinterDriver &driver, const QXmlAttributes &attributes);

// receipts.cpp
void printReceiptItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptTotal(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptSummaryNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes);

// invoices.cpp
void printInvoiceItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printInvoiceTotals(PrinterDriver &driver, const QXmlAttributes &attributes);

// fiscal.cpp
void printFiscalItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printFiscalSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printFiscalTotal(PrinterDriver &driver, const QXmlAttributes &attributes);

// reports.cpp
void printReportPeriod(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPrefiscalsSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptsSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTaxRateRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printInvoicesSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printCancelledSummary(PrinterDriver &driver, const QXmlAttributes &attributes);

// lists.cpp
void printSoldItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printStatementTitles(PrinterDriver &driver, const QXmlAttributes &attributes);
void printStatementRow(PrinterDriver &driver, const QXmlAttributes &attributes);

namespace vocabulary {

using enum AttributeType;
using enum WhenMissing;
using Settings = DocumentSettings;

// The settings that elements consult beside their flags: the columns of a row's layout, and the width of the
// paper wherever a rule or a dotted line is printed.

inline constexpr CountMember pricedRow[] = {&Settings::quantityFieldWidth, &Settings::priceFieldWidth,
                                            &Settings::totalPriceFieldWidth, &Settings::paperWidth};
inline constexpr CountMember ticketRow[] = {&Settings::quantityFieldWidth, &Settings::paperWidth};
inline constexpr CountMember statementRow[] = {&Settings::priceFieldWidth, &Settings::paperWidth};
inline constexpr CountMember registerRow[] = {&Settings::descriptionWidth};
inline constexpr CountMember rule[] = {&Settings::paperWidth};
inline constexpr CountMember margin[] = {&Settings::topMargin};

// The method element, which belongs to no document: it chooses one.

inline constexpr Attribute methodAttributes[] = {{"name"_L1, Text, EndsJob}};
inline constexpr Element methodElement{"method"_L1, nullptr, methodAttributes};

// Header sections, and the customer.

inline constexpr Attribute printersAttributes[] = {
    {"name"_L1, Text, LeavesHole}, // printed by the `headers` behind it
    {"charsize"_L1, Text, ChangesNothing},
    {"ipaddress"_L1, Text, ChangesNothing},
    {"port"_L1, Text, ChangesNothing},
};
inline constexpr Attribute headersAttributes[] = {
    {""_L1, Text, PrintsLess, nullptr, nullptr, &Settings::printHeader},
};
inline constexpr Attribute companyAttributes[] = {
    {""_L1, Text, PrintsLess},
};
inline constexpr Attribute receiptAttributes[] = {
    {"serialnumber"_L1, Serial, LeavesHole, line::indentedSentence, QT_TR_NOOP("Serial Number: ")},
};
inline constexpr Attribute invoiceAttributes[] = {
    {"serialnumber"_L1, Serial, LeavesHole, line::labelled, QT_TR_NOOP("Invoice Number:")},
};
inline constexpr Attribute deliveryAttributes[] = {
    {"serialnumber"_L1, Serial, LeavesHole, line::labelled, QT_TR_NOOP("Delivery Number:")},
};
inline constexpr Attribute orderInfoAttributes[] = {
    {"date"_L1, Date, LeavesHole, line::labelled, QT_TR_NOOP("Date:"), &Settings::printDate},
    {"time"_L1, Time, LeavesHole, line::labelled, QT_TR_NOOP("Time:"), &Settings::printTime},
    {"table"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("Table:"), &Settings::printTable},
    {"waiter"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("Waiter:"), &Settings::printWaiter},
    {"note"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("Note:"), &Settings::printNote},
    {"credit"_L1, Amount, LeavesHole, line::labelled, QT_TR_NOOP("Credit:"), &Settings::printCredit},
};
inline constexpr Attribute customerAttributes[] = {
    {"name"_L1, Text, LeavesHole, line::plain},
    {"billingaddress"_L1, Text, PrintsLess, line::address, nullptr, &Settings::printBillingAddress},
    {"deliveryaddress"_L1, Text, PrintsLess, line::address, nullptr, &Settings::printDeliveryAddress},
    {"telephone"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("Telephone:"), &Settings::printTelephone},
    {"licensenumber"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("License Number:"),
     &Settings::printLicenseNumber},
    {"fiscalcode"_L1, Text, LeavesHole, line::labelled, QT_TR_NOOP("Fiscal Code:"),
     &Settings::printFiscalCode},
};

inline constexpr Element sectionElements[] = {
    {"printers"_L1, printPrintersSection, printersAttributes},
    {"geometry"_L1, printGeometrySection, {}, margin, &Settings::printGeometry},
    {"headers"_L1, printHeadersSection, headersAttributes, rule}, // the printer's name whatever the flag says
    {"logo"_L1, printLogoSection},
    {"company"_L1, printCompanySection, companyAttributes, rule, &Settings::printCompany},
    {"receipt"_L1, printReceiptSection, receiptAttributes, rule},
    {"invoice"_L1, printInvoiceSection, invoiceAttributes, rule},
    {"delivery"_L1, printDeliverySection, deliveryAttributes, rule},
    {"orderinfo"_L1, printOrderInfoSection, orderInfoAttributes, rule},
};
inline constexpr Element customerElement{"customer"_L1, printCustomer, customerAttributes, rule,
                                         &Settings::printCustomer};

// Order tickets.

inline constexpr Attribute ticketItemAttributes[] = {
    {"number"_L1, Quantity, LeavesHole},
    {"name"_L1, Description, LeavesHole},
};
inline constexpr Attribute ticketVariantAttributes[] = {
    {"number"_L1, Quantity, LeavesHole},
    asNumber({"quantity"_L1, Quantity, CountsAsZero}),
    {"name"_L1, Description, LeavesHole},
};
inline constexpr Attribute pricedItemAttributes[] = {
    {"number"_L1, Quantity, LeavesHole},
    {"name"_L1, Description, LeavesHole},
    {"price"_L1, UnitPrice, LeavesHole},
    {"totalPrice"_L1, Amount, LeavesHole},
};
inline constexpr Attribute pricedVariantAttributes[] = {
    {"number"_L1, Quantity, LeavesHole},   asNumber({"quantity"_L1, Quantity, CountsAsZero}),
    {"name"_L1, Description, LeavesHole},  {"price"_L1, UnitPrice, LeavesHole},
    {"totalPrice"_L1, Amount, LeavesHole},
};
inline constexpr Attribute totalAttributes[] = {
    {"price"_L1, Amount, LeavesHole, line::total, QT_TR_NOOP("TOTAL")},
};

inline constexpr Element partialOrderElements[] = {
    customerElement,
    {"receipe"_L1, printTicketItem, ticketItemAttributes, ticketRow},
    {"otherreceipe"_L1, printTicketOtherItem, ticketItemAttributes, ticketRow},
    {"variant"_L1, printTicketVariant, ticketVariantAttributes, ticketRow},
};
inline constexpr Element fullOrderElements[] = {
    customerElement,
    {"receipe"_L1, printPricedItem, pricedItemAttributes, pricedRow},
    {"variant"_L1, printPricedVariant, pricedVariantAttributes, pricedRow},
    {"total"_L1, printPricedTotal, totalAttributes, pricedRow},
};

// Receipts.

inline constexpr Attribute notPaidAttributes[] = {
    {"price"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("    Amount not paid: ")},
};
inline constexpr Attribute summaryNotPaidAttributes[] = {
    {"price"_L1, Amount, LeavesHole},
};
inline constexpr Attribute summaryRowAttributes[] = {
    {"number"_L1, Quantity, LeavesHole},
    {"name"_L1, Description, LeavesHole},
    {"price"_L1, Amount, LeavesHole},
};

inline constexpr Element fullReceiptElements[] = {
    customerElement,
    {"receipe"_L1, printReceiptItem, pricedItemAttributes, pricedRow},
    {"total"_L1, printReceiptTotal, totalAttributes, pricedRow},
    {"notPaid"_L1, printReceiptNotPaid, notPaidAttributes},
};
inline constexpr Element abstractReceiptElements[] = {
    {"receipe_type"_L1, printReceiptSummaryRow, summaryRowAttributes, pricedRow},
    {"total"_L1, printReceiptTotal, totalAttributes, pricedRow},
    {"notPaid"_L1, printReceiptSummaryNotPaid, summaryNotPaidAttributes},
};

// Invoices. A summary row is the same as on a receipt.

inline constexpr Attribute invoiceTotalsAttributes[] = {
    {"taxable"_L1, Amount, LeavesHole, line::total, QT_TR_NOOP("Taxable")},
    {"taxrate"_L1, Rate, LeavesHole, line::total, QT_TR_NOOP("TaxRate")},
    {"tax"_L1, Amount, LeavesHole, line::total, QT_TR_NOOP("Tax")},
    {"total"_L1, Amount, LeavesHole, line::total, QT_TR_NOOP("TOTAL")},
};

inline constexpr Element fullInvoiceElements[] = {
    customerElement,
    {"receipe"_L1, printInvoiceItem, pricedItemAttributes, pricedRow},
    {"totals"_L1, printInvoiceTotals, invoiceTotalsAttributes, pricedRow},
};
inline constexpr Element abstractInvoiceElements[] = {
    customerElement,
    {"receipe_type"_L1, printReceiptSummaryRow, summaryRowAttributes, pricedRow},
    {"totals"_L1, printInvoiceTotals, invoiceTotalsAttributes, pricedRow},
};

// Fiscal receipts. A summary row's name goes to the register whole.

inline constexpr Attribute fiscalItemAttributes[] = {
    asNumber({"department"_L1, Department, LeavesHole}),
    asNumber({"number"_L1, Quantity, LeavesHole}),
    {"name"_L1, Description, LeavesHole},
    asNumber({"price"_L1, UnitPrice, CountsAsZero}),
};
inline constexpr Attribute fiscalSummaryRowAttributes[] = {
    asNumber({"department"_L1, Department, LeavesHole}),
    {"name"_L1, Text, LeavesHole},
    asNumber({"price"_L1, Amount, CountsAsZero}),
};
inline constexpr Attribute fiscalTotalAttributes[] = {
    asNumber({"price"_L1, Amount, CountsAsZero}),    asNumber({"creditCard"_L1, Amount, PrintsLess}),
    asNumber({"cheque"_L1, Amount, PrintsLess}),     asNumber({"notPaid"_L1, Amount, PrintsLess}),
    asNumber({"discountRate"_L1, Rate, PrintsLess}),
};

inline constexpr Element fullFiscalElements[] = {
    {"receipe"_L1, printFiscalItem, fiscalItemAttributes, registerRow},
    {"total"_L1, printFiscalTotal, fiscalTotalAttributes},
};
inline constexpr Element abstractFiscalElements[] = {
    {"receipe_type"_L1, printFiscalSummaryRow, fiscalSummaryRowAttributes},
    {"total"_L1, printFiscalTotal, fiscalTotalAttributes},
};

// The report of a period.

inline constexpr Attribute reportPeriodAttributes[] = {
    {"begindate"_L1, Date, LeavesHole, line::pair, QT_TR_NOOP("BeginDate: ")},
    {"enddate"_L1, Date, LeavesHole, line::pair, QT_TR_NOOP("EndDate: ")},
};
inline constexpr Attribute prefiscalsSummaryAttributes[] = {
    {"number"_L1, Quantity, LeavesHole, line::dotted, QT_TR_NOOP("Number")},
    {"total"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("TOTAL")},
};
inline constexpr Attribute receiptsSummaryAttributes[] = {
    {"number"_L1, Quantity, LeavesHole, line::dotted, QT_TR_NOOP("Number")},
    {"firstserial"_L1, Serial, LeavesHole, line::rangeStart, QT_TR_NOOP("Serials")},
    {"lastserial"_L1, Serial, LeavesHole, line::rangeEnd},
    {"notPaid"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("Amount not paid: ")},
    {"cash"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("Cash: ")},
    {"creditCard"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("Credit Card: ")},
    {"bancomat"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("Bancomat: ")},
    {"other"_L1, Amount, LeavesHole, line::sentence, QT_TR_NOOP("Other: ")},
    {"total"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("TOTAL")},
};
inline constexpr Attribute taxRateAttributes[] = {
    {"taxrate"_L1, Rate, LeavesHole},
    {"taxable"_L1, Amount, LeavesHole},
    {"tax"_L1, Amount, LeavesHole},
    {"amount"_L1, Amount, LeavesHole},
};
inline constexpr Attribute invoicesSummaryAttributes[] = {
    {"number"_L1, Quantity, LeavesHole, line::dotted, QT_TR_NOOP("Number")},
    {"firstserial"_L1, Serial, LeavesHole, line::rangeStart, QT_TR_NOOP("Serials")},
    {"lastserial"_L1, Serial, LeavesHole, line::rangeEnd},
    {"taxable"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("Taxable")},
    {"tax"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("Tax")},
    {"total"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("TOTAL")},
};
inline constexpr Attribute cancelledSummaryAttributes[] = {
    {"number"_L1, Quantity, LeavesHole, line::dotted, QT_TR_NOOP("Number")},
    {"totals"_L1, Amount, LeavesHole, line::dotted, QT_TR_NOOP("TOTAL")},
    // A row of the table for every three that follow.
    {""_L1, Serial, PrintsLess},
    {""_L1, Amount, LeavesHole},
    {""_L1, Rate, LeavesHole},
};

inline constexpr Element reportElements[] = {
    {"date"_L1, printReportPeriod, reportPeriodAttributes},
    {"prefiscalssummary"_L1, printPrefiscalsSummary, prefiscalsSummaryAttributes, rule},
    {"receiptssummary"_L1, printReceiptsSummary, receiptsSummaryAttributes, rule, nullptr, "taxrate_item"_L1},
    {"taxrate_item"_L1, printTaxRateRow, taxRateAttributes},
    {"invoicessummary"_L1, printInvoicesSummary, invoicesSummaryAttributes, rule},
    {"cancelledsummary"_L1, printCancelledSummary, cancelledSummaryAttributes, rule},
};

// Lists.

inline constexpr Attribute soldItemAttributes[] = {
    {"quantity"_L1, Quantity, LeavesHole},
    {"description"_L1, Description, LeavesHole},
    {"amount"_L1, Amount, LeavesHole},
};
inline constexpr Attribute statementAttributes[] = {
    {"date"_L1, Date, LeavesHole},
    {"type"_L1, Description, LeavesHole}, // a word of the catalogue
    {"amount"_L1, Amount, LeavesHole},
};

inline constexpr Element soldElements[] = {
    {"receipe"_L1, printSoldItem, soldItemAttributes, pricedRow},
};
inline constexpr Element statementElements[] = {
    {"statement_list"_L1, printStatementTitles, {}, statementRow, nullptr, "statement"_L1},
    {"statement"_L1, printStatementRow, statementAttributes, statementRow},
};

// The documents. A cash register prints a head of its own, so a fiscal receipt has no sections.

inline constexpr Document partialOrder{.hasSections = true, .elements = partialOrderElements};
inline constexpr Document fullOrder{.hasSections = true, .elements = fullOrderElements};
inline constexpr Document fullReceipt{.hasSections = true, .elements = fullReceiptElements};
inline constexpr Document abstractReceipt{.hasSections = true, .elements = abstractReceiptElements};
inline constexpr Document fullInvoice{.hasSections = true, .elements = fullInvoiceElements};
inline constexpr Document abstractInvoice{.hasSections = true, .elements = abstractInvoiceElements};
inline constexpr Document fullFiscal{.hasSections = false, .elements = fullFiscalElements};
inline constexpr Document abstractFiscal{.hasSections = false, .elements = abstractFiscalElements};
inline constexpr Document report{.hasSections = true, .elements = reportElements};
inline constexpr Document soldList{.hasSections = true, .elements = soldElements};
inline constexpr Document statementOfAccount{.hasSections = true, .elements = statementElements};
inline constexpr Document nothing{.hasSections = false, .elements = {}};

} // namespace vocabulary
