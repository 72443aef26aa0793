#pragma once

#include "zorv_export.h"

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRgb>
#include <QString>
#include <QVector>

class QByteArray;
class QIODevice;

namespace Zorv {

class ImageCanvas;

/// A snapshot of a canvas without its history, as a value that can be stored and restored.
///
/// Taking one copies no pixels. Functions that take no canvas may be called in any thread, unless
/// they say otherwise.
struct ZORV_EXPORT CanvasRecord
{
    struct Layer
    {
        QString name;
        bool isVisible = true;
        double opacity = 1.0;
        QPainter::CompositionMode blendMode = QPainter::CompositionMode_SourceOver;
        QImage image;  ///< in the size and format of the canvas, without a colour table
    };

    bool isIndexed = false;
    QSize size;
    QPoint axis;
    int active = -1;        ///< the row of the active layer; -1 for none
    QVector<QRgb> colors;   ///< the palette's 256 entries
    QVector<Layer> layers;  ///< the top one first

    static CanvasRecord of(const ImageCanvas& canvas);

    /// Restores all of it on a canvas except the palette, as one undo step, "restore". Returns
    /// false and changes nothing if the canvas refuses it.
    bool applyTo(ImageCanvas* canvas) const;

    /// The visible layers as one image, in the colours of the record. Main thread only.
    QImage flattened() const;

    /// Writes it as bytes with compressed pixels. False if the device does not take all of them.
    bool write(QIODevice* device) const;

    /// Reads such bytes. Returns false, leaving the record as it was, for anything but a complete
    /// canvas with at least one layer.
    bool read(const QByteArray& bytes);
};

}  // namespace Zorv
