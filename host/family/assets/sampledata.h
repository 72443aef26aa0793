#pragma once

#include "family/assets/assetref.h"

#include <zorv/cache/streamcachedata.h>

namespace Family {

class SampleStore;

/// How samples are packed in a sound file.
enum class SamplePacking : quint8 { Plain = 0, Deflated = 1 };

/// Packed samples in a cache, shared by all sounds that play them. Created by `SampleStore`, kept
/// by `SampleRef`.
class SampleData final : public Zorv::StreamCacheData
{
public:
    SampleData(SampleStore* store, Zorv::StreamCache* cache);
    ~SampleData() override;

    SamplePacking packing = SamplePacking::Plain;
    qint64 plainSize = 0;   ///< size of the unpacked samples in bytes
    quint64 plainCrc = 0;   ///< of the unpacked samples
    quint64 streamCrc = 0;  ///< of the packed bytes

protected:
    void disposeData() override;

private:
    SampleStore* m_store;
};

using SampleRef = AssetRef<SampleData>;

}  // namespace Family
