#pragma once

#include "media/lz5.h"

namespace Zorv {

/// The match search of `lzFind()`, testing many distances at once.
class Lz5Search
{
public:
    /// Bytes that must be readable before the pixels, and bytes that must be zero after them.
    static constexpr int Front = 64;
    static constexpr int Behind = 320;

    Lz5Search(const unsigned char* pixels, int total) : m_pixels(pixels), m_total(total) {}

    /// The match at a position in the image; `length` is 0 if there is none.
    QPack find(int position);

private:
    struct Shape;
    struct Match
    {
        int length = 1;
        int distance = 0;
    };

    void search(const Shape& shape, int nearest, int farthest, int least, Match& best) const;

    const unsigned char* m_pixels;
    int m_total;
    int m_lastMiss = -1;
};

}  // namespace Zorv
