#pragma once

#include "command.h"
#include "filename.h"
#include "finishedoutput.h"
#include "profiles.h"

#include <QList>

/// `palvestrin preview`: shows what a job prints, or what stands in a finished output.
extern const Command previewCommand;

/// A form that the paper is written in.
struct PreviewFormat
{
    QLatin1StringView name; ///< also the ending of its files
    bool isPicture;
    bool isForTerminal; ///< characters that a terminal takes
};

inline constexpr PreviewFormat previewFormats[] = {
    {QLatin1StringView("txt"), false, true},
    {QLatin1StringView("png"), true, false},
    {QLatin1StringView("pdf"), true, false},
    {QLatin1StringView("svg"), true, true},
};

/// What is to be shown, and how.
struct Preview
{
    QList<FileName> files;
    Rendering rendering;
    const PreviewFormat *format = nullptr; ///< null for a terminal
    FileName output;                       ///< an empty name, or "-", means standard output
    int columns = 0;                       ///< of the paper; 0 means those of each document
    QString scale;                         ///< of a picture, as given; "" for its usual size
    bool marks = false;
    bool hex = false;                       ///< list the bytes of a receipt printer
    const Profile *profile = &usualProfile; ///< of the receipt printer

    /// The encoding of what the renderer writes.
    QByteArray encoding() const;
    bool isForStandardOutput() const { return output.isEmpty() || output.bytes() == "-"; }
};

// Each way to show it is one source file. They collect in `faults` what is wrong with the outputs.

class FaultList;
void showOnTerminal(const Preview &preview, FaultList &faults);
void writeText(const Preview &preview, FaultList &faults);
/// Lists bytes, command and meaning of what goes to a receipt printer.
void writeHex(const Preview &preview);
/// Hands over to palvestrin-draw; returns how that ended.
ExitCode drawPicture(const Preview &preview, FaultList &faults);
