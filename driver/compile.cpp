#include "compile.h"

#include "applicationkeys.h"
#include "jobreader.h"
#include "pvconfiguration.h"
#include "runlocale.h"
#include "toolkitoptions.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>
#include <QXmlSimpleReader>

#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Standard error is kept for a ticket that could not be written whole, so the toolkit's remarks (that the
/// locale is not UTF-8, that a file is not open) are dropped. Only what ends the process is told.
void tellOnlyFatalMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::cerr << qUtf8Printable(message) << std::endl;
}

/// A file that is opened while a standard stream is closed takes its place, and its messages with it: "File
/// Format Not Supported" would stand in the ticket.
void occupyStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            (void)open("/dev/null", O_RDWR); // the lowest free descriptor, which is this one
    }
}

/// A full disk or a reader that went away must not kill the process: the write fails, and that is told.
void ignoreWriteSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

/// A missing catalogue is no fault: the labels then print as they are written in the code.
void loadCatalogue(QTranslator &translator, const PVConfiguration &configuration)
{
    const QString basedir = configuration.getStrValue(applicationkey::languageBaseDir);
    const QString file = configuration.getStrValue(applicationkey::languageFile);
    if (file == "/"_L1) // the marker for a catalogue named after the locale
        (void)translator.load(basedir + "/palvestrin_"_L1 + runlocale::name(), u"."_s);
    else
        (void)translator.load(basedir + file);
}

/// Opened by the C library, because a file name is bytes and the toolkit takes it for UTF-8. A file that
/// cannot be opened reads as an empty job.
void openInput(QFile &file, const char *name)
{
    const int descriptor = open(name ? name : "", O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0)
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

} // namespace

void compile(int argc, char **argv)
{
    if (argc != 3 && argc != 4) {
        std::cout << "Usage: " << (argc > 0 ? argv[0] : "") << " input_file output_file" << std::endl;
        return;
    }
    qInstallMessageHandler(tellOnlyFatalMessages);
    occupyStandardStreams();
    ignoreWriteSignals();
    dropToolkitOptions(argc, argv);
    const QCoreApplication application(argc, argv);

    QTranslator translator;
    loadCatalogue(translator, *SyncSingleton<PVConfiguration>::instance());
    QCoreApplication::installTranslator(&translator);

    // The first two places, whatever the options have left there. A place may be null: such a file cannot be
    // opened, and is treated so.
    QFile input;
    JobSource source(&input);
    JobPrinter printer(NativeFileName{argv[2]}, source);
    openInput(input, argv[1]);
    QXmlSimpleReader reader;
    reader.setContentHandler(&printer);
    reader.setDeclHandler(&printer);
    reader.setLexicalHandler(&printer);
    reader.parse(source);
}
