#include "media/tools/bytegather_p.h"

#include <algorithm>
#include <utility>

#if defined(__GNUC__) && defined(__x86_64__)
#define ZORV_BYTE_SHUFFLE
#include <tmmintrin.h>
#endif

namespace Zorv {

namespace {

const int Block = 16;

// Above this number, copying single bytes is faster.
const int MaxBlocks = 6;

bool canShuffle()
{
#ifdef ZORV_BYTE_SHUFFLE
    return __builtin_cpu_supports("ssse3") != 0;
#else
    return false;
#endif
}

}  // namespace

ByteGather::ByteGather(std::vector<int> positions, int length) : m_positions(std::move(positions))
{
    if (!canShuffle() || !plan(length)) {
        m_groups.clear();
    }
}

/// Divides the result into groups, of which the last two may overlap. False if that is impossible
/// or useless.
bool ByteGather::plan(int length)
{
    const int count = int(m_positions.size());
    for (int next = 0; count >= Block && next < count; next += Block) {
        const int to = std::min(next, count - Block);
        const int first = m_positions[std::size_t(to)];
        const int last = m_positions[std::size_t(to + Block - 1)];
        const int blocks = (last - first) / Block + 1;
        const int from = std::min(first, length - blocks * Block);
        if (blocks > MaxBlocks || from < 0) {
            return false;
        }
        addGroup(to, from, blocks);
    }
    return true;
}

void ByteGather::addGroup(int to, int from, int blocks)
{
    m_groups.push_back({to, from, blocks});
    for (int block = 0; block < blocks; ++block) {
        Shuffle shuffle;
        for (int i = 0; i < Block; ++i) {
            const int at = m_positions[std::size_t(to + i)] - from - block * Block;
            // With the high bit set the byte becomes zero, so another block can supply it.
            shuffle[std::size_t(i)] = at >= 0 && at < Block ? quint8(at) : quint8(0x80);
        }
        m_shuffles.push_back(shuffle);
    }
}

void ByteGather::take(const quint8* from, quint8* to) const
{
    if (!m_groups.empty()) {
        shuffle(from, to);
        return;
    }
    for (const int position : m_positions) {
        *to++ = from[position];
    }
}

#ifdef ZORV_BYTE_SHUFFLE
__attribute__((target("ssse3"))) void ByteGather::shuffle(const quint8* from, quint8* to) const
{
    const auto* shuffles = reinterpret_cast<const __m128i*>(m_shuffles.data());
    for (const Group& group : m_groups) {
        const auto* block = reinterpret_cast<const __m128i*>(from + group.from);
        __m128i bytes = _mm_shuffle_epi8(_mm_loadu_si128(block), _mm_loadu_si128(shuffles++));
        for (int i = 1; i < group.blocks; ++i) {
            bytes = _mm_or_si128(
                bytes, _mm_shuffle_epi8(_mm_loadu_si128(++block), _mm_loadu_si128(shuffles++)));
        }
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + group.to), bytes);
    }
}
#else
void ByteGather::shuffle(const quint8*, quint8*) const {}
#endif

}  // namespace Zorv
