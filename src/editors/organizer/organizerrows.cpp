#include "editors/organizer/organizerrows_p.h"

#include "core/organizableobject.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

#include <algorithm>
#include <numeric>

// Moving n rows would send n move signals, and a long view would lay itself out for
// each. So while a Batch lives, row signals of the list are not forwarded.
// `m_batchOrder` records for each current row which row it was when the batch began.
// The outermost endBatch() then announces one layout change, with persistent indexes
// mapped through that table.

namespace Zorv {

namespace {

const QString& mimeType()
{
    static const QString type = QStringLiteral("application/x-zorv-organizer-rows");
    return type;
}

}  // namespace

/// Guard: while it lives, changes of the list are collected into one layout change.
class OrganizerRows::Batch
{
public:
    explicit Batch(OrganizerRows* rows) : m_rows(rows) { m_rows->beginBatch(); }
    ~Batch() { m_rows->endBatch(); }

private:
    Q_DISABLE_COPY(Batch)
    OrganizerRows* m_rows;
};

void OrganizerRows::beginBatch()
{
    if (m_batchDepth++ == 0) {
        emit layoutAboutToBeChanged();
        m_batchCount = rowCount();
        m_batchOrder.resize(m_batchCount);
        std::iota(m_batchOrder.begin(), m_batchOrder.end(), 0);
    }
}

void OrganizerRows::endBatch()
{
    if (--m_batchDepth > 0) {
        return;
    }
    QVector<int> rowNow(m_batchCount, -1);
    for (int row = 0; row < m_batchOrder.size(); ++row) {
        const int before = m_batchOrder.at(row);
        if (before >= 0) {
            rowNow[before] = row;
        }
    }
    const QModelIndexList before = persistentIndexList();
    QModelIndexList now;
    now.reserve(before.size());
    for (const QModelIndex& place : before) {
        now.append(index(rowNow.value(place.row(), -1)));
    }
    changePersistentIndexList(before, now);
    m_batchOrder.clear();
    renew();
    emit layoutChanged();
}

void OrganizerRows::beginReset()
{
    if (m_batchDepth == 0) {
        beginResetModel();
    }
}

void OrganizerRows::endReset()
{
    if (m_batchDepth > 0) {
        m_batchOrder.fill(-1, rowCount());
    } else {
        renew();
        endResetModel();
    }
}

void OrganizerRows::setObject(OrganizableObject* object)
{
    if (object == m_object) {
        return;
    }
    beginReset();
    if (m_object) {
        m_object->disconnect(this);
    }
    m_object = object;
    if (object) {
        watchRows();
        watchMoves();
        watchWhole();
    }
    endReset();
}

bool OrganizerRows::place(const QVector<int>& rows, const QVector<int>& targets,
                          const QString& title)
{
    if (!m_object || rows == targets) {
        return false;
    }
    const QPointer<OrganizableObject> changed = m_object;
    const Batch batch(this);
    changed->beginChange(title);
    // A receiver of the move signals may switch to another list, or to none.
    for (int i = rows.size() - 1; i >= 0 && m_object == changed; --i) {
        if (targets[i] > rows[i]) {
            moveRow(rows[i], targets[i]);
        }
    }
    for (int i = 0; i < rows.size() && m_object == changed; ++i) {
        if (targets[i] < rows[i]) {
            moveRow(rows[i], targets[i]);
        }
    }
    if (changed) {
        changed->endChange();
    }
    return m_object && m_object == changed;
}

/// A list treats a move to the last place in its own way. So move the row to the last
/// but one place, and then the last row in front of it.
void OrganizerRows::moveRow(int from, int to)
{
    const int last = rowCount() - 1;
    if (from < 0 || from > last || to < 0 || to > last) {
        return;
    }
    if (to < last) {
        m_object->move(unsigned(from), unsigned(to));
        return;
    }
    const QPointer<OrganizableObject> changed = m_object;
    if (from < last - 1) {
        changed->move(unsigned(from), unsigned(last - 1));
    }
    if (changed && m_object == changed) {
        changed->move(unsigned(last), unsigned(last - 1));
    }
}

void OrganizerRows::organize()
{
    if (m_object) {
        const Batch batch(this);
        m_object->autoOrganize();
    }
}

int OrganizerRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_object ? 0 : m_object->rowCount();
}

QVariant OrganizerRows::data(const QModelIndex& index, int role) const
{
    return index.isValid() && m_object ? m_object->data(m_object->index(index.row()), role)
                                       : QVariant();
}

Qt::ItemFlags OrganizerRows::flags(const QModelIndex& index) const
{
    return index.isValid() && m_object ? m_object->flags(m_object->index(index.row()))
                                       : Qt::ItemIsDropEnabled;
}

QStringList OrganizerRows::mimeTypes() const
{
    return {mimeType()};
}

