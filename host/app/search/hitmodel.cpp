#include "app/search/hitmodel.h"

#include <algorithm>

// Top-level rows are files, sorted by path; their children are the hits. The index of a hit points
// to its `File`, the index of a file has no pointer. So a hit finds its parent without a search,
// and files can move to other rows.
//
// New results of a file are compared with the old ones from both ends, so that unchanged hits keep
// their rows and check boxes.

namespace App {

using Operations::FileHits;
using Operations::FindHit;

/// Model indexes point to it, so its address must not change.
struct HitModel::File
{
    FileHits found;
    QVector<bool> isChosen;

    int chosenCount() const { return isChosen.count(true); }
    Qt::CheckState state() const
    {
        const int count = chosenCount();
        return count == 0                 ? Qt::Unchecked
               : count == isChosen.size() ? Qt::Checked
                                          : Qt::PartiallyChecked;
    }
};

namespace {

/// The same place, even if its line number changed.
bool isSame(const FindHit& a, const FindHit& b)
{
    return a.length == b.length && a.column == b.column && a.shown == b.shown;
}

}  // namespace

HitModel::HitModel(QObject* parent) : QAbstractItemModel(parent) {}

HitModel::~HitModel() = default;

void HitModel::clear()
{
    beginResetModel();
    m_files.clear();
    m_hitCount = 0;
    endResetModel();
}

HitModel::Files::const_iterator HitModel::find(const QString& path) const
{
    return std::lower_bound(m_files.begin(), m_files.end(), path,
                            [](const std::unique_ptr<File>& file, const QString& wanted) {
                                return file->found.path < wanted;
                            });
}

int HitModel::rowOf(const File* file) const
{
    return int(find(file->found.path) - m_files.begin());
}

void HitModel::take(const QVector<FileHits>& found)
{
    const bool isBehindAll =
        !found.isEmpty() &&
        std::is_sorted(found.begin(), found.end(),
                       [](const FileHits& a, const FileHits& b) { return a.path < b.path; }) &&
        (m_files.empty() || m_files.back()->found.path < found.first().path);
    if (isBehindAll) {
        append(found);
        return;
    }
    for (const FileHits& each : found) {
        takeOne(each);
    }
}

/// Appends many rows at once: for a view, a hundred rows cost as much as one.
void HitModel::append(const QVector<FileHits>& found)
{
    Files files;
    int count = 0;
    for (const FileHits& each : found) {
        if (!each.hits.isEmpty()) {
            files.push_back(
                std::make_unique<File>(File{each, QVector<bool>(each.hits.size(), true)}));
            count += each.hits.size();
        }
    }
    if (files.empty()) {
        return;
    }
    beginInsertRows({}, fileCount(), fileCount() + int(files.size()) - 1);
    std::move(files.begin(), files.end(), std::back_inserter(m_files));
    m_hitCount += count;
    endInsertRows();
}

void HitModel::takeOne(const FileHits& found)
{
    const auto place = find(found.path);
    const int row = int(place - m_files.begin());
    const bool isThere = place != m_files.end() && (*place)->found.path == found.path;
    if (isThere && found.hits.isEmpty()) {
        beginRemoveRows({}, row, row);
        m_hitCount -= (*place)->found.hits.size();
        m_files.erase(place);
        endRemoveRows();
    } else if (isThere) {
        replace(row, found);
    } else if (!found.hits.isEmpty()) {
        beginInsertRows({}, row, row);
        m_files.insert(place,
                       std::make_unique<File>(File{found, QVector<bool>(found.hits.size(), true)}));
        m_hitCount += found.hits.size();
        endInsertRows();
    }
}

/// Keeps the equal rows at both ends; inserts or removes the rest.
void HitModel::replace(int row, const FileHits& found)
{
    File* file = m_files[size_t(row)].get();
    const QVector<FindHit> old = file->found.hits;
    const int most = std::min(old.size(), found.hits.size());
    int head = 0;
    while (head < most && isSame(old[head], found.hits[head])) {
        ++head;
    }
    int tail = 0;
    while (tail < most - head &&
           isSame(old[old.size() - 1 - tail], found.hits[found.hits.size() - 1 - tail])) {
        ++tail;
    }
    const QModelIndex parent = index(row, 0);
    const int kept = most - tail;
    const int oldEnd = old.size() - tail;
    const int newEnd = found.hits.size() - tail;
    if (oldEnd > kept) {
        beginRemoveRows(parent, kept, oldEnd - 1);
        file->found.hits.remove(kept, oldEnd - kept);
        file->isChosen.remove(kept, oldEnd - kept);
        endRemoveRows();
    } else if (newEnd > kept) {
        beginInsertRows(parent, kept, newEnd - 1);
        file->found.hits = found.hits;
        file->isChosen.insert(kept, newEnd - kept, true);
        endInsertRows();
    }
    file->found = found;
    m_hitCount += found.hits.size() - old.size();
    emit dataChanged(index(0, 0, parent), index(found.hits.size() - 1, 0, parent));
    emit dataChanged(parent, parent);
}

void HitModel::setCheckable(bool isCheckable)
{
    if (isCheckable != m_isCheckable) {
        emit layoutAboutToBeChanged();
        m_isCheckable = isCheckable;
        emit layoutChanged();
    }
}

HitModel::File* HitModel::fileOf(const QModelIndex& index) const
{
    return !index.isValid()          ? nullptr
           : index.internalPointer() ? static_cast<File*>(index.internalPointer())
                                     : m_files[size_t(index.row())].get();
}

const FindHit* HitModel::hitAt(const QModelIndex& index) const
{
    return index.isValid() && index.internalPointer() ? &fileOf(index)->found.hits.at(index.row())
                                                      : nullptr;
}

QString HitModel::pathAt(const QModelIndex& index) const
{
    const File* file = fileOf(index);
    return file ? file->found.path : QString();
}

QVector<FileHits> HitModel::chosen() const
{
    QVector<FileHits> all;
    for (const std::unique_ptr<File>& file : m_files) {
        FileHits some;
        some.path = file->found.path;
        for (int i = 0; i < file->isChosen.size(); ++i) {
            if (file->isChosen.at(i)) {
                some.hits.append(file->found.hits.at(i));
            }
        }
        if (!some.hits.isEmpty()) {
            all.append(some);
        }
    }
    return all;
}

int HitModel::chosenCount() const
{
    int count = 0;
    for (const std::unique_ptr<File>& file : m_files) {
        count += file->chosenCount();
    }
    return count;
}

QModelIndex HitModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column != 0 || row >= rowCount(parent)) {
        return {};
    }
    return parent.isValid() ? createIndex(row, 0, fileOf(parent)) : createIndex(row, 0);
}

