#pragma once

#include "escposprinterdriver.h"
#include "wholefile.h"

#include <QTemporaryDir>

#include <functional>
#include <utility>

/// An ESC/POS printer whose state a test may look at and set.
class TestEscPosPrinter : public EscPosPrinterDriver
{
public:
    using EscPosPrinterDriver::EscPosPrinterDriver;

    using PrinterDriver::currentMethod;

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
inline QByteArray printedOn(const Profile &profile, const std::function<void(TestEscPosPrinter &)> &job)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("output"));
    {
        TestEscPosPrinter printer(NativeFileName{path.toUtf8()}, profile);
        job(printer);
    }
    return contentOf(path);
}
