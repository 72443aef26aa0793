#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QVector>

#include <functional>

/// The rows of several lists as one, for views, with pictures that are made as they come into
/// sight.
///
/// Lists may change and die. What a row shows is that of its list, but for the picture.
class ImportSource : public QAbstractListModel
{
    Q_OBJECT

public:
    using PictureOf = std::function<QImage(const QModelIndex& index)>;

    /// Pictures are at most `side` pixels wide and high; 0 for none.
    ImportSource(PictureOf pictureOf, int side, QObject* parent = nullptr);
    ~ImportSource() override;

    void setLists(const QVector<QAbstractItemModel*>& lists);

    /// The row of its list.
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
