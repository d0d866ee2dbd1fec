#include "job.h"

#include "documentcheck.h"
#include "strictpass.h"
#include "structure.h"
#include "tagtext.h"

#include <QSet>
#include <QXmlSimpleReader>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Of a longer tag the strict reader should not compare each attribute with every other.
constexpr qsizetype longestTag = 4096;

/// Passes findings on, and remembers whether one told why the text is no XML.
class WatchedSink : public FindingSink
{
public:
    explicit WatchedSink(FindingSink &next) : sink(next) {}
    void take(const Finding &finding) override
    {
        constexpr std::array reasons{named("malformed"),          named("limit"),
                                     named("undeclared-entity"),  named("stray-byte"),
                                     named("repeated-attribute"), named("escape-sequence"),
                                     named("control-character")};
        isTextSpoiled = isTextSpoiled || std::ranges::find(reasons, finding.check) != reasons.end();
        sink.take(finding);
    }
    bool wants(Severity severity) const override { return sink.wants(severity); }

    bool isTextSpoiled = false;

private:
    FindingSink &sink;
};

/// Listens to the renderer's reader, lets the printer print each element, and looks at what came of it.
class JobChecker : public JobHandler
{
public:
    JobChecker(PlacedSource &job, StrictPass &strictPass, PVConfiguration &ownConfiguration,
               FindingSink &findings)
        : JobHandler(printer, job), text(job), strict(strictPass), sink(findings), printer(ownConfiguration)
    {
    }

    bool endDocument() override;
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceUri, const QString &localName, const QString &qName) override;
    bool internalEntityDecl(const QString &name, const QString &value) override;
    bool characters(const QString &characters) override;
    bool comment(const QString &) override { return goOnAt(text.nextPlace()); }
    bool startCDATA() override;
    bool endCDATA() override { return goOnAt(text.place()); } // the reader is a character ahead
    bool processingInstruction(const QString &, const QString &) override { return goOnAt(text.place()); }
    bool skippedEntity(const QString &name) override;
    bool fatalError(const QXmlParseException &exception) override;

    /// Behind the last event.
    void finish();

private:
    Finding fault(const QXmlParseException &exception) const;
    void leaveMarkup();
    bool goOnAt(Place place);

    PlacedSource &text;
    StrictPass &strict;
    WatchedSink sink;
    Rehearsal printer;
    DocumentCheck document{printer, sink};
    QSet<QString> entities;  ///< that the job declares
    Place textBegin;         ///< of the text that stands between tags
    bool isTextTold = false; ///< whether the text between these two tags is told
    std::optional<Place> root;
    bool isEnded = false; ///< by an unknown method, or by the reader
};

bool JobChecker::endDocument()
{
    if (!document.hasBegun())
        sink.take({named("no-method"), root.value_or(Place()),
                   u"the job names no print method, and prints nothing"_s,
                   u"add <method name=\"...\"/> in front of the other elements"_s});
    return JobHandler::endDocument();
}

bool JobChecker::startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                              const QXmlAttributes &attributes)
{
    // What an entity stands for has no text of its own.
    const QStringView written = text.tag().mid(1).startsWith(qName) ? text.tag() : QStringView();
    const StartTag tag(written, text.tagPlace());
    if (written.size() > longestTag)
        strict.giveUp();
    leaveMarkup();
    checkTagText(tag, attributes, entities, sink);
    printer.forgetRows();
    isEnded = qName == vocabulary::methodElement.name && !document.begin(tag, attributes);
    if (isEnded || !JobHandler::startElement(namespaceUri, localName, qName, attributes))
        return false;
    if (qName != vocabulary::methodElement.name && document.hasBegun())
        document.check(qName, tag, attributes);
    else if (qName != vocabulary::methodElement.name && root) // which may have any name
        checkBeforeMethod(qName, tag.place(), sink);
    root = root.value_or(tag.place());
    return true;
}

