#pragma once

#include "zorv_export.h"

namespace Zorv {

/// A 64-bit cyclic redundancy check: reflected polynomial 0x95AC9329AC4BC9B5, start of all ones,
/// no final inversion.
///
/// No bytes give all ones; the digits "123456789" give 0xCAA717168609F281. Safe from
/// any thread.
ZORV_EXPORT unsigned long long crc64(const unsigned char* data, unsigned int length);

}  // namespace Zorv
