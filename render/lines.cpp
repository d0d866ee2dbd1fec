#include "lines.h"

#include "columns.h"
#include "printerdriver.h"

#include <QObject>
#include <QStringTokenizer>

using namespace Qt::Literals::StringLiterals;

void printLines(PrinterDriver &driver, std::span<const vocabulary::Attribute> rows,
                const QXmlAttributes &attributes)
{
    for (const vocabulary::Attribute &row : rows) {
        const bool isOn = !row.flag || driver.settings().*row.flag;
        if (row.printLine && isOn)
            row.printLine(driver, row.label ? QObject::tr(row.label) : QString(), attributes.value(row.name));
    }
}

namespace line {

namespace {

constexpr int valueWidth = 15; ///< what a dotted line leaves free for its value

void printDottedLabel(PrinterDriver &driver, const QString &label)
{
    const int width = qMax<qint64>(0, qint64(driver.rowWidth()) - valueWidth);
    driver.print(0, columns::leftJustified(driver.printable(label), width, u'.'));
}

} // namespace

void labelled(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.print(1, label);
    driver.println(1, value);
}

void indentedSentence(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.println(1, label + value);
}

void sentence(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.println(label + value);
}

void pair(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.print(0, label);
    driver.println(value);
}

void plain(PrinterDriver &driver, const QString &, const QString &value)
{
    driver.println(1, value);
}

void address(PrinterDriver &driver, const QString &, const QString &value)
{
    for (const QStringView part : QStringTokenizer(value, u',')) {
        if (part.isEmpty())
            return;
        driver.println(1, part.trimmed().toString());
    }
}

void dotted(PrinterDriver &driver, const QString &label, const QString &value)
{
    printDottedLabel(driver, label);
    driver.println(value);
}

void rangeStart(PrinterDriver &driver, const QString &label, const QString &value)
{
    printDottedLabel(driver, label);
    driver.print(0, value);
    driver.print(0, u" - "_s);
}

void rangeEnd(PrinterDriver &driver, const QString &, const QString &value)
{
    driver.println(value);
}

void total(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.println(driver.descriptionRow(QString(), label, QString(), value, u'.', u"qdpt"_s));
}

} // namespace line
