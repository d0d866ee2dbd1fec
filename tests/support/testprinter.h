#pragma once

#include "companyprinterdriver.h"
#include "temporaryhome.h"

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <utility>

/// A printer whose state a test may look at and set.
class TestPrinter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;

    using PrinterDriver::currentMethod;
    using PrinterDriver::docPath;
    using PrinterDriver::justification;
    using PrinterDriver::orderCredit;
    using PrinterDriver::printerCharSize;
    using PrinterDriver::printerIpAddress;
    using PrinterDriver::printerName;
    using PrinterDriver::printerPort;

    using PrinterDriver::paperWidth;

    void take(const DocumentSettings &settings) { static_cast<DocumentSettings &>(*this) = settings; }

    /// One element of a job, as the reader delivers it.
    bool element(const QString &name, const QList<std::pair<QString, QString>> &attributes = {})
    {
        QXmlAttributes list;
        for (const auto &[attribute, value] : attributes)
            list.append(attribute, QString(), attribute, value);
        return startElement(QString(), name, name, list);
    }
};

/// The bytes that `job` prints on a printer of its own.
inline QByteArray printed(const std::function<void(TestPrinter &)> &job)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("output"));
    {
        TestPrinter printer(path);
        job(printer);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no output file");
    return file.readAll();
}
