#include "words.h"

#include "spelling.h"
#include "usercatalogue.h"

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

constexpr qsizetype mostQuoted = 60;
constexpr qsizetype longestWord = 40; ///< nobody means a known word by a longer one

} // namespace

QString quoted(QStringView text)
{
    if (text.size() <= mostQuoted)
        return '"'_L1 + text.toString() + '"'_L1;
    const bool isInPair = text[mostQuoted - 1].isHighSurrogate();
    return '"'_L1 + text.first(isInPair ? mostQuoted - 1 : mostQuoted).toString() + "...\""_L1;
}

QString meantBy(const QString &slip, const QStringList &words)
{
    return slip.size() > longestWord ? QString() : nearestWord(slip, words);
}

QString didYouMean(const QString &slip, const QStringList &words, const QString &otherwise)
{
    const QString meant = meantBy(slip, words);
    return meant.isEmpty() ? otherwise : UserWords::tr("did you mean \"%1\"?").arg(meant);
}

} // namespace check
