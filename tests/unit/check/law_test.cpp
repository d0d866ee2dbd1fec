// What the check says of a job, held against what the renderer makes of it.

#include "collectedfindings.h"
#include "lines.h"
#include "paper.h"
#include "printmethods.h"
#include "program.h"
#include "pvconfiguration.h"
#include "randomjob.h"
#include "rounds.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;
using vocabulary::Attribute;
using vocabulary::Element;

namespace {

constexpr quint32 cleanJobs = rounds(2000);
constexpr quint32 spoiledJobs = rounds(1000);

/// What is told of figures and of the order has no part in the law: it takes nothing from the paper.
const QStringList aboutFigures{u"row-sum"_s, u"total-sum"_s, u"wrong-order"_s, u"missing-titles"_s};

/// The rows of one document, as they stand in the output.
using Paper = std::vector<QStringList>;

/// A document begins with an empty line, a row ends with a quote and "@", a command with CR LF or LF.
Paper paperOf(const QByteArray &output)
{
    Paper paper;
    QStringList lines = QString::fromUtf8(output).split(u'\n');
    lines.removeLast(); // behind the last line feed is nothing
    for (const QString &line : lines) {
        if (line.isEmpty())
            paper.emplace_back();
        else if (line.startsWith(u'"') && line.endsWith("\"@"_L1))
            paper.back() += line.sliced(1).chopped(2);
        else if (line != "j"_L1 && line != "J"_L1)
            paper.back() += line.endsWith(u'\r') ? line.chopped(1) : line;
    }
    return paper;
}

int columnsOf(QString row)
{
    while (row.endsWith(u' '))
        row.chop(1);
    int columns = 0;
    for (const char32_t character : row.toUcs4())
        columns += paper::columnsOf(character);
    return columns;
}

/// The lines that hold findings, without the lines.
QByteArray mended(const QByteArray &job, const CollectedFindings &findings)
{
    QList<QByteArray> lines = job.split('\n');
    for (const check::Finding &finding : findings.list) {
        if (finding.check->severity < check::Severity::Warning || aboutFigures.contains(finding.check->id))
            continue;
        QByteArray &line = lines[finding.place.line - 1];
        const bool hasEndTag = !line.isEmpty() && !line.endsWith("/>") && !line.contains("</");
        if (hasEndTag)
            lines[finding.place.line].clear(); // it stands on the next line
        line.clear();
    }
    return lines.join('\n');
}

QString cents(const QString &amount)
{
    return QString::number(qRound64(QString(amount).replace(u',', u'.').toDouble() * 100));
}

/// Walks through a job that the check has nothing against, and looks for all its texts on the paper.
class Witness
{
public:
    Witness(const QByteArray &job, const Paper &printed, const PVConfiguration &settings)
        : reader(job), paper(printed), configuration(settings)
    {
    }

    /// What is not on the paper; "" when all is.
    QString missing()
    {
        while (!reader.atEnd() && lost.isEmpty()) {
            if (reader.readNext() == QXmlStreamReader::StartElement)
                visit(reader.name().toString());
        }
        return reader.hasError() ? reader.errorString() : lost.isEmpty() ? lost : whereAndWhat();
    }
    qsizetype texts = 0; ///< that were found

private:
    QString whereAndWhat() const
    {
        return u"line %1: not on the paper: "_s.arg(reader.lineNumber()) + lost + u'\n' +
               paper[document].join(u'\n');
    }

    void visit(const QString &name)
    {
        if (name == vocabulary::methodElement.name) {
            method = vocabulary::findPrintMethod(reader.attributes().value("name"_L1).toString());
            path = vocabulary::findDocumentKind(QString(method->kind))->path();
            ++document;
            cursor = 0;
            checkWidths();
        } else if (method && !method->document.elements.empty()) {
            visitElement(name, *vocabulary::findElement(method->document, name));
        }
    }

