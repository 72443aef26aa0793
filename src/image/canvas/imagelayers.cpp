#include "image/canvas/imagelayers.h"

#include "image/canvas/commands/rasterlayeradd_p.h"
#include "image/canvas/commands/rasterlayerdel_p.h"
#include "image/canvas/commands/rasterlayerinsert_p.h"
#include "image/canvas/imagecanvas_p.h"

#include <algorithm>
#include <utility>

namespace Zorv {

ImageLayersPrivate& ImageLayersPrivate::of(ImageCanvas* canvas)
{
    return *canvas->layers()->d;
}

void ImageLayersPrivate::insert(LayerRef layer, int row)
{
    ImageLayer* const added = layer.get();
    const int place = qBound(0, row, int(list.size()));
    q->beginInsertRows({}, place, place);
    added->m_canvas = canvas;
    list.insert(list.begin() + place, std::move(layer));
    q->endInsertRows();
    ImageCanvasPrivate::of(canvas).listDiffers();
}

LayerRef ImageLayersPrivate::take(int row)
{
    q->beginRemoveRows({}, row, row);
    LayerRef layer = std::move(list[std::size_t(row)]);
    list.erase(list.begin() + row);
    q->endRemoveRows();
    ImageCanvasPrivate::of(canvas).layerLeaves(layer.get(), row);
    return layer;
}

void ImageLayersPrivate::tellRow(int row)
{
    const QModelIndex index = q->index(row);
    emit q->dataChanged(index, index);
}

ImageLayers::ImageLayers(ImageCanvas* canvas) : d(std::make_unique<ImageLayersPrivate>())
{
    d->q = this;
    d->canvas = canvas;
}

ImageLayers::~ImageLayers() = default;

unsigned ImageLayers::count() const
{
    return unsigned(d->list.size());
}

ImageLayer* ImageLayers::at(unsigned index) const
{
    return index < d->list.size() ? d->list[index].get() : nullptr;
}

bool ImageLayers::contains(const ImageLayer* layer) const
{
    return std::any_of(d->list.begin(), d->list.end(),
                       [layer](const LayerRef& x) { return x.get() == layer; });
}

bool ImageLayers::add(ImageLayer* layer, bool record)
{
    ImageCanvasPrivate& canvas = ImageCanvasPrivate::of(d->canvas);
    if (!canvas.enter(layer)) {
        return false;
    }
    const ImageCanvas::Batch batch(d->canvas);
    d->insert(LayerRef::adopt(layer), 0);
    if (record) {
        canvas.push(new RasterLayerAdd(d->canvas, layer));
    }
    return true;
}

bool ImageLayers::insert(ImageLayer* layer, int index, bool record)
{
    ImageCanvasPrivate& canvas = ImageCanvasPrivate::of(d->canvas);
    if (!canvas.enter(layer)) {
        return false;
    }
    const ImageCanvas::Batch batch(d->canvas);
    d->insert(LayerRef::adopt(layer), index);
    if (record) {
        canvas.push(new RasterLayerInsert(d->canvas, layer, layer->index()));
    }
    return true;
}

void ImageLayers::remove(ImageLayer* layer, bool record)
{
    if (contains(layer)) {
        remove(unsigned(layer->index()), record);
    }
}

void ImageLayers::remove(unsigned index, bool record)
{
    if (index >= count()) {
        return;
    }
    const ImageCanvas::Batch batch(d->canvas);
    d->canvas->endStroke();
    const LayerRef layer = d->take(int(index));
    if (record) {
        ImageCanvasPrivate::of(d->canvas).push(
            new RasterLayerDel(d->canvas, layer.get(), int(index)));
    }
}

void ImageLayers::removeAll()
{
    const ImageCanvas::Batch batch(d->canvas);
    d->canvas->endStroke();
    while (count() > 0) {
        d->take(int(count()) - 1);
    }
}

int ImageLayers::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(count());
}

QVariant ImageLayers::data(const QModelIndex& index, int role) const
{
    const ImageLayer* const layer = index.isValid() ? at(unsigned(index.row())) : nullptr;
    if (!layer) {
        return {};
    }
    switch (role) {
    case Qt::CheckStateRole:
        return layer->isVisible() ? Qt::Checked : Qt::Unchecked;
    case Qt::DisplayRole:
    case Qt::EditRole:
        return layer->name();
    default:
        return {};
    }
}

bool ImageLayers::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ImageLayer* const layer = index.isValid() ? at(unsigned(index.row())) : nullptr;
    if (!layer) {
        return false;
    }
    if (role == Qt::CheckStateRole) {
        layer->setVisible(value.toInt() != Qt::Unchecked);
        return true;
    }
    if (role == Qt::EditRole) {
        layer->setName(value.toString(), true);
        return true;
    }
    return false;
}

Qt::ItemFlags ImageLayers::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::ItemIsEnabled;
    }
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable | Qt::ItemIsEditable;
}

}  // namespace Zorv
