#include "virtualprinter.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr qsizetype bufferSize = 4096; // bytes, as such printers have
constexpr int window = 4096;           // bytes under way, for they have little memory

constexpr char ready = 0x12;
constexpr char offline = 0x08;
constexpr char coverBit = 0x04;
constexpr char cutterBit = 0x08;
constexpr char stoppedByPaper = 0x20;
constexpr char paperOut = 0x60;
constexpr char paperLow = 0x0C;
constexpr int lowRows = 10;

} // namespace

const VirtualPrinter::Habit VirtualPrinter::habits[] = {
    {"cover", &VirtualPrinter::setCover},   // open, closed
    {"cutter", &VirtualPrinter::setCutter}, // stuck, free
    {"paper", &VirtualPrinter::setPaper},   // rows that are left
    {"refuse", &VirtualPrinter::setRefuse}, // on, off: nobody listens
    {"read", &VirtualPrinter::setRead},     // on, off: connections are accepted and never read
    {"reset",
     &VirtualPrinter::setReset}, // the connection is reset when so many more bytes of tickets have come
    {"speed", &VirtualPrinter::setSpeed},   // bytes a second
    {"status", &VirtualPrinter::setStatus}, // on, off, garbage, flood, unproven: on, but without the proof
    {"late", &VirtualPrinter::setLate},     // milliseconds before an answer is sent
    {"vanish", &VirtualPrinter::setVanish}, // on: the connection is closed instead of the next proof; always
};

void VirtualPrinter::Roll::row(const paper::Row &row)
{
    painter.row(row);
    --rows;
}

VirtualPrinter::VirtualPrinter(const std::string &path)
    : output(path, std::ios::app | std::ios::binary), roll(output, rowsLeft),
      decoder(roll, usualProfile, Decoder::Width::OfPaper)
{
    listen();
}

VirtualPrinter::~VirtualPrinter()
{
    drop(false);
    if (listener >= 0)
        close(listener);
    decoder.end();
}

bool VirtualPrinter::obey(const std::string &line)
{
    const std::size_t blank = line.find(' ');
    const std::string name = line.substr(0, blank);
    for (const Habit &habit : habits) {
        if (name == habit.name && blank != std::string::npos) {
            (this->*habit.set)(line.substr(blank + 1));
            return true;
        }
    }
    return false;
}

void VirtualPrinter::setCover(const std::string &value)
{
    coverIsOpen = value == "open";
}
void VirtualPrinter::setCutter(const std::string &value)
{
    cutterIsStuck = value == "stuck";
}
void VirtualPrinter::setPaper(const std::string &value)
{
    rowsLeft = std::stoi(value);
}
void VirtualPrinter::setRead(const std::string &value)
{
    reads = value == "on";
}
void VirtualPrinter::setReset(const std::string &value)
{
    bytesToReset = std::stoi(value);
}
void VirtualPrinter::setSpeed(const std::string &value)
{
    speed = std::stoi(value);
}
void VirtualPrinter::setStatus(const std::string &value)
{
    status = value;
}
void VirtualPrinter::setLate(const std::string &value)
{
    late = std::chrono::milliseconds(std::stoi(value));
}
void VirtualPrinter::setVanish(const std::string &value)
{
    vanish = value;
}

void VirtualPrinter::setRefuse(const std::string &value)
{
    if (value == "on" && listener >= 0) {
        close(listener);
        listener = -1;
    } else if (value == "off" && listener < 0) {
        listen();
    }
}

/// On the port that it had before, if it had one.
void VirtualPrinter::listen()
{
    listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const int yes = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    setsockopt(listener, SOL_SOCKET, SO_RCVBUF, &window, sizeof window);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(uint16_t(listeningPort));
    socklen_t length = sizeof address;
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    if (bind(listener, plain, length) != 0 || ::listen(listener, 8) != 0 ||
        getsockname(listener, plain, &length) != 0)
        qFatal("the virtual printer cannot listen: %s", strerror(errno));
    listeningPort = ntohs(address.sin_port);
}

