#pragma once

#include <QtGlobal>

#include <array>

namespace Zorv {

/// The relations between a pixel E and its neighbours. A key is a set of these bits; a set bit
/// means that the two pixels differ in colour. The neighbours are named in reading order: A B C, D
/// E F, G H I.
namespace HqRelation {

enum Bit { EA, BD, BF, EC, EB, ED, DH, EG, EF, EI, HF, EH, Count };

}  // namespace HqRelation

constexpr int HqKeyCount = 1 << HqRelation::Count;

/// How the quarter of a pixel next to A is drawn. The odd value after each shape is its mirror
/// image along the diagonal, with B and D exchanged.
enum class HqShape : quint8 {
    Flat = 0,       ///< no border
    Wall = 2,       ///< a border to D
    Nook = 4,       ///< a border to D and A
    Slope = 6,      ///< a border to D and A with a gentle slope
    Diagonal = 8,   ///< borders to B and D, but not to A
    Alone = 10,     ///< borders all around
    Round = 12,     ///< a rounded corner of another colour
    Soft = 14,      ///< rounded less
    Faint = 16,     ///< hardly rounded
    FaintTip = 18,  ///< hardly rounded, at the end of a line
    Cut = 20,       ///< rounded more, along B
    Count = 22
};

/// The shapes of the four quarters for one key: towards A, C, G and I.
using HqQuarters = std::array<HqShape, 4>;

/// The shapes for all keys.
const std::array<HqQuarters, HqKeyCount>& hqQuarters();

/// The weights of E and three neighbours, in sixteenths. For the corner A the neighbours are A, B
/// and D; for other corners the corresponding ones.
struct HqMix
{
    quint8 own;
    quint8 corner;
    quint8 vertical;
    quint8 horizontal;
};

/// The mixes of a quarter for a factor of 2, 3 or 4, row by row from the corner A. Factors 2 and 3
/// use one, factor 4 uses four.
using HqQuarterMixes = std::array<HqMix, 4>;

/// The mixes of all shapes.
std::array<HqQuarterMixes, std::size_t(HqShape::Count)> hqMixes(int factor);

/// For factor 3: the weight of B, in sixteenths, in the pixel in the middle of the upper edge,
/// given the shapes on both sides.
int hqEdgePart(HqShape left, HqShape right);

/// A shape with B and D exchanged.
constexpr HqShape hqTransposed(HqShape shape)
{
    return HqShape(quint8(shape) ^ 1);
}

}  // namespace Zorv
