#include "family/assets/packedsamples.h"

#include "family/assets/samplepacking.h"

#include <zorv/cache/crc64.h>

#include <QMutexLocker>

#include <algorithm>

namespace Family {

namespace {

quint64 checksumOf(const QByteArray& data)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(data.constData()), unsigned(data.size()));
}

}  // namespace

PackedSamples packSamples(const QByteArray& samples)
{
    PackedSamples packed;
    packed.samples = samples;
    packed.plainCrc = checksumOf(samples);
    packed.stream = deflated(samples);
    if (packed.stream.size() < samples.size() - samples.size() / 8) {
        packed.packing = SamplePacking::Deflated;
        packed.streamCrc = checksumOf(packed.stream);
    } else {
        packed.stream = samples;
        packed.streamCrc = packed.plainCrc;
    }
    return packed;
}

std::shared_ptr<const PackedSamples> PackedAhead::add(const QByteArray& samples)
{
    const auto packed = std::make_shared<const PackedSamples>(packSamples(samples));
    const QMutexLocker locker(&m_mutex);
    m_packed.erase(std::remove_if(m_packed.begin(), m_packed.end(),
                                  [](const auto& known) { return known.expired(); }),
                   m_packed.end());
    m_packed.push_back(packed);
    return packed;
}

std::shared_ptr<const PackedSamples> PackedAhead::find(const QByteArray& samples) const
{
    const QMutexLocker locker(&m_mutex);
    for (const auto& known : m_packed) {
        std::shared_ptr<const PackedSamples> packed = known.lock();
        if (packed && packed->samples.constData() == samples.constData() &&
            packed->samples.size() == samples.size()) {
            return packed;
        }
    }
    return {};
}

}  // namespace Family