void VirtualPrinter::work(int control)
{
    const bool isIdle =
        status != "flood" && answers.empty() && speed == 0 && (buffer.isEmpty() || !canPrint());
    pollfd descriptors[] = {{control, POLLIN, 0},
                            {connection < 0 ? listener : -1, POLLIN, 0},
                            {canReceive() && speed == 0 ? connection : -1, POLLIN, 0}};
    poll(descriptors, 3, isIdle ? 1000 : 5);
    if (descriptors[1].revents != 0)
        accept();
    if (canReceive())
        receive();
    printSome();
    sendDueAnswers();
}

void VirtualPrinter::accept()
{
    connection = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    realTime.clear();
}

bool VirtualPrinter::canReceive() const
{
    return connection >= 0 && reads && buffer.size() < bufferSize;
}

void VirtualPrinter::receive()
{
    qsizetype room = bufferSize - buffer.size();
    if (speed > 0) {
        const std::chrono::duration<double> since = Clock::now() - lastReceived;
        room = std::min(room, qsizetype(since.count() * speed));
        if (room == 0)
            return;
    }
    lastReceived = Clock::now();
    QByteArray bytes(room, Qt::Uninitialized);
    const ssize_t length = read(connection, bytes.data(), std::size_t(room));
    if (length > 0)
        take(bytes.first(length));
    else if (length == 0 || errno != EAGAIN)
        drop(false);
}

void VirtualPrinter::take(const QByteArray &bytes)
{
    for (const char byte : bytes) {
        takeRealTime(byte);
        if (bytesToReset == 0) {
            bytesToReset = -1;
            drop(true);
        }
        if (connection < 0)
            return;
    }
}

/// Questions in real time are answered when they come, whatever waits in the buffer.
void VirtualPrinter::takeRealTime(char byte)
{
    realTime += byte;
    if (realTime == "\x10" || realTime == "\x10\x04")
        return;
    if (realTime.size() == 3 && realTime.startsWith("\x10\x04")) {
        answer(statusAnswer(byte));
    } else {
        buffer += realTime;
        if (bytesToReset > 0)
            bytesToReset = std::max(0, bytesToReset - int(realTime.size()));
    }
    realTime.clear();
}

QByteArray VirtualPrinter::statusAnswer(int question) const
{
    if (status == "garbage" || status == "flood")
        return QByteArray("\xFF\x00\xA5\xC3", 4);
    char byte = ready;
    if (question == 1 && !canPrint())
        byte |= offline;
    if (question == 2)
        byte |= char((coverIsOpen ? coverBit : 0) | (rowsLeft <= 0 ? stoppedByPaper : 0));
    if (question == 3 && cutterIsStuck)
        byte |= cutterBit;
    if (question == 4)
        byte |= char((rowsLeft <= 0 ? paperOut : 0) | (rowsLeft < lowRows ? paperLow : 0));
    return QByteArray(1, byte);
}

void VirtualPrinter::printSome()
{
    while (!buffer.isEmpty() && canPrint())
        printOne();
    output.flush();
}

void VirtualPrinter::printOne()
{
    const QByteArray byte = buffer.first(1);
    buffer.remove(0, 1);
    decoder.take(byte);
    questions.take(byte);
    if (const QByteArray id = questions.takeId(); !id.isEmpty())
        answerProof(id);
}

void VirtualPrinter::answerProof(const QByteArray &id)
{
    if (vanish != "off") {
        vanish = vanish == "always" ? "always" : "off";
        drop(false);
    } else if (status == "garbage" || status == "flood") {
        answer("\x37\x21" + id);
    } else if (status != "unproven") {
        answer("\x37\x22" + id + '\0');
    }
}

void VirtualPrinter::answer(const QByteArray &bytes)
{
    if (status != "off")
        answers.push_back({Clock::now() + late, bytes});
}

void VirtualPrinter::sendDueAnswers()
{
    if (status == "flood" && connection >= 0)
        send(connection, QByteArray(4096, '\xFF').constData(), 4096, MSG_NOSIGNAL);
    while (!answers.empty() && answers.front().due <= Clock::now()) {
        const QByteArray bytes = answers.front().bytes;
        answers.pop_front();
        if (connection >= 0)
            send(connection, bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL);
    }
}

void VirtualPrinter::drop(bool asReset)
{
    if (connection < 0)
        return;
    const linger atOnce{1, 0};
    if (asReset)
        setsockopt(connection, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    close(connection);
    connection = -1;
    answers.clear();
}
