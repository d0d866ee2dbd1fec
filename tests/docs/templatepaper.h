#pragma once

#include "templatetext.h"

#include <QSet>

/// Prints jobs by the templates of the documents, and by nothing else.
namespace paper_template {

/// What the documents say.
struct Documents
{
    /// One row of the matrix: under which methods an element has which template.
    struct Method
    {
        QString block; ///< of the configuration, such as "receiptdoc"
        bool isFiscal;
        QHash<QString, QString> anchors; ///< of the elements' templates
    };

    QHash<QString, Method> methods;
    QHash<QString, std::vector<Statement>> templates; ///< by their anchors
    Definitions definitions;
    QHash<QString, QString> letters;   ///< the settings that they stand for
    QHash<QString, int> missingWidths; ///< what a setting that is missing or 0 counts as

    static Documents read();
};

/// A start tag of a job.
struct Tag
{
    QString name;
    QList<QPair<QString, QString>> attributes;

    QString value(const QString &attribute) const;
};

/// The start tags of a job that the tests make up. It reads no more of XML than those have.
QList<Tag> tagsOf(const QString &job);

/// One run of the printer.
class Paper
{
public:
    /// `catalogue` has the words of the language.
    Paper(const Documents &source, const QByteArray &configuration, const QHash<QString, QString> &catalogue);

    QByteArray print(const QByteArray &job);
    /// The lines of templates that were gone through, and the conditions that were met.
    const QSet<const Statement *> &visited() const { return met; }

private:
    bool begin(const Tag &tag);
    bool isOn(const QString &name) const;
    void printTemplate(const QString &anchor, const Tag &tag);
    void run(const std::vector<Statement> &lines, const Scope &scope);
    void runOne(const Statement &line, const Scope &scope);
    bool runInstruction(const Statement &line, const Scope &scope);
    bool isMet(const Statement &line, bool wasMet, const Scope &scope) const;
    void loop(const Statement &line, const Scope &scope);
    void repeat(const Statement &line, const Scope &scope);
    void printParts(const Statement &line, const Scope &scope);
    void printAttributes(const Statement &line, const Scope &scope, qsizetype from, const QStringList &names);
    bool expand(const Statement &line, const Scope &scope);
    void send(const Statement &line, const Scope &scope);
    void printLine(const Statement &line, const Scope &scope);
    Text defined(const QString &name, const Text &text, const Scope &scope) const;
    Value wordValue(const QString &name) const;
    void readWidths();

    const Documents &documents;
    QHash<QString, QHash<QString, QString>> blocks;
    const QHash<QString, QString> words;

    QHash<QString, double> widths; ///< of the document, by their letters
    const Documents::Method *method = nullptr;
    const Tag *element = nullptr;
    bool isCentred = false;
    bool onceDone = false;
    Text printer;
    Text output;
    QSet<const Statement *> met;
};

} // namespace paper_template