QModelIndex HitModel::parent(const QModelIndex& index) const
{
    return hitAt(index) ? createIndex(rowOf(fileOf(index)), 0) : QModelIndex();
}

int HitModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return fileCount();
    }
    return parent.internalPointer() || parent.column() != 0 ? 0 : fileOf(parent)->found.hits.size();
}

int HitModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant HitModel::data(const QModelIndex& index, int role) const
{
    const File* file = fileOf(index);
    if (!file) {
        return {};
    }
    const FindHit* hit = hitAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return hit ? QStringLiteral("%1: %2").arg(QString::number(hit->line + 1), hit->shown)
                   : QStringLiteral("%1 (%2%3)")
                         .arg(QDir::toNativeSeparators(m_folder.relativeFilePath(file->found.path)),
                              QString::number(file->found.hits.size()),
                              file->found.isCut ? QStringLiteral("+") : QString());
    case Qt::CheckStateRole:
        return !m_isCheckable ? QVariant()
               : !hit         ? QVariant(file->state())
                      : QVariant(file->isChosen.at(index.row()) ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool HitModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    File* file = fileOf(index);
    if (!file || role != Qt::CheckStateRole) {
        return false;
    }
    const bool isChosen = value.toInt() == Qt::Checked;
    if (hitAt(index)) {
        file->isChosen[index.row()] = isChosen;
        emit dataChanged(index, index, {Qt::CheckStateRole});
        emit dataChanged(index.parent(), index.parent(), {Qt::CheckStateRole});
    } else {
        file->isChosen.fill(isChosen);
        emit dataChanged(index, index, {Qt::CheckStateRole});
        emit dataChanged(this->index(0, 0, index), this->index(file->isChosen.size() - 1, 0, index),
                         {Qt::CheckStateRole});
    }
    return true;
}

Qt::ItemFlags HitModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags all = QAbstractItemModel::flags(index);
    if (index.isValid() && m_isCheckable) {
        all |= Qt::ItemIsUserCheckable;
    }
    return hitAt(index) ? all | Qt::ItemNeverHasChildren : all;
}

}  // namespace App
