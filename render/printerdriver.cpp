#include "printerdriver.h"

#include "localeoutput.h"
#include "printmethods.h"
#include "pvconfiguration.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

PrinterDriver::PrinterDriver(const QString &fileName, bool append)
    : PrinterDriver(NativeFileName{QFile::encodeName(fileName)}, append)
{
}

PrinterDriver::PrinterDriver(const NativeFileName &fileName, bool append)
    : configuration(SyncSingleton<PVConfiguration>::instance()), outputName(fileName.bytes),
      output(std::make_unique<LocaleOutput>(fileName.bytes, append)), justification(u"left"_s)
{
    if (output->isOpen())
        return;
    std::cout << "PrintManager::printAbstractOrder(...): Unable To Open File" << std::endl;
    output.reset();
}

PrinterDriver::PrinterDriver(PVConfiguration &ownConfiguration)
    : configuration(&ownConfiguration), justification(u"left"_s)
{
}

PrinterDriver::~PrinterDriver()
{
    const QString error = close();
    if (!error.isEmpty())
        std::cerr << "palvestrin-print: " << outputName.constData()
                  << ": not written completely: " << qUtf8Printable(error) << std::endl;
}

QString PrinterDriver::close()
{
    const std::unique_ptr<LocaleOutput> closing = std::move(output);
    return !closing || closing->close() ? QString() : closing->errorString();
}

bool PrinterDriver::startDocument()
{
    reset();
    return true;
}

bool PrinterDriver::endDocument()
{
    endSection();
    return true;
}

bool PrinterDriver::startElement(const QString &, const QString &, const QString &qName,
                                 const QXmlAttributes &attributes)
{
    if (qName == vocabulary::methodElement.name)
        return chooseMethod(attributes.value("name"_L1));
    if (const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(currentMethod))
        (this->*method->print)(qName, attributes);
    return true;
}

bool PrinterDriver::endElement(const QString &, const QString &, const QString &)
{
    return true;
}

/// False, which ends the job, when there is no such method.
bool PrinterDriver::chooseMethod(const QString &name)
{
    const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(name);
    if (!method) {
        std::cout << "File Format Not Supported" << std::endl;
        currentMethod.clear();
        return false;
    }
    loadValues(method->kind);
    currentMethod = name;
    if (method->duplicate != vocabulary::Duplicate::Unchanged)
        duplicate = method->duplicate == vocabulary::Duplicate::Yes;
    startSection();
    return true;
}

int PrinterDriver::rowWidth() const
{
    return paperWidth;
}

QString PrinterDriver::printable(const QString &text) const
{
    return text;
}

void PrinterDriver::reset() {}

void PrinterDriver::initPrinter() {}

void PrinterDriver::printRowFiscal(const QString &, const QXmlAttributes &) {}

void PrinterDriver::printRowFiscal(const QString &, const QString &, const QString &, const QString &) {}

void PrinterDriver::printAbstractOrder(const QString &, const QXmlAttributes &) {}

bool PrinterDriver::printDuplicate()
{
    return duplicate;
}

QString PrinterDriver::documentPath(const QString &kind)
{
    const QString lowerKind = kind.toLower();
    if (const vocabulary::DocumentKind *known = vocabulary::findDocumentKind(lowerKind))
        return known->path();
    std::cout << "Error into PrinterDriver::documentPath:  " << qUtf8Printable(lowerKind) << std::endl;
    return vocabulary::fallbackKind.path();
}

void PrinterDriver::loadValues(const QString &kind)
{
    docPath = documentPath(kind);
    static_cast<DocumentSettings &>(*this) = read(*configuration, docPath);
    if (paperWidth == 0)
        paperWidth = static_cast<int>(getPaperWidth());
}

void PrinterDriver::printDocument(const vocabulary::Document &document, const QString &element,
                                  const QXmlAttributes &attributes)
{
    if (document.hasSections && printSections(element, attributes))
        return;
    if (const vocabulary::Element *known = vocabulary::findElement(document.elements, element))
        known->print(*this, attributes);
}

bool PrinterDriver::oneTime()
{
    if (oneTimeDone)
        return false;
    oneTimeDone = true;
    return true;
}

void PrinterDriver::storePrinter(const QXmlAttributes &attributes)
{
    printerName = attributes.value("name"_L1);
    printerCharSize = attributes.value("charsize"_L1);
    printerIpAddress = attributes.value("ipaddress"_L1);
    printerPort = attributes.value("port"_L1);
}

const vocabulary::PrintMethod *vocabulary::findPrintMethod(const QString &name)
{
    for (const PrintMethod &method : printMethods) {
        if (name == method.name)
            return &method;
    }
    return nullptr;
}
