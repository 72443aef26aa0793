#pragma once

#include <cstddef>

namespace Family {

/// True if each row's number equals its index in the table, so that the number can be used as
/// index.
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
