// Enlarging by 2 or 3 without new colours.
//
// A pixel is left plain if the pixels above and below it are equal, or those to its left and right.
// Otherwise each of its corners takes the colour of the two neighbours beside it, if these are
// equal. With a factor of 3, the middle of a side also takes a neighbour's colour if a corner next
// to it did and the pixel beyond the other corner differs from E.

#include "media/tools/scaleepx_p.h"

#include "media/tools/paddedrows_p.h"
#include "media/tools/raster_p.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Zorv {

namespace {

// The neighbours of a pixel E are named in reading order:
//
//     A B C
//     D E F
//     G H I
//
// Choices are made without branches, so that the compiler can vectorize the loops.

/// Doubles as much of a row as vectors can, and returns the number of pixels done.
template <class Pixel>
int doubleMost(const Pixel*, const Pixel*, const Pixel*, int, Pixel*, Pixel*)
{
    return 0;
}

#ifdef __SSE2__
// A vector holds only four 32-bit pixels, so it pays to check first whether all four are flat.
int doubleMost(const quint32* above, const quint32* own, const quint32* below, int count,
               quint32* top, quint32* bottom)
{
    const auto load = [](const quint32* pixels) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
    };
    const auto store = [](quint32* pixels, __m128i left, __m128i right) {
        auto* to = reinterpret_cast<__m128i*>(pixels);
        _mm_storeu_si128(to, _mm_unpacklo_epi32(left, right));
        _mm_storeu_si128(to + 1, _mm_unpackhi_epi32(left, right));
    };
    int x = 0;
    for (; x + 4 <= count; x += 4) {
        const __m128i B = load(above + x);
        const __m128i D = load(own + x - 1);
        const __m128i E = load(own + x);
        const __m128i F = load(own + x + 1);
        const __m128i H = load(below + x);
        const __m128i flat = _mm_or_si128(_mm_cmpeq_epi32(B, H), _mm_cmpeq_epi32(D, F));
        if (_mm_movemask_epi8(flat) == 0xFFFF) {
            store(top + 2 * x, E, E);
            store(bottom + 2 * x, E, E);
            continue;
        }
        // The other pixel if it equals its neighbour at an edge, otherwise E.
        const auto chosen = [flat, E](__m128i other, __m128i neighbour) {
            const __m128i use = _mm_andnot_si128(flat, _mm_cmpeq_epi32(other, neighbour));
            return _mm_xor_si128(E, _mm_and_si128(use, _mm_xor_si128(E, other)));
        };
        store(top + 2 * x, chosen(D, B), chosen(F, B));
        store(bottom + 2 * x, chosen(D, H), chosen(F, H));
    }
    return x;
}
#endif

template <class Pixel>
void doublePixels(const Pixel* above, const Pixel* own, const Pixel* below, int count, Pixel* top,
                  Pixel* bottom)
{
    for (int x = 0; x < count; ++x) {
        const Pixel B = above[x];
        const Pixel D = own[x - 1];
        const Pixel E = own[x];
        const Pixel F = own[x + 1];
        const Pixel H = below[x];
        const bool edge = (B != H) & (D != F);
        top[2 * x] = edge & (D == B) ? D : E;
        top[2 * x + 1] = edge & (B == F) ? F : E;
        bottom[2 * x] = edge & (D == H) ? D : E;
        bottom[2 * x + 1] = edge & (H == F) ? F : E;
    }
}

template <class Rows, class Pixel>
void scale2x(const Rows& rows, const Raster<Pixel>& to, int y)
{
    const int done = doubleMost(rows.above(), rows.own(), rows.below(), rows.width(), to.row(2 * y),
                                to.row(2 * y + 1));
    doublePixels(rows.above() + done, rows.own() + done, rows.below() + done, rows.width() - done,
                 to.row(2 * y) + 2 * done, to.row(2 * y + 1) + 2 * done);
}

template <class Rows, class Pixel>
void scale3x(const Rows& rows, const Raster<Pixel>& to, int y)
{
    const Pixel* above = rows.above();
    const Pixel* own = rows.own();
    const Pixel* below = rows.below();
    Pixel* top = to.row(3 * y);
    Pixel* middle = to.row(3 * y + 1);
    Pixel* bottom = to.row(3 * y + 2);
    const int width = rows.width();
    for (int x = 0; x < width; ++x) {
        const Pixel A = above[x - 1];
        const Pixel B = above[x];
        const Pixel C = above[x + 1];
        const Pixel D = own[x - 1];
        const Pixel E = own[x];
        const Pixel F = own[x + 1];
        const Pixel G = below[x - 1];
        const Pixel H = below[x];
        const Pixel I = below[x + 1];
        if (B == H || D == F) {
            std::fill_n(top + 3 * x, 3, E);
            std::fill_n(middle + 3 * x, 3, E);
            std::fill_n(bottom + 3 * x, 3, E);
            continue;
        }
        const bool DB = D == B;
        const bool BF = B == F;
        const bool DH = D == H;
        const bool HF = H == F;
        top[3 * x] = DB ? D : E;
        top[3 * x + 1] = (DB & (E != C)) | (BF & (E != A)) ? B : E;
        top[3 * x + 2] = BF ? F : E;
        middle[3 * x] = (DB & (E != G)) | (DH & (E != A)) ? D : E;
        middle[3 * x + 1] = E;
        middle[3 * x + 2] = (BF & (E != I)) | (HF & (E != C)) ? F : E;
        bottom[3 * x] = DH ? D : E;
        bottom[3 * x + 1] = (DH & (E != I)) | (HF & (E != G)) ? H : E;
        bottom[3 * x + 2] = HF ? F : E;
    }
}

template <class Pixel, class Adapt>
void scaleRows(const Raster<const Pixel>& from, const Raster<Pixel>& to, int factor, Adapt adapt)
{
    for (PaddedRows rows(from, adapt); rows.y() < from.height; rows.next()) {
        factor == 2 ? scale2x(rows, to, rows.y()) : scale3x(rows, to, rows.y());
    }
}

}  // namespace

QImage scaleEpxOnce(const QImage& image, int factor)
{
    QImage result = imageLike(image, image.size() * factor);
    if (result.isNull()) {
        return result;
    }
    if (isIndexed(image)) {
        scaleRows(Raster<const quint8>(image), Raster<quint8>(result), factor,
                  [](quint8 index) { return index; });
    } else if (image.hasAlphaChannel()) {
        scaleRows(Raster<const quint32>(image), Raster<quint32>(result), factor,
                  [](quint32 pixel) { return comparableClear(pixel); });
    } else {
        scaleRows(Raster<const quint32>(image), Raster<quint32>(result), factor,
                  [](quint32 pixel) { return comparableOpaque(pixel); });
    }
    return result;
}

}  // namespace Zorv
