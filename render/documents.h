#pragma once

#include <QLatin1StringView>
#include <QXmlAttributes>

#include <span>

class PrinterDriver;

/// The vocabulary of a print job: which elements each document prints, and what prints them.
///
/// Each operation prints one element from its attributes; a missing attribute reads as "". Names are compared
/// exactly, case included, and an element that no table names prints nothing.

struct ElementAction
{
    QLatin1StringView element;
    void (*print)(PrinterDriver &driver, const QXmlAttributes &attributes);
};

/// Prints `element` by the first action of its name; false, and nothing printed, when there is none.
bool printElement(std::span<const ElementAction> actions, PrinterDriver &driver, const QString &element,
                  const QXmlAttributes &attributes);

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

inline constexpr ElementAction sectionElements[] = {
    {QLatin1StringView("printers"), printPrintersSection},
    {QLatin1StringView("geometry"), printGeometrySection},
    {QLatin1StringView("headers"), printHeadersSection},
    {QLatin1StringView("logo"), printLogoSection},
    {QLatin1StringView("company"), printCompanySection},
    {QLatin1StringView("receipt"), printReceiptSection},
    {QLatin1StringView("invoice"), printInvoiceSection},
    {QLatin1StringView("delivery"), printDeliverySection},
    {QLatin1StringView("orderinfo"), printOrderInfoSection},
};

// ordertickets.cpp
void printTicketItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTicketOtherItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTicketVariant(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedVariant(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPricedTotal(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction partialOrderElements[] = {
    {QLatin1StringView("customer"), printCustomer},
    {QLatin1StringView("receipe"), printTicketItem},
    {QLatin1StringView("otherreceipe"), printTicketOtherItem},
    {QLatin1StringView("variant"), printTicketVariant},
};

inline constexpr ElementAction fullOrderElements[] = {
    {QLatin1StringView("customer"), printCustomer},
    {QLatin1StringView("receipe"), printPricedItem},
    {QLatin1StringView("variant"), printPricedVariant},
    {QLatin1StringView("total"), printPricedTotal},
};

// receipts.cpp
void printReceiptItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptTotal(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptSummaryNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction fullReceiptElements[] = {
    {QLatin1StringView("customer"), printCustomer},
    {QLatin1StringView("receipe"), printReceiptItem},
    {QLatin1StringView("total"), printReceiptTotal},
    {QLatin1StringView("notPaid"), printReceiptNotPaid},
};

inline constexpr ElementAction abstractReceiptElements[] = {
    {QLatin1StringView("receipe_type"), printReceiptSummaryRow},
    {QLatin1StringView("total"), printReceiptTotal},
    {QLatin1StringView("notPaid"), printReceiptSummaryNotPaid},
};

// invoices.cpp
void printInvoiceItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printInvoiceTotals(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction fullInvoiceElements[] = {
    {QLatin1StringView("customer"), printCustomer},
    {QLatin1StringView("receipe"), printInvoiceItem},
    {QLatin1StringView("totals"), printInvoiceTotals},
};

// A summary row is the same on an invoice and on a receipt.
inline constexpr ElementAction abstractInvoiceElements[] = {
    {QLatin1StringView("customer"), printCustomer},
    {QLatin1StringView("receipe_type"), printReceiptSummaryRow},
    {QLatin1StringView("totals"), printInvoiceTotals},
};

// fiscal.cpp
void printFiscalItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printFiscalSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printFiscalTotal(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction fullFiscalElements[] = {
    {QLatin1StringView("receipe"), printFiscalItem},
    {QLatin1StringView("total"), printFiscalTotal},
};

inline constexpr ElementAction abstractFiscalElements[] = {
    {QLatin1StringView("receipe_type"), printFiscalSummaryRow},
    {QLatin1StringView("total"), printFiscalTotal},
};

// reports.cpp
void printReportPeriod(PrinterDriver &driver, const QXmlAttributes &attributes);
void printPrefiscalsSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printReceiptsSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printTaxRateRow(PrinterDriver &driver, const QXmlAttributes &attributes);
void printInvoicesSummary(PrinterDriver &driver, const QXmlAttributes &attributes);
void printCancelledSummary(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction reportElements[] = {
    {QLatin1StringView("date"), printReportPeriod},
    {QLatin1StringView("prefiscalssummary"), printPrefiscalsSummary},
    {QLatin1StringView("receiptssummary"), printReceiptsSummary},
    {QLatin1StringView("taxrate_item"), printTaxRateRow},
    {QLatin1StringView("invoicessummary"), printInvoicesSummary},
    {QLatin1StringView("cancelledsummary"), printCancelledSummary},
};

// lists.cpp
void printSoldItem(PrinterDriver &driver, const QXmlAttributes &attributes);
void printStatementTitles(PrinterDriver &driver, const QXmlAttributes &attributes);
void printStatementRow(PrinterDriver &driver, const QXmlAttributes &attributes);

inline constexpr ElementAction soldElements[] = {
    {QLatin1StringView("receipe"), printSoldItem},
};

inline constexpr ElementAction statementElements[] = {
    {QLatin1StringView("statement_list"), printStatementTitles},
    {QLatin1StringView("statement"), printStatementRow},
};
