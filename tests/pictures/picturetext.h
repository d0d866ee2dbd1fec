#pragma once

#include "strip.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// The text that other programs take out of a picture, put back on the grid of rows and columns.
///
/// A row is a list of columns. A column holds the character that begins in it, with the marks that stand over
/// it, and nothing where the second half of a wide one is.
using Grid = std::vector<QStringList>;

/// A row as the picture should give it back.
QStringList gridRow(const paper::Row &row);

/// What `pdftotext -bbox` finds on each page, one for each strip. Anything between two columns or two rows is
/// an error, which takes the place of the page.
std::vector<Grid> gridsInPdf(const QByteArray &pdf, const std::vector<Strip> &strips);

/// A grid as that program can tell it. It tells words and where they are, not blanks: a column without a word
/// is a blank, whatever kind of blank and whatever mark over it was there, and a row ends with its last word.
Grid asWordsTell(const Grid &grid);

/// The <text> elements of an SVG of one strip: those of a row follow one another, blanks included.
Grid gridInSvg(const QByteArray &svg, const Strip &strip);
