#pragma once

#include "family/assets/sampledata.h"

#include <QByteArray>
#include <QMutex>

#include <memory>
#include <vector>

namespace Family {

/// Samples in the form in which a collection stores them.
struct PackedSamples
{
    QByteArray samples;  ///< unpacked, as passed in
    QByteArray stream;
    SamplePacking packing = SamplePacking::Plain;
    quint64 plainCrc = 0;
    quint64 streamCrc = 0;
};

/// Packs samples: deflated if that makes them considerably smaller. Any thread.
PackedSamples packSamples(const QByteArray& samples);

/// Samples packed in advance, so that storing them later is cheap. Thread-safe.
class PackedAhead
{
public:
    /// Packs samples. They can be found as long as the result lives.
    std::shared_ptr<const PackedSamples> add(const QByteArray& samples);

    /// The result for exactly these bytes, not a copy of them; null if there is none. The bytes are
    /// implicitly shared with the result, so nobody can have changed them.
    std::shared_ptr<const PackedSamples> find(const QByteArray& samples) const;

private:
    mutable QMutex m_mutex;
    std::vector<std::weak_ptr<const PackedSamples>> m_packed;  // about one per thread
};

}  // namespace Family
