#include "companion.h"

#include "commanderror.h"
#include "usercatalogue.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>
#include <iostream>
#include <sys/auxv.h>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Beside this program, as the system was told to start it; "" where it is not there. Needs no /proc.
QString besideThis(const QString &name)
{
    const auto *started = reinterpret_cast<const char *>(getauxval(AT_EXECFN));
    std::error_code error;
    const std::filesystem::path self = std::filesystem::canonical(started ? started : "", error);
    const std::filesystem::path path = self.parent_path() / name.toStdString();
    const QString text = QFile::decodeName(path.c_str());
    return !error && QFileInfo(text).isExecutable() ? text : QString();
}

[[noreturn]] void tellMissing(const Companion &companion)
{
    throw CommandError(ExitCode::NotInstalled,
                       UserWords::tr("the program %1 is not installed; install the package %2")
                           .arg(companion.name, companion.package));
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

void becomeCompanion(const Companion &companion, const QByteArrayList &arguments)
{
    QByteArrayList words{QFile::encodeName(companionPath(companion))};
    words += arguments;
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    std::cout.flush();
    ::execv(pointers.front(), pointers.data());
    tellMissing(companion);
}
