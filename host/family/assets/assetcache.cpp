#include "family/assets/assetcache.h"

#include <zorv/cache/diskcache.h>

namespace Family {

using Zorv::StreamCache;

std::unique_ptr<StreamCache> newAssetCache()
{
    std::unique_ptr<StreamCache> cache(StreamCache::instance(StreamCache::DefaultCache));
    const auto* disk = dynamic_cast<Zorv::DiskCache*>(cache.get());
    if (disk && !disk->isOpen()) {
        cache.reset(StreamCache::instance(StreamCache::MemoryStore));
    }
    return cache;
}

}  // namespace Family
