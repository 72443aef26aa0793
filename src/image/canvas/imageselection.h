#pragma once

#include "zorv_export.h"

#include <QImage>

#include <optional>

class QPainter;

namespace Zorv {

/// A mask of the size of the canvas: a pixel above 0 is selected.
///
/// It is a `Format_Indexed8` with a table of two entries, with which it can be drawn: what is not
/// selected becomes darker. Nothing here records or signals, see `ImageCanvas::setSelection()`.
/// Main thread only.
class ZORV_EXPORT ImageSelection
{
public:
    ImageSelection();
    ~ImageSelection();

    const QImage& mask() const;

    /// The mask to paint into.
    QImage* editMask();

    /// Takes over a `Format_Indexed8` image, whatever its size and table. Any other is ignored.
    void fromMask(const QImage& mask);

    /// Selects a rectangle and nothing else. It is normalised and clipped.
    void fromRect(const QRect& rect);

    /// A new mask with all pixels selected; none for an empty size.
    void setSize(const QSize& size);

    /// Whether all pixels of the mask are selected.
    bool isAll() const;

    /// Without queries all pixels of the mask count as selected for `clipQuery()`.
    void enableQueries(bool enabled);
    bool queriesEnabled() const;

    /// Whether a pixel may be painted; never outside of the mask.
    bool clipQuery(int x, int y) const
    {
        return m_mask.rect().contains(x, y) &&
               (!m_queriesEnabled || m_mask.constScanLine(y)[x] > 0);
    }

    /// The image with all selected pixels set to `color`, or with `inverse` all others. `color` is
    /// an index for `Format_Indexed8` and else four bytes. An image that has another size than the
    /// mask, or other than 8 or 32 bits a pixel, comes back as it is.
    QImage filter(const QImage& image, bool inverse, unsigned int color) const;

    /// Darkens what is not selected; the mask's corner is at 0,0.
    void render(QPainter* painter) const;

private:
    QImage m_mask;
    bool m_queriesEnabled = true;
    mutable std::optional<bool> m_all;
};

}  // namespace Zorv
