#pragma once

#include <QByteArray>

#include <vector>

/// The numbered objects of a PDF file, from which the file is made. Nothing in it depends on the time or on
/// chance.
class PdfObjects
{
public:
    /// The number of an object that is set later.
    int reserve();
    void set(int number, const QByteArray &content);
    int add(const QByteArray &content);
    /// Adds a stream, compressed; `entries` go into its dictionary.
    int addStream(const QByteArray &content, const QByteArray &entries = {});

    /// The whole file. Every reserved object has been set.
    QByteArray file(int catalogue, int information) const;

    static QByteArray reference(int number);
    /// Three decimals, without those that are zero.
    static QByteArray number(double value);
    /// A text for people, in hexadecimal digits.
    static QByteArray text(const QString &text);
    /// The digits of the text's UTF-16 units, four each.
    static QByteArray units(const QString &text);

private:
    std::vector<QByteArray> objects;
};
