#include "printserver.h"

#include "program.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <cups/cups.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Answer = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/// Null attributes have no value.
QByteArray textOf(const Answer &answer, const char *name)
{
    ipp_attribute_t *attribute = answer ? ippFindAttribute(answer.get(), name, IPP_TAG_ZERO) : nullptr;
    QByteArrayList values;
    for (int place = 0; place < ippGetCount(attribute); ++place)
        values += ippGetString(attribute, place, nullptr);
    return values.join(',');
}

int numberOf(const Answer &answer, const char *name)
{
    ipp_attribute_t *attribute = answer ? ippFindAttribute(answer.get(), name, IPP_TAG_ZERO) : nullptr;
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

Answer ask(const QString &socket, ipp_op_t operation, const char *uriName, const QByteArray &uri)
{
    http_t *const connection = httpConnect2(socket.toUtf8().constData(), 0, nullptr, AF_UNSPEC,
                                            HTTP_ENCRYPTION_IF_REQUESTED, 1, 5000, nullptr);
    if (!connection)
        return {nullptr, ippDelete};
    ipp_t *const request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.constData());
    Answer answer(cupsDoRequest(connection, request, "/"), ippDelete);
    httpClose(connection);
    return answer;
}

/// The leak checker has a helper that looks like one more backend; a backend whose helper is killed never
/// ends. What is run without a server is checked.
constexpr const char *leakChecks = "SetEnv LSAN_OPTIONS detect_leaks=0\n";

/// Who may do what, as Debian's server has it.
constexpr const char *rights = R"(
DefaultAuthType Basic
<Location />
  Order allow,deny
</Location>
<Policy default>
  <Limit Hold-Job Release-Job Restart-Job Cancel-Job>
    Require user @OWNER @SYSTEM
    Order deny,allow
  </Limit>
  <Limit CUPS-Add-Modify-Printer CUPS-Add-Modify-Class Enable-Printer CUPS-Accept-Jobs Cancel-Jobs>
    AuthType Default
    Require user @SYSTEM
    Order deny,allow
  </Limit>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

void linkAll(const QString &from, const QString &to)
{
    for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
        QFile::link(entry.filePath(), to + u'/' + entry.fileName());
}

/// A port that is free now.
int freePort()
{
    const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    if (bind(descriptor, plain, length) != 0 || getsockname(descriptor, plain, &length) != 0)
        qFatal("there is no free port");
    close(descriptor);
    return ntohs(address.sin_port);
}

} // namespace

PrintServer::PrintServer() : tcpPort(freePort())
{
    chmod(scratch.path().toUtf8().constData(), 0755);
    linkFiles();
    writeConfiguration();
    start();
}

PrintServer::~PrintServer()
{
    kill();
}

