#pragma once

#include <functional>

class QIODevice;

namespace Zorv {
class ProjectFile;
}

namespace Operations {

struct RecoveryCopy;

/// Work on a file that is not in its object yet, such as a canvas, as a `RecoveryKeeper` sees it.
class RecoveryInput
{
public:
    virtual ~RecoveryInput() = default;

    /// The file that there is work on; null while there is nothing to keep.
    virtual Zorv::ProjectFile* file() const = 0;

    /// Tells in the copy what the work is, and gives what writes its bytes
    /// (`RecoveryCopy::assets`). That is called in another thread, and stays the same whatever is
    /// worked on meanwhile.
    virtual std::function<bool(QIODevice*)> take(RecoveryCopy* copy) const = 0;
};

}  // namespace Operations