QMimeData* OrganizerRows::mimeData(const QModelIndexList& indexes) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QCoreApplication::applicationPid() << m_version;
    for (const QModelIndex& index : indexes) {
        stream << qint32(index.row());
    }
    auto* data = new QMimeData;
    data->setData(mimeType(), bytes);
    return data;
}

QVector<int> OrganizerRows::rowsOf(const QMimeData* data) const
{
    QDataStream stream(data->data(mimeType()));
    qint64 process = 0;
    quint64 version = 0;
    stream >> process >> version;
    if (!m_object || process != QCoreApplication::applicationPid() || version != m_version) {
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

bool OrganizerRows::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                    const QModelIndex&) const
{
    return data && action == Qt::MoveAction && !rowsOf(data).isEmpty();
}

bool OrganizerRows::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    const QVector<int> rows = rowsOf(data);
    const int target = row < 0 ? rowCount() : std::min(row, rowCount());
    // Dragged rows above the target leave gaps, so the target moves up by their number.
    const auto above = std::lower_bound(rows.begin(), rows.end(), target) - rows.begin();
    QVector<int> targets(rows.size());
    std::iota(targets.begin(), targets.end(), target - int(above));
    if (place(rows, targets, tr("Move rows"))) {
        emit dropped(targets);
    }
    return false;
}

void OrganizerRows::watchRows()
{
    using Model = QAbstractItemModel;
    connect(m_object, &Model::rowsAboutToBeInserted, this,
            [this](const QModelIndex&, int first, int last) {
                if (m_batchDepth == 0) {
                    beginInsertRows({}, first, last);
                }
            });
    connect(m_object, &Model::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
        if (m_batchDepth > 0) {
            m_batchOrder.insert(std::min(first, m_batchOrder.size()), last - first + 1, -1);
        } else {
            renew();
            endInsertRows();
        }
    });
    connect(m_object, &Model::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) {
                if (m_batchDepth == 0) {
                    beginRemoveRows({}, first, last);
                }
            });
    connect(m_object, &Model::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        if (m_batchDepth > 0) {
            m_batchOrder = m_batchOrder.mid(0, first) + m_batchOrder.mid(last + 1);
        } else {
            renew();
            endRemoveRows();
        }
    });
}

void OrganizerRows::watchMoves()
{
    using Model = QAbstractItemModel;
    connect(m_object, &Model::rowsAboutToBeMoved, this,
            [this](const QModelIndex&, int first, int last, const QModelIndex&, int to) {
                if (m_batchDepth == 0) {
                    beginMoveRows({}, first, last, {}, to);
                }
            });
    connect(m_object, &Model::rowsMoved, this,
            [this](const QModelIndex&, int first, int last, const QModelIndex&, int to) {
                if (m_batchDepth > 0) {
                    rowsInBatchMoved(first, last, to);
                } else {
                    renew();
                    endMoveRows();
                }
            });
}

// If the list lost rows during the move, positions no longer match: give up mapping
// single rows.
void OrganizerRows::rowsInBatchMoved(int first, int last, int destination)
{
    if (std::max(last + 1, destination) > m_batchOrder.size()) {
        m_batchOrder.fill(-1, rowCount());
        return;
    }
    const auto begin = m_batchOrder.begin();
    if (destination > last) {
        std::rotate(begin + first, begin + last + 1, begin + destination);
    } else {
        std::rotate(begin + destination, begin + first, begin + last + 1);
    }
}

void OrganizerRows::watchWhole()
{
    using Model = QAbstractItemModel;
    connect(m_object, &Model::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
                if (m_batchDepth == 0) {
                    emit dataChanged(index(first.row()), index(last.row()), roles);
                }
            });
    connect(m_object, &Model::modelAboutToBeReset, this, &OrganizerRows::beginReset);
    connect(m_object, &Model::modelReset, this, &OrganizerRows::endReset);
    connect(m_object, &Model::layoutAboutToBeChanged, this, [this] {
        beginBatch();
        for (int row = 0; row < rowCount(); ++row) {
            m_layout.append(m_object->index(row));
        }
    });
    connect(m_object, &Model::layoutChanged, this, [this] {
        QVector<int> order(rowCount(), -1);
        for (int row = 0; row < m_layout.size(); ++row) {
            if (m_layout.at(row).isValid()) {
                order[m_layout.at(row).row()] = m_batchOrder.value(row, -1);
            }
        }
        m_batchOrder = order;
        m_layout.clear();
        endBatch();
    });
    // The list is already half destroyed: do not access its rows.
    connect(m_object, &QObject::destroyed, this, [this] {
        m_object.clear();
        beginReset();
        endReset();
    });
}

void OrganizerRows::renew()
{
    static quint64 versions = 0;
    m_version = ++versions;
}

}  // namespace Zorv
