#pragma once

#include "family/assets/assetid.h"
#include "family/assets/assetlist.h"

#include <QAbstractTableModel>

namespace Family {

/// A row of the remap table: a palette, and the one that stands in for it.
struct RemapItem
{
    struct State
    {
        AssetId from;
        AssetId to;
        QByteArray record;  ///< as the file has it, if it is broken there
    };
    State state;
    int row = -1;
};

using RemapModelBase = AssetList<QAbstractTableModel, RemapItem>;

/// The remap table of a collection: what sprites with one palette are shown with instead.
///
/// Columns "From" and "To" hold identifiers of palettes; of several rows for one palette the first
/// counts, and a row that leads to no palette does nothing. Views insert and remove rows and edit
/// cells; each is a step of undo in that of the collection.
class RemapModel final : public RemapModelBase
{
    Q_OBJECT

public:
    enum Column { From, To, ColumnCount };

    /// `changed` is called after each change.
    RemapModel(AssetHistory* history, std::function<void()> changed);

    /// Where sprites of a palette lead; `from` itself if no row names it.
    AssetId target(AssetId from) const;

    /// True if a row names that palette, on either side or on that of `From`.
    bool names(AssetId id) const;
    bool remaps(AssetId from) const;

    /// Appends a row.
    void add(AssetId from, AssetId to);

    /// Every row that leads to one palette leads to another.
    void redirect(AssetId oldTarget, AssetId newTarget);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Takes "GROUP,NUMBER".
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// New rows lead from "1,1" to itself, until they are edited.
    bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    /// For the collection: removes broken records; replaces everything, with undo and without.
    void removeBroken();
    void replace(const QVector<ItemPtr>& items);
    void reset(const QVector<ItemPtr>& items);

private:
    void listChanged(bool count) override;

    std::function<void()> m_changed;
};

}  // namespace Family
