#pragma once

#include "printerdriver.h"

/// The line printer and the cash register behind one output file.
///
/// The file is text, in the encoding of the locale, lines ended by a line feed:
///
///     "\n" "j\n"            opens a section
///     "\"" text "\"@\n"     prints a line; a centred one has blanks before its text
///     "J\n"                 closes the last section at the end of the job
///
/// Under a fiscal method a section opens with "\n" alone, closes with nothing, and holds register commands,
/// each a line of its own (see fiscalregister.cpp). Nothing else is ever written: no escape sequences, no
/// sizes, no cuts. Text goes out as it stands, quotes and control characters included.
class CompanyPrinterDriver : public PrinterDriver
{
public:
    /// Characters on a line of this printer, and the `paperWidth` of a document kind that sets none.
    static constexpr unsigned int lineWidth = 32;
    /// A word that never reaches the paper, and the one that is printed in its place.
    static constexpr QStringView replacedWord = u"TOTALE";
    static constexpr QStringView replacement = u"SOMMA";

    /// Empties or makes the file at once.
    explicit CompanyPrinterDriver(const QString &fileName);
    explicit CompanyPrinterDriver(const NativeFileName &fileName);
    /// Writes no file: see `write`.
    explicit CompanyPrinterDriver(PVConfiguration &ownConfiguration);
    /// A line that was begun and not ended is dropped.
    ~CompanyPrinterDriver() override;

    unsigned int getPaperWidth() override;
    void setBold() override;
    /// Both forms mean the left margin and nothing else: they are the only way back from centring.
    void setCharSize() override;
    void setCharSize(int size) override;
    void setCenterJustify() override;
    void fullCut() override;
    void generatePulse() override;
    void startSection() override;
    void endSection() override;
    void print(unsigned int indent, const QString &text) override;
    void println(unsigned int indent, const QString &text) override;
    void println(const QString &text) override;
    void printRowFiscal(const QString &name, const QXmlAttributes &attributes) override;
    void printRowFiscal(const QString &department, const QString &quantity, const QString &description,
                        const QString &price) override;
    void printLogo() override;
    /// One sale with a price modifier, such as "-10" for ten per cent off. Offered to other programs;
    /// no print method calls it.
    virtual void printRowFiscal(const QString &department, const QString &quantity,
                                const QString &description, const QString &price, const QString &modifier);

protected:
    /// Where everything goes that is sent to the printer: a line, a command or a bracket at a time. Into the
    /// output file, or nowhere when there is none.
    virtual void write(const QString &text);
    bool isFiscal() const;

private:
    QString lineBuffer; ///< the line being assembled, its opening quote included
};
