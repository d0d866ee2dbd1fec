#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// The language of the templates, as "Templates" in docs/job-format.md explains it.
///
/// It is made of that page alone: nothing here knows the renderer.
namespace paper_template {

/// A line and what belongs to it.
struct Statement
{
    QStringList words; ///< quoted texts keep their quotes
    std::vector<Statement> body;
};

/// What a name stands for: a text, of which the first alternative counts whose condition is met, or lines.
struct Definition
{
    struct Alternative
    {
        QStringList text;
        QStringList condition; ///< empty when there is none
    };

    QStringList parameters;
    std::vector<Alternative> alternatives;
    std::vector<Statement> lines;
};

using Definitions = QHash<QString, Definition>;

/// The test program ends at a line that is none.
std::vector<Statement> parse(const QString &block);
void addDefinitions(const QString &block, Definitions &definitions);

} // namespace paper_template
