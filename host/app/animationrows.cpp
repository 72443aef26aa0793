#include "app/animationrows.h"

#include "app/undostep.h"
#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

#include <algorithm>

namespace App {

namespace {

const QString& mimeType()
{
    static const QString type = QStringLiteral("application/x-zorv-animation-rows");
    return type;
}

}  // namespace

void AnimationRows::setAnimations(Family::FamilyAnimations* animations)
{
    m_animations = animations;
    setSourceModel(animations);
}

QVariant AnimationRows::data(const QModelIndex& index, int role) const
{
    QVariant value = QIdentityProxyModel::data(index, role);
    if (role != Qt::DisplayRole || !value.isValid() || !value.toString().isEmpty()) {
        return value;
    }
    return m_animations->animation(index.row())->block().text().trimmed();
}

QStringList AnimationRows::mimeTypes() const
{
    return {mimeType()};
}

QMimeData* AnimationRows::mimeData(const QModelIndexList& indexes) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QCoreApplication::applicationPid() << quint64(quintptr(m_animations));
    for (const QModelIndex& index : indexes) {
        stream << qint32(index.row());
    }
    auto* data = new QMimeData;
    data->setData(mimeType(), bytes);
    return data;
}

bool AnimationRows::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                    const QModelIndex&) const
{
    return data && action == Qt::MoveAction && !draggedRows(data).isEmpty();
}

bool AnimationRows::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    const QVector<int> rows = draggedRows(data);
    const int target = row < 0 ? rowCount() : row;
    // Rows above the target move it up when they go; each is put behind the one before.
    const auto above = int(std::count_if(rows.begin(), rows.end(),
                                         [target](int dragged) { return dragged < target; }));
    const int first = target - above;
    {
        const UndoStep step(m_animations, rows.first(), tr("Move animations"));
        for (int i = above - 1; i >= 0; --i) {
            moveAnimation(m_animations, rows[i], first + i);
        }
        for (int i = above; i < rows.size(); ++i) {
            moveAnimation(m_animations, rows[i], first + i);
        }
    }
    emit rowsDropped(first, rows.size());
    return false;
}

QVector<int> AnimationRows::draggedRows(const QMimeData* data) const
{
    QDataStream stream(data->data(mimeType()));
    qint64 process = 0;
    quint64 list = 0;
    stream >> process >> list;
    if (!m_animations || process != QCoreApplication::applicationPid() ||
        list != quintptr(m_animations)) {
        return {};
    }
    QVector<int> rows;
    while (!stream.atEnd()) {
        qint32 row = -1;
        stream >> row;
        if (row >= 0 && row < rowCount()) {
            rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

}  // namespace App
