#include "editors/import/importsource_p.h"

#include <QPainter>

namespace {

constexpr int MostPictures = 1000;  // cached pictures

}  // namespace

ImportSource::ImportSource(PictureOf pictureOf, int side, QObject* parent)
    : QAbstractListModel(parent), m_pictureOf(std::move(pictureOf)), m_side(side),
      m_pictures(MostPictures)
{
}

ImportSource::~ImportSource() = default;

void ImportSource::setLists(const QVector<QAbstractItemModel*>& lists)
{
    for (const QPointer<QAbstractItemModel>& list : qAsConst(m_lists)) {
        if (list) {
            list->disconnect(this);
        }
    }
    m_lists.clear();
    for (QAbstractItemModel* list : lists) {
        m_lists.append(list);
        connect(list, &QAbstractItemModel::rowsInserted, this, &ImportSource::read);
        connect(list, &QAbstractItemModel::rowsRemoved, this, &ImportSource::read);
        connect(list, &QAbstractItemModel::rowsMoved, this, &ImportSource::read);
        connect(list, &QAbstractItemModel::modelReset, this, &ImportSource::read);
        connect(list, &QAbstractItemModel::layoutChanged, this, &ImportSource::read);
        connect(list, &QAbstractItemModel::dataChanged, this, &ImportSource::repaint);
        connect(list, &QObject::destroyed, this, &ImportSource::read);
    }
    read();
}

void ImportSource::read()
{
    beginResetModel();
    m_rows.clear();
    m_pictures.clear();
    for (const QPointer<QAbstractItemModel>& list : qAsConst(m_lists)) {
        for (int row = 0; list && row < list->rowCount(); ++row) {
            m_rows.append(list->index(row, 0));
        }
    }
    endResetModel();
}

void ImportSource::repaint()
{
    m_pictures.clear();
    if (!m_rows.isEmpty()) {
        emit dataChanged(index(0), index(m_rows.size() - 1));
    }
}

int ImportSource::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant ImportSource::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return role == Qt::DecorationRole && m_side > 0 ? QVariant(picture(index.row()))
                                                    : m_rows[index.row()].data(role);
}

/// All pictures have one size, so that rows have one height and texts line up.
QPixmap ImportSource::picture(int row) const
{
    if (const QPixmap* known = m_pictures.object(row)) {
        return *known;
    }
    QPixmap result(m_side, m_side);
    result.fill(Qt::transparent);
    QImage image = m_pictureOf(m_rows[row]);
    if (image.width() > m_side || image.height() > m_side) {
        image = image.convertToFormat(QImage::Format_ARGB32)
                    .scaled(m_side, m_side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    if (!image.isNull()) {
        QPainter(&result).drawImage((m_side - image.width()) / 2, (m_side - image.height()) / 2,
                                    image);
    }
    m_pictures.insert(row, new QPixmap(result));
    return result;
}
