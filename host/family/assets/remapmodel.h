#pragma once

#include "family/assets/assetid.h"
#include "family/assets/assetlist.h"

#include <QAbstractTableModel>

namespace Family {

/// A row of the remap table: a palette and its substitute.
struct RemapItem
{
    struct State
    {
        AssetId from;
        AssetId to;
        QByteArray record;  ///< original bytes, if broken in the file
    };
    State state;
    int row = -1;
};

using RemapModelBase = AssetList<QAbstractTableModel, RemapItem>;

/// The remap table of a collection: which palettes are shown instead of others.
///
/// The columns "From" and "To" hold palette identifiers. If several rows have the same "From", the
/// first counts; a row whose "To" does not exist has no effect. Views insert and remove rows and
/// edit cells; each edit is an undo step in the history of the collection.
class RemapModel final : public RemapModelBase
{
    Q_OBJECT

public:
    enum Column { From, To, ColumnCount };

    /// `changed` is called after each change.
    RemapModel(AssetHistory* history, std::function<void()> changed);

    /// The palette shown for `from`; `from` itself if no row names it.
    AssetId target(AssetId from) const;

    /// True if a row has that palette in either column, or in the column "From".
    bool names(AssetId id) const;
    bool remaps(AssetId from) const;

    /// Appends a row.
    void add(AssetId from, AssetId to);

    /// All rows that lead to one palette lead to another afterwards.
    void redirect(AssetId oldTarget, AssetId newTarget);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Takes "GROUP,NUMBER".
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// New rows map "1,1" to itself until they are edited.
    bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    /// For the collection: removes broken records; replaces everything, with undo or without.
    void removeBroken();
    void replace(const QVector<ItemPtr>& items);
    void reset(const QVector<ItemPtr>& items);

private:
    void listChanged(bool count) override;

    std::function<void()> m_changed;
};

}  // namespace Family
