#pragma once

#include "letters.h"
#include "printerdriver.h"
#include "profiles.h"
#include "spool.h"

#include <QByteArray>

#include <vector>

/// A receipt printer that speaks ESC/POS.
///
/// The output is bytes, told of one by one in docs/escpos.md. Each document begins with an initialised
/// printer and ends with feed and cut, so it looks the same whatever was printed before it. Rows are ended by
/// a line feed; a change of bold, size or code page is sent in front of the first letter that it concerns.
/// Centred rows have blanks in front of them: the printer would centre on its paper, not on the document's
/// rows.
///
/// What a document asks for with its settings: `paperWidth` above the columns of the usual font takes the
/// narrow one, where that is wide enough; `paperRows` fills up the last page; `copyNumber` repeats the
/// document; `openCashDrawer` opens the drawer once before the first receipt; `printLogo` lets the `logo`
/// element print.
///
/// Register documents are refused: the job ends there, and `errorString` says why.
class EscPosPrinterDriver : public PrinterDriver
{
public:
    static constexpr int maxPageRows = 1000; ///< a larger `paperRows` is no page, and fills up nothing

    /// Empties or makes the file at once. `profile` must outlive the printer.
    EscPosPrinterDriver(const NativeFileName &fileName, const Profile &profile);
    /// A row that was begun and not ended is dropped.
    ~EscPosPrinterDriver() override;

    /// The characters that stood in the job and not on the paper.
    const LostCharacters &lostCharacters() const { return lost; }
    /// Why the job was refused, a sentence; "" when it was not.
    QString errorString() const override { return refused; }
    /// What else was not printed and why, a sentence each: a logo that cannot be read, copies that could not
    /// be kept.
    QStringList troubles() const;

    bool startDocument() override;
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;

    unsigned int getPaperWidth() override;
    int rowWidth() const override;
    QString printable(const QString &text) const override;
    void reset() override;
    void setBold() override;
    /// Both forms also end bold print and centring. Size 0 is normal, 1 double height, anything above both.
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
    void printLogo() override;

private:
    struct Mode
    {
        bool bold = false;
        int size = 0; ///< a place in the table of sizes

        bool operator==(const Mode &) const = default;
    };
    struct Piece
    {
        QString text;
        Mode mode;
    };

    void openDrawerOnce();
    void closeSection();
    void fillUpPage();
    void feed(int rows);
    void centre();
    void sendLine();
    QByteArray changeOfMode(const Mode &wanted);
    QByteArray changeOfPage(int wanted);
    void send(const QByteArray &bytes);
    void write(const QByteArray &bytes);
    QString logoPath() const;
    const QByteArray &logoCommands();

    const Profile &profile;
    const Letters letters;
    mutable LostCharacters lost; ///< a note on the texts that were asked for, which changes none of them
    QString refused;
    QString logoTrouble;
    QByteArray logo; ///< the bytes that print it, once it has been asked for
    bool logoIsRead = false;
    Spool spool;
    bool sectionIsOpen = false;
    bool drawerIsOpen = false;
    int copies = 1;   ///< of the current document
    int pageRows = 0; ///< its `paperRows`
    qint64 rowsPrinted = 0;
    Mode mode;     ///< what was asked for last
    Mode sentMode; ///< what the printer is in
    int sentPage = 0;
    std::vector<Piece> line; ///< the row in the making
};
