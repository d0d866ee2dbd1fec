#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

/// How findings speak of texts.
namespace check {

/// `text` in quotes, and no more of it than fits a message.
QString quoted(QStringView text);

/// The one of `words` that `slip` was probably meant to be; "" when none is near.
QString meantBy(const QString &slip, const QStringList &words);

/// "did you mean "WORD"?" with the word that was probably meant; `otherwise` when none is near.
QString didYouMean(const QString &slip, const QStringList &words, const QString &otherwise = {});

} // namespace check