bool JobChecker::endElement(const QString &namespaceUri, const QString &localName, const QString &qName)
{
    leaveMarkup();
    return JobHandler::endElement(namespaceUri, localName, qName);
}

void JobChecker::leaveMarkup()
{
    isTextTold = false;
    goOnAt(text.nextPlace());
}

bool JobChecker::internalEntityDecl(const QString &name, const QString &value)
{
    strict.giveUp();
    entities += name;
    return JobHandler::internalEntityDecl(name, value);
}

bool JobChecker::characters(const QString &characters)
{
    const auto isInk = [](QChar character) { return !character.isSpace(); };
    const auto first = std::ranges::find_if(characters, isInk);
    if (first != characters.end() && !isTextTold) {
        isTextTold = true;
        sink.take({named("text-ignored"), placeIn(characters, first - characters.begin(), textBegin),
                   u"%1 stands between tags, and is never printed"_s.arg(quoted(characters.trimmed())),
                   u"everything that prints stands in attributes"_s});
    }
    textBegin = placeIn(characters, characters.size(), textBegin);
    return true;
}

/// Text goes on behind markup.
bool JobChecker::goOnAt(Place place)
{
    text.leaveTag();
    textBegin = place;
    return true;
}

/// Told when the section is read; a "<" in it hides where it began, and the text is told there.
bool JobChecker::startCDATA()
{
    Place begin = text.tagPlace();
    begin.column += QLatin1StringView("<![CDATA[").size();
    return goOnAt(begin);
}

bool JobChecker::skippedEntity(const QString &name)
{
    if (text.isInTag())
        return true; // told with its attribute
    goOnAt(text.nextPlace());
    const Place end = text.place();
    const Place begin{end.line, qMax<qint64>(1, end.column - name.size() - 1)};
    sink.take({named("undeclared-entity"), begin, u"\"&%1;\" is declared nowhere, and vanishes"_s.arg(name),
               u"it would not have been printed here in any case"_s});
    return true;
}

bool JobChecker::fatalError(const QXmlParseException &exception)
{
    if (!std::exchange(isEnded, true))
        sink.take(fault(exception));
    return false;
}

/// Why the reader ended the job.
Finding JobChecker::fault(const QXmlParseException &exception) const
{
    if (!exceeded().isEmpty()) {
        const bool isInText = !text.exceeded().isEmpty();
        return {named("limit"), isInText ? text.nextPlace() : text.tagPlace(),
                exceeded() + u", and the job ends here"_s, u"SECURITY.md lists the limits"_s};
    }
    if (exception.message().contains("too large to process"_L1)) // the toolkit's own limit
        return {named("limit"), text.place(), u"an entity stands for too much text, and the job ends here"_s,
                u"write the text itself"_s};
    const bool isEndTag = exception.message() == "tag mismatch"_L1;
    return {named("malformed"), isEndTag ? text.tagPlace() : text.place(),
            u"this is no XML (%1), and nothing behind it is printed"_s.arg(exception.message()),
            isEndTag ? u"every element ends with its own end tag, or with \"/>\""_s
                     : u"in a text, write &amp; for \"&\" and &lt; for \"<\""_s};
}

void JobChecker::finish()
{
    if (!isEnded && !sink.isTextSpoiled && !strict.finish())
        sink.take({named("not-xml"),
                   strict.place(),
                   u"other programs read no further than this: %1"_s.arg(strict.reason()),
                   {}});
}

} // namespace

void checkJob(QIODevice &text, PVConfiguration &configuration, FindingSink &sink)
{
    StrictPass strict(text);
    PlacedSource source(&strict);
    JobChecker checker(source, strict, configuration, sink);
    QXmlSimpleReader reader;
    reader.setContentHandler(&checker);
    reader.setDeclHandler(&checker);
    reader.setLexicalHandler(&checker);
    reader.setErrorHandler(&checker);
    reader.parse(source);
    checker.finish();
}

} // namespace check
