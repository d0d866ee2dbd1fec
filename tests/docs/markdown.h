#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What tests take out of the documents.
namespace markdown {

/// A fenced block.
struct Block
{
    QString kind;    ///< the word behind the fence
    QString heading; ///< the nearest one above it, as `anchorOf` has it
    QString text;    ///< its lines, each with its line feed
};

/// A document of the source tree, such as "docs/job-format.md"; the test program ends when there is none.
QString document(const QString &name);
/// What stands between `heading` ("## Numbers") and the next heading, of whatever level; "" when there is no
/// such one.
QString sectionOf(const QString &document, const QString &heading);
/// The rows of a section's first table, cells trimmed and without backticks; the two lines of its head left
/// out.
QList<QStringList> tableOf(const QString &section);
QList<Block> blocksOf(const QString &document);
/// What links call the headings, in their order.
QStringList anchorsOf(const QString &document);
QString anchorOf(const QString &heading);

} // namespace markdown
