#pragma once

#include <cstddef>

namespace Zorv::Crc64Fold {

/// Bytes that are taken in one step.
constexpr std::size_t BlockSize = 64;
constexpr std::size_t RestSize = 16;

/// True if the processor multiplies without carry.
bool isAvailable();

/// Folds `count` blocks, at least one, into 16 bytes: what they do to a register of all ones, those
/// do to one of zero.
void fold(const unsigned char* data, std::size_t count, unsigned char (&rest)[RestSize]);

}  // namespace Zorv::Crc64Fold
