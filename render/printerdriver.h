#pragma once

#include "documentsettings.h"
#include "nativefilename.h"

#include <QString>
#include <QXmlDefaultHandler>

#include <memory>
#include <optional>

class LocaleOutput;
class PVConfiguration;

namespace vocabulary {
struct Document;
}

/// The titles above the rows of items, in the language of the catalogue.
struct ItemTitles
{
    QString number;
    QString description;
    QString price;
    QString amount;
};

/// Renders one print job.
///
/// It is the content handler of the job's XML reader: every start tag is one call, nesting and end tags mean
/// nothing. A `method` element chooses the print method (see printmethods.h), loads the settings of its
/// document kind and opens a section; every later element goes to that method, which prints it at once.
/// Nothing is kept from element to element but what the members below say.
///
/// A printer implements the device operations; the documents print through them and through nothing else:
///   - `startSection` at every `method` element, `endSection` once at the end of the job;
///   - `print` and `println` for text, any number of times in between;
///   - `setBold`, `setCharSize`, `setCenterJustify` before the text that they concern; they last until the
///   next.
///
/// It is also the settings of the current document kind, each under its name. Two of those names are
/// operations of the driver too: `DocumentSettings::printGeometry` and `DocumentSettings::printLogo`.
class PrinterDriver : public QXmlDefaultHandler, protected DocumentSettings
{
public:
    /// Opens `fileName` for writing at once (emptied unless `append`). When that fails it says so in one line
    /// on standard output, and the job renders to nowhere.
    PrinterDriver(const QString &fileName, bool append);
    PrinterDriver(const NativeFileName &fileName, bool append);
    /// A printer without an output file, under a configuration of its own, which must outlive it.
    explicit PrinterDriver(PVConfiguration &ownConfiguration);
    PrinterDriver(const PrinterDriver &) = delete;
    PrinterDriver &operator=(const PrinterDriver &) = delete;
    /// Closes the output file, unless `close` has. When not all of it could be written, says so in one line
    /// on standard error.
    ~PrinterDriver() override;

    /// Whether there is an output file.
    bool isOpen() const { return output != nullptr; }
    /// Closes it; nothing may be printed any more. Returns "", or why not all of it could be written.
    QString close();

