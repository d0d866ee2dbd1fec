#include "typeface.h"

#include "commanderror.h"
#include "paper.h"

#include <QFontInfo>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString family = u"DejaVu Sans Mono"_s;

/// The same shapes on every machine: no hints, which depend on its settings, and no coloured edges.
QFont evenly(const QString &name, bool bold)
{
    QFont font(name);
    font.setBold(bold);
    font.setPixelSize(typeface::size);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    font.setKerning(false);
    return font;
}

QFont captionFont(bool bold)
{
    return evenly(u"DejaVu Sans"_s, bold);
}

bool runsFromTheLeft(char32_t character)
{
    switch (QChar::direction(character)) {
    case QChar::DirL:
    case QChar::DirEN:
    case QChar::DirES:
    case QChar::DirET:
    case QChar::DirCS:
    case QChar::DirWS:
    case QChar::DirON:
        return true;
    default:
        return false;
    }
}

} // namespace

void typeface::require()
{
    if (QFontInfo(rows()).family() != family)
        throw CommandError(ExitCode::NotInstalled,
                           u"the font %1 is not installed; install the package %2"_s.arg(
                               family, QLatin1StringView(package)));
}

QFont typeface::rows(bool bold)
{
    return evenly(family, bold);
}

bool typeface::isPlain(char32_t character)
{
    static const QRawFont font = QRawFont::fromFont(rows());
    constexpr char32_t endOfBasicPlane = 0x10000;
    return character < endOfBasicPlane && paper::columnsOf(character) == 1 && runsFromTheLeft(character) &&
           font.supportsCharacter(character);
}

bool typeface::isMissing(const QString &text)
{
    QTextLayout layout(text, rows());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun &run : layout.glyphRuns()) {
        if (run.glyphIndexes().contains(0))
            return true;
    }
    return false;
}

QPainterPath typeface::caption(const QString &text, qreal height, bool bold)
{
    QPainterPath path;
    path.addText(0, 0, captionFont(bold), text);
    return QTransform::fromScale(height / size, height / size).map(path);
}

QPainterPath typeface::wrappedCaption(const QString &text, qreal height, qreal width, bool bold)
{
    constexpr qreal lineHeight = 1.4;
    QTextLayout layout(text, captionFont(bold));
    QPainterPath path;
    qreal baseline = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width * size / height);
        const QString words = text.mid(line.textStart(), line.textLength());
        path.addPath(caption(words, height, bold).translated(0, baseline));
        baseline += lineHeight * height;
    }
    layout.endLayout();
    path.setFillRule(Qt::WindingFill);
    return path;
}
