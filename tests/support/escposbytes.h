#pragma once

#include <QByteArray>
#include <QList>

/// Bytes from a text that can be read: "1B 40 'Total' 0A" is two bytes, five letters and one byte.
inline QByteArray escpos(const char *text)
{
    QByteArray bytes;
    bool isHex = true;
    for (const QByteArray &part : QByteArray(text).split('\'')) {
        bytes += isHex ? QByteArray::fromHex(part) : part;
        isHex = !isHex;
    }
    return bytes;
}
