#pragma once

#include "companyprinterdriver.h"

#include <QXmlInputSource>

/// Guards against jobs that nest so deep that the XML reader, which recurses, would overflow the stack.
///
/// The reader is the toolkit's tolerant one, on purpose: where a strict reader would stop (an undeclared
/// entity, a byte that is not UTF-8, a repeated attribute, a control character) it prints on, and a ticket in
/// the kitchen with one odd letter beats half a ticket.
inline constexpr int maxNesting = 1000;

/// The text of a job. When parentheses nest deeper than `maxNesting` before the first element, as they can in
/// a document type, the text ends there.
class JobSource : public QXmlInputSource
{
public:
    /// Reads from `device`, which must outlive this and may be closed.
    explicit JobSource(QIODevice *device) : QXmlInputSource(device) {}

    QChar next() override;
    /// The first element has begun: parentheses are text from here on.
    void leaveProlog() { inProlog = false; }

private:
    bool inProlog = true;
    int openParentheses = 0;
};

/// The printer, fed by a reader: elements nested deeper than `maxNesting`, the job's root included, end the
/// job.
class JobPrinter : public CompanyPrinterDriver
{
public:
    /// `job` must outlive the printer.
    JobPrinter(const QString &fileName, JobSource &job) : CompanyPrinterDriver(fileName), source(job) {}

    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceUri, const QString &localName, const QString &qName) override;

private:
    JobSource &source;
    int openElements = 0;
};
