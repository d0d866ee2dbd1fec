#pragma once

#include "letters.h"
#include "paperrecord.h"
#include "printerdriver.h"
#include "printmethods.h"
#include "profiles.h"
#include "pvconfiguration.h"

/// A printer that prints nothing and writes down what it is asked for: rows in their styles, and what happens
/// between them. What a receipt printer does of its own accord at the ends of documents is written down in
/// the simplest way.
class WitnessPrinter : public PrinterDriver
{
public:
    explicit WitnessPrinter(const Profile &printerProfile)
        : PrinterDriver(QStringLiteral("/dev/null"), false), profile(printerProfile), letters(printerProfile)
    {
    }

    PaperRecord paper;

    bool startElement(const QString &uri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        if (qName == QStringLiteral("method") && attributes.value(QStringLiteral("name")).endsWith(u"Fiscal"))
            return false;
        return PrinterDriver::startElement(uri, localName, qName, attributes);
    }

    unsigned int getPaperWidth() override { return profile.columns; }
    int rowWidth() const override { return paperWidth / (style.doubleWidth ? 2 : 1); }
    QString printable(const QString &text) const override
    {
        LostCharacters lost;
        return letters.printable(text, lost);
    }
    void reset() override { setCharSize(); }
    void setBold() override { style.bold = true; }
    void setCharSize() override { setCharSize(0); }
    void setCharSize(int size) override
    {
        style = {};
        style.doubleHeight = size > 0;
        style.doubleWidth = size > 1;
        isCentred = false;
    }
    void setCenterJustify() override { isCentred = true; }
    void fullCut() override
    {
        for (int fed = 0; fed < profile.rowsToTearBar; ++fed)
            paper.row({});
        if (profile.cutter != Profile::Cutter::None)
            paper.event(paper::Event::Cut);
    }
    void generatePulse() override { paper.event(paper::Event::Drawer); }
    void startSection() override
    {
        endSection();
        if (openCashDrawer && !isDrawerOpen && currentMethod.endsWith(u"Receipt")) {
            generatePulse();
            isDrawerOpen = true;
        }
        setCharSize();
        row = {};
        isOpen = true;
        pageRows = paperRows;
        rows = 0;
        firstLine = paper.lines.size();
        const QString kind = QString(vocabulary::findPrintMethod(currentMethod)->kind);
        copies = qMax(1, configuration
                             ->getStrValue((kind == u"sold" ? documentPath(QStringLiteral("prefiscal"))
                                                            : documentPath(kind)) +
                                           QStringLiteral("copyNumber"))
                             .toInt());
    }
    void endSection() override
    {
        if (!isOpen)
            return;
        isOpen = false;
        for (; pageRows > 0 && rows % pageRows != 0; ++rows)
            paper.row({});
        fullCut();
        const QStringList document = paper.lines.mid(firstLine);
        for (int copy = 1; copy < copies; ++copy)
            paper.lines += document;
    }
    void print(unsigned int indent, const QString &text) override
    {
        const QString piece = QString(indent, u' ') + printable(text);
        for (const QChar character : piece)
            row.cells.push_back({character.unicode(), style, false});
    }
    void println(unsigned int indent, const QString &text) override
    {
        print(indent, text);
        int columns = 0;
        for (const paper::Cell &cell : row.cells)
            columns += cell.style.doubleWidth ? 2 : 1;
        if (isCentred && columns > 0 && columns < paperWidth) {
            const int blanks = (paperWidth - columns) / 2 / (style.doubleWidth ? 2 : 1);
            row.cells.insert(row.cells.begin(), blanks, {U' ', style, false});
        }
        row.isNarrow =
            !row.cells.empty() && paperWidth > profile.columns && paperWidth <= profile.narrowColumns;
        paper.row(row);
        rows += style.doubleHeight ? 2 : 1;
        row = {};
    }
    void println(const QString &text) override { println(0, text); }
    void printLogo() override
    {
        if (DocumentSettings::printLogo && profile.storedLogo)
            paper.remark(QStringLiteral("picture 1 of the printer's memory"));
    }

private:
    const Profile &profile;
    const Letters letters;
    paper::Style style;
    paper::Row row;
    bool isCentred = false;
    bool isOpen = false;
    bool isDrawerOpen = false;
    int pageRows = 0;
    int rows = 0;
    int copies = 1;
    qsizetype firstLine = 0;
};
