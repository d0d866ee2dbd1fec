#include "finishedoutput.h"

#include "childprogram.h"
#include "commanderror.h"
#include "companion.h"
#include "console.h"
#include "contentkind.h"
#include "inputfile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <iostream>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void refuse(const FileName &file, const QString &why)
{
    throw CommandError(ExitCode::Unreadable, file, why);
}

[[noreturn]] void failToPlace(const FileName &file)
{
    throw CommandError(ExitCode::WriteFailed, file,
                       u"there is no place for what it prints in "_s + QDir::tempPath());
}

/// A copy of what can be read only once.
std::unique_ptr<QFile> copyOf(QFile &source, const FileName &name)
{
    auto copy = std::make_unique<QTemporaryFile>();
    bool isWritten = copy->open();
    constexpr qint64 pieceSize = 65536;
    for (QByteArray piece; isWritten && !(piece = source.read(pieceSize)).isEmpty();)
        isWritten = copy->write(piece) == piece.size();
    if (!isWritten || !copy->flush()) {
        throw CommandError(ExitCode::WriteFailed, name,
                           u"no place for a copy in %1: %2"_s.arg(QDir::tempPath(), copy->errorString()));
    }
    if (source.error() != QFileDevice::NoError)
        refuse(name, source.errorString());
    copy->seek(0);
    return copy;
}

/// Makes a folder the home of a renderer that is to read that configuration.
bool makeHome(const QString &home, const FileName &configuration)
{
    const QString folder = home + "/.palvestrin/conf"_L1;
    std::error_code error;
    const FileName path(std::filesystem::absolute(configuration.path(), error));
    const QByteArray link = QFile::encodeName(folder + "/palvestrin.conf"_L1);
    return QDir().mkpath(folder) && symlink(path.system(), link.constData()) == 0;
}

/// The path under which another program finds the open file. A copy has none until it is asked for.
QByteArray pathOf(const QFile &file, const FileName &name)
{
    const auto *copy = dynamic_cast<const QTemporaryFile *>(&file);
    if (copy)
        return QFile::encodeName(copy->fileName());
    std::error_code error;
    return FileName(std::filesystem::absolute(name.path(), error)).bytes();
}

/// What prints the job `path` into the file `output`.
ChildProgram rendererFor(const Rendering &rendering, const QByteArray &path, const QByteArray &output)
{
    if (rendering.profile.isEmpty())
        return {companionPath({u"palvestrin-print"_s, u"palvestrin-print"_s}), {path, output}};
    return {companionPath({u"palvestrin"_s, u"palvestrin-tools"_s}),
            {"render", "--device", "escpos", "--profile", rendering.profile, "--output", output, "--", path}};
}

} // namespace

FinishedOutput::FinishedOutput(const FileName &file, const Rendering &rendering)
    : title(isStandardInput(file) ? FileName(u"standard input"_s) : file)
{
    open(file);
    if (output->size() == 0)
        refuse(title, u"the file is empty"_s);
    switch (paper::contentKind(output->peek(paper::tellingLength))) {
    case paper::ContentKind::Job:
        source = std::move(output);
        isReceipts = !rendering.profile.isEmpty();
        render(rendering);
        return;
    case paper::ContentKind::ReceiptPrinter:
        isReceipts = true;
        return;
    case paper::ContentKind::Output:
        return;
    case paper::ContentKind::Neither:
        refuse(title, u"this is neither a print job (XML) nor what goes to a printer"_s);
    }
}

FileName FinishedOutput::name() const
{
    return source ? title.with(u", as printed"_s) : title;
}

QFile *FinishedOutput::job()
{
    if (source)
        source->seek(0);
    return source.get();
}

QFile &FinishedOutput::stream()
{
    output->seek(0);
    return *output;
}

void FinishedOutput::open(const FileName &file)
{
    output = openInput(file);
    if (output->isSequential() || isStandardInput(file))
        output = copyOf(*output, title);
}

void FinishedOutput::render(const Rendering &rendering)
{
    const HeldSignals untilNothingIsLeft;
    const QTemporaryDir folder;
    if (!folder.isValid())
        failToPlace(title);
    print(rendering, folder.path());
    output = std::make_unique<QFile>(folder.filePath(u"output"_s));
    if (!output->open(QIODevice::ReadOnly))
        failToPlace(title);
    if (output->size() == 0)
        refuse(title, u"it prints nothing; a print job is XML and names a print method that is known"_s);
}

/// Has the job printed to the file "output" in `folder`.
void FinishedOutput::print(const Rendering &rendering, const QString &folder) const
{
    const QByteArray path = pathOf(*source, title);
    ChildProgram printer = rendererFor(rendering, path, QFile::encodeName(folder) + "/output");
    if (!rendering.configuration.isEmpty()) {
        if (!makeHome(folder, rendering.configuration))
            failToPlace(title);
        printer.environment.emplace_back("HOME", QFile::encodeName(folder));
    }
    if (!rendering.locale.isEmpty())
        printer.environment.emplace_back("LC_ALL", rendering.locale);
    const int status = runChild(printer, [&](const QByteArray &line) { hear(line, path); });
    if (dynamic_cast<QTemporaryFile *>(source.get()))
        ::unlink(path.constData());
    if (status != 0)
        throw CommandError(static_cast<ExitCode>(status));
}

/// Passes on what the renderer says. Where it names the file, which may be a copy, people know another name.
void FinishedOutput::hear(const QByteArray &line, const QByteArray &path) const
{
    if (line.startsWith(path))
        std::cerr << title.bytes().constData() << line.sliced(path.size()).constData() << '\n';
    else
        printNote(title.shown(), QString::fromUtf8(line));
}
