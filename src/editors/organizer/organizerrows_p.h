#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QVector>

namespace Zorv {

class OrganizableObject;

/// The model of the organizer's view: the rows of an `OrganizableObject`, which may be null or die
/// at any time.
///
/// The list itself has other results for a move to the last place and for a drop after the last
/// row. Here rows end where the user put them. Each user action is one undo step and one layout
/// change for views, however many moves it takes.
class OrganizerRows : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setObject(OrganizableObject* object);
    OrganizableObject* object() const { return m_object; }

    /// Moves each of `rows` to the place with the same index in `targets`. Both lists ascend, and
    /// no row crosses another of them. Returns false without an undo step if all rows are in place
    /// already. Also returns false if another list is shown afterwards.
    bool place(const QVector<int>& rows, const QVector<int>& targets, const QString& title);

    /// Sorts the list.
    void organize();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /// Accepts only rows of this list, and rejects a payload from before rows were added, removed
    /// or moved.
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;

    /// Moves the rows before `row`, in their order. Always returns false: the rows are already in
    /// place, and true would make the view delete them.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// A drop has moved rows to these places.
    void dropped(const QVector<int>& rows);

private:
    class Batch;

    void watchRows();
    void watchMoves();
    void watchWhole();
    void beginBatch();
    void endBatch();
    void beginReset();
    void endReset();
    void moveRow(int from, int to);
    void rowsInBatchMoved(int first, int last, int destination);
    QVector<int> rowsOf(const QMimeData* data) const;
    void renew();

    QPointer<OrganizableObject> m_object;
    quint64 m_version = 0;  ///< version of the row order, unique in the process
    int m_batchDepth = 0;
    int m_batchCount = 0;                     ///< row count at the start of the batch
    QVector<int> m_batchOrder;                ///< for each row its old row; -1 for a new one
    QVector<QPersistentModelIndex> m_layout;  ///< the list's rows during its own layout change
};

}  // namespace Zorv
