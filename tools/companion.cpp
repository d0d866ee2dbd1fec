#include "companion.h"

#include "commanderror.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <iostream>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Beside this program; "" where the system does not tell which program this is.
QString besideThis(const QString &name)
{
    const QString self = QFile::symLinkTarget(u"/proc/self/exe"_s);
    const QString path = QFileInfo(self).path() + u'/' + name;
    return !self.isEmpty() && QFileInfo(path).isExecutable() ? path : QString();
}

[[noreturn]] void tellMissing(const Companion &companion)
{
    throw CommandError(ExitCode::NotInstalled, u"the program %1 is not installed; install the package %2"_s.arg(
                                                   companion.name, companion.package));
}

} // namespace

QString companionPath(const Companion &companion)
{
    QString path = besideThis(companion.name);
    if (path.isEmpty())
        path = QStandardPaths::findExecutable(companion.name);
    if (path.isEmpty())
        tellMissing(companion);
    return path;
}

void becomeCompanion(const Companion &companion, const QStringList &arguments)
{
    std::vector<QByteArray> words{QFile::encodeName(companionPath(companion))};
    for (const QString &argument : arguments)
        words.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    std::cout.flush();
    ::execv(pointers.front(), pointers.data());
    tellMissing(companion);
}
