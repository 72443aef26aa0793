// The tables of the hq2x, hq3x and hq4x filters.
//
// The table of shapes has an entry for each of the 4096 neighbourhoods of a pixel (keys). It is
// built from a few rules, each a picture of the neighbourhood as seen from the corner A. The other
// three corners need no rules: their keys are mirrored, so that they look like A. A second table
// gives the mixes of each shape for every factor.

#include "media/tools/hqshapes_p.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace Zorv {

namespace {

/// A neighbourhood A B C, D E F, G H I, seen from the corner A. '.' is like E, '#' is not, '?' may
/// be either. '1' and '2' are not like E; touching pixels with the same digit are alike, with
/// different digits are not.
struct Rule
{
    HqShape shape;
    const char picture[12];
};

// The first rule that fits applies, directly or mirrored along the diagonal.
// clang-format off
const Rule Rules[] = {
    {HqShape::Flat,     "?.? .E? ???"},
    {HqShape::Wall,     "..? #E? ???"},
    {HqShape::Slope,    "#.? 1E. ?1."},
    {HqShape::Slope,    "#.# 1E? #1."},
    {HqShape::Nook,     "#.? #E? ???"},

    {HqShape::Alone,    "#1? 2E? ???"},
    {HqShape::Alone,    ".1. 2E# ..."},
    {HqShape::Diagonal, ".1? 2E? ???"},

    {HqShape::FaintTip, "#1# 1E# ##."},
    {HqShape::Faint,    "#1# 1E? #??"},
    {HqShape::Cut,      "?1# 1E. ..?"},
    {HqShape::Cut,      "#1# 1E. .?#"},
    {HqShape::Round,    "#1? 1E? ???"},
    {HqShape::Round,    ".1. 1E. ..?"},
    {HqShape::Round,    ".1. 1E# ..."},
    {HqShape::Diagonal, ".1# 1E# #??"},
    {HqShape::Diagonal, ".1# 1E# ?.."},
    {HqShape::Diagonal, ".1# 1E# ?##"},
    {HqShape::Soft,     ".1? 1E? ???"},
};
// clang-format on

/// The places of the two pixels of each relation in a picture.
struct Place
{
    int first;
    int second;
};
enum { A = 0, B = 1, C = 2, D = 4, E = 5, F = 6, G = 8, H = 9, I = 10 };
const Place Places[HqRelation::Count] = {{E, A}, {B, D}, {B, F}, {E, C}, {E, B}, {E, D},
                                         {D, H}, {E, G}, {E, F}, {E, I}, {H, F}, {E, H}};

/// For each relation, the one that replaces it in a mirrored neighbourhood.
using Mirror = std::array<HqRelation::Bit, HqRelation::Count>;
const Mirror Diagonally = {HqRelation::EA, HqRelation::BD, HqRelation::DH, HqRelation::EG,
                           HqRelation::ED, HqRelation::EB, HqRelation::BF, HqRelation::EC,
                           HqRelation::EH, HqRelation::EI, HqRelation::HF, HqRelation::EF};
const Mirror LeftToRight = {HqRelation::EC, HqRelation::BF, HqRelation::BD, HqRelation::EA,
                            HqRelation::EB, HqRelation::EF, HqRelation::HF, HqRelation::EI,
                            HqRelation::ED, HqRelation::EG, HqRelation::DH, HqRelation::EH};

int mirrored(int key, const Mirror& mirror)
{
    int result = 0;
    for (std::size_t i = 0; i < mirror.size(); ++i) {
        result |= (key >> mirror[i] & 1) << i;
    }
    return result;
}

bool fits(const char* picture, int key)
{
    for (int i = 0; i < HqRelation::Count; ++i) {
        const bool differs = (key >> i & 1) != 0;
        const char first = picture[Places[i].first];
        const char second = picture[Places[i].second];
        if (first == 'E') {
            if (second != '?' && differs != (second != '.')) {
                return false;
            }
        } else if (std::isdigit(first) && std::isdigit(second) && differs != (first != second)) {
            return false;
        }
    }
    return true;
}

HqShape shapeOf(int key)
{
    const int transposed = mirrored(key, Diagonally);
    for (const Rule& rule : Rules) {
        if (fits(rule.picture, key)) {
            return rule.shape;
        }
        if (fits(rule.picture, transposed)) {
            return hqTransposed(rule.shape);
        }
    }
    return HqShape::Alone;
}

std::array<HqQuarters, HqKeyCount> allQuarters()
{
    std::array<HqQuarters, HqKeyCount> result = {};
    for (int key = 0; key < HqKeyCount; ++key) {
        const int right = mirrored(key, LeftToRight);
        // Mirroring top to bottom is mirroring left to right between two exchanges of B and D.
        const int down = mirrored(mirrored(mirrored(key, Diagonally), LeftToRight), Diagonally);
        result[std::size_t(key)] = {shapeOf(key), shapeOf(right), shapeOf(down),
                                    shapeOf(mirrored(down, LeftToRight))};
    }
    return result;
}

/// The drawing of one shape.
struct Drawing
{
    HqShape shape;
    HqMix twice;
    HqMix thrice;
    HqQuarterMixes fourfold;
    int edgeB;  ///< factor 3: weights in the middle of the edges to B and D
    int edgeD;
};

const HqMix Own = {16, 0, 0, 0};
const HqMix Even = {8, 0, 4, 4};

// clang-format off
const Drawing Drawings[] = {
    {HqShape::Flat, Even, Even,
     {{Even, {10, 0, 4, 2}, {10, 0, 2, 4}, {12, 0, 2, 2}}}, 4, 4},
    {HqShape::Wall, {8, 4, 4, 0}, {12, 4, 0, 0},
     {{{10, 6, 0, 0}, {10, 2, 4, 0}, {12, 4, 0, 0}, {14, 2, 0, 0}}}, 4, 0},
    {HqShape::Nook, {12, 0, 4, 0}, {12, 0, 4, 0},
     {{{10, 0, 6, 0}, {10, 0, 6, 0}, {14, 0, 2, 0}, {14, 0, 2, 0}}}, 4, 0},
    {HqShape::Slope, {10, 0, 2, 4}, Even,
     {{{12, 0, 0, 4}, {10, 0, 6, 0}, {4, 0, 0, 12}, {14, 0, 2, 0}}}, 4, 12},
    {HqShape::Diagonal, {12, 4, 0, 0}, {12, 4, 0, 0},
     {{{10, 6, 0, 0}, {12, 4, 0, 0}, {12, 4, 0, 0}, {14, 2, 0, 0}}}, 0, 0},
    {HqShape::Alone, Own, Own, {{Own, Own, Own, Own}}, 0, 0},
    {HqShape::Round, Even, {2, 0, 7, 7},
     {{{0, 0, 8, 8}, {8, 0, 8, 0}, {8, 0, 0, 8}, Own}}, 2, 2},
    {HqShape::Soft, {12, 0, 2, 2}, Even,
     {{Even, {12, 0, 4, 0}, {12, 0, 0, 4}, Own}}, 0, 0},
    {HqShape::Faint, {14, 0, 1, 1}, Even, {{Even, Own, Own, Own}}, 0, 0},
    {HqShape::FaintTip, {14, 0, 1, 1}, Even, {{Even, Own, Own, Own}}, 2, 2},
    {HqShape::Cut, {4, 0, 6, 6}, {0, 0, 8, 8},
     {{{0, 0, 8, 8}, {0, 0, 10, 6}, {4, 0, 4, 8}, {12, 0, 2, 2}}}, 12, 4},
};
// clang-format on

HqMix transposed(const HqMix& mix)
{
    return {mix.own, mix.corner, mix.horizontal, mix.vertical};
}

int edgePart(HqShape shape)
{
    const Drawing& drawing = Drawings[int(shape) / 2];
    return int(shape) % 2 == 0 ? drawing.edgeB : drawing.edgeD;
}

/// Whether, next to a round corner, this shape leaves the edge between them to E.
bool closesEdge(HqShape shape)
{
    const HqShape plain = HqShape(int(shape) & ~1);
    return plain == HqShape::Alone || plain == HqShape::Round || plain == HqShape::Faint;
}

bool isRound(HqShape shape)
{
    return HqShape(int(shape) & ~1) == HqShape::Round;
}

}  // namespace

const std::array<HqQuarters, HqKeyCount>& hqQuarters()
{
    static const std::array<HqQuarters, HqKeyCount> quarters = allQuarters();
    return quarters;
}

std::array<HqQuarterMixes, std::size_t(HqShape::Count)> hqMixes(int factor)
{
    std::array<HqQuarterMixes, std::size_t(HqShape::Count)> result = {};
    for (const Drawing& drawing : Drawings) {
        HqQuarterMixes mixes = drawing.fourfold;
        if (factor < 4) {
            mixes = {factor == 2 ? drawing.twice : drawing.thrice};
        }
        result[std::size_t(drawing.shape)] = mixes;
        result[std::size_t(hqTransposed(drawing.shape))] = {
            transposed(mixes[0]), transposed(mixes[2]), transposed(mixes[1]), transposed(mixes[3])};
    }
    return result;
}

int hqEdgePart(HqShape left, HqShape right)
{
    if ((isRound(left) && closesEdge(right)) || (isRound(right) && closesEdge(left))) {
        return 0;
    }
    return std::max(edgePart(left), edgePart(right));
}

}  // namespace Zorv
