#include "family/assets/pixeldata.h"

#include "family/assets/pixelstore.h"

namespace Family {

PixelData::PixelData(PixelStore* store, Zorv::StreamCache* home)
    : StreamCacheData(home), m_store(store)
{
}

PixelData::PixelData(PixelStore* store, Zorv::StreamCache* home, const QString& fileName)
    : StreamCacheData(home, fileName), m_store(store)
{
}

PixelData::~PixelData()
{
    m_store->gone(this);
}

void PixelData::disposeData()
{
    delete this;
}

}  // namespace Family
