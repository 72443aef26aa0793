#pragma once

#include <zorv/cache/streamcache.h>

#include <memory>

namespace Family {

/// A cache as the setting "cache_type" asks for it; in memory if there is no place for a temporary
/// file.
std::unique_ptr<Zorv::StreamCache> newAssetCache();

}  // namespace Family
