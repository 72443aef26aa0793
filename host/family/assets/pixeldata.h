#pragma once

#include "family/assets/assetref.h"
#include "family/assets/pixelcodec.h"

#include <zorv/cache/streamcachedata.h>

namespace Family {

class PixelStore;

/// Packed pixels in a cache, shared by all sprites that show them. Created by `PixelStore`, kept by
/// `PixelRef`.
class PixelData final : public Zorv::StreamCacheData
{
public:
    PixelData(PixelStore* store, Zorv::StreamCache* home);
    PixelData(PixelStore* store, Zorv::StreamCache* home, const QString& fileName);
    ~PixelData() override;

    PixelFormat format;
    quint64 pixelCrc = 0;   ///< of the unpacked rows, according to the file
    quint64 streamCrc = 0;  ///< of the packed bytes; 0 if it was not read from a file
    QByteArray record;      ///< original bytes, if broken in the file; then there are no pixels
    bool isGuess = false;   ///< the position of a broken record's bytes was guessed
    quint32 order = 0;      ///< position of its stream among those of the file

protected:
    void disposeData() override;

private:
    PixelStore* m_store;
};

using PixelRef = AssetRef<PixelData>;

}  // namespace Family
