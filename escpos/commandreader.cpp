#include "commandreader.h"

#include <algorithm>

namespace {

constexpr unsigned char firstText = 0x20;
constexpr char deleteCharacter = 0x7F; // prints nothing, and commands nothing

bool isText(char byte)
{
    return static_cast<unsigned char>(byte) >= firstText && byte != deleteCharacter;
}

bool isBeginning(QByteArrayView head)
{
    const auto kinds = commandKinds();
    return std::any_of(kinds.begin(), kinds.end(), [&](const CommandKind &kind) {
        return kind.bytes.size() > head.size() && kind.bytes.startsWith(head);
    });
}

/// The command that `head` begins with, the longest one; null when there is none.
const CommandKind *findKind(QByteArrayView head)
{
    const CommandKind *found = nullptr;
    for (const CommandKind &kind : commandKinds()) {
        if (head.startsWith(kind.bytes) && (!found || kind.bytes.size() > found->bytes.size()))
            found = &kind;
    }
    return found;
}

/// Bytes of a command in front of its data.
qsizetype headSize(const CommandKind &kind)
{
    const qsizetype size = kind.bytes.size() + kind.parameters;
    return kind.shape == Shape::Sized ? size + 2 : kind.shape == Shape::LongSized ? size + 4 : size;
}

qint64 dataSize(const PrinterCommand &command)
{
    const int first = command.kind->parameters;
    switch (command.kind->shape) {
    case Shape::Sized:
        return command.wideParameter(first);
    case Shape::LongSized:
        return command.wideParameter(first) + 65'536LL * command.wideParameter(first + 2);
    case Shape::Counted:
        return command.parameter(first - 1);
    case Shape::RasterPicture:
        return qint64(command.wideParameter(1)) * command.wideParameter(3);
    case Shape::ColumnPicture:
        return qint64(command.wideParameter(1)) * (command.parameter(0) < 32 ? 1 : 3);
    case Shape::KeptPicture:
        return qint64(command.parameter(0)) * command.parameter(1) * 8;
    case Shape::Parameters:
    case Shape::UntilZero:
        break;
    }
    return 0;
}

} // namespace

void CommandReader::take(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        qsizetype taken = 1;
        if (inData)
            taken = takeData(bytes);
        else if (head.isEmpty() && isText(bytes.front()))
            taken = takeText(bytes);
        else
            takeHead(bytes.front());
        offset += taken;
        bytes = bytes.sliced(taken);
    }
}

void CommandReader::end()
{
    if (inData || !head.isEmpty())
        sink.torn(headOffset, head);
    head.clear();
    inData = false;
}

qsizetype CommandReader::takeText(QByteArrayView bytes)
{
    const qsizetype size = std::find_if_not(bytes.begin(), bytes.end(), isText) - bytes.begin();
    sink.text(offset, bytes.first(size));
    return size;
}

qsizetype CommandReader::takeData(QByteArrayView bytes)
{
    qsizetype size = qsizetype(std::min<qint64>(bytes.size(), dataLeft));
    if (untilZero) {
        const qsizetype zero = bytes.indexOf('\0');
        size = zero < 0 ? bytes.size() : zero + 1;
        inData = zero < 0;
    } else {
        dataLeft -= size;
        inData = dataLeft > 0;
    }
    sink.data(offset, bytes.first(size));
    if (!inData)
        endCommand();
    return size;
}

void CommandReader::takeHead(char byte)
{
    if (head.isEmpty())
        headOffset = offset;
    head += byte;
    if (isBeginning(head))
        return;
    const CommandKind *kind = findKind(head);
    if (!kind) {
        sink.unknown(headOffset, head);
        head.clear();
    } else if (head.size() >= headSize(*kind)) {
        startData();
    }
}

void CommandReader::startData()
{
    const PrinterCommand command{findKind(head), headOffset, head};
    untilZero = command.kind->shape == Shape::UntilZero;
    dataLeft = dataSize(command);
    inData = untilZero || dataLeft > 0;
    sink.command(command);
    if (!inData)
        endCommand();
}

void CommandReader::endCommand()
{
    head.clear();
    sink.endOfCommand();
}
