#pragma once

namespace Zorv {

/// The result of an edit of several frames or boxes.
struct EditCount
{
    int changed = 0;
    int refused = 0;  ///< values that the grammar rejects; they stay unchanged

    EditCount& operator+=(const EditCount& other)
    {
        changed += other.changed;
        refused += other.refused;
        return *this;
    }
};

}  // namespace Zorv
