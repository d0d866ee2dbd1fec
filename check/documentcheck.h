#pragma once

#include "documentorder.h"
#include "localeencoding.h"
#include "printedtexts.h"
#include "rehearsal.h"
#include "sums.h"

namespace check {

/// The documents of a job, an element at a time.
class DocumentCheck
{
public:
    /// `rehearsal` prints each element before it is checked here. It and `findings` must outlive this.
    DocumentCheck(const Rehearsal &rehearsal, FindingSink &findings) : printer(rehearsal), sink(findings) {}

    /// A `method` element. False when it names no method.
    bool begin(const StartTag &tag, const QXmlAttributes &attributes);
    /// Whether a document has begun.
    bool hasBegun() const { return method; }
    /// Any other element, in a document that has begun.
    void check(const QString &name, const StartTag &tag, const QXmlAttributes &attributes);

private:
    /// What is remembered of one document, from its method to the next.
    struct Memory
    {
        DocumentOrder order;
        PrintedTexts texts;
        Sums sums;
    };

    void lookUp(const QString &name);
    void check(const JobElement &element);
    void checkPrintersName(const JobElement &element);

    const Rehearsal &printer;
    FindingSink &sink;
    const LocaleEncoding encoding;
    const vocabulary::PrintMethod *method = nullptr;
    const vocabulary::Element *known =
        nullptr;                ///< what the element is; null when the method does not print it
    Part part = Part::Anywhere; ///< of that element
    Memory memory;
};

} // namespace check
