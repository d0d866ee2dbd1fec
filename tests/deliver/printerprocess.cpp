#include "printerprocess.h"

PrinterProcess::PrinterProcess()
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(VIRTUAL_PRINTER), {folder.path(QStringLiteral("roll"))});
    if (!process.waitForReadyRead(30'000))
        qFatal("the virtual printer does not start");
    listeningPort = process.readLine().trimmed().toInt();
}

PrinterProcess::~PrinterProcess()
{
    process.closeWriteChannel();
    if (!process.waitForFinished(10'000))
        process.kill();
    process.waitForFinished(10'000);
}

QByteArray PrinterProcess::uri(const QByteArray &options) const
{
    const QByteArray address = "palvestrin://127.0.0.1:" + QByteArray::number(listeningPort);
    return options.isEmpty() ? address : address + "/?" + options;
}

void PrinterProcess::habit(const QByteArray &line)
{
    process.write(line + '\n');
    QByteArray answer;
    while (!answer.endsWith('\n') && process.waitForReadyRead(30'000))
        answer += process.readAll();
    if (answer != "ok\n")
        qFatal("the virtual printer does not obey \"%s\"", line.constData());
}

QStringList PrinterProcess::roll() const
{
    QStringList rows;
    for (const QString &row : QString::fromUtf8(folder.read(QStringLiteral("roll"))).split(u'\n'))
        rows += row.trimmed();
    return rows;
}

QByteArray ticket(int number, int rows)
{
    const QByteArray name = QByteArray::number(number);
    QByteArray bytes = "\x1B\x40\x1C\x2Eticket " + name + '\n';
    for (int row = 0; row < rows; ++row)
        bytes += "row " + name + "." + QByteArray::number(row) + '\n';
    return bytes + "end " + name + "\n\x1D\x56\x42" + '\0';
}

QByteArray ticketWithPicture(int number)
{
    const QByteArray line = "\x1D\x76\x30" + QByteArray("\x00\x30\x00\x01\x00", 5) + QByteArray(48, '\x55');
    QByteArray bytes = ticket(number);
    return bytes.insert(bytes.indexOf('\n') + 1, line.repeated(16));
}
