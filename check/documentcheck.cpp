#include "documentcheck.h"

#include "edge.h"
#include "printercommands.h"
#include "registernumbers.h"
#include "structure.h"
#include "unprintable.h"

using namespace Qt::Literals::StringLiterals;

namespace check {

bool DocumentCheck::begin(const StartTag &tag, const QXmlAttributes &attributes)
{
    checkMethod(tag, attributes, sink);
    method = vocabulary::findPrintMethod(attributes.value("name"_L1));
    known = nullptr;
    memory = {};
    return method;
}

/// Rows come by the hundred: most often it is the same element as before.
void DocumentCheck::lookUp(const QString &name)
{
    if (known && name == known->name)
        return;
    known = vocabulary::findElement(method->document, name);
    part = known ? partOf(method->document, *known) : Part::Anywhere;
}

void DocumentCheck::check(const QString &name, const StartTag &tag, const QXmlAttributes &attributes)
{
    lookUp(name);
    if (known)
        check(JobElement(*method, *known, attributes, tag, printer));
    else
        checkIgnoredElement(name, *method, tag.place(), sink);
}

void DocumentCheck::check(const JobElement &element)
{
    checkAttributes(element, sink);
    memory.order.check(element, part, sink);
    checkPrintersName(element);
    if (printer.hasLeftOutTitles())
        sink.take({named("missing-titles"), element.tag.place(),
                   u"the column titles are missing here: they are printed once in a job"_s,
                   u"print each document with a job of its own"_s});
    checkNumbers(element, sink);
    memory.sums.check(element, part, sink);
    checkCommands(element, sink);
    checkEdge(element, encoding, sink);
    checkEncoding(element, encoding, sink);
    memory.texts.check(element, sink);
}

/// The name stands in one element, and is printed by another.
void DocumentCheck::checkPrintersName(const JobElement &element)
{
    if (element.vocabulary.name != "headers"_L1)
        return;
    if (printer.printersName().isEmpty())
        sink.take({named("no-printer-name"), element.tag.place(),
                   u"the printer has no name yet, and its line stays empty"_s,
                   u"put <printers name=\"...\"/> in front"_s});
    else if (element.rows.filter(printer.printersName()).isEmpty())
        sink.take({named("replaced-word"), element.tag.place(),
                   u"the printer's name %1 is not printed as it is"_s.arg(quoted(printer.printersName())),
                   u"the printer replaces the word %1"_s.arg(Rehearsal::replacedWord)});
}

} // namespace check
