#include "temporarypostgres.h"

#include <QDir>

#include <algorithm>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// The guard: answers each step with one line, and ends with its standard input.
constexpr char guardScript[] = R"(
bin=$1
folder=$(mktemp -d /tmp/palvestrin-postgres.XXXXXX) || exit
cd "$folder" || exit
server() {
    "$bin/pg_ctl" --pgdata=data --log=server.log --wait --silent "$@" </dev/null >>guard.log 2>&1
}
start() {
    server start --options="-F -k '$folder' -c listen_addresses='' -c max_connections=20"
}
clean() {
    server stop --mode=immediate
    rm -rf "$folder"
    exit
}
answer() {
    if "$@"; then echo ok; else cat guard.log server.log 2>&1 | tr '\n' ' '; echo; fi
}
trap clean TERM INT HUP PIPE
echo "$folder"
echo s3cret >password
"$bin/initdb" --pgdata=data --username=shop --pwfile=password --auth=scram-sha-256 --encoding=UTF8 \
    --locale=C.UTF-8 --no-sync </dev/null >guard.log 2>&1
answer start
while read -r word; do
    case $word in
    stop) answer server stop --mode=immediate ;;
    start) answer start ;;
    esac
done
clean
)";

/// The folder of the newest server's programs.
QByteArray serverPrograms()
{
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    QStringList names = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (names.isEmpty())
        qFatal("the test needs a PostgreSQL server: install the package postgresql");
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return a.toDouble() < b.toDouble(); });
    return versions.filePath(names.last() + QStringLiteral("/bin")).toUtf8();
}

[[noreturn]] void becomeGuard(int connection, const char *programs)
{
    dup2(connection, STDIN_FILENO);
    dup2(connection, STDOUT_FILENO);
    if (geteuid() == 0) {
        execlp("setpriv", "setpriv", "--reuid=postgres", "--regid=postgres", "--init-groups", "sh", "-c",
               guardScript, "guard", programs, nullptr);
    } else {
        execlp("sh", "sh", "-c", guardScript, "guard", programs, nullptr);
    }
    _exit(127);
}

} // namespace

TemporaryPostgres::TemporaryPostgres()
{
    const QByteArray programs = serverPrograms();
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        qFatal("no socket for the database server's guard");
    const pid_t child = fork();
    if (child == 0) {
        // Twice, into a session of its own: whoever kills the test with all its children misses the guard.
        setsid();
        if (fork() == 0)
            becomeGuard(ends[1], programs.constData());
        _exit(0);
    }
    close(ends[1]);
    waitpid(child, nullptr, 0);
    guard = ends[0];
    folder = readLine();
    const QByteArray answer = readLine();
    if (answer != "ok")
        qFatal("the database server does not start: %s", answer.constData());
}

TemporaryPostgres::~TemporaryPostgres()
{
    shutdown(guard, SHUT_WR);
    while (!readLine().isEmpty()) // its end is the guard's
        ;
    close(guard);
}

QByteArray TemporaryPostgres::configuration() const
{
    return "db: { dbname = " + database().toUtf8() + "; username = " + user().toUtf8() +
           "; password = " + password().toUtf8() + "; hostname = " + folder + "; };";
}

void TemporaryPostgres::command(const QByteArray &word)
{
    const QByteArray line = word + '\n';
    if (send(guard, line.constData(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL) != line.size())
        qFatal("the database server's guard is gone");
    const QByteArray answer = readLine();
    if (answer != "ok")
        qFatal("the database server does not %s: %s", word.constData(), answer.constData());
}

QByteArray TemporaryPostgres::readLine() const
{
    QByteArray line;
    char c = 0;
    while (read(guard, &c, 1) == 1 && c != '\n')
        line += c;
    return line;
}
