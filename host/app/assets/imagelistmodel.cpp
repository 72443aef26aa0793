#include "app/assets/imagelistmodel.h"

#include "app/assets/backgroundwork.h"
#include "app/look/theme.h"

#include <zorv/core/interface.h>

#include <QPainter>

// Each image has a key that never changes. Thumbnails are stored under it, so they stay valid when
// rows are added or removed, and a late result of a worker thread is dropped if its key no longer
// exists. `data()` requests a thumbnail the first time a view asks for it, and returns an empty one
// until it has arrived.

namespace App {

using Operations::ImageNumber;
using Operations::ImportImage;

namespace {

constexpr int Side = 56;
constexpr int MaxThumbnails = 4096;  // about 50 MiB; others are read again when they become visible

/// A thumbnail, centred; pictures smaller than `side` are not enlarged.
QImage smallOf(const QImage& picture, int side)
{
    QImage small = picture;
    if (qMax(small.width(), small.height()) > side) {
        small = small.convertToFormat(QImage::Format_ARGB32)
                    .scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    QImage whole(side, side, QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    painter.drawImage((side - small.width()) / 2, (side - small.height()) / 2, small);
    return whole;
}

}  // namespace

ImageListModel::ImageListModel(QObject* parent)
    : QAbstractListModel(parent), m_work(new BackgroundWork(this))
{
}

ImageListModel::~ImageListModel() = default;

int ImageListModel::side()
{
    return Zorv::Interface::instance()->pixels(Side);
}

void ImageListModel::reset(const QVector<ImportImage>& images, const QVector<quint64>& keys)
{
    beginResetModel();
    m_images = images;
    m_keys = keys;
    m_numbers = QVector<ImageNumber>(images.size());
    endResetModel();
}

void ImageListModel::append(const QVector<ImportImage>& images)
{
    replace(m_images.size(), images);
}

void ImageListModel::replace(int row, const QVector<ImportImage>& images)
{
    QVector<quint64> keys;
    for (int i = 0; i < images.size(); ++i) {
        keys.append(m_nextKey++);
    }
    reset(m_images.mid(0, row) + images + m_images.mid(row + 1),
          m_keys.mid(0, row) + keys + m_keys.mid(row + 1));
}

void ImageListModel::remove(const QSet<int>& rows)
{
    QVector<ImportImage> images;
    QVector<quint64> keys;
    for (int i = 0; i < m_images.size(); ++i) {
        if (!rows.contains(i)) {
            images.append(m_images.at(i));
            keys.append(m_keys.at(i));
        }
    }
    reset(images, keys);
}

void ImageListModel::setNumbers(const QVector<ImageNumber>& numbers)
{
    m_numbers = numbers;
    if (!m_images.isEmpty()) {
        emit dataChanged(index(0), index(m_images.size() - 1));
    }
}

int ImageListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_images.size();
}

QVariant ImageListModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    if (row < 0 || row >= m_images.size() || row >= m_numbers.size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString(m_images.at(row).name + QLatin1Char('\n') + stateText(row));
    case Qt::DecorationRole:
        return thumbnail(row);
    case Qt::ToolTipRole: {
        const QString told = Operations::tellNumber(m_images, m_numbers, row);
        return told.isEmpty() ? m_images.at(row).file : told;
    }
    case Qt::ForegroundRole:
        return m_numbers.at(row).isFault() ? QVariant(Theme::colour(Theme::ErrorText)) : QVariant();
    default:
        return {};
    }
}

QString ImageListModel::stateText(int row) const
{
    const ImageNumber& number = m_numbers.at(row);
    const QString id = number.target.id.text();
    switch (number.state) {
    case ImageNumber::Counted:
        return tr("%1, the next free number: the name tells none").arg(id);
    case ImageNumber::Moved:
        return tr("%1, the next free number: that of the name is taken").arg(id);
    case ImageNumber::Replaces:
        return tr("%1, in place of the sprite there").arg(id);
    case ImageNumber::Twin:
        return tr("%1, the same picture as '%2'").arg(id, m_images.at(number.other).name);
    case ImageNumber::NoNumber:
        return tr("the name tells no number");
    case ImageNumber::Taken:
        return tr("%1 is taken").arg(id);
    case ImageNumber::Twice:
        return tr("%1 is taken by '%2'").arg(id, m_images.at(number.other).name);
    case ImageNumber::NoRoom:
        return tr("no number is left in the group");
    case ImageNumber::Fine:
        break;
    }
    return id;
}

QPixmap ImageListModel::thumbnail(int row) const
{
    const quint64 key = m_keys.at(row);
    const auto found = m_thumbnails.constFind(key);
    if (found != m_thumbnails.constEnd()) {
        return *found;
    }
    if (!m_asked.contains(key)) {
        m_asked.insert(key);
        auto* const self = const_cast<ImageListModel*>(this);
        m_work->ask([image = m_images.at(row), key, self, side = side()] {
            const Operations::ImportPixels read = Operations::readPixels(image, false);
            const QImage small = read.image.isNull() ? QImage() : smallOf(read.image, side);
            return BackgroundWork::Then([self, key, small] { self->take(key, small); });
        });
    }
    // The placeholder has the size of a thumbnail, so that rows keep their height.
    QPixmap none(side(), side());
    none.fill(Qt::transparent);
    return none;
}

void ImageListModel::take(quint64 key, const QImage& picture)
{
    if (m_thumbnails.size() >= MaxThumbnails) {
        m_thumbnails.clear();
        m_asked.clear();
    }
    const int row = m_keys.indexOf(key);
    if (row < 0) {
        return;
    }
    QPixmap pixmap = QPixmap::fromImage(picture);
    if (pixmap.isNull()) {
        pixmap = QPixmap(side(), side());
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(Theme::colour(Theme::ErrorText));
        painter.drawText(pixmap.rect(), int(Qt::AlignCenter), QStringLiteral("?"));
    }
    m_thumbnails.insert(key, pixmap);
    emit dataChanged(index(row), index(row), {Qt::DecorationRole});
}

}  // namespace App
