#pragma once

#include <QLatin1StringView>

#include <string_view>

/// Everything that a check may find. Command, JSON, documents and tests read this table; docs/checks.md has a
/// spoiled example for each row.
namespace check {

using namespace Qt::Literals::StringLiterals;

enum class Severity {
    Note,    ///< known to have no effect, or to be by design
    Warning, ///< it prints, probably not as meant
    Error,   ///< it will not print as meant
};

enum class Subject { Job, Configuration, Output };

/// One thing that may be wrong with a text.
struct Check
{
    QLatin1StringView id; ///< for scripts; it never changes
    Subject subject;
    Severity severity;
    QLatin1StringView title; ///< what it is about, a line
};

inline constexpr Check checks[] = {
    // The text of a job.
    {"malformed"_L1, Subject::Job, Severity::Error, "the job is no XML, and ends there"_L1},
    {"limit"_L1, Subject::Job, Severity::Error, "the job exceeds a limit, and ends there"_L1},
    {"not-xml"_L1, Subject::Job, Severity::Warning, "other programs read the job as no XML"_L1},
    {"undeclared-entity"_L1, Subject::Job, Severity::Warning, "an entity that is not declared vanishes"_L1},
    {"stray-byte"_L1, Subject::Job, Severity::Warning, "bytes that are no text in the job's encoding"_L1},
    {"repeated-attribute"_L1, Subject::Job, Severity::Warning, "an attribute is given twice"_L1},
    {"text-ignored"_L1, Subject::Job, Severity::Warning, "text between tags is never printed"_L1},

    // What would command the printer or the cash register.
    {"quote"_L1, Subject::Job, Severity::Error, "a double quote ends the printed line"_L1},
    {"line-break"_L1, Subject::Job, Severity::Error, "a line break ends the line or the command"_L1},
    {"escape-sequence"_L1, Subject::Job, Severity::Error, "an escape sequence reaches the printer"_L1},
    {"control-character"_L1, Subject::Job, Severity::Error, "a control character reaches the printer"_L1},

    // The vocabulary.
    {"no-method"_L1, Subject::Job, Severity::Error, "the job names no print method"_L1},
    {"unknown-method"_L1, Subject::Job, Severity::Error, "there is no such print method"_L1},
    {"before-method"_L1, Subject::Job, Severity::Warning, "an element in front of the first method"_L1},
    {"unknown-element"_L1, Subject::Job, Severity::Warning, "no print method knows the element"_L1},
    {"ignored-element"_L1, Subject::Job, Severity::Warning, "this print method ignores the element"_L1},
    {"unknown-attribute"_L1, Subject::Job, Severity::Warning, "nothing reads the attribute"_L1},
    {"missing-attribute"_L1, Subject::Job, Severity::Warning, "a missing attribute leaves a hole"_L1},
    {"no-printer-name"_L1, Subject::Job, Severity::Warning, "headers without a printer's name"_L1},
    {"wrong-order"_L1, Subject::Job, Severity::Warning, "an element where it is not meant to print"_L1},
    {"missing-titles"_L1, Subject::Job, Severity::Warning, "a later document lacks its column titles"_L1},
    {"unused-attribute"_L1, Subject::Job, Severity::Note, "other print methods read the attribute"_L1},
    {"switched-off"_L1, Subject::Job, Severity::Note, "a setting keeps it from being printed"_L1},
    {"empty-document"_L1, Subject::Job, Severity::Note, "the print method prints an empty document"_L1},

    // The paper.
    {"over-the-edge"_L1, Subject::Job, Severity::Warning, "a row is wider than the paper"_L1},
    {"same-after-cut"_L1, Subject::Job, Severity::Warning, "two descriptions are cut to the same text"_L1},
    {"replaced-word"_L1, Subject::Job, Severity::Warning, "the printer replaces a word"_L1},
    {"address-end"_L1, Subject::Job, Severity::Warning, "an address ends at its first empty part"_L1},
    {"dropped-item"_L1, Subject::Job, Severity::Warning, "an item with a price that is not printed"_L1},
    {"not-printed"_L1, Subject::Job, Severity::Warning, "a text that is not on the paper"_L1},
    {"unprintable"_L1, Subject::Job, Severity::Warning, "the printer's encoding lacks a character"_L1},
    {"cut-description"_L1, Subject::Job, Severity::Note, "a description is cut to its column"_L1},
    {"reduction"_L1, Subject::Job, Severity::Note, "a reduction goes to the register without its name"_L1},

    // Amounts.
    {"not-a-number"_L1, Subject::Job, Severity::Error, "no number where one is needed"_L1},
    {"lost-cents"_L1, Subject::Job, Severity::Warning, "an amount with fractions of a cent"_L1},
    {"row-sum"_L1, Subject::Job, Severity::Warning, "quantity times price is not the amount"_L1},
    {"total-sum"_L1, Subject::Job, Severity::Warning, "the rows do not add up to the total"_L1},

    // The text of a configuration.
    {"no-configuration"_L1, Subject::Configuration, Severity::Error, "the file is something else"_L1},
    {"byte-order-mark"_L1, Subject::Configuration, Severity::Error, "a mark spoils the first name"_L1},
    {"remark"_L1, Subject::Configuration, Severity::Error, "a remark swallows what stands behind it"_L1},
    {"missing-semicolon"_L1, Subject::Configuration, Severity::Error, "settings vanish in a value or gap"_L1},
    {"missing-brace"_L1, Subject::Configuration, Severity::Error, "a block does not begin"_L1},
    {"unclosed-block"_L1, Subject::Configuration, Severity::Warning, "a block does not end"_L1},
    {"stray-text"_L1, Subject::Configuration, Severity::Warning, "text that belongs to no setting"_L1},
    {"unread"_L1, Subject::Configuration, Severity::Error, "the reader stops before the end"_L1},
    {"cut-text"_L1, Subject::Configuration, Severity::Error, "a name or a value is too long"_L1},
    {"inner-quotes"_L1, Subject::Configuration, Severity::Warning, "quotes in a value vanish"_L1},
    {"not-latin-1"_L1, Subject::Configuration, Severity::Warning, "UTF-8 is read as Latin-1"_L1},
    {"disabled-line"_L1, Subject::Configuration, Severity::Note, "a remark is read as a setting"_L1},
    {"xml-front"_L1, Subject::Configuration, Severity::Error, "XML that does not begin with an element"_L1},
    {"xml-malformed"_L1, Subject::Configuration, Severity::Error, "XML that is none"_L1},

    // The settings.
    {"second-block"_L1, Subject::Configuration, Severity::Error, "a second block on top"_L1},
    {"unknown-block"_L1, Subject::Configuration, Severity::Warning, "no program knows the block"_L1},
    {"unknown-key"_L1, Subject::Configuration, Severity::Warning, "no program reads the setting"_L1},
    {"key-twice"_L1, Subject::Configuration, Severity::Warning, "a setting is given twice"_L1},
    {"bad-value"_L1, Subject::Configuration, Severity::Warning, "a value counts as something else"_L1},
    {"no-room"_L1, Subject::Configuration, Severity::Error, "the columns do not fit the paper"_L1},
    {"needs-flag"_L1, Subject::Configuration, Severity::Warning, "a setting needs another one"_L1},
    {"no-catalogue"_L1, Subject::Configuration, Severity::Warning, "there is no catalogue of labels"_L1},
    {"no-log"_L1, Subject::Configuration, Severity::Warning, "the log cannot be written"_L1},
    {"no-effect"_L1, Subject::Configuration, Severity::Note, "a setting changes nothing on paper"_L1},

    // Finished outputs.
    {"broken-output"_L1, Subject::Output, Severity::Error, "printer or register read the line otherwise"_L1},
    {"unfinished-output"_L1, Subject::Output, Severity::Error, "the output ends too early"_L1},
    {"unknown-command"_L1, Subject::Output, Severity::Warning, "no known command of a receipt printer"_L1},
};

/// The row of that id. An id that no row has does not compile.
consteval const Check *named(const char *id)
{
    for (const Check &check : checks) {
        if (std::string_view(check.id.data(), check.id.size()) == id)
            return &check;
    }
    throw "there is no check of that id";
}

} // namespace check
