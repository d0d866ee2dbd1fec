#pragma once

#include "paper.h"

#include <QString>

/// A logo that is too high is more likely a mistake than a wish, and costs paper at every receipt.
inline constexpr int maxLogoHeight = 2000; ///< dots; 25 cm of paper

/// A picture, or why there is none.
struct Logo
{
    paper::Picture picture;
    QString trouble; ///< a sentence; "" when there is a picture
};

/// A picture from a file in the format PBM, plain or raw, which graphics programs write for two colours. It
/// may be `maxWidth` dots wide and `maxLogoHeight` dots high.
Logo readLogo(const QString &path, int maxWidth);

/// The bytes that print it: one command for each row of dots, so that a job torn in the middle of a picture
/// takes little of the next job for dots.
QByteArray rasterCommands(const paper::Picture &picture);
