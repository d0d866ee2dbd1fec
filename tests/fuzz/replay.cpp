// Gives a fuzz target the files of the folders named on the command line, one after another: the findings and
// the essence of earlier fuzzing, in builds without libFuzzer.

#include "target.h"

#include <QDirIterator>
#include <QFile>

#include <iostream>

namespace {

void replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    const QByteArray bytes = file.readAll();
    std::cerr << qUtf8Printable(path) << std::endl; // the last one named is the one that failed
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int files = 0;
    for (char **folder = argv + 1; folder < argv + argc; ++folder) {
        for (QDirIterator it(QFile::decodeName(*folder), QDir::Files); it.hasNext(); ++files)
            replay(it.next());
    }
    std::cout << files << " inputs replayed" << std::endl;
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
