#include "family/assets/remapmodel.h"

#include <algorithm>

namespace Family {

RemapModel::RemapModel(AssetHistory* undo, std::function<void()> changed)
    : RemapModelBase(undo), m_changed(std::move(changed))
{
}

AssetId RemapModel::target(AssetId from) const
{
    for (const ItemPtr& row : items()) {
        if (row->state.from == from && row->state.record.isEmpty()) {
            return row->state.to;
        }
    }
    return from;
}

bool RemapModel::names(AssetId id) const
{
    return std::any_of(items().begin(), items().end(), [id](const ItemPtr& row) {
        return row->state.from == id || row->state.to == id;
    });
}

bool RemapModel::remaps(AssetId from) const
{
    return std::any_of(items().begin(), items().end(),
                       [from](const ItemPtr& row) { return row->state.from == from; });
}

void RemapModel::add(AssetId from, AssetId to)
{
    auto row = std::make_shared<RemapItem>();
    row->state = {from, to, {}};
    const AssetHistory::Step step(history(), tr("Remap palettes"));
    insertItems(rowCount(), {row});
}

void RemapModel::redirect(AssetId oldTarget, AssetId newTarget)
{
    for (const ItemPtr& row : items()) {
        if (row->state.to == oldTarget && oldTarget != newTarget) {
            changeItem(row.get(), {row->state.from, newTarget, {}});
        }
    }
}

int RemapModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RemapModel::data(const QModelIndex& index, int role) const
{
    const RemapItem* row = index.model() == this ? item(index.row()) : nullptr;
    if (!row) {
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return (index.column() == From ? row->state.from : row->state.to).text();
    }
    return role == Qt::ToolTipRole && !row->state.record.isEmpty() ? tr("Broken in the file")
                                                                   : QVariant();
}

QVariant RemapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return RemapModelBase::headerData(section, orientation, role);
    }
    return section == From ? tr("Palette") : tr("Shown as");
}

Qt::ItemFlags RemapModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = RemapModelBase::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

bool RemapModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    RemapItem* row = index.model() == this ? item(index.row()) : nullptr;
    if (!row || role != Qt::EditRole) {
        return false;
    }
    RemapItem::State state = row->state;
    AssetId& id = index.column() == From ? state.from : state.to;
    if (!AssetId::read(value, &id)) {
        return false;
    }
    state.record.clear();
    const AssetHistory::Step step(history(), tr("Remap palettes"));
    changeItem(row, state);
    return true;
}

bool RemapModel::insertRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || row > rowCount() || count < 1) {
        return false;
    }
    QVector<ItemPtr> added;
    for (int i = 0; i < count; ++i) {
        added.append(std::make_shared<RemapItem>());
        added.last()->state = {{1, 1}, {1, 1}, {}};
    }
    const AssetHistory::Step step(history(), tr("Remap palettes"));
    insertItems(row, added);
    return true;
}

bool RemapModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount()) {
        return false;
    }
    const AssetHistory::Step step(history(), tr("Remap palettes"));
    removeItems(row, count);
    return true;
}

void RemapModel::removeBroken()
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!item(row)->state.record.isEmpty()) {
            removeItems(row, 1);
        }
    }
}

void RemapModel::replace(const QVector<ItemPtr>& rows)
{
    removeItems(0, rowCount());
    insertItems(0, rows);
}

void RemapModel::reset(const QVector<ItemPtr>& rows)
{
    resetItems(rows);
}

void RemapModel::listChanged(bool)
{
    m_changed();
}

}  // namespace Family
