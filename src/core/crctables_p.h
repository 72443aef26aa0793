#pragma once

#include <array>
#include <cstddef>

namespace Zorv {

/// Builds the lookup tables of a checksum that processes `Step` bytes at a time. Table n holds the
/// effect of a byte on the register when n more bytes follow it. The polynomial is reflected: its
/// lowest bit goes first.
template <class Word, std::size_t Step>
constexpr std::array<std::array<Word, 256>, Step> crcTables(Word polynomial)
{
    std::array<std::array<Word, 256>, Step> tables{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        Word rest = byte;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest >> 1) ^ ((rest & 1) ? polynomial : 0);
        }
        tables[0][byte] = rest;
    }
    for (std::size_t n = 1; n < Step; ++n) {
        for (unsigned byte = 0; byte < 256; ++byte) {
            const Word before = tables[n - 1][byte];
            tables[n][byte] = (before >> 8) ^ tables[0][before & 255];
        }
    }
    return tables;
}

}  // namespace Zorv
