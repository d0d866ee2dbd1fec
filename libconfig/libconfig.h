#pragma once

#include <QDomDocument>
#include <QString>

#include <fstream>
#include <memory>

/// The configuration file: read into a tree, asked by dotted keys.
///
/// The namespace is this system's own and has nothing to do with any outside library of a similar name.
namespace libconfig {

/// One configuration file in memory. Not thread-safe while it reads; after that it is read-only and may be
/// asked from any thread.
///
/// Two forms of file are known: the brace-block text form ("cfg") and XML ("xml"). Either becomes a tree
/// whose root element is named after the whole file name and holds one element for each block, one attribute
/// for each pair. All values are text; callers convert them.
class Config
{
public:
    /// Names, keys and values are cut to this many bytes; what follows is read and dropped.
    static constexpr std::size_t maxTextLength = 2047;
    /// Blocks nested deeper than this end the reading: what was read so far stays.
    static constexpr int maxDepth = 1000;

    /// No file and no tree; only `readFile` may follow.
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
    /// Reads the whole text form.
    void loadFile();
    /// Reads the contents of the block `name`, which stands under `parent`.
    void loadFile(const QString &name, QDomNode parent);
    /// Reads the XML form.
    void loadXmlFile();

private:
    enum class End { Brace, File };

    /// The next byte of the file; false when there is none.
    bool get(char &c);
    /// Reads items into `element` until its closing brace or the end of the file. The element joins `parent`
    /// with its first item, so an empty block leaves no trace.
    End readItems(QDomElement element, QDomNode parent);
    QString readValue();
    QDomElement newElement(const QString &name);

    QString fileName;
    QString fileType;
    std::ifstream file;
    std::unique_ptr<QDomDocument> document;
    int depth = 0; ///< of the block being read, counted in blocks
};

} // namespace libconfig
