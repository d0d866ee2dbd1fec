#include "printermemory.h"

#include "durablefile.h"

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <iterator>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct AnswersWord
{
    PrinterMemory::Answers answers;
    std::string_view word;
};

constexpr AnswersWord answersWords[] = {
    {PrinterMemory::Answers::NotAsked, "not asked\n"},  {PrinterMemory::Answers::Nothing, "nothing\n"},
    {PrinterMemory::Answers::Something, "something\n"}, {PrinterMemory::Answers::Status, "status\n"},
    {PrinterMemory::Answers::Proof, "proof\n"},
};

constexpr time_t day = 24L * 60 * 60; // seconds

bool isOld(const std::string &path)
{
    struct stat file;
    return stat(path.c_str(), &file) != 0 || time(nullptr) - file.st_mtime > day;
}

} // namespace

PrinterMemory::PrinterMemory(const std::string &folder, const std::string &printer)
{
    if (folder.empty() || !makeFolder(folder))
        return;
    std::string name = printer;
    std::ranges::replace(name, '/', '_');
    path = folder + '/' + name + ".printer";
}

PrinterMemory::Answers PrinterMemory::answers() const
{
    const Answers answers = written();
    return answers == Answers::Proof || !isOld(path) ? answers : Answers::NotAsked;
}

bool PrinterMemory::hasAnswered() const
{
    const Answers answers = written();
    return answers != Answers::NotAsked && answers != Answers::Nothing;
}

PrinterMemory::Answers PrinterMemory::written() const
{
    const std::string content = path.empty() ? "" : contentOf(path);
    const auto *found = std::ranges::find(answersWords, content, &AnswersWord::word);
    return found == std::end(answersWords) ? Answers::NotAsked : found->answers;
}

void PrinterMemory::remember(Answers answers) const
{
    if (path.empty() || answers == this->answers())
        return;
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0)
        return;
    rewriteDurably(descriptor, std::ranges::find(answersWords, answers, &AnswersWord::answers)->word);
    close(descriptor);
}
