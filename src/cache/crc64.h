#pragma once

#include "zorv_export.h"

namespace Zorv {

/// A 64-bit CRC: reflected polynomial 0x95AC9329AC4BC9B5, initial value all ones, no final
/// inversion.
///
/// Empty input gives all ones; the digits "123456789" give 0xCAA717168609F281. Safe to call from
/// any thread.
ZORV_EXPORT unsigned long long crc64(const unsigned char* data, unsigned int length);

}  // namespace Zorv
