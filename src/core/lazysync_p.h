#pragma once

namespace Zorv {

/// While this object lives, new files are not forced to disk. Use it to copy many files: the
/// originals still exist, and waiting for the disk would take many times as long as the copying.
///
/// The system writes the files in its own time. This does not affect a file that replaces another:
/// the old content is never dropped before the new one is safe. Main thread only; writes in other
/// threads still wait. A nested object has no effect.
class LazySync
{
public:
    enum Use {
        Kept,      ///< the new files are permanent
        Temporary  ///< the new files are deleted later; exceptions are ignored
    };

    explicit LazySync(Use use = Kept);
    ~LazySync();
    LazySync(const LazySync&) = delete;
    LazySync& operator=(const LazySync&) = delete;

    /// The active object, or null.
    static LazySync* current();

    /// Suspends the active object, for content that exists nowhere else.
    class Exception
    {
    public:
        explicit Exception(bool isNeeded);
        ~Exception();
        Exception(const Exception&) = delete;
        Exception& operator=(const Exception&) = delete;

    private:
        LazySync* m_former;
    };

private:
    Use m_use;
};

}  // namespace Zorv
