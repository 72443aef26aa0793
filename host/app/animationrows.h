#pragma once

#include <QIdentityProxyModel>

namespace Family {
class FamilyAnimations;
}

namespace App {

/// The animations of a document, as rows that can be dragged within the list.
///
/// A drop behind the last row ends there, and all rows of a drop are one step of
/// undo. Rows are taken from the same list only: the row numbers of another one
/// would mean nothing here.
class AnimationRows : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    /// Null for none.
    void setAnimations(Family::FamilyAnimations* animations);
    Family::FamilyAnimations* animations() const { return m_animations; }

    /// As the animations tell it; the line of one that has no name at all.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;

    /// Always false: the rows are in place already, and true would make the view
    /// delete them.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// A drop has moved rows, which stand together from `row` on.
    void rowsDropped(int row, int count);

private:
    QVector<int> draggedRows(const QMimeData* data) const;

    Family::FamilyAnimations* m_animations = nullptr;
};

}  // namespace App
