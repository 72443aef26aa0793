#pragma once

#include "zorv_export.h"

#include <QImage>

#include <optional>

class QPainter;

namespace Zorv {

/// The selection: a mask of the size of the canvas, in which a pixel above 0 is selected.
///
/// It is a `Format_Indexed8` image whose table of two entries darkens what is not selected when the
/// mask is drawn. Nothing here records or signals; see `ImageCanvas::setSelection()` for that. Main
/// thread only.
class ZORV_EXPORT ImageSelection
{
public:
    ImageSelection();
    ~ImageSelection();

    const QImage& mask() const;

    /// The mask to paint into.
    QImage* editMask();

    /// Copies a `Format_Indexed8` image of any size and table. Other images are ignored.
    void fromMask(const QImage& mask);

    /// Selects only a rectangle, which is normalised and clipped.
    void fromRect(const QRect& rect);

    /// Creates a mask with all pixels selected; none for an empty size.
    void setSize(const QSize& size);

    /// Whether all pixels of the mask are selected.
    bool isAll() const;

    /// When disabled, `clipQuery()` treats all pixels of the mask as selected.
    void enableQueries(bool enabled);
    bool queriesEnabled() const;

    /// Whether a pixel may be painted; always false outside the mask.
    bool clipQuery(int x, int y) const
    {
        return m_mask.rect().contains(x, y) &&
               (!m_queriesEnabled || m_mask.constScanLine(y)[x] > 0);
    }

    /// Returns the image with all selected pixels set to `color`, or, with `inverse`, all others.
    /// `color` is an index for `Format_Indexed8` and otherwise four bytes. An image whose size
    /// differs from the mask, or with neither 8 nor 32 bits per pixel, is returned unchanged.
    QImage filter(const QImage& image, bool inverse, unsigned int color) const;

    /// Darkens what is not selected, with the mask's corner at 0,0.
    void render(QPainter* painter) const;

private:
    QImage m_mask;
    bool m_queriesEnabled = true;
    mutable std::optional<bool> m_all;
};

}  // namespace Zorv
