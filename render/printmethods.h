#pragma once

#include "documents.h"
#include "printerdriver.h"

namespace vocabulary {

/// What choosing a method does to `PrinterDriver::printDuplicate`.
enum class Duplicate { Unchanged, Yes, No };

/// One print method: the word in the job's `method` element, the document kind whose settings it takes, and
/// the operation that receives the elements after it.
struct PrintMethod
{
    QLatin1StringView name;
    QLatin1StringView title; ///< what people call the paper
    QLatin1StringView kind;
    Duplicate duplicate;
    void (PrinterDriver::*print)(const QString &element, const QXmlAttributes &attributes);
    Document document; ///< what the operation prints
};

// Two pairings look wrong and are not: the full order is the priced list that precedes the fiscal receipt,
// and the statement of account goes to the paper of the reports.
inline constexpr PrintMethod printMethods[] = {
    {"printPartialOrder"_L1, "Kitchen ticket"_L1, "order"_L1, Duplicate::Unchanged,
     &PrinterDriver::printPartialOrder, partialOrder},
    {"printFullOrder"_L1, "Bill"_L1, "prefiscal"_L1, Duplicate::Unchanged, &PrinterDriver::printFullOrder,
     fullOrder},
    {"printFullOrderReceipt"_L1, "Receipt"_L1, "receipt"_L1, Duplicate::Unchanged,
     &PrinterDriver::printFullOrderReceipt, fullReceipt},
    {"printFullOrderInvoice"_L1, "Invoice"_L1, "invoice"_L1, Duplicate::Yes,
     &PrinterDriver::printFullOrderInvoice, fullInvoice},
    {"printFullOrderDelivery"_L1, "Delivery note"_L1, "delivery"_L1, Duplicate::Unchanged,
     &PrinterDriver::printFullOrderDelivery, partialOrder},
    {"printFullOrderFiscal"_L1, "Fiscal receipt"_L1, "fiscal"_L1, Duplicate::No,
     &PrinterDriver::printFullOrderFiscal, fullFiscal},
    {"printAbstractOrder"_L1, "Empty document"_L1, "order"_L1, Duplicate::Unchanged,
     &PrinterDriver::printAbstractOrder, nothing},
    {"printAbstractOrderReceipt"_L1, "Summary receipt"_L1, "receipt"_L1, Duplicate::Unchanged,
     &PrinterDriver::printAbstractOrderReceipt, abstractReceipt},
    {"printAbstractOrderInvoice"_L1, "Summary invoice"_L1, "invoice"_L1, Duplicate::Yes,
     &PrinterDriver::printAbstractOrderInvoice, abstractInvoice},
    {"printAbstractOrderFiscal"_L1, "Summary fiscal receipt"_L1, "fiscal"_L1, Duplicate::No,
     &PrinterDriver::printAbstractOrderFiscal, abstractFiscal},
    {"printReport"_L1, "Report"_L1, "report"_L1, Duplicate::Unchanged, &PrinterDriver::printReport, report},
    {"printSold"_L1, "List of items sold"_L1, "sold"_L1, Duplicate::Unchanged, &PrinterDriver::printSold,
     soldList},
    {"printStatementOfAccount"_L1, "Statement of account"_L1, "report"_L1, Duplicate::Unchanged,
     &PrinterDriver::printStatementOfAccount, statementOfAccount},
};

/// The method of that name, exactly and in that case of letters; null when there is none.
const PrintMethod *findPrintMethod(const QString &name);

} // namespace vocabulary
