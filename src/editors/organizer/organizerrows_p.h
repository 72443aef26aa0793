#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QVector>

namespace Zorv {

class OrganizableObject;

/// What the organizer's view shows of a list: the rows of an `OrganizableObject`, which may be
/// none, or die at any time.
///
/// A list keeps its own results for a move to the last place and for a drop behind the last
/// row; here both end where the person let go. What one act of the person moves is one step of
/// undo, and one change of layout for views, however many rows it takes.
class OrganizerRows : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setObject(OrganizableObject* object);
    OrganizableObject* object() const { return m_object; }

    /// Brings each of `rows` to the place with the same number in `targets`. Both ascend, and
    /// no row crosses another of them. False, and no step of undo, if all are there; false
    /// also if another list is shown by then.
    bool place(const QVector<int>& rows, const QVector<int>& targets, const QString& title);

    /// Sorts the list.
    void organize();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /// Takes rows of this list alone, and no payload from before rows came, went or moved.
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;

    /// Puts the rows in front of `row`, in their order. Always false: they are in place
    /// already, and true would make a view delete them.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// A drop has put rows there.
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
    quint64 m_version = 0;  ///< of the order of rows, unique in the process
    int m_batchDepth = 0;
    int m_batchCount = 0;       ///< rows when the batch began
    QVector<int> m_batchOrder;  ///< for each row now, the row that it was; -1 for a new one
    QVector<QPersistentModelIndex> m_layout;  ///< rows of the list while it is laid out again
};

}  // namespace Zorv
