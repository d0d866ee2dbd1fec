#include "findinglist.h"

#include <QJsonObject>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Control characters as people write them: a line break in a job must not look like another finding, and an
/// escape sequence must not reach the terminal.
QString withoutControls(const QString &text)
{
    QString clean;
    for (const QChar character : text) {
        if (character == u'\n')
            clean += "\\n"_L1;
        else if (character.category() == QChar::Other_Control)
            clean += "\\x"_L1 + QString::number(character.unicode(), 16).rightJustified(2, u'0');
        else
            clean += character;
    }
    return clean;
}

QString asLine(const QString &file, const check::Finding &finding)
{
    const QString hint = finding.hint.isEmpty() ? QString() : "; "_L1 + finding.hint;
    return u"%1:%2:%3: %4: "_s.arg(file, QString::number(finding.place.line),
                                   QString::number(finding.place.column), wordFor(finding.check->severity)) +
           finding.message + hint + " ["_L1 + finding.check->id + ']'_L1;
}

QJsonObject asObject(const QString &file, const check::Finding &finding)
{
    return {{u"file"_s, file},
            {u"line"_s, finding.place.line},
            {u"column"_s, finding.place.column},
            {u"severity"_s, wordFor(finding.check->severity)},
            {u"id"_s, QString(finding.check->id)},
            {u"message"_s, finding.message},
            {u"hint"_s, finding.hint}};
}

} // namespace

QString wordFor(check::Severity severity)
{
    switch (severity) {
    case check::Severity::Note:
        return u"note"_s;
    case check::Severity::Warning:
        return u"warning"_s;
    case check::Severity::Error:
        return u"error"_s;
    }
    return {};
}

FindingList::FindingList(const QString &fileName, check::Severity leastSeverity, qsizetype most)
    : file(fileName), least(leastSeverity), mostOfACheck(most)
{
}

void FindingList::take(const check::Finding &finding)
{
    if (++found[finding.check] > mostOfACheck || finding.check->severity < least)
        return;
    const auto place = std::ranges::upper_bound(findings, finding.place, {}, &check::Finding::place);
    findings.insert(place, finding); // most often at the end
}

qsizetype FindingList::count(check::Severity severity) const
{
    qsizetype sum = 0;
    for (const auto &[row, number] : found)
        sum += row->severity == severity ? number : 0;
    return sum;
}

QString FindingList::asText() const
{
    QString text;
    for (const check::Finding &finding : findings)
        text += withoutControls(asLine(file, finding)) + u'\n';
    return text;
}

QJsonArray FindingList::asJson() const
{
    QJsonArray array;
    for (const check::Finding &finding : findings)
        array.append(asObject(file, finding));
    return array;
}

QStringList FindingList::remarks() const
{
    QStringList lines;
    for (const auto &[row, number] : found) {
        if (number > mostOfACheck && row->severity >= least)
            lines += u"%1: %2 more of \"%3\" are not shown; --all shows them"_s.arg(
                withoutControls(file), QString::number(number - mostOfACheck), row->id);
    }
    return lines;
}
