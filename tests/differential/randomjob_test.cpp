#include "documentelements.h"
#include "printmethods.h"
#include "program.h"
#include "randomjob.h"
#include "scratchfolder.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 jobCount = 400;

/// Calls `visit` with the document, the element and its attributes of every start tag behind a `method`.
using Visitor =
    std::function<void(const vocabulary::Document &, const QString &, const QXmlStreamAttributes &)>;

void visitElements(const RandomJobOptions &options, const Visitor &visit)
{
    for (quint32 seed = 0; seed < jobCount; ++seed) {
        QXmlStreamReader reader(randomJob(seed, options));
        const vocabulary::PrintMethod *method = nullptr;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == vocabulary::methodElement.name)
                method = vocabulary::findPrintMethod(reader.attributes().value("name"_L1).toString());
            else if (method)
                visit(method->document, reader.name().toString(), reader.attributes());
        }
        QVERIFY2(!reader.hasError(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(reader.errorString())));
    }
}

bool reads(const vocabulary::Element &element, const QString &attribute)
{
    return std::ranges::any_of(element.attributes, [&](const vocabulary::Attribute &row) {
        return row.name == attribute || row.name.isEmpty();
    });
}

QString withoutControls(QString text)
{
    return text.remove(QRegularExpression(u"[\"\\x00-\\x1f]"_s));
}

} // namespace

/// The jobs that other tests make up.
class RandomJobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSeedDecides()
    {
        QCOMPARE(randomJob(7), randomJob(7));
        QCOMPARE(randomConfiguration(7), randomConfiguration(7));
        QVERIFY(randomJob(7) != randomJob(8));
        QVERIFY(randomConfiguration(7) != randomConfiguration(8));
    }

    void everythingOccurs()
    {
        QSet<const void *> met;
        bool hasStranger = false;
        RandomJobOptions options;
        options.controls = false; // a control character is no XML to this reader
        visitElements(options, [&](const auto &document, const QString &name, const auto &attributes) {
            const vocabulary::Element *element = elementOf(document, name);
            hasStranger |= !element;
            for (const QXmlStreamAttribute &attribute : attributes)
                hasStranger |= element && !reads(*element, attribute.name().toString());
            met.insert(element);
        });
        QVERIFY(hasStranger);
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            for (const vocabulary::Element *element : elementsOf(method.document))
                QVERIFY2(met.contains(element), element->name.data());
        }
    }

    void nothingButWhatIsRead()
    {
        RandomJobOptions options;
        options.strangers = options.controls = options.gaps = false;
        visitElements(options, [](const auto &document, const QString &name, const auto &attributes) {
            const vocabulary::Element *element = elementOf(document, name);
            QVERIFY2(element, qPrintable(name));
            for (const QXmlStreamAttribute &attribute : attributes)
                QVERIFY2(reads(*element, attribute.name().toString()), qPrintable(name));
            for (const vocabulary::Attribute &row : element->attributes)
                QVERIFY(row.name.isEmpty() || attributes.hasAttribute(row.name));
        });
    }

    void onlyTheMethodsThatAreAskedFor()
    {
        RandomJobOptions options;
        options.methods = QStringList{u"printSold"_s, u"printReport"_s};
        options.strangers = false;
        options.mostDocuments = 2;
        for (quint32 seed = 0; seed < jobCount; ++seed) {
            const QString job = QString::fromUtf8(randomJob(seed, options));
            const auto count = [&](const QString &method) {
                return job.count(u"<method name=\""_s + method);
            };
            QCOMPARE(count(u"printSold"_s) + count(u"printReport"_s), job.count("<method"_L1));
            QVERIFY(job.count("<method"_L1) <= 2);
        }
    }

    void textsAsTheyAreAskedFor()
    {
        RandomJobOptions options;
        options.controls = options.beyondLatin1 = false;
        visitElements(options, [](const auto &, const QString &, const auto &attributes) {
            for (const QXmlStreamAttribute &attribute : attributes) {
                const QString value = attribute.value().toString();
                QCOMPARE(value, withoutControls(value));
                QCOMPARE(value, QString::fromLatin1(value.toLatin1()));
            }
        });
    }

    void textsOfEveryKindOccur()
    {
        QByteArray jobs;
        for (quint32 seed = 0; seed < jobCount; ++seed)
            jobs += randomJob(seed);
        for (const char *piece :
             {"TOTALE", "&#34;", "&#10;", "\x1b", "è", "🍕", "寿司", "=\"\"", "name=\"= Secondi"})
            QVERIFY2(jobs.contains(piece), piece);
    }

    void aDifferenceIsFound()
    {
        const ScratchFolder folder;
        const QString other =
            folder.write(u"other"_s, "#!/bin/sh\n\"" PALVESTRIN_PRINT
                                     "\" \"$@\"\ngrep -q TOTALE \"$1\" && echo >>\"$2\"\nexit 0\n");
        QVERIFY(QFile::setPermissions(other, QFile::ReadOwner | QFile::ExeOwner));
        const auto compare = [&](const QString &printer) {
            return runProgram(QStringLiteral(COMPARE_PRINTERS),
                              {QStringLiteral(PALVESTRIN_PRINT), printer, u"20"_s, u"100"_s},
                              {u"PATH=/usr/bin:/bin"_s});
        };
        const ProgramRun same = compare(QStringLiteral(PALVESTRIN_PRINT));
        QVERIFY2(same.failure.isEmpty() && same.standardOutput.endsWith("the same\n"), same.standardOutput);
        const ProgramRun different = compare(other);
        QCOMPARE(different.exitStatus, 1);
        QVERIFY2(different.standardOutput.endsWith("the two differ\n"), different.standardOutput);
    }
};

QTEST_GUILESS_MAIN(RandomJobTest)
#include "randomjob_test.moc"
