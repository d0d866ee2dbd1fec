#include "companyprinterdriver.h"

#include "columns.h"
#include "localeoutput.h"
#include "printmethods.h"

#include <QStringMatcher>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringMatcher replaced(CompanyPrinterDriver::replacedWord);

} // namespace

CompanyPrinterDriver::CompanyPrinterDriver(const QString &fileName) : PrinterDriver(fileName, false) {}

CompanyPrinterDriver::CompanyPrinterDriver(const NativeFileName &fileName) : PrinterDriver(fileName, false) {}

CompanyPrinterDriver::CompanyPrinterDriver(PVConfiguration &ownConfiguration)
    : PrinterDriver(ownConfiguration)
{
}

CompanyPrinterDriver::~CompanyPrinterDriver() = default;

unsigned int CompanyPrinterDriver::getPaperWidth()
{
    return lineWidth;
}

void CompanyPrinterDriver::setBold() {}

void CompanyPrinterDriver::setCharSize()
{
    justification = u"left"_s;
}

void CompanyPrinterDriver::setCharSize(int)
{
    justification = u"left"_s;
}

void CompanyPrinterDriver::setCenterJustify()
{
    justification = u"center"_s;
}

void CompanyPrinterDriver::fullCut() {}

void CompanyPrinterDriver::generatePulse() {}

void CompanyPrinterDriver::printLogo() {}

void CompanyPrinterDriver::startSection()
{
    write(u"\n"_s);
    if (isFiscal())
        return; // and the line buffer stays as it is
    write(u"j\n"_s);
    lineBuffer = u"\""_s;
}

void CompanyPrinterDriver::endSection()
{
    if (!isFiscal())
        write(u"J\n"_s);
}

void CompanyPrinterDriver::print(unsigned int indent, const QString &text)
{
    // A rule of the device, for labels and names alike: a word never reaches the paper. It is
    // applied to each text on its own, so a word put together from two of them gets through.
    lineBuffer.resize(lineBuffer.size() + indent, u' ');
    if (replaced.indexIn(text) >= 0)
        lineBuffer += QString(text).replace(replaced.pattern(), replacement.toString());
    else
        lineBuffer += text;
}

void CompanyPrinterDriver::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    print(0, u"\"@\n"_s);
    if (justification == "center"_L1) {
        // From the width of the device, not of the document, and with the quotes counted: a little off the
        // middle, and relied upon as it is. A line too long to centre gets no blanks.
        const qsizetype room = static_cast<int>(getPaperWidth()) - columns::length(lineBuffer) + 7;
        lineBuffer.insert(1, QString(qMax<qsizetype>(0, room) / 2, u' '));
    }
    write(lineBuffer);
    lineBuffer.resize(0); // and keeps its memory for the next line
    lineBuffer += u'"';
}

void CompanyPrinterDriver::println(const QString &text)
{
    println(0, text);
}

bool CompanyPrinterDriver::isFiscal() const
{
    const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(currentMethod);
    return method && method->kind == "fiscal"_L1;
}

void CompanyPrinterDriver::write(const QString &text)
{
    if (output)
        *output << text;
}
