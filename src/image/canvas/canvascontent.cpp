#include "image/canvas/canvascontent.h"

#include "image/canvas/imagecanvas_p.h"
#include "image/canvas/undosteps_p.h"

namespace Zorv {

class CanvasContentPrivate
{
public:
    std::vector<LayerRef> layers;  // the top one first
    int active = -1;
    QSize size;
    ImageCanvas::Format format = ImageCanvas::RGBAFormat;
    QPoint axis;
    QImage mask;
    std::unique_ptr<UndoSteps> steps;  // last, so destroyed first: its commands hold layers
};

CanvasContent::CanvasContent() : d(std::make_unique<CanvasContentPrivate>()) {}

CanvasContent::~CanvasContent() = default;

qint64 CanvasContent::byteSize() const
{
    qint64 bytes = d->mask.sizeInBytes() + d->steps->bytes;
    for (const LayerRef& layer : d->layers) {
        bytes += layer->image().sizeInBytes();
    }
    return bytes;
}

std::unique_ptr<CanvasContent> ImageCanvas::takeContent()
{
    endStroke();
    const Batch batch(this);
    std::unique_ptr<CanvasContent> content(new CanvasContent);
    CanvasContentPrivate& kept = *content->d;
    kept.active = d->active ? d->active->index() : -1;
    kept.size = d->size;
    kept.format = d->format;
    kept.axis = d->axis;
    kept.mask = d->selection.mask();
    kept.layers = ImageLayersPrivate::of(this).list;
    d->layers->removeAll();
    kept.steps = d->stack.takeSteps();
    return content;
}

void ImageCanvas::putContent(std::unique_ptr<CanvasContent> content)
{
    endStroke();
    const Batch batch(this);
    const CanvasContentPrivate& kept = *content->d;
    d->layers->removeAll();
    d->applyFormat(kept.format);
    d->applySize(kept.size);
    d->selection.fromMask(kept.mask);
    d->applyAxis(kept.axis);
    for (std::size_t i = 0; i < kept.layers.size(); ++i) {
        ImageLayersPrivate::of(this).insert(kept.layers[i], int(i));
    }
    setActiveLayer(d->layers->at(unsigned(kept.active)));
    d->stack.putSteps(std::move(content->d->steps));
}

}  // namespace Zorv
