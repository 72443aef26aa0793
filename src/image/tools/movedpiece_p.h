#pragma once

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QVector>

namespace Zorv {

class ImageCanvas;
class ImageLayer;
class ImagePalette;

/// The selected pixels of a layer, lifted off so that they can be put down elsewhere.
class MovedPiece
{
public:
    /// Lifts them off. The layer is not changed.
    MovedPiece(const ImageCanvas& canvas, const ImageLayer& layer);

    /// Whether layer, mask and colours are unchanged since the piece was shown at `offset`.
    bool isAsShown(const ImageCanvas& canvas, const ImageLayer& layer, const QPoint& offset);

    /// The rectangle of the piece at an offset.
    QRect rectAt(const QPoint& offset) const;

    /// Updates a rectangle of the layer's image to show the piece at an offset. Offset 0 restores
    /// the original.
    void show(QImage& image, const QRect& rect, const QPoint& offset);

    /// Notes the image the piece is shown in, so that `isAsShown()` detects later changes.
    void remember(const QImage& image) { m_shownKey = image.cacheKey(); }

private:
    void putIndexed(QImage& image, const QRect& rect, const QPoint& offset);
    void putColors(QImage& image, const QRect& rect, const QPoint& offset) const;
    quint8 mixed(quint8 upper, quint8 lower);

    const ImageLayer* m_layer;
    const ImagePalette* m_palette;
    QVector<QRgb> m_table;
    QImage m_before;
    QImage m_rest;  ///< the layer with the background where the piece was
    QImage m_mask;
    QRect m_rect;
    qint64 m_shownKey;
    QHash<quint16, quint8> m_mixtures;
};

}  // namespace Zorv
