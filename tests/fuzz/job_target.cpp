// Whole jobs through the real reader and the real printer.
//
// An input is a configuration file, a line "---" and a job; without that line it is a job, printed in a house
// that prints everything.

#include "columns.h"
#include "companyprinterdriver.h"
#include "houseconfiguration.h"
#include "jobreader.h"
#include "printmethods.h"
#include "pvconfiguration.h"
#include "target.h"
#include "temporaryhome.h"
#include "trickle.h"

#include <QBuffer>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char configurationEnd[] = "\n---\n";

/// A configuration may ask for miles of paper, and gets them: that is slow, not wrong. Widths beyond all
/// paper count as none.
bool wantsMilesOfPaper(const PVConfiguration &configuration)
{
    constexpr int plenty = 300;
    for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
            const int number = configuration.getStrValue(kind.path() + setting.name).toInt();
            const bool countsLines = setting.name == "topMargin"_L1;
            if (number > plenty && (countsLines || number <= columns::maxWidth))
                return true;
        }
    }
    return false;
}

/// The printer with a configuration of its own, which also notes what decides the form of its output.
class FuzzPrinter : public CompanyPrinterDriver
{
public:
    FuzzPrinter(const NativeFileName &fileName, PVConfiguration &own) : CompanyPrinterDriver(fileName)
    {
        configuration = &own;
    }

    bool startElement(const QString &uri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        for (int i = 0; i < attributes.count(); ++i)
            hasOddText |= attributes.value(i).contains(u'"') || attributes.value(i).contains(u'\n');
        const bool goesOn = CompanyPrinterDriver::startElement(uri, localName, qName, attributes);
        hasFiscal |= currentMethod.endsWith("Fiscal"_L1);
        return goesOn;
    }

    bool printsDocumentedPieces() const { return !hasFiscal && !hasOddText; }

private:
    bool hasFiscal = false;
    bool hasOddText = false;
};

/// A line of a document that is not fiscal: a section opener or closer, or a quoted line.
bool isPiece(QByteArrayView line)
{
    return line.isEmpty() || line == "j" || line == "J" ||
           (line.size() >= 3 && line.startsWith('"') && line.indexOf('"', 1) == line.size() - 2 &&
            line.endsWith('@'));
}

void checkPieces(const QByteArray &output)
{
    if (output.isEmpty())
        return;
    require(output.endsWith('\n'), "the output ends with a whole line");
    const QList<QByteArray> lines = output.chopped(1).split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        require(isPiece(lines[i]), "every line is a documented piece");
        const bool opens = lines[i] == "j";
        require(!opens || (i > 0 && lines[i - 1].isEmpty()), "an empty line stands before a section");
        require(lines[i] != "J" || i == lines.size() - 1, "only the end closes a section");
    }
}

bool isUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

/// How many replacement characters the toolkit makes of bytes that are no text depends on where its buffer
/// ends.
bool isCleanUtf8(const QByteArray &job)
{
    return isUtf8(job) && !job.contains('\0') && job.count("encoding") == job.count("encoding=\"UTF-8\"");
}

QByteArray render(QIODevice &job, PVConfiguration &configuration)
{
    const MemoryFile file;
    bool documented = false;
    {
        JobSource source(&job);
        FuzzPrinter printer(NativeFileName{file.path().toUtf8()}, configuration);
        JobHandler handler(printer, source);
        printJob(source, handler);
        documented = printer.printsDocumentedPieces();
    }
    const QByteArray output = file.content();
    if (documented)
        checkPieces(output);
    return output;
}

QByteArray renderWhole(const QByteArray &job, PVConfiguration &configuration)
{
    QBuffer device;
    device.setData(job);
    return render(device, configuration);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const TemporaryHome home;
    home.configure(houseConfiguration());
    static const QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    SyncSingleton<PVConfiguration>::createInstance();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const CapturedOutput messages;
    const auto input = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype end = input.indexOf(configurationEnd);

    PVConfiguration configuration;
    if (end >= 0) {
        const MemoryFile file(input.first(end));
        configuration.readFile(file.path(), u"cfg"_s);
        if (wantsMilesOfPaper(configuration))
            return notForTheCorpus;
    }
    const QByteArray job = end < 0 ? input : input.sliced(end + qsizetype(sizeof configurationEnd) - 1);

    const QByteArray output = renderWhole(job, configuration);
    require(renderWhole(job, configuration) == output, "the same job gives the same bytes");
    Trickle trickle(job);
    const QByteArray inDrops = render(trickle, configuration);
    require(inDrops == output || !isCleanUtf8(job), "a job that comes in drops gives the same bytes");
    require(isUtf8(output), "the output is text in the encoding of the locale");
    return 0;
}
