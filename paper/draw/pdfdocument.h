#pragma once

#include "pdfglyphs.h"
#include "pdfobjects.h"

#include <QSizeF>
#include <QString>

/// A PDF file with pages of any size; the same pages are the same bytes. See PdfPage for what draws them.
class PdfDocument
{
public:
    explicit PdfDocument(const QString &title);

    /// Adds a page of that size, in points; `content` are the operators that draw it.
    void addPage(QSizeF size, const QByteArray &content);
    /// The whole file. Called once, after the last page.
    QByteArray file();

    /// The characters that the pages share.
    PdfGlyphs &characters() { return glyphs; }

private:
    PdfObjects objects;
    PdfGlyphs glyphs;
    int information;
    int tree;
    int resources;
    QByteArrayList pages;
};
