// The tables of the documents against the tables of the code.

#include "documentelements.h"
#include "printmethods.h"
#include "program.h"
#include "temporaryhome.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString readDocument(const QString &name)
{
    QFile file(QStringLiteral(PALVESTRIN_SOURCE_DIR) + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

/// What stands between `heading` and the next heading, of whatever level.
QString sectionOf(const QString &document, const QString &heading)
{
    const qsizetype start = document.indexOf(u'\n' + heading + u'\n');
    if (start < 0)
        return {};
    const qsizetype body = start + heading.size() + 2;
    const qsizetype end =
        document.indexOf(QRegularExpression(u"^#"_s, QRegularExpression::MultilineOption), body);
    return document.mid(body, end < 0 ? -1 : end - body);
}

/// The rows of a section's table, cells trimmed and without backticks; the two lines of its head left out.
QList<QStringList> tableOf(const QString &section)
{
    QList<QStringList> rows;
    for (const QString &line : section.split(u'\n')) {
        if (!line.startsWith(u'|'))
            continue;
        QStringList cells = line.mid(1, line.lastIndexOf(u'|') - 1).split(u'|');
        for (QString &cell : cells)
            cell = cell.remove(u'`').trimmed();
        rows += cells;
    }
    return rows.mid(2);
}

QList<QStringList> firstTwoColumns(const QList<QStringList> &table)
{
    QList<QStringList> columns;
    for (const QStringList &row : table)
        columns += row.first(2);
    return columns;
}

/// What a table of the document says of an element's attributes.
QString attributesCell(const vocabulary::Element &element)
{
    if (element.name == vocabulary::customerElement.name)
        return u"see [the customer](#the-customer)"_s;
    QStringList names;
    for (const vocabulary::Attribute &attribute : element.attributes)
        names += attribute.name.isEmpty() ? u"any"_s : QString(attribute.name);
    if (names.endsWith(u"any"_s) && names.size() > 1)
        return names.first(names.indexOf(u"any"_s)).join(", "_L1) + ", then triples"_L1;
    return names.isEmpty() ? u"none"_s : names.join(", "_L1);
}

QList<QStringList> elementsAndAttributes(std::span<const vocabulary::Element> elements)
{
    QList<QStringList> rows;
    for (const vocabulary::Element &element : elements)
        rows += QStringList{element.name, attributesCell(element)};
    return rows;
}

} // namespace

class DocsTest : public QObject
{
    Q_OBJECT

private:
    const QString jobFormat = readDocument(u"docs/job-format.md"_s);
    const TemporaryHome home;

    /// The lines on paper, without the blanks at their ends, as a document shows them.
    QStringList print(const QString &job)
    {
        home.configure(readDocument(u"examples/home/.palvestrin/conf/palvestrin.conf"_s).toLatin1());
        QFile file(home.filePath(u"job.xml"_s));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write the job");
        file.write(job.toUtf8());
        file.close();
        runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s},
                   {u"HOME="_s + home.path(), u"LC_ALL=C.UTF-8"_s}, home.path());
        QFile paper(home.filePath(u"paper"_s));
        if (!paper.open(QIODevice::ReadOnly))
            qFatal("nothing was printed");
        QStringList lines;
        for (QString line : QString::fromUtf8(paper.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            if (line == "j"_L1 || line == "J"_L1)
                continue;
            if (line.endsWith("\"@"_L1))
                line = line.sliced(1).chopped(2);
            while (line.endsWith(u' ') || line.endsWith(u'\r'))
                line.chop(1);
            lines += line;
        }
        return lines;
    }

private Q_SLOTS:
    void methods()
    {
        QList<QStringList> expected;
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            const QString path = vocabulary::findDocumentKind(QString(method.kind))->path();
            expected += QStringList{method.name, method.title, method.kind, path};
        }
        QCOMPARE(tableOf(sectionOf(jobFormat, u"## Print methods"_s)), expected);
    }

    void sections()
    {
        QCOMPARE(firstTwoColumns(tableOf(sectionOf(jobFormat, u"## Sections"_s))),
                 elementsAndAttributes(vocabulary::sectionElements));
    }

    void theCustomer()
    {
        QList<QStringList> expected;
        for (const vocabulary::Attribute &attribute : vocabulary::customerAttributes)
            expected += QStringList{attribute.name, nameOfFlag(attribute.flag)};
        QCOMPARE(firstTwoColumns(tableOf(sectionOf(jobFormat, u"### The customer"_s))), expected);
    }

    void elements_data()
    {
        QTest::addColumn<QList<QStringList>>("expected");
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            if (!method.document.elements.empty())
                QTest::addRow("%s", method.name.data()) << elementsAndAttributes(method.document.elements);
        }
    }
    void elements()
    {
        const QString heading = u"### `%1`"_s.arg(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(firstTwoColumns(tableOf(sectionOf(jobFormat, heading))), "expected");
    }

    void samples_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("job");
        QTest::addColumn<QStringList>("paper");
        const QHash<QString, QString> methodsOfOtherHeadings = {
            {u"Sections"_s, u"printFullOrderReceipt"_s},
            {u"The customer"_s, u"printFullOrderInvoice"_s},
        };
        static const QRegularExpression piece(
            uR"((?:^#+ `?(?<heading>[^`\n]*)`?$)|(?:^```xml\n(?<job>.*?)^```$)|(?:^```text\n(?<paper>.*?)^```$))"_s,
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
        QString heading;
        QString job;
        for (const QRegularExpressionMatch &match : piece.globalMatch(jobFormat)) {
            if (match.hasCaptured(u"heading"_s))
                heading = match.captured(u"heading"_s);
            else if (match.hasCaptured(u"job"_s))
                job = match.captured(u"job"_s);
            else
                QTest::addRow("%s", qPrintable(heading))
                    << methodsOfOtherHeadings.value(heading, heading) << job
                    << match.captured(u"paper"_s).chopped(1).split(u'\n');
        }
    }
    /// Every sample job of the document prints the sample paper below it.
    void samples()
    {
        QFETCH(QString, method);
        QFETCH(QString, job);
        const QString whole =
            job.startsWith("<?xml"_L1) ? job : u"<job><method name=\"%1\"/>%2</job>"_s.arg(method, job);
        QTEST(print(whole), "paper");
    }

    void everyMethodHasASample()
    {
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            const QString section = sectionOf(jobFormat, u"### `"_s + method.name + u'`');
            const bool prints = !method.document.elements.empty();
            QVERIFY2(section.contains("```xml\n"_L1) == prints, method.name.data());
        }
    }

    /// Or the fuzzer would have to guess them letter by letter.
    void theFuzzersDictionaryHoldsTheVocabulary()
    {
        const QString dictionary = readDocument(u"tests/fuzz/job.dict"_s);
        const auto holds = [&](const QString &entry) {
            QVERIFY2(dictionary.contains(u'"' + entry + "\"\n"_L1), qPrintable(entry));
        };
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            holds(uR"(<method name=\"%1\"/>)"_s.arg(method.name));
            for (const vocabulary::Element *element : elementsOf(method.document)) {
                holds(u"<%1 "_s.arg(element->name));
                for (const vocabulary::Attribute &attribute : element->attributes)
                    holds(uR"( %1=\")"_s.arg(attribute.name.isEmpty() ? "name"_L1 : attribute.name));
            }
        }
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds)
            holds(u"%1: { "_s.arg(kind.block));
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings)
            holds(u"%1 = "_s.arg(setting.name));
    }

    void everyExampleIsNamedAfterItsMethod()
    {
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            const QString job = readDocument(u"examples/jobs/"_s + method.name + ".xml"_L1);
            QVERIFY2(job.contains("<method name=\""_L1 + method.name + "\"/>"_L1), method.name.data());
        }
    }

    void linksLeadSomewhere_data()
    {
        QTest::addColumn<QString>("document");
        for (const QString &document :
             {u"README.md"_s, u"ARCHITECTURE.md"_s, u"CONTRIBUTING.md"_s, u"SECURITY.md"_s,
              u"docs/job-format.md"_s, u"docs/configuration.md"_s, u"docs/output-format.md"_s,
              u"docs/services.md"_s, u"docs/gallery.md"_s})
            QTest::addRow("%s", qPrintable(document)) << document;
    }
    void linksLeadSomewhere()
    {
        QFETCH(QString, document);
        const QString folder = QStringLiteral(PALVESTRIN_SOURCE_DIR) + u'/' + document.section(u'/', 0, -2);
        static const QRegularExpression link(uR"(\]\(([^)#:]+)(#[^)]*)?\))"_s);
        for (const QRegularExpressionMatch &match : link.globalMatch(readDocument(document)))
            QVERIFY2(QFile::exists(folder + u'/' + match.captured(1)), qPrintable(match.captured(1)));
    }
};

QTEST_GUILESS_MAIN(DocsTest)
#include "docs_test.moc"
