// Chooses what happens to the canvas after a frame, so that the next frame is small.
//
// A frame can draw pixels but not make them transparent. Keeping the canvas is possible only if no
// pixel must vanish. Otherwise the frame's rectangle is extended over everything that must vanish
// and cleared afterwards. As an alternative, the canvas can be restored to its state before the
// frame. The cost of each way is estimated from the pixels that the next frame has to draw, and the
// cheapest is taken.

#include "media/tools/gifstep_p.h"

namespace Zorv {

namespace {

qint64 areaOf(const QRect& rect)
{
    return qint64(rect.width()) * rect.height();
}

/// A rough estimate of the size of a frame: a changed pixel takes far more than an unchanged one.
qint64 costOf(const GIFChange& change)
{
    return 8 * change.count + areaOf(change.drawn);
}

}  // namespace

QRect gifRect(const GIFChange& change, const GIFComposite& shown)
{
    if (!change.drawn.isEmpty()) {
        return change.drawn;
    }
    const QPoint corner = shown.rect.isEmpty() ? QPoint(0, 0) : shown.rect.topLeft();
    return QRect(corner, QSize(1, 1));
}

GIFStep chooseStep(const GIFComposite& base, const QRect& rect, const GIFComposite& shown,
                   const GIFComposite& next)
{
    const GIFChange kept = changeOf(shown, next);
    GIFStep best;
    qint64 least = 0;
    if (kept.vanished.isEmpty()) {
        best = {GIFImage::Keep, rect, shown, gifRect(kept, next)};
        least = costOf(kept);
    } else {
        // Clear the frame's rectangle, extended to all pixels that must vanish. This is only for
        // frames that cannot be kept, since otherwise clearing draws more.
        const QRect wide = rect | kept.vanished;
        best = {GIFImage::ToBackground, wide, shown.cleared(wide), {}};
        const GIFChange cleared = changeOf(best.base, next);
        best.nextRect = gifRect(cleared, next);
        if (cleared.fromNothing) {
            best.base = {};
        }
        least = costOf(cleared) + areaOf(wide) - areaOf(rect);
    }
    // With an empty base, restoring is the same as clearing, and more viewers support clearing
    // properly.
    if (least > 0 && !base.rect.isEmpty()) {
        const GIFChange restored = changeOf(base, next);
        if (restored.vanished.isEmpty() && costOf(restored) < least) {
            best = {GIFImage::ToPrevious, rect, base, gifRect(restored, next)};
        }
    }
    return best;
}

}  // namespace Zorv
