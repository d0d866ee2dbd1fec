// The tables and samples of the documents against the tables of the code and the program.

#include "documentelements.h"
#include "markdown.h"
#include "printmethods.h"
#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString sourcePath(const QString &name)
{
    return QStringLiteral(PALVESTRIN_SOURCE_DIR) + u'/' + name;
}

/// What the matrix says of an element's attributes.
QString attributesCell(const vocabulary::Element &element)
{
    QStringList names;
    for (const vocabulary::Attribute &attribute : element.attributes)
        names += attribute.name.isEmpty() ? u"any"_s : QString(attribute.name);
    if (names.endsWith(u"any"_s) && names.size() > 1)
        return names.first(names.indexOf(u"any"_s)).join(", "_L1) + ", then triples"_L1;
    return names.isEmpty() ? u"none"_s : names.join(", "_L1);
}

/// Output as the documents show it, in the bytes that it stands for. Its line ends are shown, so the lines of
/// the block are none.
QByteArray bytesOf(QString shown)
{
    return shown.remove(u'\n').replace(u'␣', u' ').replace(u'␊', u'\n').replace(u'␍', u'\r').toUtf8();
}

/// What stands on paper, with the blanks at the ends of lines shown.
QString paperOf(const QByteArray &stream)
{
    static const QRegularExpression quotes(u"^\"(.*)\"@$"_s);
    static const QRegularExpression blanks(u" +$"_s);
    QString paper;
    for (QString line : QString::fromUtf8(stream).split(u'\n')) {
        if (line == "j"_L1 || line == "J"_L1 || line.isEmpty())
            continue;
        line.replace(quotes, u"\\1"_s).replace(u'\r', u'␍');
        const qsizetype length = blanks.match(line).capturedLength();
        paper += line.chopped(length) + QString(length, u'␣') + u'\n';
    }
    return paper;
}

/// The link "[receipe](#receipe-on-a-bill)" of the matrix.
QString anchorIn(const QString &cell)
{
    return cell.section(u'#', 1).chopped(1);
}

} // namespace

class DocsTest : public QObject
{
    Q_OBJECT

private:
    const QString jobFormat = markdown::document(u"docs/job-format.md"_s);
    const QString outputFormat = markdown::document(u"docs/output-format.md"_s);
    const QList<QStringList> methodRows =
        markdown::tableOf(markdown::sectionOf(jobFormat, u"## Print methods"_s));
    const QList<QStringList> matrix =
        markdown::tableOf(markdown::sectionOf(jobFormat, u"## Elements and methods"_s));
    const TemporaryHome home;

    /// The block that docs/configuration.md shows.
    static QString sampleBlock()
    {
        for (const markdown::Block &block :
             markdown::blocksOf(markdown::document(u"docs/configuration.md"_s))) {
            if (block.heading == "a-document-kinds-block"_L1)
                return block.text;
        }
        qFatal("no block of a document kind");
    }

    /// The same for every document kind.
    static QByteArray sampleConfiguration()
    {
        QString blocks;
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds)
            blocks += sampleBlock().replace(u"receiptdoc:"_s, kind.block + u':');
        return "palvestrin:\n{\n" + blocks.toLatin1() + "};\n";
    }

    QByteArray print(const QString &job) const
    {
        home.configure(sampleConfiguration());
        writeFile(home.filePath(u"job.xml"_s), job.toUtf8());
        runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s}, bareEnvironment(home.path()),
                   home.path());
        return contentOf(home.filePath(u"paper"_s));
    }

    /// The first method under which the element with the template prints.
    QString methodOf(const QString &anchor) const
    {
        for (const QStringList &row : matrix) {
            if (anchorIn(row[0]) == anchor)
                return methodRows[row.indexOf(u"●"_s) - 2][1];
        }
        return {};
    }

    /// What the matrix says of an element under a method: its attributes, or "" for no dot.
    QStringList rowsOf(const QString &element, qsizetype method) const
    {
        QStringList attributes;
        for (const QStringList &row : matrix) {
            if (row[0].startsWith(u'[' + element + u']') && row.value(2 + method) == u"●"_s)
                attributes += row[1];
        }
        return attributes;
    }

