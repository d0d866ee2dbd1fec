#include "spelling.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>
#include <vector>

namespace {

/// How many characters must be put in, taken out, changed or swapped with their neighbour to make one text of
/// the other; `limit` when it is that many or more.
qsizetype editDistance(QStringView from, QStringView to, qsizetype limit)
{
    if (std::abs(from.size() - to.size()) >= limit)
        return limit;
    std::vector<qsizetype> beforeLast;
    std::vector<qsizetype> last;
    std::vector<qsizetype> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = i + 1;
        for (qsizetype j = 0; j < to.size(); ++j) {
            row[j + 1] = std::min({last[j] + (from[i] != to[j]), last[j + 1] + 1, row[j] + 1});
            if (i > 0 && j > 0 && from[i] == to[j - 1] && from[i - 1] == to[j])
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
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
