#pragma once

#include "core/projectfile.h"

namespace Zorv {

class StreamCache;

/// A project file that keeps its items in a `StreamCache`. Sprites and sounds use it.
class ZORV_EXPORT CachedProjectFile : public ProjectFile
{
public:
    /// The store of the items, or null. Not owned.
    StreamCache* cache() const { return m_cache; }

protected:
    explicit CachedProjectFile(StreamCache* cache = nullptr) : m_cache(cache) {}
    void setCache(StreamCache* cache) { m_cache = cache; }

private:
    StreamCache* m_cache;
};

}  // namespace Zorv
