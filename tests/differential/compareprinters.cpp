// Prints random jobs with two builds of palvestrin-print and tells the first difference.
//
//   compareprinters OLD NEW [JOBS [SEED]]
//   compareprinters --show SEED
//
// Job and configuration number N come from the seed SEED + N. The second form shows both. Ends with 0 when
// the two agree on all jobs, with 1 when they differ, with 2 when nothing could be compared.

#include "program.h"
#include "randomjob.h"
#include "scratchfolder.h"

#include <QFileInfo>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usageStatus = 2;

/// A home directory with one job and one configuration.
class Desk
{
public:
    Desk() { QDir(folder.path()).mkpath(u".palvestrin/conf"_s); }

    void prepare(quint32 seed) const
    {
        folder.write(u"job.xml"_s, randomJob(seed));
        folder.write(u".palvestrin/conf/palvestrin.conf"_s, randomConfiguration(seed));
    }

    /// The messages and the paper, each with its length in front, so that no two ways make one text.
    QByteArray printed(const QString &printer) const
    {
        folder.write(u"paper"_s, {});
        const ProgramRun run = runProgram(QFileInfo(printer).absoluteFilePath(), {u"job.xml"_s, u"paper"_s},
                                          bareEnvironment(folder.path()), folder.path());
        if (!run.failure.isEmpty())
            qFatal("%s: %s", qPrintable(printer), qPrintable(run.failure));
        const QByteArray messages = run.standardOutput + run.standardError;
        return QByteArray::number(messages.size()) + '\n' + messages + folder.read(u"paper"_s);
    }

private:
    const ScratchFolder folder;
};

int compare(const QString &oldPrinter, const QString &newPrinter, int jobs, quint32 seed)
{
    const Desk desk;
    qsizetype bytes = 0;
    for (const quint32 end = seed + static_cast<quint32>(jobs); seed != end; ++seed) {
        desk.prepare(seed);
        const QByteArray paper = desk.printed(oldPrinter);
        if (paper != desk.printed(newPrinter)) {
            std::cout << "seed " << seed << ": the two differ" << std::endl;
            return EXIT_FAILURE;
        }
        bytes += paper.size();
    }
    std::cout << jobs << " jobs, " << bytes << " bytes: the same" << std::endl;
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromLocal8Bit(argv[i]);
    if (words.size() == 2 && words[0] == "--show"_L1) {
        const quint32 seed = words[1].toUInt();
        std::cout << randomJob(seed).constData() << randomConfiguration(seed).constData();
        return EXIT_SUCCESS;
    }
    const int jobs = words.value(2, u"1000"_s).toInt();
    if (words.size() < 2 || words.size() > 4 || jobs < 1) {
        std::cerr << "usage: compareprinters OLD NEW [JOBS [SEED]]" << std::endl;
        return usageStatus;
    }
    return compare(words[0], words[1], jobs, words.value(3).toUInt());
}
