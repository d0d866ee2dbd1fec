#pragma once

#include "codepages.h"
#include "commandreader.h"
#include "paper.h"
#include "profiles.h"

#include <QByteArray>

#include <vector>

/// Shows what a printer prints for a stream of ESC/POS bytes, whoever made them.
///
/// What a printer would do and paper cannot show is told as a remark: commands that nobody knows, codes that
/// are not drawn, rows that were begun and never ended. Any bytes whatsoever are taken, and the memory is
/// that of one row or picture, whatever the length of the stream.
class Decoder : private CommandSink
{
public:
    enum class Width {
        OfPaper, ///< rows too long for the printer go on in the next one, as they do on its paper
        Any,     ///< rows are as long as they are; the stream may be for a wider printer
    };

    /// `paperPainter` and `printer` must outlive the decoder.
    Decoder(paper::Painter &paperPainter, const Profile &printer, Width width);

    /// Any bytes, in pieces of any size.
    void take(QByteArrayView bytes) { reader.take(bytes); }
    /// The stream is over.
    void end();

    // What the commands do; the table of commands names them.
    void tabulate(const PrinterCommand &command);
    void endRow(const PrinterCommand &command);
    void dropRow(const PrinterCommand &command);
    void feedRows(const PrinterCommand &command);
    void feedDots(const PrinterCommand &command);
    void moveTo(const PrinterCommand &command);
    void moveBy(const PrinterCommand &command);
    void initialise(const PrinterCommand &command);
    void enterChinese(const PrinterCommand &command);
    void leaveChinese(const PrinterCommand &command);
    void setCodePage(const PrinterCommand &command);
    void setInternational(const PrinterCommand &command);
    void setFont(const PrinterCommand &command);
    void setSize(const PrinterCommand &command);
    void setPrintMode(const PrinterCommand &command);
    void setBold(const PrinterCommand &command);
    void setUnderlined(const PrinterCommand &command);
    void setInverse(const PrinterCommand &command);
    void setJustify(const PrinterCommand &command);
    void setMargin(const PrinterCommand &command);
    void setPrintArea(const PrinterCommand &command);
    void startTabStops(const PrinterCommand &command);
    void cut(const PrinterCommand &command);
    void openDrawer(const PrinterCommand &command);
    void startRaster(const PrinterCommand &command);
    void startColumns(const PrinterCommand &command);
    void startGraphics(const PrinterCommand &command);
    void startCode(const PrinterCommand &command);
    void startBarCode(const PrinterCommand &command);
    void printStoredLogo(const PrinterCommand &command);
    void printUnseenPicture(const PrinterCommand &command);
    void tellUnseen(const PrinterCommand &command);
    void tellUnlessOff(const PrinterCommand &command);

private:
    enum class Justify { Left, Centre, Right };
    static std::vector<int> usualTabStops();

    /// What stays as it is from row to row, until the printer is initialised.
    struct State
    {
        CharacterTable characters;
        bool isChinese = false;
        paper::Style style;
        int font = 0;
        Justify justify = Justify::Left;
        int margin = 0;                              ///< dots at the left
        int printArea = 0;                           ///< dots from there on; 0: all that there are
        std::vector<int> tabStops = usualTabStops(); ///< dots from the margin, rising
    };

    void text(qint64 offset, QByteArrayView bytes) override;
    void command(const PrinterCommand &command) override;
    void data(qint64 offset, QByteArrayView bytes) override;
    void endOfCommand() override;
    void unknown(qint64 offset, QByteArrayView bytes) override;
    void torn(qint64 offset, QByteArrayView bytes) override;

    void put(char32_t character, bool isBroken);
    void putBlanksTo(int dots);
    void endRow();
    void finishRow();
    void feed(int rows);
    void finishPicture();
    void openStrip();
    void remark(const QString &text);
    int cellDots() const;
    int room() const;
    int indentation(int width) const;
    void setTabStops();
    void addRaster();
    void addColumns();
    void addGraphics();
    void addCode();
    void addBarCode();
    void addDots(const paper::Picture &dots, int across, int down);
    void addPictureLine(const QByteArray &line, int dotsAcross);
    void printCode();

    CommandReader reader;
    paper::Painter &painter;
    const Profile &profile;
    const Width width;

    bool stripIsOpen = false;
    State state;
    paper::Row row;                  ///< in the making
    int rowDots = 0;                 ///< what stands in it takes
    paper::Picture picture;          ///< rows of dots that have not been painted yet
    bool pictureEndsWithRow = false; ///< it stands in a row, whose end feeds it

    PrinterCommand current;             ///< whose data is being read
    QByteArray gathered;                ///< of its data, as much as is needed
    void (Decoder::*whole)() = nullptr; ///< what to do with it when it is there
    int rasterMode = 0;
    int rasterBytes = 0;        ///< of a row of the raster picture that is being read; 0: none is
    paper::Picture graphics;    ///< that wait to be printed
    QByteArray codeText;        ///< of the QR code that waits to be printed
    paper::Picture codePicture; ///< made of it, once it has been printed
    int codeModule = 3;         ///< dots of its smallest square
    int codeLevel = 0;          ///< of its error correction, from 0 to 3
};