    void checkWidths()
    {
        const int setting = configuration.getStrValue(path + "paperWidth"_L1).toInt();
        const int width = setting == 0 ? 32 : setting;
        for (const QString &row : paper[document]) {
            if (method->kind != "fiscal"_L1 && columnsOf(row) > width)
                lost = u"the edge, which is at %1: "_s.arg(width) + row;
        }
    }

    bool isOn(vocabulary::FlagMember member) const
    {
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
            const auto *flag = std::get_if<vocabulary::FlagMember>(&setting.member);
            if (flag && *flag == member)
                return configuration.getStrValue(path + setting.name) == "true"_L1;
        }
        return true;
    }

    void visitElement(const QString &name, const Element &element)
    {
        const QXmlStreamAttributes attributes = reader.attributes();
        if (name == "printers"_L1)
            printer = attributes.value("name"_L1).toString();
        if (name == "headers"_L1)
            expect(printer);
        const bool isCourse =
            method->name == "printFullOrder"_L1 && attributes.value("name"_L1).startsWith(u'=');
        if (!isOn(element.flag) || name == "printers"_L1 || isCourse)
            return;
        found = paper[document].size();
        if (method->kind == "fiscal"_L1)
            return visitCommand(name, attributes);
        for (int i = 0; i < attributes.size(); ++i)
            visitAttribute(element, attributes[i].qualifiedName().toString(),
                           attributes[i].value().toString());
        cursor = found < paper[document].size() ? found : cursor;
    }

    void visitCommand(const QString &name, const QXmlStreamAttributes &attributes)
    {
        const QString price = attributes.value("price"_L1).toString();
        if (name == "total"_L1 || price.startsWith(u'-'))
            return; // payments are computed, and a reduction is its amount alone
        const QString number = name == "receipe"_L1 ? attributes.value("number"_L1).toString() : u"1"_s;
        expect(u'"' + number + u'*' + cents(price) + u'H' + attributes.value("department"_L1).toString() +
               u'R');
        expectBeginning(attributes.value("name"_L1).toString());
    }

    void visitAttribute(const Element &element, const QString &name, const QString &text)
    {
        const auto row = std::ranges::find_if(element.attributes, [&](const Attribute &known) {
            return known.name.isEmpty() || known.name == name;
        });
        if (row == element.attributes.end() || !isOn(row->flag) ||
            row->reading == vocabulary::Reading::AsNumber)
            return; // the number of a variant becomes its sign
        if (row->type == vocabulary::Description)
            expectBeginning(text);
        else if (row->printLine == line::address)
            expectParts(text.split(u','));
        else
            expect(text);
    }

    void expectParts(const QStringList &parts)
    {
        for (const QString &part : parts)
            expect(part.trimmed());
    }

    bool isFound(const QString &text)
    {
        const QStringList &rows = paper[document];
        for (qsizetype row = cursor; row < rows.size(); ++row) {
            if (!rows[row].contains(text))
                continue;
            found = qMin(found, row);
            ++texts;
            return true;
        }
        return false;
    }

    void expect(const QString &text)
    {
        if (!text.isEmpty() && !isFound(text))
            lost = text;
    }

    /// A description is cut where its column ends, and one letter of it is more than none.
    void expectBeginning(const QString &text)
    {
        if (!text.isEmpty() && !isFound(text) && !isFound(text.first(text[0].isHighSurrogate() ? 2 : 1)))
            lost = text;
    }

    QXmlStreamReader reader;
    const Paper &paper;
    const PVConfiguration &configuration;
    const vocabulary::PrintMethod *method = nullptr;
    QString path;
    QString printer;
    qsizetype document = -1;
    qsizetype cursor = 0; ///< the row where the element before was found
    qsizetype found = 0;
    QString lost;
};

} // namespace

