#include "cache/diskcache.h"

#include <QVector>

// The file holds the stored bytes of the items without gaps. If an item gets a different size,
// `makeRoom()` moves everything behind it, in large blocks, and adjusts the offsets of those items.
// Before anything moves, the file is extended to its new size. So if the disk is full, this fails
// while all items are still intact, and the new bytes stay in memory (`DiskItem::kept`).

namespace Zorv {

namespace {

const qint64 BlockSize = 128 * 1024 * 1024;

}  // namespace

DiskCache::DiskCache() : m_blockBuffer(new char[BlockSize])
{
    QIODevice& file = m_tempFile;
    file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

DiskCache::~DiskCache() = default;

StreamCache::Type DiskCache::type() const
{
    return DiskStore;
}

bool DiskCache::isOpen() const
{
    return m_tempFile.isOpen();
}

QByteArray DiskCache::rawData(PackedCache::Item* item) const
{
    const auto* own = static_cast<DiskItem*>(item);
    if (own->offset < 0) {
        return own->kept;
    }
    return isOpen() && m_tempFile.seek(own->offset) ? m_tempFile.read(own->size) : QByteArray();
}

PackedCache::Item* DiskCache::add(const QByteArray& data, unsigned char type, void* filterData,
                                  unsigned long long crc)
{
    auto* item = new DiskItem;
    item->offset = -1;
    item->size = 0;
    set(item, data, type, filterData, crc);
    return item;
}

void DiskCache::set(PackedCache::Item* item, const QByteArray& data, unsigned char type,
                    void* filterData, unsigned long long crc)
{
    auto* own = static_cast<DiskItem*>(item);
    const bool fits = own->offset < 0 || makeRoom(own, data);
    own->type = type;
    own->filterData = filterData;
    own->crc = crc;
    own->size = data.size();
    own->kept.clear();
    if (own->offset < 0) {
        own->offset = m_tempFile.size();
    }
    if (isOpen() && !(fits && write(own->offset, data.constData(), data.size()))) {
        own->offset = -1;
        own->kept.append(data);  // append() copies, even if `data` does not own its bytes
    }
}

// Uses the order in the file, which may differ from the list: an item for which the disk once had
// no room is stored later than its neighbours.
bool DiskCache::makeRoom(DiskItem* item, const QByteArray& data)
{
    const qint64 delta = qint64(data.size()) - item->size;
    const qint64 end = item->offset + item->size;
    QVector<DiskItem*> behind;
    if (delta != 0) {
        for (StreamCache::Item* other : items()) {
            auto* later = static_cast<DiskItem*>(other);
            if (later != item && later->offset >= end) {
                behind.append(later);
            }
        }
    }
    if (behind.isEmpty()) {
        return true;
    }
    // Extend the file first, with arbitrary bytes: if the disk is full, nothing has moved yet.
    const qint64 fileSize = m_tempFile.size();
    if (delta > 0 && !write(fileSize, data.constData(), delta)) {
        return false;
    }
    moveTail(end, fileSize, delta);
    for (DiskItem* later : qAsConst(behind)) {
        later->offset += delta;
    }
    return true;
}

void DiskCache::moveTail(qint64 begin, qint64 end, qint64 delta)
{
    for (qint64 left = end - begin; left > 0;) {
        const qint64 count = qMin(left, BlockSize);
        const qint64 from = delta > 0 ? begin + left - count : end - left;
        if (!m_tempFile.seek(from) || m_tempFile.read(m_blockBuffer.get(), count) != count) {
            return;
        }
        write(from + delta, m_blockBuffer.get(), count);
        left -= count;
    }
}

bool DiskCache::write(qint64 offset, const char* data, qint64 size)
{
    return isOpen() && m_tempFile.seek(offset) && m_tempFile.write(data, size) == size;
}

}  // namespace Zorv