    // The job's reader.
    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceUri, const QString &localName, const QString &qName) override;

    // The device.
    virtual unsigned int getPaperWidth() = 0; ///< characters on a line of this printer
    /// Characters on a row of the current document in the current size: the `paperWidth` setting, unless
    /// large characters take more than one column each.
    virtual int rowWidth() const;
    /// `text` in the characters that this printer prints for it, one to a column: rows are laid out of them.
    /// The text itself by default.
    virtual QString printable(const QString &text) const;
    virtual void reset(); ///< the start of a job; nothing to do by default
    virtual void setBold() = 0;
    virtual void setCharSize() = 0; ///< normal size; also ends centring
    virtual void setCharSize(int size) = 0;
    virtual void setCenterJustify() = 0;
    virtual void fullCut() = 0;
    virtual void generatePulse() = 0; ///< opens the cash drawer
    virtual void printSeparatorLine();
    virtual void startSection() = 0;
    virtual void endSection() = 0;
    virtual void initPrinter(); ///< after the `printers` element; nothing to do by default
    /// Adds `indent` blanks and `text` to the line.
    virtual void print(unsigned int indent, const QString &text) = 0;
    /// The same, and ends the line.
    virtual void println(unsigned int indent, const QString &text) = 0;
    virtual void println(const QString &text) = 0;
    /// The closing commands of a fiscal receipt, from the attributes of its `total` element.
    virtual void printRowFiscal(const QString &name, const QXmlAttributes &attributes);
    /// One sale of a fiscal receipt.
    virtual void printRowFiscal(const QString &department, const QString &quantity,
                                const QString &description, const QString &price);

    // The header sections.
    virtual void printGeometry(const QXmlAttributes &attributes);
    virtual void printPrinterInfo();
    virtual void printHeaders(const QXmlAttributes &attributes);
    virtual void printLogo() = 0;
    virtual void printCompanyHeader(const QXmlAttributes &attributes);
    virtual void printReceiptHeader(const QXmlAttributes &attributes);
    virtual void printInvoiceHeader(const QXmlAttributes &attributes);
    virtual void printDeliveryHeader(const QXmlAttributes &attributes);
    virtual void printCustomerHeader(const QXmlAttributes &attributes);
    virtual void printOrderInfo(const QXmlAttributes &attributes);
    /// Prints `element` if it is a header section; false, and nothing printed, if it is none.
    virtual bool printSections(const QString &element, const QXmlAttributes &attributes);
    /// The column titles, once in a run.
    virtual void printColumnsHeader(const QString &quantity, const QString &description, const QString &price,
                                    const QString &total);

    // The print methods. Each is given every element of the job after its `method` element.
    virtual void printPartialOrder(const QString &element, const QXmlAttributes &attributes);
    virtual void printFullOrder(const QString &element, const QXmlAttributes &attributes);
    virtual void printFullOrderReceipt(const QString &element, const QXmlAttributes &attributes);
    virtual void printFullOrderInvoice(const QString &element, const QXmlAttributes &attributes);
    virtual void printFullOrderDelivery(const QString &element, const QXmlAttributes &attributes);
    virtual void printFullOrderFiscal(const QString &element, const QXmlAttributes &attributes);
    virtual void printAbstractOrder(const QString &element, const QXmlAttributes &attributes);
    virtual void printAbstractOrderReceipt(const QString &element, const QXmlAttributes &attributes);
    virtual void printAbstractOrderInvoice(const QString &element, const QXmlAttributes &attributes);
    virtual void printAbstractOrderFiscal(const QString &element, const QXmlAttributes &attributes);
    virtual void printReport(const QString &element, const QXmlAttributes &attributes);
    virtual void printSold(const QString &element, const QXmlAttributes &attributes);
    virtual void printStatementOfAccount(const QString &element, const QXmlAttributes &attributes);
    /// Whether the document is to be printed twice: true from the first invoice on, until a fiscal method.
    virtual bool printDuplicate();

    /// The configuration key prefix of a document kind ("receipt" gives "palvestrin.receiptdoc."), in any
    /// case of letters. An unknown kind is reported on standard output and has the prefix of "prefiscal".
    QString documentPath(const QString &kind);
    /// Reads the settings of a document kind; every one is overwritten.
    void loadValues(const QString &kind);
    /// True the first time that it is called in a run. It shares its latch with the column titles: whichever
    /// comes first shuts out the other.
    bool oneTime();
    /// The titles that item rows pass to `printColumnsHeader`. Every row passes them, so the catalogue is
    /// asked at the first call only.
    const ItemTitles &itemTitles();
    /// One row in the columns of the layout `style`: "qdpt", "qxdpt", "qxd", "qd", "qxdtDoubleLine" or
    /// "date-amount-type" (which takes date, description and amount as its first three texts). Any other word
    /// gives an empty row. No line end.
    QString descriptionRow(const QString &quantity, const QString &description, const QString &price,
                           const QString &total, QChar fill, const QString &style) const;

    const DocumentSettings &settings() const { return *this; }

    /// Keeps the attributes of the `printers` element.
    void storePrinter(const QXmlAttributes &attributes);

protected:
    PVConfiguration *configuration;       ///< not owned
    QString currentMethod;                ///< as in the job; "" while none is chosen
    QByteArray outputName;                ///< as given, for messages
    std::unique_ptr<LocaleOutput> output; ///< null when the output file could not be opened
    bool duplicate = false;
    bool oneTimeDone = false;
    QString justification; ///< "left" or "center"
    QString docPath;       ///< key prefix of the current document kind
    QString printerName;
    QString printerCharSize; ///< this and the next two are kept for device drivers
    QString printerIpAddress;
    QString printerPort;
    QString orderCredit; ///< of the last `orderinfo` that printed its credit

private:
    bool chooseMethod(const QString &name);
    /// Prints an element of the document, or nothing when it has none of that name.
    void printDocument(const vocabulary::Document &document, const QString &element,
                       const QXmlAttributes &attributes);

    std::optional<ItemTitles> titles;
};
