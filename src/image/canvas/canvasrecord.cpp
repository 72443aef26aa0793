#include "image/canvas/canvasrecord.h"

#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/rasterlayer.h"
#include "media/tools/raster_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>

// The byte format: a version, the fields in order, and for each layer its own fields and the
// compressed rows of its image. The length of the pixels is compared with the size of the canvas
// before memory for them is allocated, because damaged bytes may claim any length.

namespace Zorv {

namespace {

constexpr quint32 Version = 1;
constexpr quint32 MaxLayers = 10000;
constexpr int ColorCount = 256;
constexpr qint64 MaxBytes = qint64(1) << 30;  // per layer: array sizes are ints
constexpr int Packing = 1;  // fast: a canvas that is put aside is written again and again

/// The colours of a record.
class RecordPalette : public MonoPalette
{
public:
    explicit RecordPalette(const QVector<QRgb>& colors) : m_colors(colors) {}

    QRgb color(unsigned char index) const override { return m_colors.value(index); }
    unsigned char index(const QColor& color) const override
    {
        return uchar(qMax(m_colors.indexOf(color.rgba()), 0));
    }
    void toRGBPal(RGBA (&colors)[ColorCount]) const override
    {
        for (int i = 0; i < ColorCount; ++i) {
            const QRgb each = m_colors.value(i);
            colors[i] = {quint8(qRed(each)), quint8(qGreen(each)), quint8(qBlue(each)),
                         quint8(qAlpha(each))};
        }
    }

private:
    QVector<QRgb> m_colors;
};

QByteArray pixelsOf(const QImage& image)
{
    const int row = image.width() * image.depth() / 8;
    QByteArray bytes;
    bytes.reserve(row * image.height());
    for (int y = 0; y < image.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(y)), row);
    }
    return qCompress(bytes, Packing);
}

/// The uncompressed length, as stated by the first four bytes of the packed data.
qint64 lengthOf(const QByteArray& packed)
{
    return packed.size() < 4 ? -1 : qFromBigEndian<quint32>(packed.constData());
}

/// Null if the packed data has another length.
QImage imageOf(const QByteArray& packed, const QSize& size, QImage::Format format)
{
    const qint64 row = qint64(size.width()) * (format == QImage::Format_Indexed8 ? 1 : 4);
    const qint64 length = row * size.height();
    if (lengthOf(packed) != length || length > MaxBytes || !isMemoryFor(2 * length)) {
        return {};
    }
    const QByteArray bytes = qUncompress(packed);
    QImage image = bytes.size() == length ? emptyImage(size, format) : QImage();
    for (int y = 0; y < image.height(); ++y) {
        std::copy_n(bytes.constData() + y * row, row, reinterpret_cast<char*>(image.scanLine(y)));
    }
    return image;
}

void prepare(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
}

}  // namespace

CanvasRecord CanvasRecord::of(const ImageCanvas& canvas)
{
    CanvasRecord record;
    record.isIndexed = canvas.format() == ImageCanvas::IndexedFormat;
    record.size = canvas.size();
    record.axis = canvas.axis();
    record.colors = canvas.palette()->toRgbPal();
    record.active = canvas.activeLayer() ? canvas.activeLayer()->index() : -1;
    for (unsigned i = 0; i < canvas.layers()->count(); ++i) {
        const ImageLayer* layer = canvas.layers()->at(i);
        record.layers.append({layer->name(), layer->isVisible(), layer->opacity(),
                              layer->blendMode(), layer->image()});
    }
    return record;
}

bool CanvasRecord::applyTo(ImageCanvas* canvas) const
{
    ImageCanvasPrivate& to = ImageCanvasPrivate::of(canvas);
    const auto form = isIndexed ? ImageCanvas::IndexedFormat : ImageCanvas::RGBAFormat;
    canvas->endStroke();
    if (!to.isPossible(size, form)) {
        return false;
    }
    return to.macro("restore", [&] {
        while (canvas->layers()->count() > 0) {
            canvas->layers()->remove(canvas->layers()->at(0), true);
        }
        if (!canvas->setFormat(form, true)) {
            return false;
        }
        to.recordSize(size);
        to.recordAxis(axis);
        for (int i = 0; i < layers.size(); ++i) {
            const Layer& each = layers.at(i);
            auto* layer = new RasterLayer(canvas, each.image);
            layer->setName(each.name, false);
            layer->setVisible(each.isVisible);
            layer->setOpacity(each.opacity, false);
            layer->setBlendMode(each.blendMode, false);
            if (!canvas->layers()->insert(layer, i, true)) {
                layer->release();
                return false;
            }
        }
        canvas->setActiveLayer(
            canvas->layers()->at(unsigned(qBound(0, active, layers.size() - 1))));
        return true;
    });
}

QImage CanvasRecord::flattened() const
{
    RecordPalette palette(colors);
    ImageCanvas canvas(&palette);
    return applyTo(&canvas) ? canvas.mergeLayers(nullptr) : QImage();
}

bool CanvasRecord::write(QIODevice* device) const
{
    QDataStream stream(device);
    prepare(stream);
    stream << Version << isIndexed << size << axis << qint32(active);
    for (int i = 0; i < ColorCount; ++i) {
        stream << quint32(colors.value(i));
    }
    stream << quint32(layers.size());
    for (const Layer& layer : layers) {
        if (layer.image.sizeInBytes() > MaxBytes) {
            return false;
        }
        stream << layer.name << layer.isVisible << layer.opacity << qint32(layer.blendMode)
               << pixelsOf(layer.image);
    }
    return stream.status() == QDataStream::Ok;
}

bool CanvasRecord::read(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    prepare(stream);
    CanvasRecord record;
    quint32 version = 0;
    quint32 count = 0;
    qint32 activeRow = -1;
    stream >> version >> record.isIndexed >> record.size >> record.axis >> activeRow;
    for (int i = 0; i < ColorCount; ++i) {
        quint32 color = 0;
        stream >> color;
        record.colors.append(color);
    }
    stream >> count;
    if (stream.status() != QDataStream::Ok || version != Version || count == 0 ||
        count > MaxLayers || !isPossibleSize(record.size)) {
        return false;
    }
    record.active = activeRow;
    const auto format = record.isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32;
    for (quint32 i = 0; i < count; ++i) {
        Layer layer;
        qint32 mode = 0;
        QByteArray pixels;
        stream >> layer.name >> layer.isVisible >> layer.opacity >> mode >> pixels;
        layer.image = imageOf(pixels, record.size, format);
        if (stream.status() != QDataStream::Ok || layer.image.isNull()) {
            return false;
        }
        layer.blendMode = QPainter::CompositionMode(mode);
        record.layers.append(layer);
    }
    if (!stream.atEnd()) {
        return false;
    }
    *this = record;
    return true;
}

}  // namespace Zorv
