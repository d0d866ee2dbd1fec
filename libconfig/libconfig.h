#pragma once

#include "tokenizer.h"

#include <QDomDocument>
#include <QString>
#include <QStringConverter>

#include <fstream>
#include <memory>

class QIODevice;
class QTextStream;
class QTreeWidget;

/// The configuration file: read into a tree, asked by dotted keys.
///
/// The namespace is this system's own and has nothing to do with any outside library of a similar name.
namespace libconfig {

/// One configuration file in memory. Not thread-safe while it reads, writes or is changed; look-ups alone may
/// come from any thread.
///
/// Two forms of file are known: the brace-block text form ("cfg") and XML ("xml"). Either becomes a tree
/// whose root element is named after the whole file name and holds one element for each block, one attribute
/// for each pair. All values are text; callers convert them. Both keep the order of the file: the tree
/// remembers it for the pairs (see `OrderedAttributes`), which the toolkit would shuffle.
class Config
{
public:
    /// No file and no tree; only `readFile` or `readContent` may follow.
    Config();
    Config(const QString &fileName, const QString &fileType);
    Config(const Config &) = delete;
    Config &operator=(const Config &) = delete;
    ~Config();

    /// Reads `fileName`, replacing any earlier tree. `fileType` is "cfg" or "xml"; any other leaves the tree
    /// empty. A text file that cannot be opened is reported in one line on standard output, an XML file that
    /// cannot be opened or parsed is not reported; either way every look-up then yields "".
    void constructor(const QString &fileName, const QString &fileType);
    void readFile(const QString &fileName, const QString &fileType);
    /// The same for a file in memory: `content`, as if it had been read from `fileName`. Opens no file.
    void readContent(const QByteArray &content, const QString &fileName, const QString &fileType);

    /// The value at the dotted path `key`, or "" when there is none (a missing key and an empty value are the
    /// same). Only the first top-level block is searched, so a key has at least two components.
    QString lookup(const QString &key) const;
    /// The recursive step: `key` relative to `node`, whose name is the key's first component.
    QString lookup(const QDomNode &node, const QString &key) const;

    // The reader's steps, in the order in which reading takes them.

    /// Opens the text form for reading bytes; on failure says so in one line on standard output.
    bool openFile();
    bool openFile(const QString &name);
    void closeFile();
    /// Reads up to and including the next `c`; false when the file ends first.
    bool jump(char c);
    /// Reads the whole text form. A "}" outside all blocks ends it, and leaves the file open.
    void loadFile();
    /// Reads the contents of the block `name`, which stands under `parent`, from behind its "{" to the ";"
    /// behind its "}".
    void loadFile(const QString &name, QDomNode parent);
    /// Reads the XML form.
    void loadXmlFile();

    // Writing. The tree holds more than the forms can: what is lost is told in docs/configuration.md.

    /// Writes the tree in the text form to `name`, "" meaning the file that was read: the root's pairs, then
    /// its first block. Overwrites in place, so a crash or a full disk leaves half a file. False when the
    /// file cannot be opened, then nothing is written, when not all of it could be written, or when it holds
    /// a "?" in the place of a character outside Latin-1, which the text form has no byte for.
    bool buildConfigFile(const QString &name);
    /// The same into `device`, which is open for writing.
    bool buildConfigFile(QIODevice &device);
    /// One block, at the indentation that this writer has reached. Nodes that are no elements write nothing.
    void buildConfigFile(const QDomNode &node, QTextStream &stream);
    /// The same in the XML form, which is UTF-8.
    bool buildConfigXmlFile(const QString &name);
    bool buildConfigXmlFile(QIODevice &device);
    void buildConfigXmlFile(const QDomNode &node, QTextStream &stream);

    /// Prints the tree on standard output, in UTF-8.
    void printConfigTree() const;
    void printConfigTree(const QDomNode &node) const;

    /// The root of the tree, made when there is none yet. Changes to it are changes to this configuration;
    /// attributes are set through `OrderedAttributes`.
    QDomElement root();
    /// A new block in `parent`, behind the others. While it stays empty, the reader will not see it again.
    QDomElement appendBlock(QDomElement parent, const QString &name);

    // The list view. These are defined in libconfig-widget: a program that shows no window links no widgets.

    /// A new tree widget that shows the tree, to be deleted by the caller. Two columns, setting and value; a
    /// setting is edited in place, a block has no value.
    QTreeWidget *newConfigListView() const;
    /// Fills `view` with the tree, replacing what it shows.
    void buildConfigListView(QTreeWidget *view) const;
    /// Replaces the tree by what `view` shows.
    void readListView(const QTreeWidget *view);
    /// The same, and writes it to the file that was read, in the form that it was read in. False when that
    /// fails or the form is unknown.
    bool loadListView(const QTreeWidget *view);

private:
    using BlockWriter = void (Config::*)(const QDomNode &, QTextStream &);

    void begin(const QString &name, const QString &type);
    Tokenizer::End readText(std::istream &stream);
    void readXml(const QByteArray &content);
    bool write(QIODevice &device, QStringConverter::Encoding encoding, BlockWriter writeBlock);
    bool writeFile(const QString &name, QStringConverter::Encoding encoding, BlockWriter writeBlock);

    QString fileName;
    QString fileType;
    std::ifstream file;
    std::unique_ptr<QDomDocument> document;
};

} // namespace libconfig
