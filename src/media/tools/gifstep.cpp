#include "media/tools/gifstep_p.h"

namespace Zorv {

namespace {

qint64 areaOf(const QRect& rect)
{
    return qint64(rect.width()) * rect.height();
}

/// What a frame takes, roughly: a pixel that changes takes far more than one that does not.
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

    // A cleared rectangle has to hold what must vanish; that makes it possible in any case.
    const QRect wide = rect | kept.vanished;
    GIFStep best{GIFImage::ToBackground, wide, shown.cleared(wide), {}};
    const GIFChange cleared = changeOf(best.base, next);
    qint64 least = costOf(cleared) + areaOf(wide) - areaOf(rect);
    best.nextRect = gifRect(cleared, next);

    const GIFChange restored = changeOf(base, next);
    if (!base.rect.isEmpty() && restored.vanished.isEmpty() && costOf(restored) < least) {
        least = costOf(restored);
        best = {GIFImage::ToPrevious, rect, base, gifRect(restored, next)};
    }
    if (kept.vanished.isEmpty() && costOf(kept) <= least) {
        best = {GIFImage::Keep, rect, shown, gifRect(kept, next)};
    }
    return best;
}

}  // namespace Zorv
