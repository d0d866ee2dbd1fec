#include "settingsmodel.h"

#include "fieldnames.h"
#include "keyedit.h"
#include "knownkeys.h"
#include "pages.h"
#include "storage.h"
#include "usercatalogue.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int momentBeforeFinding = 150; // milliseconds

void collectValues(const TreeState &block, const QString &path, QHash<QString, QString> &values)
{
    for (const auto &[name, value] : block.pairs) {
        if (values.value(path + name).isEmpty())
            values.insert(path + name, value);
    }
    for (const TreeState &child : block.blocks)
        collectValues(child, path + child.name + u'.', values);
}

/// Whether `values` has every key of `older`.
bool hasAll(const QHash<QString, QString> &values, const QHash<QString, QString> &older)
{
    const QList<QString> keys = older.keys();
    return std::ranges::all_of(keys, [&](const QString &key) { return values.contains(key); });
}

} // namespace

QHash<QString, QString> valuesOf(const TreeState &state)
{
    QHash<QString, QString> values;
    collectValues(state, QString(), values);
    return values;
}

/// One step: the tree before it and behind it.
class EditCommand : public QUndoCommand
{
public:
    EditCommand(SettingsModel &ofModel, const QString &what, TreeState from, const QString &stepTogether)
        : QUndoCommand(what), model(ofModel), before(std::move(from)), after(model.state()),
          together(stepTogether)
    {
    }

    int id() const override { return together.isEmpty() ? -1 : 1; }
    bool mergeWith(const QUndoCommand *next) override
    {
        const auto *other = static_cast<const EditCommand *>(next);
        if (other->together != together)
            return false;
        after = other->after;
        setObsolete(after == before);
        return true;
    }
    void undo() override { model.show(before); }
    void redo() override
    {
        if (std::exchange(isFirst, false)) // the change is made when the command is
            return;
        model.show(after);
    }

private:
    SettingsModel &model;
    TreeState before;
    TreeState after;
    QString together;
    bool isFirst = true;
};

SettingsModel::SettingsModel(const FileName &path) : file(std::make_unique<ConfigFile>(path)), saved(state())
{
    savedValues = valuesOf(saved);
    values = savedValues;
    listOtherKeys();
    finding.setSingleShot(true);
    finding.setInterval(momentBeforeFinding);
    connect(&finding, &QTimer::timeout, this, &SettingsModel::findNow);
    findNow();
}

int SettingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(knownkeys::all().size() + otherKeys.size());
}

int SettingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QString SettingsModel::keyOfRow(int row) const
{
    const auto known = int(knownkeys::all().size());
    return row < known ? knownkeys::all()[size_t(row)].name : otherKeys[row - known];
}

QString SettingsModel::shownValue(const QString &key) const
{
    return maskedValue(key, value(key));
}

QVariant SettingsModel::data(const QModelIndex &index, int role) const
{
    const QString key = keyOfRow(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == NameColumn ? nameWithPage(key) : shownValue(key);
    case Qt::ToolTipRole:
        return key;
    case KeyRole:
        return key;
    case ChangedRole:
        return isChanged(key);
    case ProblemRole:
        return problem(key);
    case SearchRole: {
        const knownkeys::Key *known = knownkeys::find(key);
        const QString help = known ? inUserLanguage(known->meaning) : QString();
        return QStringList{nameWithPage(key), help, key, shownValue(key)}.join(u'\n');
    }
    default:
        return {};
    }
}

QVariant SettingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == NameColumn ? tr("Setting") : tr("Value");
}

QString SettingsModel::value(const QString &key) const
{
    return file->config().lookup(key);
}

bool SettingsModel::isChanged(const QString &key) const
{
    return values.value(key) != savedValues.value(key);
}

bool SettingsModel::isModified() const
{
    return state() != saved;
}

bool SettingsModel::isNew() const
{
    return file->content().trimmed().isEmpty() && state().blocks.isEmpty();
}