/// A job without errors or warnings prints every text that its print method reads, in full or cut in the
/// description column, and no row is wider than the paper. A finding about a cut or about the edge is seen on
/// the paper.
class LawTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QByteArray print(const QByteArray &job)
    {
        writeFile(home.filePath(u"job.xml"_s), job);
        runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s},
                   {u"HOME="_s + home.path(), u"LC_ALL=C.UTF-8"_s}, home.path());
        return contentOf(home.filePath(u"paper"_s));
    }

    QByteArray job(quint32 seed, bool hasControls)
    {
        home.configure(randomConfiguration(seed, {.sensible = seed % 3 != 0}));
        RandomJobOptions options;
        options.strangers = seed % 4 == 0;
        options.gaps = seed % 5 == 0;
        options.controls = hasControls && seed % 7 == 0;
        options.beyondLatin1 = seed % 2 == 0;
        return randomJob(seed, options);
    }

private Q_SLOTS:
    void whatIsNotFoundPrints()
    {
        qsizetype texts = 0;
        for (quint32 seed = 0; seed < cleanJobs; ++seed) {
            QByteArray text = job(seed, true);
            PVConfiguration configuration;
            for (QByteArray before; before != text && text.contains("<method ");) {
                before = text;
                text = mended(text, findingsOf(text, configuration));
            }
            if (!text.contains("<method "))
                continue; // nothing is left
            const Paper paper = paperOf(print(text));
            Witness witness(text, paper, configuration);
            const QString missing = witness.missing();
            QVERIFY2(missing.isEmpty(), qPrintable(u"seed %1, "_s.arg(seed) + missing));
            texts += witness.texts;
        }
        QVERIFY2(texts > cleanJobs * 10, qPrintable(QString::number(texts)));
    }

    void whatIsFoundIsSeen()
    {
        qsizetype seen = 0;
        for (quint32 seed = 0; seed < spoiledJobs; ++seed) {
            const QByteArray text = job(seed, false);
            PVConfiguration configuration;
            const Paper paper = paperOf(print(text));
            for (const check::Finding &finding : findingsOf(text, configuration).list) {
                const QString fault = contradiction(finding, paper);
                QVERIFY2(fault.isEmpty(),
                         qPrintable(u"seed %1, %2: "_s.arg(seed).arg(fault) + finding.message));
                seen += isAboutPaper(finding);
            }
        }
        QVERIFY2(seen > spoiledJobs, qPrintable(QString::number(seen)));
    }

private:
    static bool isAboutPaper(const check::Finding &finding)
    {
        return finding.check->id == "over-the-edge"_L1 || finding.check->id == "cut-description"_L1;
    }

    /// What of the paper contradicts the finding; "" when nothing does.
    static QString contradiction(const check::Finding &finding, const Paper &paper)
    {
        static const QRegularExpression edge(
            u"^the row \"(.*?)(?:\\.\\.\\.)?\" is (\\d+) wide, and the paper (-?\\d+)$"_s);
        static const QRegularExpression cut(u"^\"(.*?)(\\.\\.\\.)?\" is cut to \"(.*?)(\\.\\.\\.)?\"$"_s);
        QRegularExpressionMatch match = edge.match(finding.message);
        if (finding.check->id == "over-the-edge"_L1) {
            const bool isTooWide = match.captured(2).toInt() > match.captured(3).toInt();
            const bool isThere = anyRow(paper, [&](const QString &row) {
                return row.startsWith(match.captured(1)) && columnsOf(row) == match.captured(2).toInt();
            });
            return match.hasMatch() && isTooWide && isThere ? QString() : u"no such row"_s;
        }
        if (finding.check->id != "cut-description"_L1)
            return {};
        match = cut.match(finding.message);
        const bool isThere = anyRow(paper, [&](const QString &row) {
            const bool isWhole = !match.hasCaptured(2) && row.contains(match.captured(1));
            return row.contains(match.captured(3)) && !isWhole;
        });
        return match.hasMatch() && isThere ? QString() : u"no such cut"_s;
    }

    template <typename Condition>
    static bool anyRow(const Paper &paper, Condition condition)
    {
        return std::ranges::any_of(
            paper, [&](const QStringList &rows) { return std::ranges::any_of(rows, condition); });
    }
};

QTEST_GUILESS_MAIN(LawTest)
#include "law_test.moc"
