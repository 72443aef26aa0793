#pragma once

#include "operations/media/imagenumbers.h"

#include <QAbstractListModel>
#include <QPixmap>
#include <QSet>

namespace App {

class BackgroundWork;

/// The images to import, as thumbnails with their sprite numbers. A worker thread reads a picture
/// only when its row is first seen, so ten thousand rows cost no more than the visible ones.
class ImageListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ImageListModel(QObject* parent = nullptr);
    ~ImageListModel() override;

    const QVector<Operations::ImportImage>& images() const { return m_images; }
    const QVector<Operations::ImageNumber>& numbers() const { return m_numbers; }

    void append(const QVector<Operations::ImportImage>& images);

    /// Replaces one image by others.
    void replace(int row, const QVector<Operations::ImportImage>& images);
    void remove(const QSet<int>& rows);

    /// Sets the numbers of the current images, in their order.
    void setNumbers(const QVector<Operations::ImageNumber>& numbers);

    /// The side length of a thumbnail, in pixels of the window.
    static int side();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    void reset(const QVector<Operations::ImportImage>& images, const QVector<quint64>& keys);
    QPixmap thumbnail(int row) const;
    void take(quint64 key, const QImage& picture);
    QString stateText(int row) const;

    QVector<Operations::ImportImage> m_images;
    QVector<Operations::ImageNumber> m_numbers;
    QVector<quint64> m_keys;  // keys of the thumbnails; they stay valid when rows move
    quint64 m_nextKey = 0;
    mutable QHash<quint64, QPixmap> m_thumbnails;
    mutable QSet<quint64> m_asked;
    BackgroundWork* m_work;
};

}  // namespace App
