#pragma once

#include "commandreader.h"
#include "paper.h"
#include "profiles.h"

#include <QByteArray>

#include <vector>

struct CodePage;

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
    void tabulate(const Command &command);
    void endRow(const Command &command);
    void dropRow(const Command &command);
    void feedRows(const Command &command);
    void feedDots(const Command &command);
    void moveTo(const Command &command);
    void moveBy(const Command &command);
    void initialise(const Command &command);
    void enterChinese(const Command &command);
    void leaveChinese(const Command &command);
    void setCodePage(const Command &command);
    void setFont(const Command &command);
    void setSize(const Command &command);
    void setPrintMode(const Command &command);
    void setBold(const Command &command);
    void setUnderlined(const Command &command);
    void setInverse(const Command &command);
    void setJustify(const Command &command);
    void cut(const Command &command);
    void openDrawer(const Command &command);
    void startRaster(const Command &command);
    void startColumns(const Command &command);
    void startGraphics(const Command &command);
    void startCode(const Command &command);
    void startBarCode(const Command &command);
    void printStoredLogo(const Command &command);
    void printUnseenPicture(const Command &command);
    void tellUnseen(const Command &command);

private:
    enum class Justify { Left, Centre, Right };

    void text(qint64 offset, QByteArrayView bytes) override;
    void command(const Command &command) override;
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
    const CodePage *page;
    bool isChinese = false;
    paper::Style style;
    int font = 0;
    Justify justify = Justify::Left;
    paper::Row row;                  ///< in the making
    int rowDots = 0;                 ///< what stands in it takes
    paper::Picture picture;          ///< rows of dots that have not been painted yet
    bool pictureEndsWithRow = false; ///< it stands in a row, whose end feeds it

    Command current;                    ///< whose data is being read
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
