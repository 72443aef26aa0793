#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QVector>

#include <functional>

/// Joins the rows of several lists for views. Pictures are created when they become visible.
///
/// Lists may change and die. A row shows the data of its list, except for the picture.
class ImportSource : public QAbstractListModel
{
    Q_OBJECT

public:
    using PictureOf = std::function<QImage(const QModelIndex& index)>;

    /// Pictures are at most `side` pixels wide and high; 0 for no pictures.
    ImportSource(PictureOf pictureOf, int side, QObject* parent = nullptr);
    ~ImportSource() override;

    void setLists(const QVector<QAbstractItemModel*>& lists);

    /// The index in the original list.
    QModelIndex sourceOf(int row) const { return m_rows.value(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    void read();
    void repaint();
    QPixmap picture(int row) const;

    PictureOf m_pictureOf;
    int m_side;
    QVector<QPointer<QAbstractItemModel>> m_lists;
    QVector<QPersistentModelIndex> m_rows;
    mutable QCache<int, QPixmap> m_pictures;
};
