#include "app/settings/keytable.h"

#include "app/actions/actionregistry.h"
#include "app/controls/activeareas.h"
#include "app/look/theme.h"

#include <QAction>
#include <QIcon>

namespace App {

namespace {

/// If one shortcut is the beginning of the other, neither works.
bool areInEachOthersWay(const QList<QKeySequence>& first, const QList<QKeySequence>& second)
{
    for (const QKeySequence& a : first) {
        for (const QKeySequence& b : second) {
            if (!a.isEmpty() && !b.isEmpty() &&
                (a.matches(b) != QKeySequence::NoMatch || b.matches(a) != QKeySequence::NoMatch)) {
                return true;
            }
        }
    }
    return false;
}

QString titleOf(const ActionRegistry* registry, const QString& name)
{
    const QString path = registry->menuPath(name);
    return path.isEmpty() ? registry->text(name)
                          : path + QLatin1String(" > ") + registry->text(name);
}

}  // namespace

KeyTable::KeyTable(ActionRegistry* registry, QObject* parent)
    : QAbstractTableModel(parent), m_registry(registry)
{
    read();
}

void KeyTable::read()
{
    beginResetModel();
    m_rows.clear();
    const QStringList names = m_registry->names();
    for (const QString& name : names) {
        m_rows.append({name,
                       titleOf(m_registry, name),
                       m_registry->keys(name),
                       m_registry->isChosen(name),
                       {}});
    }
    findClashes();
    endResetModel();
}

void KeyTable::write()
{
    const QVector<Row> rows = m_rows;
    for (const Row& row : rows) {
        if (!row.isChosen) {
            m_registry->resetShortcut(row.name);
        } else if (row.keys != m_registry->keys(row.name) || !m_registry->isChosen(row.name)) {
            m_registry->setShortcut(row.name, row.keys.value(0));
        }
    }
}

QString KeyTable::name(int row) const
{
    return m_rows.at(row).name;
}

QKeySequence KeyTable::key(int row) const
{
    return m_rows.at(row).keys.value(0);
}

void KeyTable::setKey(int row, const QKeySequence& key)
{
    const QList<QKeySequence> keys =
        key.isEmpty() ? QList<QKeySequence>() : QList<QKeySequence>{key};
    change(row, keys, true);
}

void KeyTable::resetKey(int row)
{
    change(row, m_registry->defaultKeys(name(row)), false);
}

void KeyTable::resetAll()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        m_rows[row].keys = m_registry->defaultKeys(name(row));
        m_rows[row].isChosen = false;
    }
    if (!m_rows.isEmpty()) {
        resetKey(0);
    }
}

void KeyTable::change(int row, const QList<QKeySequence>& keys, bool isChosen)
{
    m_rows[row].keys = keys;
    m_rows[row].isChosen = isChosen;
    findClashes();
    emit dataChanged(index(0, KeyColumn), index(m_rows.size() - 1, ClashColumn));
    emit edited();
}

/// Compares the rows, because the registry does not know the changes yet.
void KeyTable::findClashes()
{
    QVector<QStringList> areas;
    for (Row& row : m_rows) {
        row.clashes.clear();
        areas.append(m_registry->areas(row.name));
    }
    for (int i = 0; i < m_rows.size(); ++i) {
        for (int j = i + 1; j < m_rows.size() && !m_rows[i].keys.isEmpty(); ++j) {
            if (areInEachOthersWay(m_rows[i].keys, m_rows[j].keys) &&
                ActiveAreas::canMeet(areas[i], areas[j])) {
                m_rows[i].clashes.append(m_rows[j].name);
                m_rows[j].clashes.append(m_rows[i].name);
            }
        }
    }
}

QStringList KeyTable::clashes(int row) const
{
    return m_rows.at(row).clashes;
}

int KeyTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int KeyTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant KeyTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Row& row = m_rows.at(index.row());
    if (role == Qt::ForegroundRole && index.column() == ClashColumn) {
        return Theme::colour(Theme::ErrorText);
    }
    if (role == Qt::DecorationRole && index.column() == ActionColumn) {
        const QAction* action = m_registry->action(row.name);
        return action ? action->icon() : QIcon();
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case ActionColumn:
        return row.text;
    case KeyColumn:
        return QKeySequence::listToString(row.keys, QKeySequence::NativeText);
    default: {
        QStringList texts;
        for (const QString& other : row.clashes) {
            texts.append(m_registry->text(other));
        }
        return texts.join(QLatin1String(", "));
    }
    }
}

QVariant KeyTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case ActionColumn:
        return tr("Action");
    case KeyColumn:
        return tr("Keys");
    default:
        return tr("Clashes with");
    }
}

void KeyTable::retranslate()
{
    for (Row& row : m_rows) {
        row.text = titleOf(m_registry, row.name);
    }
    if (!m_rows.isEmpty()) {
        emit dataChanged(index(0, 0), index(m_rows.size() - 1, ColumnCount - 1));
    }
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

}  // namespace App
