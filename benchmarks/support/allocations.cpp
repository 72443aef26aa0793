#include "support/allocations.h"

#include <atomic>
#include <cstddef>

// glibc's own, under the names that stay its own.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);
}

namespace {

std::atomic<qint64> s_allocations{0};

}  // namespace

// They stand in front of glibc's for the libraries, too.
extern "C" {

Q_DECL_EXPORT void* malloc(std::size_t size)
{
    ++s_allocations;
    return __libc_malloc(size);
}

Q_DECL_EXPORT void* calloc(std::size_t count, std::size_t size)
{
    ++s_allocations;
    return __libc_calloc(count, size);
}

Q_DECL_EXPORT void* realloc(void* old, std::size_t size)
{
    ++s_allocations;
    return __libc_realloc(old, size);
}
}

namespace Bench {

qint64 allocations()
{
    return s_allocations;
}

}  // namespace Bench
