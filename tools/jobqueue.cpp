#include "jobqueue.h"

#include "configfile.h"
#include "copies.h"
#include "jobmethods.h"
#include "printmethods.h"
#include "pvconfiguration.h"

#include <QFile>
#include <QXmlStreamReader>

#include <fcntl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The first print method that a job calls, and there is.
const vocabulary::PrintMethod *firstMethodOf(QIODevice &job)
{
    const vocabulary::PrintMethod *first = nullptr;
    forEachMethod(job, [&first](const QString &name) {
        if (!first)
            first = vocabulary::findPrintMethod(name);
    });
    return first;
}

} // namespace

QString printerNamedIn(const FileName &job)
{
    const int descriptor = ::open(job.system(), O_RDONLY | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1StringView("printers"))
            return reader.attributes().value(QLatin1StringView("name")).toString();
    }
    return {};
}

int copiesToAskFor(FinishedOutput &output)
{
    QFile *const job = output.isForReceiptPrinter() ? nullptr : output.job();
    const vocabulary::PrintMethod *const method = job ? firstMethodOf(*job) : nullptr;
    const FileName settings(PVConfiguration::userFile());
    if (!method || method->kind == "fiscal"_L1 || !settings.exists())
        return 1;
    return configuredCopies(QString(method->name), PVConfiguration(bytesOf(settings), settings.shown()));
}
