#include "escposprinterdriver.h"

#include "applicationkeys.h"
#include "columns.h"
#include "commands.h"
#include "copies.h"
#include "localeoutput.h"
#include "logo.h"
#include "printmethods.h"
#include "pvconfiguration.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Size
{
    int parameter; ///< of the command
    int width;     ///< columns of a character
    int height;    ///< rows of a character
};

constexpr Size sizes[] = {{0x00, 1, 1}, {0x01, 1, 2}, {0x11, 2, 2}};

constexpr int firstStoredPicture = 1;
constexpr int drawerOn = 25; ///< 50 ms, which opens every drawer
constexpr int drawerOff = 250;

bool isRegisterMethod(const QString &name)
{
    const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(name);
    return method && method->kind == "fiscal"_L1;
}

} // namespace

EscPosPrinterDriver::EscPosPrinterDriver(const NativeFileName &fileName, const Profile &printerProfile)
    : PrinterDriver(fileName, false), profile(printerProfile), letters(printerProfile)
{
}

EscPosPrinterDriver::~EscPosPrinterDriver() = default;

QStringList EscPosPrinterDriver::troubles() const
{
    QStringList sentences;
    if (!logoTrouble.isEmpty())
        sentences += logoTrouble;
    if (spool.hasFailed())
        sentences += u"the further copies could not be kept: is there room for temporary files?"_s;
    return sentences;
}

bool EscPosPrinterDriver::startDocument()
{
    if (profile.pictures && !logoPath().isEmpty())
        send(QByteArray(command::restOfPicture(profile.dots), '\0'));
    return PrinterDriver::startDocument();
}

bool EscPosPrinterDriver::startElement(const QString &namespaceUri, const QString &localName,
                                       const QString &qName, const QXmlAttributes &attributes)
{
    const QString method = qName == "method"_L1 ? attributes.value("name"_L1) : QString();
    if (isRegisterMethod(method)) {
        refused = u"\"%1\" is for a cash register, which speaks a language of its own: this printer prints "
                  "everything else"_s.arg(method);
        return false;
    }
    return PrinterDriver::startElement(namespaceUri, localName, qName, attributes);
}

unsigned int EscPosPrinterDriver::getPaperWidth()
{
    return profile.columns;
}

int EscPosPrinterDriver::rowWidth() const
{
    return paperWidth / sizes[mode.size].width;
}

QString EscPosPrinterDriver::printable(const QString &text) const
{
    return letters.printable(text, lost);
}

void EscPosPrinterDriver::reset()
{
    send(command::with(command::initialise, {}) + command::with(command::leaveChinese, {}));
    const int width = paperWidth;
    if (width > profile.columns && width <= profile.narrowColumns)
        send(command::with(command::font, {1})); // before the code page: some printers lose it with the font
    sentPage = profile.codePages.front();
    send(command::with(command::codePage, {sentPage}) + command::with(command::international, {0}));
    sentMode = Mode();
    setCharSize();
}

void EscPosPrinterDriver::setBold()
{
    mode.bold = true;
}

void EscPosPrinterDriver::setCharSize()
{
    setCharSize(0);
}

void EscPosPrinterDriver::setCharSize(int size)
{
    mode = Mode{.bold = false, .size = std::clamp(size, 0, int(std::size(sizes)) - 1)};
    justification = u"left"_s;
}

void EscPosPrinterDriver::setCenterJustify()
{
    justification = u"center"_s;
}

void EscPosPrinterDriver::fullCut()
{
    const bool isFull = profile.cutter == Profile::Cutter::Full;
    feed(profile.rowsToTearBar);
    if (profile.cutter == Profile::Cutter::None)
        return;
    if (profile.rowsToTearBar > 0)
        send(command::with(command::cut, {isFull ? command::cutFull : command::cutPartial}));
    else
        send(command::with(command::cut, {isFull ? command::feedAndCutFull : command::feedAndCutPartial, 0}));
}

void EscPosPrinterDriver::generatePulse()
{
    if (profile.drawer == Profile::Drawer::None)
        return;
    const int pin = profile.drawer == Profile::Drawer::Pin5 ? 1 : 0;
    send(command::with(command::drawer, {pin, drawerOn, drawerOff}));
}

void EscPosPrinterDriver::startSection()
{
    closeSection();
    openDrawerOnce(); // before anything is kept for the copies
    sectionIsOpen = true;
    rowsPrinted = 0;
    pageRows = paperRows;
    copies = configuredCopies(currentMethod, *configuration);
    line.clear();
    if (copies > 1)
        spool.start();
    reset();
}

