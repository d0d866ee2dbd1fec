#include "keyfindings.h"

#include "configuration.h"
#include "tokenizer.h"

#include <QBuffer>

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the keys of a text stand.
class KeyPlaces : public libconfig::TokenListener
{
public:
    void token(const libconfig::Token &token) override
    {
        switch (token.kind) {
        case libconfig::TokenKind::BlockName:
            name = token.name();
            break;
        case libconfig::TokenKind::OpenBrace:
            way += name;
            break;
        case libconfig::TokenKind::CloseBrace:
            if (!way.isEmpty())
                way.removeLast();
            break;
        case libconfig::TokenKind::Key:
            places[{token.textAt().line, token.textAt().column}] =
                (way + QStringList{token.name()}).join(u'.');
            break;
        default:
            break;
        }
    }

    /// The last key that begins at the place or before it, in the same line; "" when none does.
    QString keyAt(check::Place place) const
    {
        auto next = places.upper_bound({place.line, place.column});
        if (next == places.begin() || (--next)->first.first != place.line)
            return {};
        return next->second;
    }

private:
    QString name;
    QStringList way;
    std::map<std::pair<qint64, qint64>, QString> places;
};

class Collector : public check::FindingSink
{
public:
    explicit Collector(const QByteArray &text) { libconfig::tokenize(text, places); }

    void take(const check::Finding &finding) override
    {
        if (finding.check->severity == check::Severity::Note)
            return;
        findings.push_back({places.keyAt(finding.place), finding.check->severity, finding.message,
                            finding.hint, finding.place.line});
    }

    KeyPlaces places;
    std::vector<KeyFinding> findings;
};

} // namespace

QString KeyFinding::text() const
{
    return hint.isEmpty() ? message : message + u"; "_s + hint;
}

std::vector<KeyFinding> findingsIn(const QByteArray &text)
{
    if (text.trimmed().isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    Collector collector(text);
    check::checkConfiguration(buffer, collector);
    return collector.findings;
}
