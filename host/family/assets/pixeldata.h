#pragma once

#include "family/assets/assetref.h"
#include "family/assets/pixelcodec.h"

#include <zorv/cache/streamcachedata.h>

namespace Family {

class PixelStore;

/// Packed pixels in a cache, shared by all sprites that show them. Made by a `PixelStore`, and
/// kept by `PixelRef`.
class PixelData final : public Zorv::StreamCacheData
{
public:
    PixelData(PixelStore* store, Zorv::StreamCache* home);
    PixelData(PixelStore* store, Zorv::StreamCache* home, const QString& fileName);
    ~PixelData() override;

    PixelFormat format;
    quint64 pixelCrc = 0;   ///< of the unpacked rows, as a file tells it
    quint64 streamCrc = 0;  ///< of the packed bytes; 0 if it was not read from a file
    QByteArray record;     ///< that of the file, if it is broken; the pixels are then not to be had
    bool isGuess = false;  ///< where the bytes of a broken record lie was guessed
    quint32 order = 0;     ///< where its stream stands in the file among others

protected:
    void disposeData() override;

private:
    PixelStore* m_store;
};

using PixelRef = AssetRef<PixelData>;

}  // namespace Family
