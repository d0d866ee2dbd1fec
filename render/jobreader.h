#pragma once

#include "prefixscope.h"

#include <QString>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>

class PrinterDriver;

// Guards against jobs that would overflow the stack, the memory or the patience of the XML reader. The job
// ends where it exceeds one; what was printed before stays.
//
// The reader is the toolkit's tolerant one, on purpose: where a strict reader would stop (an undeclared
// entity, a byte that is not UTF-8, a repeated attribute, a control character) it prints on, and a ticket in
// the kitchen with one odd letter beats half a ticket.

/// Elements in each other, the job's root included, and parentheses in each other in a document type: the
/// reader recurses.
inline constexpr int maxNesting = 1000;
/// Entities that a document type declares: the reader compares each with every other.
inline constexpr int maxEntities = 1000;
/// Characters that all entity references of a job together may stand for. The reader has a limit of its own,
/// but it does not hold for every order of declarations.
inline constexpr qint64 maxExpansion = 20'000'000;
/// The text of a job. It ends early where parentheses in its document type nest too deep, or where entity
/// references may stand for too much.
class JobSource : public QXmlInputSource
{
public:
    /// Reads from `device`, which must outlive this and may be closed.
    explicit JobSource(QIODevice *device) : QXmlInputSource(device) {}

    QChar next() override;
    /// An entity was declared; false when there are too many of them, or too many parentheses in it.
    bool addEntity(const QString &value);
    /// Outside a document type parentheses are text.
    void setInDocumentType(bool inside) { inDocumentType = inside; }
    /// The first element has begun.
    void leaveProlog();
    /// The limit at which the text was ended; "" while it was not.
    QString exceeded() const;

private:
    void watch(QChar character);
    void watchParentheses(QChar character);
    bool isTooMuch() const { return openParentheses > maxNesting || expanded > maxExpansion; }

    bool isWatched = true; ///< whether anything in the text can be too much
    bool inProlog = true;
    bool inDocumentType = false;
    QString lastMarkup; ///< the last character of the prolog that may begin something, and three behind it
    int openParentheses = 0;
    int entities = 0;
    qint64 entityLength = 0;     ///< of all declared values together, in characters
    qint64 entityReferences = 1; ///< the product of the numbers of references in them
    qint64 expanded = 0;         ///< characters that the references so far stand for, at most
};

/// Hands what the reader finds to a printer, and watches what that costs.
class JobHandler : public QXmlDefaultHandler
{
public:
    /// Both must outlive the handler.
    JobHandler(PrinterDriver &target, JobSource &job) : printer(target), source(job) {}

    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceUri, const QString &localName, const QString &qName) override;
    bool startPrefixMapping(const QString &prefix, const QString &namespaceUri) override;
    bool endPrefixMapping(const QString &prefix) override;
    bool startDTD(const QString &name, const QString &publicId, const QString &systemId) override;
    bool endDTD() override;
    bool internalEntityDecl(const QString &name, const QString &value) override;
    bool fatalError(const QXmlParseException &exception) override;
    QString errorString() const override;

    /// Where the job ended before its end, counted from 1; 0 when it did not.
    int line() const { return errorLine; }
    int column() const { return errorColumn; }
    /// Why, in the words of the toolkit when the text is broken.
    QString trouble() const { return errorText; }

protected:
    /// The limit that the job exceeds, or the method that nobody knows; "" when neither ended it.
    QString exceeded() const;

private:
    PrinterDriver &printer;
    JobSource &source;
    int openElements = 0;
    PrefixScope prefixes;
    QString limit; ///< as `exceeded`, found by the handler and not by the source
    int errorLine = 0;
    int errorColumn = 0;
    QString errorText;
};

/// Prints a job as far as it can be read. `handler` feeds its printer from `source`.
void printJob(JobSource &source, JobHandler &handler);
