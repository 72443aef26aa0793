#include "image/canvas/imagelayer.h"

#include "image/canvas/commands/imagelayerblend_p.h"
#include "image/canvas/commands/imagelayername_p.h"
#include "image/canvas/commands/imagelayeropacity_p.h"
#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/imageforms_p.h"

#include <cmath>
#include <type_traits>
#include <utility>

namespace Zorv {

namespace {

/// Sets a value. A change is signalled to the canvas and, if wanted, recorded. A layer that is not
/// in the list is not recorded: the user would not see what the step does.
template <class Command, class Value>
void exchange(ImageLayer* layer, Value& value, const Value& now, bool record)
{
    if (value == now) {
        return;
    }
    ImageCanvas* const canvas = layer->canvas();
    if (layer->index() < 0) {
        value = now;
        return;
    }
    if (record) {
        canvas->endStroke();
    }
    const Value before = std::exchange(value, now);
    ImageCanvasPrivate& d = ImageCanvasPrivate::of(canvas);
    if (record) {
        d.push(new Command(layer, before));
    }
    d.rowDiffers(layer);
    // A name is not visible on the canvas.
    if (!std::is_same_v<Value, QString>) {
        d.looksDifferent(layer, layer->image().rect());
    }
}

}  // namespace

ImageLayer::ImageLayer(ImageCanvas* canvas) : m_canvas(canvas) {}

ImageLayer::~ImageLayer() = default;

void ImageLayer::addRef()
{
    ++m_refCount;
}

void ImageLayer::release()
{
    if (--m_refCount == 0) {
        delete this;
    }
}

ImageCanvas* ImageLayer::canvas() const
{
    return m_canvas;
}

int ImageLayer::index() const
{
    for (unsigned i = 0; m_canvas && i < m_canvas->layers()->count(); ++i) {
        if (m_canvas->layers()->at(i) == this) {
            return int(i);
        }
    }
    return -1;
}

bool ImageLayer::isVisible() const
{
    return m_visible;
}

void ImageLayer::setVisible(bool visible)
{
    if (m_visible != visible) {
        m_visible = visible;
        if (m_canvas) {
            ImageCanvasPrivate::of(m_canvas).rowDiffers(this);
            ImageCanvasPrivate::of(m_canvas).looksDifferent(this, image().rect());
        }
    }
}

QString ImageLayer::name() const
{
    return m_name;
}

void ImageLayer::setName(const QString& name, bool record)
{
    exchange<ImageLayerName>(this, m_name, name, record);
}

QPainter::CompositionMode ImageLayer::blendMode() const
{
    return m_blendMode;
}

void ImageLayer::setBlendMode(QPainter::CompositionMode mode, bool record)
{
    if (mode >= QPainter::CompositionMode_SourceOver &&
        mode <= QPainter::CompositionMode_Exclusion) {
        exchange<ImageLayerBlend>(this, m_blendMode, mode, record);
    }
}

double ImageLayer::opacity() const
{
    return m_opacity;
}

void ImageLayer::setOpacity(double opacity, bool record)
{
    if (!std::isnan(opacity)) {
        exchange<ImageLayerOpacity>(this, m_opacity, qBound(0.0, opacity, 1.0), record);
    }
}

// Unpacking is transparent: whoever asks a removed layer for its image just gets it.
void ImageLayer::unpack() const
{
    if (m_packed) {
        m_packed->exchange(m_image);
        m_packed.reset();
    }
}

const QImage& ImageLayer::image() const
{
    unpack();
    return m_image;
}

QImage* ImageLayer::pixels()
{
    unpack();
    return &m_image;
}

void ImageLayer::setImage(const QImage& image)
{
    const QRect before = pixels()->rect();
    if (m_canvas) {
        ImageCanvasPrivate::of(m_canvas).keepWhole(this);
    }
    m_image = layerImage(image);
    if (m_canvas) {
        ImageCanvasPrivate::of(m_canvas).looksDifferent(this, before | m_image.rect());
    }
}

void ImageLayer::render(QPainter& painter) const
{
    if (image().isNull()) {
        return;
    }
    painter.setCompositionMode(m_blendMode);
    painter.setOpacity(m_opacity);
    if (m_image.format() != QImage::Format_Indexed8) {
        painter.drawImage(0, 0, m_image);
    } else if (m_canvas) {
        painter.drawImage(0, 0, indexedView(m_image, m_canvas->palette()->toRgbPal()));
    }
}

}  // namespace Zorv
