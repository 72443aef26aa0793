#pragma once

#include <QtGlobal>

#include <array>

namespace Zorv {

/// Which pixels around a pixel E differ in colour; a key is a set of these bits. The neighbours
/// are named in reading order, A B C, D E F, G H I.
namespace HqRelation {

enum Bit { EA, BD, BF, EC, EB, ED, DH, EG, EF, EI, HF, EH, Count };

}  // namespace HqRelation

constexpr int HqKeyCount = 1 << HqRelation::Count;

/// How the quarter of a pixel at its corner towards A is drawn. The odd value behind each shape is
/// the same one mirrored on the diagonal, with B and D exchanged.
enum class HqShape : quint8 {
    Flat = 0,       ///< no border
    Wall = 2,       ///< a border to D
    Nook = 4,       ///< a border to D and A
    Slope = 6,      ///< a border to D and A that falls slowly
    Diagonal = 8,   ///< borders to B and D, but not to A
    Alone = 10,     ///< borders all around
    Round = 12,     ///< a corner of another colour that is cut round
    Soft = 14,      ///< the same, less
    Faint = 16,     ///< the same, hardly
    FaintTip = 18,  ///< the same, at the end of a line
    Cut = 20,       ///< the same, more, along B
    Count = 22
};

/// The shapes of the four quarters for one key: towards A, C, G and I.
using HqQuarters = std::array<HqShape, 4>;

/// The shapes for all keys.
const std::array<HqQuarters, HqKeyCount>& hqQuarters();

/// Parts of sixteen of E and of three neighbours. Towards the corner A these are A, B and D,
/// towards any other those that lie the same way.
struct HqMix
{
    quint8 own;
    quint8 corner;
    quint8 vertical;
    quint8 horizontal;
};

/// The mixes of a quarter for a factor of 2, 3 or 4, row by row from the corner A of the pixel:
/// one for the factors 2 and 3, four for 4.
using HqQuarterMixes = std::array<HqMix, 4>;

/// The mixes of all shapes.
std::array<HqQuarterMixes, std::size_t(HqShape::Count)> hqMixes(int factor);

/// The part of B in the pixel in the middle of the upper edge for the factor 3, of sixteen, by
/// the shapes to both sides.
int hqEdgePart(HqShape left, HqShape right);

/// A shape with B and D exchanged.
constexpr HqShape hqTransposed(HqShape shape)
{
    return HqShape(quint8(shape) ^ 1);
}

}  // namespace Zorv
