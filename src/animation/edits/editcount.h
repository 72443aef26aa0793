#pragma once

namespace Zorv {

/// What an edit of several frames or boxes came to.
struct EditCount
{
    int changed = 0;
    int refused = 0;  ///< values that the grammar does not take: these stay as they were

    EditCount& operator+=(const EditCount& other)
    {
        changed += other.changed;
        refused += other.refused;
        return *this;
    }
};

}  // namespace Zorv