QString SettingsModel::objectionTo(const QString &key, const QString &value)
{
    const QString objection = storageObjection(key, value);
    const QDomElement first = file->config().root().firstChildElement();
    if (!objection.isEmpty() || first.isNull() || first.tagName() == key.section(u'.', 0, 0))
        return objection;
    return tr("It would never be found: the first block of the file is another.");
}

bool SettingsModel::set(const QString &key, const QString &value)
{
    const QString objection = objectionTo(key, value);
    const bool wasRefused = refusals.remove(key) > 0;
    if (!objection.isEmpty())
        refusals[key] = {value, objection};
    else if (value != this->value(key))
        edit(
            tr("Change %1").arg(nameWithPage(key)),
            [&](libconfig::Config &config) {
                if (value.isEmpty())
                    removeKey(config, key);
                else
                    setKey(config, key, value);
            },
            key);
    if (wasRefused || !objection.isEmpty())
        Q_EMIT changed();
    return objection.isEmpty();
}

void SettingsModel::edit(const QString &what, const std::function<void(libconfig::Config &)> &change,
                         const QString &together)
{
    const TreeState before = state();
    change(file->config());
    if (state() == before)
        return;
    const QString step = together.isEmpty() ? QString() : together + u'#' + QString::number(stepNumber);
    undo.push(new EditCommand(*this, what, before, step));
    tellChange();
}

void SettingsModel::forgetRefusals()
{
    refusals.clear();
    Q_EMIT changed();
}

void SettingsModel::show(const TreeState &state)
{
    restore(file->config(), state);
    tellChange();
}

void SettingsModel::listOtherKeys()
{
    otherKeys.clear();
    QSet<QString> listed;
    for (const StoredPair &pair : storedPairs(file->config())) {
        if (!knownkeys::find(pair.key) && !listed.contains(pair.key))
            otherKeys += pair.key;
        listed += pair.key;
    }
}

void SettingsModel::tellChange()
{
    const QStringList others = otherKeys;
    values = valuesOf(state());
    listOtherKeys();
    if (others != otherKeys) {
        beginResetModel();
        endResetModel();
    } else {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
    }
    finding.start();
    Q_EMIT changed();
}

QString SettingsModel::problem(const QString &key) const
{
    QStringList reasons;
    if (refusals.contains(key))
        reasons += asSentence(refusals[key].why);
    reasons += reasonsFound.value(key);
    return reasons.join(u'\n');
}

void SettingsModel::findNow()
{
    finding.stop();
    found = findingsIn(isModified() ? text() : file->content());
    reasonsFound.clear();
    for (const KeyFinding &one : found)
        reasonsFound[one.key] += asSentence(one.text());
    if (const int rows = SettingsModel::rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columns - 1));
    Q_EMIT findingsChanged();
}

QByteArray SettingsModel::text() const
{
    return file->written(form::text, true);
}

QByteArray SettingsModel::textWith(const QString &key, const QString &value) const
{
    const TreeState now = state();
    setKey(file->config(), key, value);
    const QByteArray changedText = text();
    restore(file->config(), now);
    return changedText;
}

void SettingsModel::adopt(std::unique_ptr<ConfigFile> newer, const TreeState &tree, const QString &what)
{
    const TreeState before = state();
    file = std::move(newer);
    saved = state();
    savedValues = valuesOf(saved);
    restore(file->config(), tree);
    refusals.clear();
    if (tree != before)
        undo.push(new EditCommand(*this, what, before, QString()));
    tellChange();
}

FileName SettingsModel::save(ConfigFile &current, FileReplacement &replacement)
{
    const QHash<QString, QString> older = valuesOf(stateOf(current.config()));
    restore(current.config(), state());
    FileName backup = current.save(replacement, true, !hasAll(valuesOf(state()), older));
    file = std::make_unique<ConfigFile>(path());
    saved = state();
    savedValues = valuesOf(saved);
    endStep();
    tellChange();
    return backup;
}
