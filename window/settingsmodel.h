#pragma once

#include "configfile.h"
#include "keyfindings.h"
#include "treestate.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <memory>

/// The configuration in the window: one file, its tree, and everything that the pages show of it. Whatever
/// changes the tree goes through `edit`, and so can be undone.
///
/// As a table it has a row for every known setting, set or not, and behind them one for every other pair of
/// the file.
class SettingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, columns };
    enum Role { KeyRole = Qt::UserRole, ChangedRole, ProblemRole, SearchRole };

    /// Reads the file. Throws a CommandError when it cannot be read.
    explicit SettingsModel(const FileName &path);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The value as it stands in the tree, "" when there is none.
    QString value(const QString &key) const;
    /// Whether the key stands for something else than when the file was read.
    bool isChanged(const QString &key) const;
    /// Whether saving would change the file.
    bool isModified() const;
    /// Whether there is nothing yet: no file, or an empty one.
    bool isNew() const;

    /// Why `key` cannot have that value; "" when it can.
    QString objectionTo(const QString &key, const QString &value);
    /// Gives `key` that value; "" takes it out. What cannot be stored is refused: then false, and `refused`
    /// has the text and the reason, until the key gets a value.
    bool set(const QString &key, const QString &value);
    /// Changes the tree in any way, as one step of undo, which is called `what`. Steps behind one another
    /// with the same `together` are one.
    void edit(const QString &what, const std::function<void(libconfig::Config &)> &change,
              const QString &together = {});
    /// The next edit begins a step of its own.
    void endStep() { ++stepNumber; }

    struct Refused
    {
        QString text;
        QString why;
    };
    /// What was typed for the key and not taken; empty when nothing was.
    Refused refused(const QString &key) const { return refusals.value(key); }
    /// The first key of which something was refused; "" when there is none.
    QString firstRefusedKey() const { return refusals.isEmpty() ? QString() : refusals.cbegin().key(); }
    void forgetRefusal(const QString &key) { refusals.remove(key); }
    void forgetRefusals();

    /// What is wrong with the key, a line for each reason; "" when nothing is.
    QString problem(const QString &key) const;
    /// How many there are, what was refused among them.
    qsizetype problemCount() const { return qsizetype(found.size()) + refusals.size(); }
    /// What check/ finds in the file or, when it is changed, in the tree. It is told anew a moment after a
    /// change.
    const std::vector<KeyFinding> &findings() const { return found; }
    /// Looks now, without waiting for the moment.
    void findNow();

    /// The tree as a file in the text form, which is what the programs read.
    QByteArray text() const;
    /// The same, with another value of `key`.
    QByteArray textWith(const QString &key, const QString &value) const;
    TreeState state() const { return stateOf(file->config()); }
    const TreeState &savedState() const { return saved; }
    libconfig::Config &tree() { return file->config(); }
    QUndoStack &undoStack() { return undo; }

    const ConfigFile &baseline() const { return *file; }
    const FileName &path() const { return file->path; }
    /// From here on `newer` is the file, and the tree is `tree`, as one step that can be undone.
    void adopt(std::unique_ptr<ConfigFile> newer, const TreeState &tree, const QString &what);
    /// Writes the tree over `current`, which is the file as it is now, under its lock. Returns the backup
    /// that is kept for good, an empty name when there is none. Throws a CommandError.
    FileName save(ConfigFile &current, FileReplacement &replacement);

Q_SIGNALS:
    /// The tree or what was refused is another.
    void changed();
    void findingsChanged();

private:
    friend class EditCommand;

    void show(const TreeState &state);
    void listOtherKeys();
    void tellChange();
    QString keyOfRow(int row) const;
    QString shownValue(const QString &key) const;

    std::unique_ptr<ConfigFile> file;
    TreeState saved;
    QHash<QString, QString> savedValues;
    QHash<QString, QString> values; ///< of the tree as it is now, in the same way
    QStringList otherKeys;          ///< of the file, which no program reads
    QMap<QString, Refused> refusals;
    std::vector<KeyFinding> found;
    QHash<QString, QStringList> reasonsFound; ///< the texts of `found`, by key
    QTimer finding;
    QUndoStack undo;
    int stepNumber = 0;
};

/// The key-value pairs of a tree that a look-up may find, by key.
QHash<QString, QString> valuesOf(const TreeState &state);
