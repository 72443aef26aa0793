#pragma once

namespace Zorv {

/// While it lives, nobody waits for new files to reach the disk: they are copies
/// of what is there, and waiting would take many times as long as the copying.
///
/// The system writes them in its own time. A file that takes the place of another
/// is not concerned: the old content never goes before the new one is safe. Main
/// thread only, and what is written in others waits; one inside of another does nothing.
class LazySync
{
public:
    enum Use {
        Kept,      ///< the new files are there to stay
        Temporary  ///< they go again: there is no exception
    };

    explicit LazySync(Use use = Kept);
    ~LazySync();
    LazySync(const LazySync&) = delete;
    LazySync& operator=(const LazySync&) = delete;

    /// The one in effect, or null.
    static LazySync* current();

    /// Takes it out of effect, for a content that is nowhere else.
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
