#pragma once

#include <zorv/cache/streamcache.h>

#include <memory>

namespace Family {

/// A cache of the kind chosen by the setting "cache_type"; in memory if a temporary file cannot be
/// created.
std::unique_ptr<Zorv::StreamCache> newAssetCache();

}  // namespace Family
