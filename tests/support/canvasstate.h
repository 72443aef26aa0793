#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageselection.h"

#include <QCryptographicHash>
#include <QDataStream>

/// The pixels of an image of 8 or 32 bits, without what stands behind the rows.
inline QByteArray pixelBytes(const QImage& image)
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(y)),
                     image.width() * image.depth() / 8);
    }
    return bytes;
}

/// A hash of all that undo brings back.
inline QByteArray stateOf(const Zorv::ImageCanvas& canvas)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    const auto addImage = [&stream](const QImage& image) {
        stream << image.size() << int(image.format()) << pixelBytes(image);
    };
    stream << canvas.size() << int(canvas.format()) << canvas.axis();
    addImage(canvas.selection()->mask());
    for (unsigned i = 0; i < canvas.layers()->count(); ++i) {
        const Zorv::ImageLayer* const layer = canvas.layers()->at(i);
        stream << layer->name() << layer->opacity() << int(layer->blendMode());
        addImage(layer->image());
    }
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}
