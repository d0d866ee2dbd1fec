#include "labelscanner.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

QSet<QString> labelsInSource(const QString &text)
{
    static const QRegularExpression marked(
        uR"rx(\b(?:tr\(|translate\(\s*"\w+"\s*,|QT_TR_NOOP\(|QT_TRANSLATE_NOOP\(\s*"QObject"\s*,)\s*"([^"\\]*)")rx"_s);
    QSet<QString> labels;
    for (auto matches = marked.globalMatch(text); matches.hasNext();)
        labels += matches.next().captured(1);
    return labels;
}

QSet<QString> labelsInFolder(const QString &folder)
{
    QSet<QString> labels;
    for (const QFileInfo &info : QDir(folder).entryInfoList({u"*.cpp"_s, u"*.h"_s}, QDir::Files)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly))
            labels += labelsInSource(QString::fromUtf8(file.readAll()));
    }
    return labels;
}