/// The system's files, but for the backends and what is known of types: there ours stand beside the others.
void PrintServer::linkFiles() const
{
    const QDir folder(scratch.path());
    for (const QString &name :
         {u"root"_s, u"spool"_s, u"cache"_s, u"state"_s, u"tmp"_s, u"bin/backend"_s, u"data/mime"_s})
        folder.mkpath(name);
    for (const QString &name : {u"filter"_s, u"daemon"_s, u"cgi-bin"_s, u"driver"_s, u"monitor"_s,
                                u"notifier"_s, u"backend/socket"_s, u"backend/ipp"_s})
        QFile::link(u"/usr/lib/cups/"_s + name, scratch.path(u"bin/"_s + name));
    linkAll(u"/usr/share/cups"_s, scratch.path(u"data"_s)); // all but the folder that is there
    linkAll(u"/usr/share/cups/mime"_s, scratch.path(u"data/mime"_s));
    linkAll(QStringLiteral(MIME_FOLDER), scratch.path(u"data/mime"_s));
    const QString backend = scratch.path(u"bin/backend/palvestrin"_s);
    if (!QFile::copy(QStringLiteral(BACKEND), backend))
        qFatal("the backend cannot be copied");
    QFile::setPermissions(backend, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void PrintServer::writeConfiguration() const
{
    const QByteArray here = scratch.path().toUtf8() + '/';
    scratch.write(u"cups-files.conf"_s, "ServerRoot " + here + "root\nRequestRoot " + here +
                                            "spool\nCacheDir " + here + "cache\nStateDir " + here +
                                            "state\nTempDir " + here + "tmp\nServerBin " + here +
                                            "bin\nDataDir " + here + "data\nErrorLog " + here +
                                            "error_log\nAccessLog " + here + "access_log\nPageLog " + here +
                                            "page_log\nSyncOnClose Yes\nSystemGroup root\n" + leakChecks);
    scratch.write(u"cupsd.conf"_s, "Listen " + here +
                                       "sock\nListen 127.0.0.1:" + QByteArray::number(tcpPort) +
                                       "\nDirtyCleanInterval 0\nLogLevel info\nMaxLogSize 0\nBrowsing No\n"
                                       "WebInterface No\nMaxJobs 0\nMaxHoldTime 0\nJobKillDelay 5\n" +
                                       rights);
}

void PrintServer::start(Spool spool)
{
    if (spool == Spool::Tidied)
        run(QStringLiteral(TIDY), {scratch.path(u"spool"_s), scratch.path(u"cache"_s)});
    server = std::make_unique<QProcess>();
    server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    server->start(u"/usr/sbin/cupsd"_s, {u"-f"_s, u"-c"_s, scratch.path(u"cupsd.conf"_s), u"-s"_s,
                                         scratch.path(u"cups-files.conf"_s)});
    if (!server->waitForStarted())
        qFatal("the test needs a print server: install the package cups-daemon");
    for (const QDeadlineTimer patience(30'000); !patience.hasExpired(); QTest::qSleep(20)) {
        if (ask(socket(), IPP_OP_CUPS_GET_PRINTERS, "printer-uri", "ipp://localhost/"))
            return;
    }
    qFatal("the print server does not start: %s", errorLog().constData());
}

void PrintServer::stop()
{
    server->terminate();
    if (!server->waitForFinished(20'000))
        qFatal("the print server does not stop");
}

void PrintServer::kill()
{
    server->kill();
    server->waitForFinished(10'000);
}

QStringList PrintServer::environment() const
{
    return {u"CUPS_SERVER="_s + socket(), u"PATH=/usr/bin:/usr/sbin:/bin:/sbin"_s,
            u"HOME="_s + scratch.path(), u"LC_ALL=C.UTF-8"_s};
}

void PrintServer::addQueue(const QString &name, const QByteArray &uri, const QStringList &words)
{
    run(u"lpadmin"_s, QStringList{u"-p"_s, name, u"-E"_s, u"-v"_s, QString::fromUtf8(uri)} + words);
}

QByteArray PrintServer::run(const QString &program, const QStringList &words) const
{
    const ProgramRun run = runProgram(program, words, environment());
    if (!run.failure.isEmpty())
        qWarning("%s: %s %s", qPrintable(program), qPrintable(run.failure), run.standardError.constData());
    return run.standardOutput;
}

int PrintServer::submit(const QString &queue, const QByteArray &content, const QStringList &words) const
{
    const QString file = scratch.write(u"job"_s, content);
    const QByteArray answer = run(u"lp"_s, QStringList{u"-d"_s, queue} + words + QStringList{file});
    const QByteArray request = answer.split(' ').value(3); // "request id is kitchen-12 (1 file(s))"
    return request.mid(request.lastIndexOf('-') + 1).toInt();
}

JobInfo PrintServer::job(int number) const
{
    const Answer answer = ask(socket(), IPP_OP_GET_JOB_ATTRIBUTES, "job-uri",
                              "ipp://localhost/jobs/" + QByteArray::number(number));
    return {numberOf(answer, "job-state"), numberOf(answer, "job-media-sheets-completed"),
            textOf(answer, "job-printer-state-message"), textOf(answer, "job-state-reasons")};
}

JobInfo PrintServer::awaitState(int number, std::initializer_list<int> states, int seconds) const
{
    QElapsedTimer timer;
    timer.start();
    JobInfo info = job(number);
    while (std::ranges::find(states, info.state) == states.end() && timer.elapsed() < 1000LL * seconds) {
        QTest::qSleep(20);
        info = job(number);
    }
    return info;
}

QByteArray PrintServer::reasons(const QString &queue) const
{
    return textOf(ask(socket(), IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri",
                      "ipp://localhost/printers/" + queue.toUtf8()),
                  "printer-state-reasons");
}

void PrintServer::release(int number) const
{
    run(u"lp"_s, {u"-i"_s, QString::number(number), u"-H"_s, u"resume"_s});
}

QByteArray PrintServer::logOf(int job) const
{
    QByteArray lines;
    for (const QByteArray &line : errorLog().split('\n')) {
        if (line.contains("[Job " + QByteArray::number(job) + ']'))
            lines += line + '\n';
    }
    return lines;
}

QList<qint64> PrintServer::backends() const
{
    QList<qint64> numbers;
    const QString wanted = scratch.path(u"bin/backend/palvestrin"_s);
    for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        if (name.toLongLong() > 0 && QFile::symLinkTarget(u"/proc/"_s + name + u"/exe"_s) == wanted)
            numbers += name.toLongLong();
    }
    return numbers;
}

int PrintServer::peakOfBackends() const
{
    int most = 0;
    for (const qint64 process : backends()) {
        QFile status(u"/proc/%1/status"_s.arg(process));
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const QByteArrayList words = status.readAll().simplified().split(' ');
        most = std::max(most, words.value(words.indexOf("VmHWM:") + 1).toInt());
    }
    return most;
}
