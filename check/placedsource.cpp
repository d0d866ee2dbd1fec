#include "placedsource.h"

namespace check {

namespace {

/// The place behind `character`, which stands at `place`.
Place behind(Place place, QChar character)
{
    if (character == u'\n')
        return {place.line + 1, 1};
    return character.isLowSurrogate() ? place : Place{place.line, place.column + 1};
}

} // namespace

QChar PlacedSource::next()
{
    if (isNested) // as in JobSource: at the end of its buffer the toolkit calls again
        return JobSource::next();
    isNested = true;
    const QChar character = JobSource::next();
    isNested = false;
    if (character != QChar(EndOfData) && character != QChar(EndOfDocument))
        count(character);
    return character;
}

void PlacedSource::count(QChar character)
{
    last = upcoming;
    upcoming = behind(upcoming, character);
    if (character == u'<')
        beginMarkup(); // never inside a start tag: the reader ends the job there
    if (isCollecting)
        collect(character);
}

void PlacedSource::beginMarkup()
{
    tagBegin = last;
    text.clear();
    isCollecting = true;
}

void PlacedSource::collect(QChar character)
{
    text.append(character);
    if (text.size() == 2)
        isCollecting = character != u'!' && character != u'?' && character != u'/';
}

Place placeIn(QStringView text, qsizetype offset, Place begin)
{
    for (const QChar character : text.first(offset))
        begin = behind(begin, character);
    return begin;
}

} // namespace check
