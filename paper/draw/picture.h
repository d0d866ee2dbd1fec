#pragma once

#include "strip.h"

#include <QByteArray>
#include <QString>

/// How a picture is drawn.
struct PictureOptions
{
    int scale = 1;      ///< of a PNG or SVG; a column is ten pixels wide at 1
    bool marks = false; ///< a ruler, a grid and the middle
    QString title{};    ///< of the file, for programs that show one
};

/// The whole file of a picture, for each format. The same strips are the same bytes. Each throws a
/// CommandError (TooLarge) for strips that make a larger picture than picturelimits.h allows.
QByteArray pngPicture(const std::vector<Strip> &strips, const PictureOptions &options);
QByteArray svgPicture(const std::vector<Strip> &strips, const PictureOptions &options);
QByteArray pdfPicture(const std::vector<Strip> &strips, const PictureOptions &options);
