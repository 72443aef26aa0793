#pragma once

#include <functional>

class QIODevice;

namespace Zorv {
class ProjectFile;
}

namespace Operations {

struct RecoveryCopy;

/// Work on a file that has not reached its object yet, such as a canvas. Interface for
/// `RecoveryKeeper`.
class RecoveryInput
{
public:
    virtual ~RecoveryInput() = default;

    /// The file being worked on; null while there is nothing to keep.
    virtual Zorv::ProjectFile* file() const = 0;

    /// Describes the work in the copy and returns a function that writes its bytes
    /// (`RecoveryCopy::assets`). The function runs in another thread, so it must hold a snapshot
    /// that does not change.
    virtual std::function<bool(QIODevice*)> take(RecoveryCopy* copy) const = 0;
};

}  // namespace Operations
