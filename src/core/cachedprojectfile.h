#pragma once

#include "core/projectfile.h"

namespace Zorv {

class StreamCache;

/// A project file whose items live in a `StreamCache`; sprites and sounds are such files.
class ZORV_EXPORT CachedProjectFile : public ProjectFile
{
public:
    /// The store of the items, or null; not owned.
    StreamCache* cache() const { return m_cache; }

protected:
    explicit CachedProjectFile(StreamCache* cache = nullptr) : m_cache(cache) {}
    void setCache(StreamCache* cache) { m_cache = cache; }

private:
    StreamCache* m_cache;
};

}  // namespace Zorv
