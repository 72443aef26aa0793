#include "cache/crc64.h"

#include "cache/crc64fold_p.h"
#include "core/crctables_p.h"

#include <QtEndian>

#include <cstddef>

// The CRC is computed in two stages. If the processor has carry-less multiplication, `Crc64Fold`
// first reduces all whole 64-byte blocks to 16 bytes. These and the remaining bytes go through
// tables: 16 bytes per step, with one table lookup per byte. The lookups do not depend on each
// other, so the processor runs them in parallel.

namespace Zorv {

namespace {

using Checksum = unsigned long long;

const Checksum Polynomial = 0x95AC9329AC4BC9B5;
const unsigned Step = 16;

constexpr auto tables = crcTables<Checksum, Step>(Polynomial);

// The effect of 8 bytes on the register if `behind` more bytes of the step follow.
template <unsigned behind>
Checksum foldWord(Checksum word)
{
    return tables[behind + 7][word & 255] ^ tables[behind + 6][(word >> 8) & 255] ^
           tables[behind + 5][(word >> 16) & 255] ^ tables[behind + 4][(word >> 24) & 255] ^
           tables[behind + 3][(word >> 32) & 255] ^ tables[behind + 2][(word >> 40) & 255] ^
           tables[behind + 1][(word >> 48) & 255] ^ tables[behind][word >> 56];
}

Checksum addBytes(Checksum result, const unsigned char* data, std::size_t length)
{
    for (; length >= Step; length -= Step, data += Step) {
        result = foldWord<8>(result ^ qFromLittleEndian<quint64>(data)) ^
                 foldWord<0>(qFromLittleEndian<quint64>(data + 8));
    }
    for (; length > 0; --length, ++data) {
        result = (result >> 8) ^ tables[0][(result ^ *data) & 255];
    }
    return result;
}

}  // namespace

unsigned long long crc64(const unsigned char* data, unsigned int length)
{
    const std::size_t blocks = length / Crc64Fold::BlockSize;
    if (blocks == 0 || !Crc64Fold::isAvailable()) {
        return addBytes(~Checksum(0), data, length);
    }
    unsigned char rest[Crc64Fold::RestSize];
    Crc64Fold::fold(data, blocks, rest);
    const std::size_t folded = blocks * Crc64Fold::BlockSize;
    return addBytes(addBytes(0, rest, sizeof(rest)), data + folded, length - folded);
}

}  // namespace Zorv
