#pragma once

#include "paper.h"

#include <QStringList>

/// What a reader showed, a line each, so that a test can tell what it expects of a paper:
///
///     |plain <b>bold|               a row; in front of each change of style stands its name, see below
///     narrow |plain|                a row in the narrow font
///     picture 16 x 24 at 0
///     -- cut                        an event
///     ! unknown command ...         a remark
///
/// Styles: <b> bold, <h> double height, <w> double width, <u> underlined, <i> inverse, <> none of them.
class PaperRecord : public paper::Painter
{
public:
    QStringList lines;
    QStringList rows; ///< texts alone
    int strips = 0;
    int openStrips = 0;

    void beginStrip(paper::StripKind) override
    {
        ++strips;
        ++openStrips;
    }
    void row(const paper::Row &row) override
    {
        QString text = row.isNarrow ? QStringLiteral("narrow |") : QStringLiteral("|");
        QString plain;
        paper::Style style;
        for (const paper::Cell &cell : row.cells) {
            if (!(cell.style == style))
                text += nameOf(cell.style);
            style = cell.style;
            text += QString::fromUcs4(&cell.character, 1);
            plain += QString::fromUcs4(&cell.character, 1);
        }
        rows += plain;
        lines += text + u'|';
    }
    void picture(const paper::Picture &picture) override
    {
        lines +=
            QStringLiteral("picture %1 x %2 at %3").arg(picture.width).arg(picture.height).arg(picture.left);
        lastPicture = picture;
    }
    void event(paper::Event event) override
    {
        lines += event == paper::Event::Cut      ? QStringLiteral("-- cut")
                 : event == paper::Event::Drawer ? QStringLiteral("-- drawer")
                                                 : QStringLiteral("-- tear off");
    }
    void remark(const QString &text) override { lines += QStringLiteral("! ") + text; }
    void endStrip() override { --openStrips; }

    paper::Picture lastPicture;

    static QString nameOf(const paper::Style &style)
    {
        QString name = QStringLiteral("<");
        if (style.bold)
            name += u'b';
        if (style.doubleHeight)
            name += u'h';
        if (style.doubleWidth)
            name += u'w';
        if (style.underlined)
            name += u'u';
        if (style.inverse)
            name += u'i';
        return name + u'>';
    }
};
