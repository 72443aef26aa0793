#pragma once

#include <cstddef>

namespace Family {

/// True if each row of a table stands in the place of its own number, so that it is found by that.
template <class Row, class Id, std::size_t Count>
constexpr bool isInOrder(const Row (&rows)[Count], Id Row::*id)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (std::size_t(rows[i].*id) != i) {
            return false;
        }
    }
    return true;
}

}  // namespace Family
