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

/// All of a canvas but its history, as a value: to be put aside and brought back.
///
/// Taking one copies no pixels. What does not touch a canvas may be called in any thread.
struct ZORV_EXPORT CanvasRecord
{
    struct Layer
    {
        QString name;
        bool isVisible = true;
        double opacity = 1.0;
        QPainter::CompositionMode blendMode = QPainter::CompositionMode_SourceOver;
        QImage image;  ///< of the size and form of the canvas, without a colour table
    };

    bool isIndexed = false;
    QSize size;
    QPoint axis;
    int active = -1;        ///< the row of the active layer; -1 for none
    QVector<QRgb> colors;   ///< of the palette: 256
    QVector<Layer> layers;  ///< the top one first

    static CanvasRecord of(const ImageCanvas& canvas);

    /// Gives all of it to a canvas, as one step of undo, "restore". The palette stays. False, with
    /// nothing changed, if the canvas refuses it.
    bool applyTo(ImageCanvas* canvas) const;

    /// The visible layers as one image, in the colours of the record. Main thread only.
    QImage flattened() const;

    /// Writes it as bytes, with the pixels packed. False if the device takes not all.
    bool write(QIODevice* device) const;

    /// Reads such bytes. False, with the record as it was, for anything that is not a whole canvas
    /// with at least one layer.
    bool read(const QByteArray& bytes);
};

}  // namespace Zorv
