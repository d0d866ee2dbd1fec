#include "spelling.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>
#include <vector>

namespace {

/// How many characters must be put in, taken out or changed to make one text of the other; `limit` when it is
/// that many or more.
qsizetype editDistance(QStringView from, QStringView to, qsizetype limit)
{
    if (std::abs(from.size() - to.size()) >= limit)
        return limit;
    std::vector<qsizetype> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (qsizetype j = 0; j < to.size(); ++j) {
            const qsizetype changed = diagonal + (from[i] != to[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return std::min(row.back(), limit);
}

} // namespace

QString nearestWord(const QString &word, const QStringList &known)
{
    qsizetype least = std::max<qsizetype>(1, word.size() / 3) + 1;
    const QString lowered = word.toLower();
    QString nearest;
    for (const QString &candidate : known) {
        const qsizetype distance = editDistance(lowered, candidate.toLower(), least);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}
