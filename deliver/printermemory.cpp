#include "printermemory.h"

#include "durablefile.h"

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <iterator>
#include <optional>
#include <string_view>
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

} // namespace

PrinterMemory::PrinterMemory(const OwnFolder *itsFolder, const std::string &printer)
    : folder(itsFolder), name(printer + ".printer")
{
    std::ranges::replace(name, '/', '_');
}

PrinterMemory::Answers PrinterMemory::answers() const
{
    const Answers answers = written();
    const std::optional<struct stat> file = folder ? folder->status(name) : std::nullopt;
    const bool isOld = !file || time(nullptr) - file->st_mtime > day;
    return answers == Answers::Proof || !isOld ? answers : Answers::NotAsked;
}

bool PrinterMemory::hasAnswered() const
{
    const Answers answers = written();
    return answers != Answers::NotAsked && answers != Answers::Nothing;
}

PrinterMemory::Answers PrinterMemory::written() const
{
    const int descriptor = folder ? folder->open(name, O_RDONLY) : -1;
    if (descriptor < 0)
        return Answers::NotAsked;
    const auto *found = std::ranges::find(answersWords, contentOf(descriptor), &AnswersWord::word);
    close(descriptor);
    return found == std::end(answersWords) ? Answers::NotAsked : found->answers;
}

void PrinterMemory::remember(Answers answers) const
{
    if (!folder || answers == this->answers())
        return;
    const int descriptor = folder->open(name, O_WRONLY | O_CREAT | O_TRUNC);
    if (descriptor < 0)
        return;
    rewriteDurably(descriptor, std::ranges::find(answersWords, answers, &AnswersWord::answers)->word);
    close(descriptor);
}
