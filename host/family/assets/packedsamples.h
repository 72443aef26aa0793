#pragma once

#include "family/assets/sampledata.h"

#include <QByteArray>
#include <QMutex>

#include <memory>
#include <vector>

namespace Family {

/// Samples as a collection stores them.
struct PackedSamples
{
    QByteArray samples;  ///< unpacked, as they were given
    QByteArray stream;
    SamplePacking packing = SamplePacking::Plain;
    quint64 plainCrc = 0;
    quint64 streamCrc = 0;
};

/// Packs samples: deflated if that makes them smaller by a good part. Any thread.
PackedSamples packSamples(const QByteArray& samples);

/// What was packed before it is stored, so that storing it costs little. Any thread.
class PackedAhead
{
public:
    /// Packs samples, which are known as long as the result lives.
    std::shared_ptr<const PackedSamples> add(const QByteArray& samples);

    /// What was made of these very bytes, not of a copy of them; null if nothing was. Bytes that
    /// are known are shared with what is kept here, so nobody can have changed them.
    std::shared_ptr<const PackedSamples> find(const QByteArray& samples) const;

private:
    mutable QMutex m_mutex;
    std::vector<std::weak_ptr<const PackedSamples>> m_packed;  // as few as there are threads
};

}  // namespace Family
