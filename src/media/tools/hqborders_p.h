#pragma once

#include "media/tools/hqshapes_p.h"

#include <vector>

namespace Zorv {

/// A row of pixels in the form in which they are compared: brightness, two colour differences, and
/// alpha. One pixel is repeated at each end, so pixel x is at x + 1.
struct HqRow
{
    explicit HqRow(int width);

    /// Takes a row of premultiplied pixels, with its repeated ends.
    void read(const quint32* padded);

    std::vector<quint32> pixels;
    std::vector<quint8> luma;
    std::vector<quint8> blue;
    std::vector<quint8> red;
    std::vector<quint8> alpha;
};

/// Which pixels of two rows differ. Element x describes the square of the pixels x - 1 and x in
/// both rows. Four such squares contain everything needed about a pixel and its eight neighbours,
/// and neighbouring pixels share them.
class HqBorders
{
public:
    explicit HqBorders(int width) : m_bits(std::size_t(width) + 1) {}

    void compare(const HqRow& upper, const HqRow& lower);

    /// The key of pixel x in the row between two pairs of rows.
    static int key(const HqBorders& above, const HqBorders& below, std::size_t x)
    {
        using namespace HqRelation;
        const quint8* up = above.m_bits.data() + x;
        const quint8* down = below.m_bits.data() + x;
        static_assert(EA == 0 && BD == 1 && BF == 2 && EC == 3 && EB == 4 && ED == 5 && DH == 6 &&
                          EG == 7 && EF == 8 && EI == 9 && HF == 10 && EH == 11,
                      "the order of the bits of a square, four times");
        return (up[0] >> 1 & 3) | (up[1] >> 1 & 7) << 2 | (down[0] & 7) << 5 | (down[1] & 15) << 8;
    }

    /// Whether that pixel and its eight neighbours are all equal.
    static bool isFlat(const HqBorders& above, const HqBorders& below, std::size_t x)
    {
        const quint8* up = above.m_bits.data() + x;
        const quint8* down = below.m_bits.data() + x;
        return ((up[0] | up[1] | down[0] | down[1]) & Unequal) == 0;
    }

private:
    enum Square : quint8 {
        Top = 1,      ///< upper left and upper right differ
        Fall = 2,     ///< upper left and lower right differ
        Rise = 4,     ///< lower left and upper right differ
        Left = 8,     ///< upper left and lower left differ
        Unequal = 16  ///< the four are not all equal
    };

    std::vector<quint8> m_bits;
};

}  // namespace Zorv
