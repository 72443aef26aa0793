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
    GIFStep best;
    qint64 least = 0;
    if (kept.vanished.isEmpty()) {
        best = {GIFImage::Keep, rect, shown, gifRect(kept, next)};
        least = costOf(kept);
    } else {
        // Where keeping is possible, clearing draws more. Clearing is possible if it holds all
        // that must vanish.
        const QRect wide = rect | kept.vanished;
        best = {GIFImage::ToBackground, wide, shown.cleared(wide), {}};
        const GIFChange cleared = changeOf(best.base, next);
        best.nextRect = gifRect(cleared, next);
        if (cleared.fromNothing) {
            best.base = {};
        }
        least = costOf(cleared) + areaOf(wide) - areaOf(rect);
    }
    // Nothing to restore is what clearing leaves, too, which more viewers do well.
    if (least > 0 && !base.rect.isEmpty()) {
        const GIFChange restored = changeOf(base, next);
        if (restored.vanished.isEmpty() && costOf(restored) < least) {
            best = {GIFImage::ToPrevious, rect, base, gifRect(restored, next)};
        }
    }
    return best;
}

}  // namespace Zorv