void EscPosPrinterDriver::endSection()
{
    closeSection();
}

void EscPosPrinterDriver::openDrawerOnce()
{
    const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(currentMethod);
    const bool isReceipt = method && method->kind == "receipt"_L1;
    if (drawerIsOpen || !isReceipt || !openCashDrawer)
        return;
    drawerIsOpen = true;
    generatePulse();
}

void EscPosPrinterDriver::closeSection()
{
    if (!sectionIsOpen)
        return;
    sectionIsOpen = false;
    fillUpPage();
    fullCut();
    for (int copy = 1; spool.isStarted() && copy < copies; ++copy)
        spool.replay([this](const QByteArray &bytes) { write(bytes); });
    spool.stop();
}

void EscPosPrinterDriver::fillUpPage()
{
    if (pageRows > 0 && pageRows <= maxPageRows)
        feed(int((pageRows - rowsPrinted % pageRows) % pageRows));
}

void EscPosPrinterDriver::feed(int rows)
{
    for (; rows > 0; rows -= command::maxFeed)
        send(command::with(command::feed, {std::min(rows, command::maxFeed)}));
}

void EscPosPrinterDriver::print(unsigned int indent, const QString &text)
{
    line.push_back({QString(indent, u' ') + printable(text), mode});
}

void EscPosPrinterDriver::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    if (justification == "center"_L1)
        centre();
    sendLine();
    rowsPrinted += sizes[mode.size].height;
    line.clear();
}

void EscPosPrinterDriver::println(const QString &text)
{
    println(0, text);
}

void EscPosPrinterDriver::printLogo()
{
    if (DocumentSettings::printLogo)
        send(logoCommands());
}

/// Puts blanks in front of the row, as many as there are to the left of the middle in the current size.
void EscPosPrinterDriver::centre()
{
    qint64 taken = 0;
    for (const Piece &piece : line)
        taken += piece.text.size() * sizes[piece.mode.size].width;
    const qint64 room = paperWidth - taken;
    if (taken > 0 && room > 0 && room <= columns::maxWidth)
        line.insert(line.begin(), {QString(room / 2 / sizes[mode.size].width, u' '), mode});
}

void EscPosPrinterDriver::sendLine()
{
    QString row;
    for (const Piece &piece : line)
        row += piece.text;
    const std::vector<Letters::Letter> spelled = letters.spell(row, sentPage);
    auto letter = spelled.begin();
    QByteArray bytes;
    for (const Piece &piece : line) {
        for (qsizetype i = 0; i < piece.text.size(); ++i, ++letter) {
            bytes += changeOfMode(piece.mode) + changeOfPage(letter->page);
            bytes += letter->byte;
        }
    }
    send(bytes + command::lineEnd);
}

/// The commands that lead from what the printer is in to `wanted`; nothing when it is in that already.
QByteArray EscPosPrinterDriver::changeOfMode(const Mode &wanted)
{
    QByteArray bytes;
    if (sentMode.size != wanted.size)
        bytes += command::with(command::size, {sizes[wanted.size].parameter});
    if (sentMode.bold != wanted.bold)
        bytes += command::with(command::bold, {wanted.bold});
    sentMode = wanted;
    return bytes;
}

QByteArray EscPosPrinterDriver::changeOfPage(int wanted)
{
    if (sentPage == wanted)
        return {};
    sentPage = wanted;
    return command::with(command::codePage, {wanted});
}

/// To the printer, and to its further copies while a document is kept for them.
void EscPosPrinterDriver::send(const QByteArray &bytes)
{
    spool.add(bytes);
    write(bytes);
}

void EscPosPrinterDriver::write(const QByteArray &bytes)
{
    if (output)
        *output << bytes;
}

QString EscPosPrinterDriver::logoPath() const
{
    return configuration->getStrValue(applicationkey::escposLogo);
}

/// Read when it is first asked for. Nothing when there is none, or none that this printer can print.
const QByteArray &EscPosPrinterDriver::logoCommands()
{
    if (logoIsRead)
        return logo;
    logoIsRead = true;
    const QString path = logoPath();
    if (path.isEmpty()) {
        if (profile.storedLogo)
            logo = command::with(command::storedLogo, {firstStoredPicture, 0});
    } else if (profile.pictures) {
        const Logo file = readLogo(path, profile.dots);
        logoTrouble = file.trouble;
        logo = rasterCommands(file.picture);
    }
    return logo;
}
