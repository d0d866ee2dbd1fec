#include "pdfobjects.h"

#include <QString>

#include <cmath>

namespace {

/// The toolkit puts the length before the compressed data.
QByteArray deflated(const QByteArray &content)
{
    return qCompress(content).sliced(sizeof(quint32));
}

} // namespace

int PdfObjects::reserve()
{
    objects.emplace_back();
    return int(objects.size());
}

void PdfObjects::set(int number, const QByteArray &content)
{
    objects[size_t(number) - 1] = content;
}

int PdfObjects::add(const QByteArray &content)
{
    objects.push_back(content);
    return int(objects.size());
}

int PdfObjects::addStream(const QByteArray &content, const QByteArray &entries)
{
    const QByteArray data = deflated(content);
    return add("<< " + entries + "/Filter /FlateDecode /Length " + QByteArray::number(data.size()) +
               " >>\nstream\n" + data + "\nendstream");
}

QByteArray PdfObjects::file(int catalogue, int information) const
{
    QByteArray file = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n"; // bytes that tell that the file is not text
    QByteArray table = "0000000000 65535 f \n";
    for (size_t i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(file.size());
    return file + "xref\n0 " + count + '\n' + table + "trailer\n<< /Size " + count + " /Root " +
           reference(catalogue) + " /Info " + reference(information) + " >>\nstartxref\n" + start +
           "\n%%EOF\n";
}

QByteArray PdfObjects::reference(int number)
{
    return QByteArray::number(number) + " 0 R";
}

QByteArray PdfObjects::number(double value)
{
    const qint64 thousandths = std::llround(value * 1000);
    QByteArray text = (thousandths < 0 ? "-" : "") + QByteArray::number(std::abs(thousandths / 1000));
    QByteArray decimals = QByteArray::number(std::abs(thousandths % 1000)).rightJustified(3, '0');
    while (decimals.endsWith('0'))
        decimals.chop(1);
    return decimals.isEmpty() ? text : text + '.' + decimals;
}

QByteArray PdfObjects::text(const QString &text)
{
    return "<FEFF" + units(text) + '>';
}

QByteArray PdfObjects::units(const QString &text)
{
    QByteArray digits;
    for (const QChar unit : text)
        digits += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0').toUpper();
    return digits;
}
