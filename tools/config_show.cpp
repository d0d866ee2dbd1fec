#include "config.h"
#include "console.h"
#include "orderedattributes.h"
#include "secrets.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Option options[] = {fileOption, showSecretsOption};
constexpr qsizetype indentation = 4;

/// The pairs of `block`, then the blocks in it, line by line: a file that nests deeply has long lines, which
/// need not all be in memory at once.
void showItems(const QDomElement &block, qsizetype depth, bool withSecrets)
{
    const QString blanks(depth * indentation, u' ');
    for (const QString &name : libconfig::OrderedAttributes(block).names()) {
        const QString value = block.attribute(name);
        const bool isHidden = !withSecrets && !value.isEmpty() && mayBeSecret(name, value);
        printText(blanks + name.simplified() + " = "_L1 + (isHidden ? QString(hiddenValue) : value) + u'\n');
    }
    for (QDomElement child = block.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        printText(blanks + child.tagName().simplified() + u'\n');
        showItems(child, depth + 1, withSecrets);
    }
}

ExitCode run(const CommandLine &line)
{
    ConfigFile file(chosenFile(line));
    requireFile(file);
    noteUnreadForm(line, file);
    printText(file.path.shown() + u'\n');
    showItems(file.config().root(), 0, line.has(u"show-secrets"));
    return ExitCode::Done;
}

} // namespace

constinit const Command configShowCommand{
    .name = "show"_L1, .summary = "The file as the programs read it."_L1, .options = options, .run = run};
