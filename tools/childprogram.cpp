#include "childprogram.h"

#include "commanderror.h"
#include "pipe.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

extern char **environ; // NOLINT(readability-redundant-declaration): POSIX wants it declared by hand

namespace {

sigset_t endingSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP})
        sigaddset(&set, signal);
    return set;
}

/// Words as the system takes them: pointers to them, and a null one.
std::vector<char *> pointersTo(std::vector<QByteArray> &words)
{
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<QByteArray> environmentOf(const ChildProgram &program)
{
    std::vector<QByteArray> variables;
    for (char **variable = environ; *variable; ++variable) {
        const QByteArray text = *variable;
        const auto isReplaced = [&text](const auto &change) { return text.startsWith(change.first + '='); };
        if (std::none_of(program.environment.begin(), program.environment.end(), isReplaced))
            variables.push_back(text);
    }
    for (const auto &[name, value] : program.environment)
        variables.push_back(name + '=' + value);
    return variables;
}

/// What the child gets of descriptors and signals.
class SpawnPlan
{
public:
    explicit SpawnPlan(const ChildProgram &child) : program(child)
    {
        posix_spawn_file_actions_init(&actions);
        if (program.input >= 0)
            connect(program.input, STDIN_FILENO);
        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ~SpawnPlan()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnPlan(const SpawnPlan &) = delete;
    SpawnPlan &operator=(const SpawnPlan &) = delete;

    void connect(int descriptor, int childs)
    {
        posix_spawn_file_actions_adddup2(&actions, descriptor, childs);
    }
    pid_t spawn() const
    {
        std::vector<QByteArray> words{QFile::encodeName(program.path)};
        words.insert(words.end(), program.arguments.begin(), program.arguments.end());
        std::vector<QByteArray> variables = environmentOf(program);
        pid_t child = -1;
        const int error = posix_spawn(&child, words.front().constData(), &actions, &attributes,
                                      pointersTo(words).data(), pointersTo(variables).data());
        if (error != 0) {
            throw CommandError(ExitCode::NotInstalled,
                               u"%1 does not start: %2"_s.arg(program.path, qt_error_string(error)));
        }
        return child;
    }

private:
    const ChildProgram &program;
    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
};

/// Reads lines until the writers have closed; a line that is absurdly long comes in pieces.
void hearAll(int descriptor, const std::function<void(const QByteArray &)> &hear)
{
    QFile pipe;
    pipe.open(descriptor, QIODevice::ReadOnly, QFileDevice::DontCloseHandle);
    constexpr qint64 longest = 10'000;
    for (QByteArray line = pipe.readLine(longest); !line.isEmpty(); line = pipe.readLine(longest))
        hear(line.endsWith('\n') ? line.chopped(1) : line);
}

} // namespace

pid_t startChild(const ChildProgram &program)
{
    return SpawnPlan(program).spawn();
}

int waitForChild(pid_t child, const QString &name)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    throw CommandError(ExitCode::Unreadable,
                       u"%1 was ended by signal %2 before it was done"_s.arg(name).arg(WTERMSIG(status)));
}

int runChild(const ChildProgram &program, const std::function<void(const QByteArray &)> &hear)
{
    SpawnPlan plan(program);
    Pipe pipe;
    if (program.isOutputHeard)
        plan.connect(pipe.writeEnd(), STDOUT_FILENO);
    plan.connect(pipe.writeEnd(), STDERR_FILENO);
    const pid_t child = plan.spawn();
    pipe.closeWriteEnd();
    hearAll(pipe.readEnd(), hear);
    return waitForChild(child, program.path);
}

HeldSignals::HeldSignals()
{
    const sigset_t set = endingSignals();
    sigprocmask(SIG_BLOCK, &set, nullptr);
}

HeldSignals::~HeldSignals()
{
    const sigset_t set = endingSignals();
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}
