#pragma once

#include "family/assets/sampledata.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

namespace Family {

class PackedAhead;

/// The samples of a collection: their cache, and what packs and unpacks them.
///
/// Equal samples are stored once, whatever they are packed in. All `SampleRef` must go before the
/// store. Main thread only.
class SampleStore : public QObject
{
    Q_OBJECT

public:
    /// A store that the setting "cache_type" chooses; in memory if there is no place for a
    /// temporary file.
    SampleStore();
    ~SampleStore() override;

    Zorv::StreamCache* cache() const { return m_cache.get(); }

    /// Takes up packed bytes as a file has them, without unpacking them.
    SampleRef adopt(SamplePacking packing, const QByteArray& stream, qint64 plainSize,
                    quint64 plainCrc, quint64 streamCrc);

    /// Stores new samples, deflated if that makes them smaller by a good part. Null for none.
    SampleRef add(const QByteArray& samples);

    /// Packs samples in any thread; as long as the result lives, `add()` of these bytes costs
    /// little. It may outlive the store.
    std::function<std::shared_ptr<const void>(const QByteArray& samples)> packer() const;

    /// The packed bytes, as they go to a file.
    QByteArray stream(const SampleData* data) const;

    /// Gives the samples unpacked, in any thread; empty if they are broken. It may outlive the
    /// store.
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
