#pragma once

#include "media/tools/hqshapes_p.h"

#include <vector>

namespace Zorv {

/// A row of pixels as the eye compares them: brightness, two parts of colour, and alpha. One
/// pixel is repeated beyond each end: pixel x stands at x + 1.
struct HqRow
{
    explicit HqRow(int width);

    /// Takes a row of pixels with multiplied alpha, with its repeated ends.
    void read(const quint32* padded);

    std::vector<quint32> pixels;
    std::vector<quint8> luma;
    std::vector<quint8> blue;
    std::vector<quint8> red;
    std::vector<quint8> alpha;
};

/// Which pixels of two rows differ. Element x tells of the square of the pixels x - 1 and x of
/// both rows; these squares share all that is known of a pixel and its eight neighbours.
class HqBorders
{
public:
    explicit HqBorders(int width) : m_bits(std::size_t(width) + 1) {}

    void compare(const HqRow& upper, const HqRow& lower);

    /// The key of pixel x of the row between two pairs of rows.
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

    /// Whether that pixel and all eight around it are equal.
    static bool isFlat(const HqBorders& above, const HqBorders& below, std::size_t x)
    {
        const quint8* up = above.m_bits.data() + x;
        const quint8* down = below.m_bits.data() + x;
        return ((up[0] | up[1] | down[0] | down[1]) & Unequal) == 0;
    }

private:
    enum Square : quint8 {
        Top = 1,      ///< the upper left and the upper right one differ
        Fall = 2,     ///< the upper left and the lower right one
        Rise = 4,     ///< the lower left and the upper right one
        Left = 8,     ///< the upper left and the lower left one
        Unequal = 16  ///< not all four are the same
    };

    std::vector<quint8> m_bits;
};

}  // namespace Zorv
