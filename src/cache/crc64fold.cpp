#include "cache/crc64fold_p.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <emmintrin.h>
#include <wmmintrin.h>

#define ZORV_FOLDS __attribute__((target("pclmul,sse2")))
#endif

// Folding makes a long message shorter without changing its CRC. A message is a polynomial, and the
// CRC is its remainder. So 128 bits may be moved forward by a distance d (in bits) if they are
// multiplied by x^d modulo the CRC polynomial, and then XORed into the data there.
//
// Four independent lanes of 16 bytes are moved by 64 bytes per step, which keeps the multiplier
// busy. At the end the lanes are folded into one.

namespace Zorv::Crc64Fold {

#ifdef ZORV_FOLDS

namespace {

const unsigned long long Polynomial = 0x95AC9329AC4BC9B5;
const int LaneCount = 4;

// x^exponent modulo the polynomial. Bits are reflected: the highest bit is x^0.
constexpr unsigned long long powerOfX(int exponent)
{
    unsigned long long value = 1ULL << 63;
    for (int i = 0; i < exponent; ++i) {
        value = (value >> 1) ^ ((value & 1) ? Polynomial : 0);
    }
    return value;
}

// The factors that move 128 bits forward by a distance. The exponents are reduced by one, because
// the carry-less product of two reflected numbers is one power of x too high.
struct Keys
{
    unsigned long long low;
    unsigned long long high;
};

constexpr Keys keysOf(int distance)
{
    return {powerOfX(distance + 64 - 1), powerOfX(distance - 1)};
}

constexpr Keys blockKeys = keysOf(8 * BlockSize);
constexpr Keys laneKeys = keysOf(128);

ZORV_FOLDS inline __m128i keyRegister(const Keys& keys)
{
    return _mm_set_epi64x(static_cast<long long>(keys.high), static_cast<long long>(keys.low));
}

ZORV_FOLDS inline __m128i load(const unsigned char* data)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(data));
}

ZORV_FOLDS inline __m128i moved(__m128i value, __m128i keys, __m128i next)
{
    const __m128i low = _mm_clmulepi64_si128(value, keys, 0x00);
    const __m128i high = _mm_clmulepi64_si128(value, keys, 0x11);
    return _mm_xor_si128(_mm_xor_si128(low, high), next);
}

}  // namespace

bool isAvailable()
{
    static const bool available = __builtin_cpu_supports("pclmul");
    return available;
}

ZORV_FOLDS void fold(const unsigned char* data, std::size_t count, unsigned char (&rest)[RestSize])
{
    __m128i lanes[LaneCount];
    for (int i = 0; i < LaneCount; ++i) {
        lanes[i] = load(data + 16 * i);
    }
    lanes[0] = _mm_xor_si128(lanes[0], _mm_set_epi64x(0, -1));
    const __m128i keys = keyRegister(blockKeys);
    for (std::size_t block = 1; block < count; ++block) {
        data += BlockSize;
        for (int i = 0; i < LaneCount; ++i) {
            lanes[i] = moved(lanes[i], keys, load(data + 16 * i));
        }
    }
    __m128i result = lanes[0];
    for (int i = 1; i < LaneCount; ++i) {
        result = moved(result, keyRegister(laneKeys), lanes[i]);
    }
    _mm_storeu_si128(reinterpret_cast<__m128i*>(rest), result);
}

#else

bool isAvailable()
{
    return false;
}

void fold(const unsigned char*, std::size_t, unsigned char (&)[RestSize]) {}

#endif

}  // namespace Zorv::Crc64Fold
