#pragma once

#include "filename.h"
#include "picture.h"
#include "profiles.h"

#include <QByteArrayList>
#include <QList>

#include <array>

/// A kind of file that a picture may be.
struct PictureFormat
{
    QLatin1StringView name;
    QByteArray (*draw)(const std::vector<Strip> &, const PictureOptions &);
    bool hasScale; ///< its size in pixels is free; that of the others is the paper's
};

inline constexpr std::array pictureFormats{
    PictureFormat{QLatin1StringView("png"), pngPicture, true},
    PictureFormat{QLatin1StringView("pdf"), pdfPicture, false},
    PictureFormat{QLatin1StringView("svg"), svgPicture, true},
};

/// What the words of the command line ask for.
struct DrawOptions
{
    const PictureFormat *format = nullptr;
    FileName output; ///< "-" for standard output
    PictureOptions picture;
    QList<int> columns; ///< of the paper of each strip
    QByteArray encoding;
    const Profile *receiptPrinter = nullptr; ///< that the stream is for; null for the line printer
};

/// Reads the words behind the program's name, as the system has them; prints the help and ends the program
/// where they ask for it. Throws a CommandError (WrongUsage).
DrawOptions drawOptions(const QByteArrayList &words);
