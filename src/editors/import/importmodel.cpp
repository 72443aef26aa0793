#include "editors/import/importmodel.h"

#include "core/resourceicon_p.h"

#include <algorithm>

using Zorv::ImportEntry;

ImportModel::ImportModel(QObject* parent) : QAbstractListModel(parent) {}

ImportModel::~ImportModel() = default;

void ImportModel::setPresent(const QSet<QString>& identifiers)
{
    m_present = identifiers;
    tellAll();
}

void ImportModel::setCheck(std::function<bool(const QString&)> isUsable)
{
    m_isUsable = std::move(isUsable);
}

void ImportModel::add(const QVector<ImportEntry>& entries)
{
    if (entries.isEmpty()) {
        return;
    }
    const int first = m_entries.size();
    beginInsertRows({}, first, first + entries.size() - 1);
    m_entries += entries;
    endInsertRows();
    for (const ImportEntry& entry : entries) {
        follow(entry.source.model());
    }
    count(first, m_entries.size() - 1, 1);
    tellAll();
}

void ImportModel::clear()
{
    removeRows(0, m_entries.size());
}

int ImportModel::clashCount() const
{
    int result = 0;
    for (int row = 0; row < m_entries.size(); ++row) {
        result += int(clash(row) != NoClash);
    }
    return result;
}

ImportModel::Clash ImportModel::clash(int row) const
{
    const QString& identifier = m_entries[row].identifier;
    if (m_present.contains(identifier)) {
        return Present;
    }
    return m_counts.value(identifier) > 1 ? Repeated : NoClash;
}

int ImportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Clash wrong = clash(index.row());
    const ImportEntry& entry = m_entries[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return entry.identifier;
    case Qt::DecorationRole:
        return wrong == NoClash
                   ? entry.source.data(Qt::DecorationRole)
                   : Zorv::resourceIcon(QStringLiteral(":/zorvl_icons/icons/warn.png"));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return wrong == Present    ? tr("The destination has this name already.")
               : wrong == Repeated ? tr("Another one is to have this name, too.")
                                   : QString();
    case ClashRole:
        return int(wrong);
    default:
        return {};
    }
}

Qt::ItemFlags ImportModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags base = QAbstractListModel::flags(index);
    return index.isValid() ? base | Qt::ItemIsEditable | Qt::ItemNeverHasChildren : base;
}

bool ImportModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    const QString identifier = value.toString().trimmed();
    if (identifier.isEmpty() || (m_isUsable && !m_isUsable(identifier))) {
        emit refused(identifier);
        return false;
    }
    count(index.row(), index.row(), -1);
    m_entries[index.row()].identifier = identifier;
    count(index.row(), index.row(), 1);
    tellAll();
    return true;
}

bool ImportModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || count > m_entries.size() - row) {
        return false;
    }
    this->count(row, row + count - 1, -1);
    beginRemoveRows({}, row, row + count - 1);
    m_entries.remove(row, count);
    endRemoveRows();
    tellAll();
    return true;
}

void ImportModel::count(int first, int last, int step)
{
    for (int row = first; row <= last; ++row) {
        const auto number = m_counts.insert(m_entries[row].identifier,
                                            m_counts.value(m_entries[row].identifier) + step);
        if (*number == 0) {
            m_counts.erase(number);
        }
    }
}

/// Marks all rows as changed: views repaint only visible ones, so finding the affected rows is not
/// worth it.
void ImportModel::tellAll()
{
    if (!m_entries.isEmpty()) {
        emit dataChanged(index(0), index(m_entries.size() - 1));
    }
    emit clashesChanged();
}

void ImportModel::follow(const QAbstractItemModel* list)
{
    if (!list || m_followed.contains(list)) {
        return;
    }
    m_followed.insert(list);
    connect(list, &QAbstractItemModel::rowsRemoved, this, &ImportModel::dropGone);
    connect(list, &QAbstractItemModel::modelReset, this, &ImportModel::dropGone);
    connect(list, &QObject::destroyed, this, [this](QObject* gone) {
        m_followed.remove(gone);
        dropGone();
    });
}

void ImportModel::dropGone()
{
    for (int last = m_entries.size() - 1; last >= 0; --last) {
        int first = last;
        while (first >= 0 && !m_entries[first].source.isValid()) {
            --first;
        }
        if (first < last) {
            removeRows(first + 1, last - first);
            last = first;
        }
    }
}
