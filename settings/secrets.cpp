#include "secrets.h"

#include "knownkeys.h"
#include "spelling.h"

#include <algorithm>

namespace {

/// The last names of the secret keys: "password".
QStringList namesOfSecrets()
{
    QStringList names;
    for (const knownkeys::Key &key : knownkeys::all()) {
        if (key.kind == vocabulary::ValueKind::Secret)
            names += key.name.section(u'.', -1);
    }
    return names;
}

/// Whether `name` is a short form of a secret's name, or a slip of one.
bool isNear(const QString &name, const QStringList &secrets)
{
    constexpr qsizetype shortest = 3;
    const bool isBeginning = std::ranges::any_of(
        secrets, [&name](const QString &secret) { return secret.startsWith(name, Qt::CaseInsensitive); });
    return (isBeginning && name.size() >= shortest) || !nearestWord(name, secrets).isEmpty();
}

} // namespace

bool mayBeSecret(const QString &key, const QString &value)
{
    static const QStringList secrets = namesOfSecrets();
    const auto tellsOfOne = [](const QString &text) {
        return std::ranges::any_of(
            secrets, [&text](const QString &secret) { return text.contains(secret, Qt::CaseInsensitive); });
    };
    return tellsOfOne(key) || tellsOfOne(value) || isNear(key.section(u'.', -1).simplified(), secrets);
}
