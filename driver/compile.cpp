#include "compile.h"

#include "catalogue.h"
#include "companyprinterdriver.h"
#include "jobreader.h"
#include "pvconfiguration.h"
#include "toolkitoptions.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

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
    CompanyPrinterDriver printer{NativeFileName{argv[2]}};
    JobHandler handler(printer, source);
    openInput(input, argv[1]);
    printJob(source, handler);
}
