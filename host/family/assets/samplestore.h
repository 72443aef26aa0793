#pragma once

#include "family/assets/sampledata.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

namespace Family {

class PackedAhead;

/// The samples of a collection: their cache and their packing.
///
/// Equal samples are stored once, however they are packed. All `SampleRef` must be destroyed before
/// the store. Main thread only.
class SampleStore : public QObject
{
    Q_OBJECT

public:
    /// The setting "cache_type" chooses the kind of cache; in memory if a temporary file cannot be
    /// created.
    SampleStore();
    ~SampleStore() override;

    Zorv::StreamCache* cache() const { return m_cache.get(); }

    /// Stores packed bytes of a file unchanged, without unpacking them.
    SampleRef adopt(SamplePacking packing, const QByteArray& stream, qint64 plainSize,
                    quint64 plainCrc, quint64 streamCrc);

    /// Stores new samples, deflated if that makes them considerably smaller. Null for none.
    SampleRef add(const QByteArray& samples);

    /// A function that packs samples in any thread. As long as its result lives, `add()` of the
    /// same bytes is cheap. The function may outlive the store.
    std::function<std::shared_ptr<const void>(const QByteArray& samples)> packer() const;

    /// The packed bytes, as written to a file.
    QByteArray stream(const SampleData* data) const;

    /// A function that unpacks the samples in any thread; its result is empty if they are broken.
    /// It may outlive the store.
    std::function<QByteArray()> reader(const SampleData* data) const;

private slots:
    void unpack(unsigned char type, void* filterData, const QByteArray& source, QByteArray& target);

private:
    friend class SampleData;
    void gone(SampleData* data);

    std::unique_ptr<Zorv::StreamCache> m_cache;
    std::shared_ptr<PackedAhead> m_ahead;
    QHash<Zorv::StreamCache::Item*, SampleData*> m_byItem;
};

}  // namespace Family
