#pragma once

#include <cstddef>

namespace Zorv::Crc64Fold {

/// Bytes processed in one step.
constexpr std::size_t BlockSize = 64;
constexpr std::size_t RestSize = 16;

/// True if the processor has carry-less multiplication.
bool isAvailable();

/// Folds `count` blocks (at least one) into 16 bytes. The CRC of these bytes with an initial value
/// of zero equals the CRC of the blocks with an initial value of all ones.
void fold(const unsigned char* data, std::size_t count, unsigned char (&rest)[RestSize]);

}  // namespace Zorv::Crc64Fold
