#pragma once

#include "documents.h"
#include "printerdriver.h"

#include <QLatin1StringView>

#include <span>

/// What choosing a method does to `PrinterDriver::printDuplicate`.
enum class Duplicate { Unchanged, Yes, No };

/// One print method: the word in the job's `method` element, the document kind whose settings it takes, and
/// the operation that receives the elements after it.
struct PrintMethod
{
    QLatin1StringView name;
    QLatin1StringView kind;
    Duplicate duplicate;
    void (PrinterDriver::*print)(const QString &element, const QXmlAttributes &attributes);
    /// What the method prints beside the header sections.
    std::span<const ElementAction> elements;
};

// Two pairings look wrong and are not: the full order is the priced list that precedes the fiscal receipt,
// and the statement of account goes to the paper of the reports.
inline constexpr PrintMethod printMethods[] = {
    {QLatin1StringView("printPartialOrder"), QLatin1StringView("order"), Duplicate::Unchanged,
     &PrinterDriver::printPartialOrder, partialOrderElements},
    {QLatin1StringView("printFullOrder"), QLatin1StringView("prefiscal"), Duplicate::Unchanged,
     &PrinterDriver::printFullOrder, fullOrderElements},
    {QLatin1StringView("printFullOrderReceipt"), QLatin1StringView("receipt"), Duplicate::Unchanged,
     &PrinterDriver::printFullOrderReceipt, fullReceiptElements},
    {QLatin1StringView("printFullOrderInvoice"), QLatin1StringView("invoice"), Duplicate::Yes,
     &PrinterDriver::printFullOrderInvoice, fullInvoiceElements},
    {QLatin1StringView("printFullOrderDelivery"), QLatin1StringView("delivery"), Duplicate::Unchanged,
     &PrinterDriver::printFullOrderDelivery, partialOrderElements},
    {QLatin1StringView("printFullOrderFiscal"), QLatin1StringView("fiscal"), Duplicate::No,
     &PrinterDriver::printFullOrderFiscal, fullFiscalElements},
    {QLatin1StringView("printAbstractOrder"),
     QLatin1StringView("order"),
     Duplicate::Unchanged,
     &PrinterDriver::printAbstractOrder,
     {}},
    {QLatin1StringView("printAbstractOrderReceipt"), QLatin1StringView("receipt"), Duplicate::Unchanged,
     &PrinterDriver::printAbstractOrderReceipt, abstractReceiptElements},
    {QLatin1StringView("printAbstractOrderInvoice"), QLatin1StringView("invoice"), Duplicate::Yes,
     &PrinterDriver::printAbstractOrderInvoice, abstractInvoiceElements},
    {QLatin1StringView("printAbstractOrderFiscal"), QLatin1StringView("fiscal"), Duplicate::No,
     &PrinterDriver::printAbstractOrderFiscal, abstractFiscalElements},
    {QLatin1StringView("printReport"), QLatin1StringView("report"), Duplicate::Unchanged,
     &PrinterDriver::printReport, reportElements},
    {QLatin1StringView("printSold"), QLatin1StringView("sold"), Duplicate::Unchanged,
     &PrinterDriver::printSold, soldElements},
    {QLatin1StringView("printStatementOfAccount"), QLatin1StringView("report"), Duplicate::Unchanged,
     &PrinterDriver::printStatementOfAccount, statementElements},
};

/// A document kind and the block of the configuration that holds its settings.
struct DocumentKind
{
    QLatin1StringView name;
    QLatin1StringView path;
};

inline constexpr DocumentKind documentKinds[] = {
    {QLatin1StringView("order"), QLatin1StringView("palvestrin.doc.")},
    {QLatin1StringView("prefiscal"), QLatin1StringView("palvestrin.prefiscaldoc.")},
    {QLatin1StringView("fiscal"), QLatin1StringView("palvestrin.fiscaldoc.")},
    {QLatin1StringView("receipt"), QLatin1StringView("palvestrin.receiptdoc.")},
    {QLatin1StringView("invoice"), QLatin1StringView("palvestrin.invoicedoc.")},
    {QLatin1StringView("delivery"), QLatin1StringView("palvestrin.deliverydoc.")},
    {QLatin1StringView("report"), QLatin1StringView("palvestrin.reportdoc.")},
    {QLatin1StringView("sold"), QLatin1StringView("palvestrin.solddoc.")},
};

/// The method of that name, exactly and in that case of letters; null when there is none.
const PrintMethod *findPrintMethod(const QString &name);
