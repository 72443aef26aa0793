#include "media/tools/scaleepx_p.h"

#include "media/tools/paddedrows_p.h"
#include "media/tools/raster_p.h"

namespace Zorv {

namespace {

// The neighbours of a pixel E are named in reading order:
//
//     A B C
//     D E F
//     G H I
//
// Selections stand without branches, so that the compiler makes vectors of them.

template <class Pixel>
void scale2x(const PaddedRows<Pixel>& rows, const Raster<Pixel>& to, int y)
{
    const Pixel* above = rows.above();
    const Pixel* own = rows.own();
    const Pixel* below = rows.below();
    Pixel* top = to.row(2 * y);
    Pixel* bottom = to.row(2 * y + 1);
    for (int x = 0; x < rows.width(); ++x) {
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

template <class Pixel>
void scale3x(const PaddedRows<Pixel>& rows, const Raster<Pixel>& to, int y)
{
    const Pixel* above = rows.above();
    const Pixel* own = rows.own();
    const Pixel* below = rows.below();
    Pixel* top = to.row(3 * y);
    Pixel* middle = to.row(3 * y + 1);
    Pixel* bottom = to.row(3 * y + 2);
    for (int x = 0; x < rows.width(); ++x) {
        const Pixel A = above[x - 1];
        const Pixel B = above[x];
        const Pixel C = above[x + 1];
        const Pixel D = own[x - 1];
        const Pixel E = own[x];
        const Pixel F = own[x + 1];
        const Pixel G = below[x - 1];
        const Pixel H = below[x];
        const Pixel I = below[x + 1];
        const bool edge = (B != H) & (D != F);
        const bool DB = edge & (D == B);
        const bool BF = edge & (B == F);
        const bool DH = edge & (D == H);
        const bool HF = edge & (H == F);
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

template <class Pixel>
void scaleRows(const Raster<const Pixel>& from, const Raster<Pixel>& to, int factor)
{
    for (PaddedRows<Pixel> rows(from); rows.y() < from.height; rows.next()) {
        factor == 2 ? scale2x(rows, to, rows.y()) : scale3x(rows, to, rows.y());
    }
}

}  // namespace

QImage scaleEpxOnce(const QImage& image, int factor)
{
    QImage result = imageLike(image, image.size() * factor);
    if (!result.isNull()) {
        withRasters(image, result,
                    [factor](const auto& from, const auto& to) { scaleRows(from, to, factor); });
    }
    return result;
}

}  // namespace Zorv
