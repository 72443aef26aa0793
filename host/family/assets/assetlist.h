#pragma once

#include "family/assets/assethistory.h"

#include <QAbstractItemModel>
#include <QVector>

#include <algorithm>
#include <memory>

namespace Family {

/// A list model of records with undo for every change: the common base of sprites, palettes, sounds
/// and remaps.
///
/// `Base` is the base class, derived from `QAbstractItemModel`. The address of an `Item` is stable
/// as long as the list or an undo step knows it. It has two members: `State state`, everything in
/// it that can change, and `int row`, its row, or -1 outside of the list.
///
/// Only the four operations below change the list. They record themselves in the history, call
/// `listChanged()`, and notify views at once.
template <class Base, class Item>
class AssetList : public Base
{
public:
    using ItemPtr = std::shared_ptr<Item>;
    using State = typename Item::State;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_items.size();
    }

    const QVector<ItemPtr>& items() const { return m_items; }

    /// Null if out of range.
    Item* item(int row) const
    {
        return row < 0 || row >= m_items.size() ? nullptr : m_items[row].get();
    }

protected:
    /// The arguments after `history` go to `Base`.
    template <class... Args>
    explicit AssetList(AssetHistory* history, Args&&... args)
        : Base(std::forward<Args>(args)...), m_history(history)
    {
    }

    /// Inserts items before a row; the row count appends.
    void insertItems(int row, const QVector<ItemPtr>& items)
    {
        if (!items.isEmpty()) {
            perform({this, Edit::Insert, row, items.size(), items});
        }
    }

    /// Removes `count` items, beginning at a row.
    void removeItems(int row, int count)
    {
        if (count > 0) {
            perform({this, Edit::Remove, row, count, m_items.mid(row, count)});
        }
    }

    /// Changes the order; `order` lists the current rows in their new order.
    void reorderItems(const QVector<int>& order)
    {
        if (!std::is_sorted(order.begin(), order.end())) {
            Edit edit{this, Edit::Reorder};
            edit.order = order;
            perform(std::move(edit));
        }
    }

    /// Moves one item so that its new row is `to`.
    void moveItem(int from, int to)
    {
        if (from != to && item(from) && item(to)) {
            perform({this, Edit::Move, from, to});
        }
    }

    /// Changes the state of an item. Without undo if the item is in no list.
    void changeItem(Item* item, const State& state)
    {
        if (item->row < 0) {
            item->state = state;
            return;
        }
        Edit edit{this, Edit::Change, item->row};
        edit.state = state;
        perform(std::move(edit));
    }

    /// Replaces everything without undo, after reading a file.
    void resetItems(QVector<ItemPtr> items)
    {
        this->beginResetModel();
        dropItems();
        m_items = std::move(items);
        setRows(0, m_items.size());
        for (const ItemPtr& item : qAsConst(m_items)) {
            stateCame(item->state);
        }
        this->endResetModel();
        listChanged(true);
    }

    /// Releases all items without notifying views; for a list that is being destroyed or reset.
    void dropItems()
    {
        for (const ItemPtr& item : m_items) {
            item->row = -1;
            stateWent(item->state);
            itemWent(*item);
        }
        m_items.clear();
    }

    /// Called after each change, undo included; `count` is true if rows were added or removed.
    virtual void listChanged(bool count) = 0;

    /// For lists that keep counts: a state was added or removed.
    virtual void stateCame(const State&) {}
    virtual void stateWent(const State&) {}

    /// An item was removed from the list; undo may restore it.
    virtual void itemWent(Item&) {}

    /// Notifies views of all columns of these rows.
    void tellRows(int first, int last)
    {
        const QAbstractItemModel& model = *this;
        emit this->dataChanged(this->index(first, 0),
                               this->index(last, model.columnCount(QModelIndex()) - 1));
    }

    AssetHistory& history() const { return *m_history; }

private:
    struct Edit final : AssetHistory::Change
    {
        enum Kind { Insert, Remove, Reorder, Move, Change };

        Edit(AssetList* owner, Kind what, int row = 0, int number = 0, QVector<ItemPtr> rows = {})
            : list(owner), kind(what), first(row), second(number), items(std::move(rows))
        {
        }
        void undo() override { list->apply(*this, true); }
        void redo() override { list->apply(*this, false); }

        AssetList* list;
        Kind kind;
        int first;   // row, or old row of a move
        int second;  // count, or new row of a move
        QVector<ItemPtr> items;
        QVector<int> order;
        State state{};  // new state before applying, old one afterwards
    };

    void perform(Edit&& edit)
    {
        apply(edit, false);
        m_history->record(std::make_unique<Edit>(std::move(edit)));
    }

    void apply(Edit& edit, bool back)
    {
        switch (edit.kind) {
        case Edit::Insert:
        case Edit::Remove:
            if ((edit.kind == Edit::Insert) != back) {
                doInsert(edit.first, edit.items);
            } else {
                doRemove(edit.first, edit.second);
            }
            break;
        case Edit::Reorder:
            doReorder(edit.order, back);
            break;
        case Edit::Move:
            back ? doMove(edit.second, edit.first) : doMove(edit.first, edit.second);
            break;
        case Edit::Change:
            stateWent(m_items[edit.first]->state);
            std::swap(m_items[edit.first]->state, edit.state);
            stateCame(m_items[edit.first]->state);
            tellRows(edit.first, edit.first);
            listChanged(false);
            break;
        }
    }

    void doInsert(int row, const QVector<ItemPtr>& items)
    {
        this->beginInsertRows({}, row, row + items.size() - 1);
        if (row == m_items.size()) {
            m_items += items;
        } else {
            m_items = m_items.mid(0, row) + items + m_items.mid(row);
        }
        setRows(row, m_items.size());
        for (const ItemPtr& item : items) {
            stateCame(item->state);
        }
        this->endInsertRows();
        listChanged(true);
    }

    void doRemove(int row, int count)
    {
        this->beginRemoveRows({}, row, row + count - 1);
        for (int i = row; i < row + count; ++i) {
            m_items[i]->row = -1;
            stateWent(m_items[i]->state);
            itemWent(*m_items[i]);
        }
        m_items.remove(row, count);
        setRows(row, m_items.size());
        this->endRemoveRows();
        listChanged(true);
    }

    void doMove(int from, int to)
    {
        this->beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        m_items.move(from, to);
        setRows(std::min(from, to), std::max(from, to) + 1);
        this->endMoveRows();
        listChanged(false);
    }

    void doReorder(const QVector<int>& order, bool back)
    {
        emit this->layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
        const QVector<ItemPtr> old = m_items;
        for (int i = 0; i < order.size(); ++i) {
            back ? m_items[order[i]] = old[i] : m_items[i] = old[order[i]];
        }
        setRows(0, m_items.size());
        const QModelIndexList indexes = this->persistentIndexList();
        QModelIndexList targets;
        for (const QModelIndex& index : indexes) {
            targets.append(this->index(old[index.row()]->row, index.column()));
        }
        this->changePersistentIndexList(indexes, targets);
        emit this->layoutChanged({}, QAbstractItemModel::VerticalSortHint);
        listChanged(false);
    }

    void setRows(int first, int end)
    {
        for (int i = first; i < end; ++i) {
            m_items[i]->row = i;
        }
    }

    QVector<ItemPtr> m_items;
    AssetHistory* m_history;
};

}  // namespace Family