private Q_SLOTS:
    void methods()
    {
        QList<QStringList> expected;
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
            const QString path = vocabulary::findDocumentKind(QString(method.kind))->path();
            expected += QStringList{method.name, method.title, method.kind, path};
        }
        QList<QStringList> written;
        for (const QStringList &row : methodRows)
            written += row.sliced(1);
        QCOMPARE(written, expected);
    }

    void theMatrixHasTheLettersOfTheMethods()
    {
        QStringList letters{u"element"_s, u"attributes"_s};
        for (const QStringList &row : methodRows)
            letters += row[0];
        QVERIFY(jobFormat.contains(u"\n| "_s + letters.join(u" | "_s) + u" |\n"_s));
    }

    /// Every element of every method has its dot, and every dot its element.
    void theMatrixIsTheVocabulary()
    {
        qsizetype dots = 0;
        for (qsizetype i = 0; i < methodRows.size(); ++i) {
            for (const auto *element : elementsOf(vocabulary::printMethods[i].document)) {
                QCOMPARE(rowsOf(element->name, i), QStringList{attributesCell(*element)});
                ++dots;
            }
        }
        qsizetype written = 0;
        for (const QStringList &row : matrix)
            written += row.count(u"●"_s);
        QCOMPARE(written, dots);
    }

    void theBlockOfADocumentKindHasEverySetting()
    {
        const QString text = sampleBlock();
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings)
            QCOMPARE(text.count(u' ' + setting.name + " = \""_L1), 1);
    }

    void samples_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QString>("paper");
        QString job;
        for (const markdown::Block &block : markdown::blocksOf(jobFormat)) {
            if (block.kind == "xml"_L1)
                job = block.text;
            else if (block.kind == "text"_L1)
                QTest::addRow("%s", qPrintable(block.heading))
                    << (job.startsWith("<?xml"_L1)
                            ? job
                            : u"<job><method name=\"%1\"/>%2</job>"_s.arg(methodOf(block.heading), job))
                    << block.text;
        }
    }
    /// Every sample job of the document prints the sample paper below it.
    void samples()
    {
        QFETCH(QString, job);
        QFETCH(QString, paper);
        QCOMPARE(paperOf(print(job)).split(u'\n'), paper.split(u'\n'));
    }

    void everyTemplateHasASample()
    {
        const QList<markdown::Block> blocks = markdown::blocksOf(jobFormat);
        const auto has = [&](const QString &kind, const QString &anchor) {
            return std::ranges::any_of(blocks, [&](const markdown::Block &block) {
                return block.kind == kind && block.heading == anchor;
            });
        };
        for (const QStringList &row : matrix) {
            const QString anchor = anchorIn(row[0]);
            const bool prints = anchor != "printers"_L1 && anchor != "logo"_L1;
            QVERIFY2(has(u"paper"_s, anchor) && has(u"text"_s, anchor) == prints, qPrintable(anchor));
        }
    }

    /// The shown output of a whole job.
    void outputOfAJob_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QByteArray>("bytes");
        static const QRegularExpression hexadecimal(u"   +[0-9A-F ]+$"_s,
                                                    QRegularExpression::MultilineOption);
        QString job;
        for (markdown::Block block : markdown::blocksOf(outputFormat)) {
            if (block.kind == "xml"_L1)
                job = block.text;
            else if (!job.isEmpty())
                QTest::addRow("%s", qPrintable(block.heading))
                    << std::exchange(job, {}) << bytesOf(block.text.remove(hexadecimal));
        }
    }
    void outputOfAJob()
    {
        QFETCH(QString, job);
        QTEST(print(job), "bytes");
    }

    void hexadecimalBytes()
    {
        static const QRegularExpression row(u"^(.*?)   +([0-9A-F ]+)$"_s);
        static const QRegularExpression count(u"these (\\d+) bytes:\\s*```bytes\n(.*?)```"_s,
                                              QRegularExpression::DotMatchesEverythingOption);
        int blocks = 0;
        for (const QRegularExpressionMatch &block : count.globalMatch(outputFormat)) {
            qsizetype bytes = 0;
            for (const QString &line : block.captured(2).split(u'\n', Qt::SkipEmptyParts)) {
                const QRegularExpressionMatch match = row.match(line);
                QCOMPARE(QByteArray::fromHex(match.captured(2).toLatin1()), bytesOf(match.captured(1)));
                bytes += bytesOf(match.captured(1)).size();
            }
            QCOMPARE(bytes, block.captured(1).toLongLong());
            ++blocks;
        }
        QCOMPARE(blocks, 2);
    }

    /// The lines that the document shows centred, printed so: as the company's.
    void centredLines()
    {
        for (const markdown::Block &block : markdown::blocksOf(outputFormat)) {
            if (block.heading != "centred-lines"_L1 || block.kind != "stream"_L1)
                continue;
            for (const QString &line : block.text.split(u'\n', Qt::SkipEmptyParts)) {
                const QByteArray bytes = bytesOf(line);
                const QString text = QString::fromUtf8(bytes.sliced(1).chopped(3)).trimmed();
                const QByteArray printed =
                    print(u"<j><method name=\"printSold\"/><company name=\"%1\"/></j>"_s.arg(text));
                QVERIFY2(printed.startsWith("\nj\n" + bytes), bytes);
            }
            return;
        }
        QFAIL("no centred lines");
    }

    /// Or the fuzzer would have to guess them letter by letter.
    void theFuzzersDictionaryHoldsTheVocabulary()
    {
        const QString dictionary = markdown::document(u"tests/fuzz/job.dict"_s);
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
            const QString job = markdown::document(u"examples/jobs/"_s + method.name + ".xml"_L1);
            QVERIFY2(job.contains("<method name=\""_L1 + method.name + "\"/>"_L1), method.name.data());
        }
    }

    void linksLeadSomewhere_data()
    {
        QTest::addColumn<QString>("document");
        const QDir root(sourcePath({}));
        for (const QString &name : root.entryList({u"*.md"_s}))
            QTest::addRow("%s", qPrintable(name)) << name;
        QDirIterator files(sourcePath(u"docs"_s), {u"*.md"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = root.relativeFilePath(files.next());
            QTest::addRow("%s", qPrintable(name)) << name;
        }
    }
    /// To a file, and to a heading of it where one is named.
    void linksLeadSomewhere()
    {
        QFETCH(QString, document);
        const QDir folder(sourcePath(document.section(u'/', 0, -2)));
        static const QRegularExpression link(uR"(\]\((?!\w+:)([^)#]*)(?:#([^)]*))?\))"_s);
        for (const QRegularExpressionMatch &match : link.globalMatch(markdown::document(document))) {
            const QString file =
                match.captured(1).isEmpty() ? sourcePath(document) : folder.filePath(match.captured(1));
            QVERIFY2(QFile::exists(file), qPrintable(match.captured(0)));
            const QString target = QDir(sourcePath({})).relativeFilePath(QDir::cleanPath(file));
            const bool isThere = !match.hasCaptured(2) ||
                                 markdown::anchorsOf(markdown::document(target)).contains(match.captured(2));
            QVERIFY2(isThere, qPrintable(match.captured(0)));
        }
    }
};

QTEST_GUILESS_MAIN(DocsTest)
#include "docs_test.moc"
