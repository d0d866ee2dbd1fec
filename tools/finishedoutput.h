#pragma once

#include "filename.h"

#include <QFile>

#include <memory>

/// How jobs are rendered.
struct Rendering
{
    FileName configuration;  ///< an empty name means the user's
    QByteArray locale;       ///< in which the renderer runs; "" means that of the environment
    QByteArray profile = {}; ///< of the receipt printer; "" means the line printer
};

/// What goes to the printer, of one FILE of the command line: a finished output as it is, or the output of
/// the renderer for a job. Can be read more than once. What it takes of the disk is gone with it.
class FinishedOutput
{
public:
    /// "-" is standard input. Throws a CommandError: (Unreadable) when the file cannot be read, is neither a
    /// job nor an output, or is a job that prints nothing; (NotInstalled) without the renderer. What the
    /// renderer has to say is passed on as notes.
    FinishedOutput(const FileName &file, const Rendering &rendering);

    /// What people know it by; places in the output are places in this.
    FileName name() const;
    /// The job that it was rendered from, open and at its beginning; null when it came finished.
    QFile *job();
    /// Open and at its beginning.
    QFile &stream();
    /// Whether it is ESC/POS, and not the line printer's.
    bool isForReceiptPrinter() const { return isReceipts; }

private:
    void open(const FileName &file);
    void render(const Rendering &rendering);
    void print(const Rendering &rendering, const QString &folder) const;
    void hear(const QByteArray &line, const QByteArray &path) const;

    FileName title;
    std::unique_ptr<QFile> output;
    std::unique_ptr<QFile> source; ///< the job
    bool isReceipts = false;
};
