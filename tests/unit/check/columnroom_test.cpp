// What is left for a description, held against rows that the renderer prints.

#include "columnroom.h"
#include "companyprinterdriver.h"
#include "jobreader.h"
#include "printmethods.h"
#include "pvconfiguration.h"

#include <QBuffer>
#include <QTest>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longDescription = 200;

/// Counts the letters "W" that it prints.
class LetterCounter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;
    qsizetype count = 0;

protected:
    void write(const QString &text) override { count += text.count(u'W'); }
};

DocumentSettings widths(int quantity, int price, int total, int paper)
{
    DocumentSettings settings;
    settings.quantityFieldWidth = quantity;
    settings.priceFieldWidth = price;
    settings.totalPriceFieldWidth = total;
    settings.paperWidth = paper;
    return settings;
}

QByteArray configurationOf(const vocabulary::DocumentKind &kind, const DocumentSettings &settings)
{
    return QByteArray("palvestrin: {") + kind.block.data() +
           ": { quantityFieldWidth = " + QByteArray::number(settings.quantityFieldWidth) +
           "; priceFieldWidth = " + QByteArray::number(settings.priceFieldWidth) +
           "; totalPriceFieldWidth = " + QByteArray::number(settings.totalPriceFieldWidth) +
           "; paperWidth = " + QByteArray::number(settings.paperWidth) + "; }; };";
}

/// How many letters of a long description an element prints; nothing when it has none.
std::optional<int> printedLetters(const vocabulary::PrintMethod &method, const vocabulary::Element &element,
                                  const QByteArray &configuration)
{
    QByteArray job = QByteArray("<job><method name='") + method.name.data() + "'/><" + element.name.data();
    bool hasDescription = false;
    for (const vocabulary::Attribute &attribute : element.attributes) {
        const bool isDescription = attribute.type == vocabulary::AttributeType::Description;
        hasDescription = hasDescription || isDescription;
        job += ' ' + QByteArray(attribute.name.data()) + "='" +
               (isDescription ? QByteArray(longDescription, 'W') : "1") + '\'';
    }
    job += "/></job>";
    PVConfiguration settings(configuration, u"a"_s);
    LetterCounter printer(settings);
    QBuffer buffer(&job);
    buffer.open(QIODevice::ReadOnly);
    JobSource source(&buffer);
    JobHandler handler(printer, source);
    printJob(source, handler);
    return hasDescription ? std::optional(int(printer.count)) : std::nullopt;
}

/// The same of all rows of the kind that have a description on paper.
std::vector<int> printedLetters(const vocabulary::DocumentKind &kind, const DocumentSettings &settings)
{
    std::vector<int> rows;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind != kind.name)
            continue;
        for (const vocabulary::Element &element : method.document.elements) {
            if (std::ranges::find(element.counts, &DocumentSettings::paperWidth) == element.counts.end())
                continue;
            if (const std::optional<int> row =
                    printedLetters(method, element, configurationOf(kind, settings)))
                rows.push_back(*row);
        }
    }
    return rows;
}

} // namespace

class ColumnRoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsWhatTheRendererLeaves()
    {
        int compared = 0;
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
            for (const int paper : {0, 10, 20, 22, 23, 31, 40, 64}) {
                for (const int price : {0, 1, 8, 12, 20}) {
                    const DocumentSettings settings = widths(3, price, price, paper);
                    const std::optional<check::ColumnRoom> room = check::leastColumnRoom(kind, settings);
                    const std::vector<int> rows = printedLetters(kind, settings);
                    QCOMPARE(room.has_value(), !rows.empty());
                    if (!room)
                        continue;
                    ++compared;
                    if (room->isUncut)
                        QCOMPARE(std::ranges::max(rows), longDescription);
                    else
                        QCOMPARE(room->description, std::ranges::min(rows));
                }
            }
        }
        QCOMPARE(compared, 7 * 8 * 5); // the cash register alone has no paper
    }
};

QTEST_GUILESS_MAIN(ColumnRoomTest)
#include "columnroom_test.moc"
