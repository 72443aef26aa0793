#include "image/imagerenderer_p.h"

#include "graphics/renderwidget.h"
#include "image/canvas/imagelayers.h"
#include "image/tools/canvasmovetool.h"
#include "image/tools/erasertool.h"
#include "image/tools/floodfilltool.h"
#include "image/tools/penseltool.h"
#include "image/tools/pentool.h"
#include "image/tools/pickertool.h"
#include "image/tools/rectseltool.h"
#include "image/tools/replacetool.h"
#include "image/tools/selmovetool.h"

#include <QStackedLayout>
#include <QWidget>

#include <algorithm>

namespace Zorv {

namespace {

const int PanelHeight = 26;
const double LastDoubled = 1;
const double LastAdded = 8;
const double LastHalved = 0.25;
const double LargestZoom = 10;

}  // namespace

ImageRendererPrivate::ImageRendererPrivate(ImageRenderer* renderer, ImagePalette* palette)
    : q(renderer), canvas(palette), panel(new QWidget)
{
    panel->setMaximumHeight(PanelHeight);
    pages = new QStackedLayout(panel);
    addTools();
}

// Deletes the tools first, because they use the canvas.
ImageRendererPrivate::~ImageRendererPrivate()
{
    for (QObject* const tool : tools) {
        delete tool;
    }
    delete panel;
}

void ImageRendererPrivate::addTools()
{
    tools = {new CanvasMoveTool(&canvas), new SelMoveTool(&canvas), new RectSelTool(&canvas),
             new PenSelTool(&canvas),     new PickerTool(&canvas),  new PenTool(&canvas),
             new EraserTool(&canvas),     new ReplaceTool(&canvas), new FloodFillTool(&canvas)};
    for (ImageTool* const tool : tools) {
        if (auto* const pen = qobject_cast<BasePenTool*>(tool)) {
            pen->setStrokeOptions(&options);
        }
        pages->addWidget(tool->widget());
        QObject::connect(tool, &ImageTool::layerChanged, q, [this] { q->update(); });
    }
}

void ImageRendererPrivate::follow()
{
    const auto update = [this] { q->update(); };
    QObject::connect(&canvas, &ImageCanvas::positionChanged, q, update);
    QObject::connect(&canvas, &ImageCanvas::zoomChanged, q, update);
    QObject::connect(&canvas, &ImageCanvas::formatChanged, q, update);
    QObject::connect(&canvas, &ImageCanvas::axisChanged, q, [this] { loseAxis(); });
    QObject::connect(canvas.layers(), &ImageLayers::changed, q, [this] { loseAxis(); });
    QObject::connect(&options, &StrokeOptions::changed, q, update);
    QObject::connect(&canvas, &ImageCanvas::sizeChanged, q, [this] { setSize(); });
    QObject::connect(&canvas, &ImageCanvas::partChanged, q,
                     [this](ImageLayer*, const QRect& rect) { tiles.setDirty(rect); });
    QObject::connect(&canvas, &ImageCanvas::selectionChanged, q, [this](const QRect& rect) {
        tiles.setDirty(rect);
        q->update();
    });
    QObject::connect(&canvas, &ImageCanvas::layerChanged, q, [this] {
        q->update();
        tellAgain();
    });
    QObject::connect(&canvas, &ImageCanvas::activeLayerChanged, q, [this] {
        if (current) {
            current->activeLayerChanged();
        }
    });
}

// During nested changes the old picture stays on the screen, with its old size.
void ImageRendererPrivate::setSize()
{
    if (changeDepth == 0) {
        tiles.reset(canvas.size());
    }
    if (current) {
        current->activeLayerChanged();
    }
    options.keepSymmetryAxisOn(canvas.size());
    isCellShown = isCellShown && QRect(QPoint(), canvas.size()).contains(cell);
    q->update();
}

ImagePlace ImageRendererPrivate::place() const
{
    ImagePlace result = views;
    result.followOriginal = q->option(ImageRenderer::FollowOriginal);
    result.position = savePosition(canvas.position());
    result.zoom = canvas.zoomLevel();
    result.size = canvas.size();
    return result;
}

void ImageRendererPrivate::zoomTo(double zoom, const QPointF& fixed)
{
    const ImagePlace before = place();
    // A tiny picture may be shown larger than the largest zoom; `setZoomLevel()` would shrink it to
    // that.
    if (zoom > before.zoom && before.zoom >= LargestZoom) {
        return;
    }
    canvas.setZoomLevel(zoom);
    if (canvas.zoomLevel() != before.zoom) {
        canvas.setPosition(before.positionFor(canvas.zoomLevel(), fixed));
        tellAgain();
    }
}

void ImageRendererPrivate::zoomAboutMiddle(double zoom)
{
    zoomTo(zoom, views.middle() + views.viewRect(ImageView::Zoomed).topLeft());
}

ImageRenderer::Change::Change(ImageRenderer* renderer) : m_renderer(renderer)
{
    m_renderer->beginChange();
}

ImageRenderer::Change::~Change()
{
    m_renderer->endChange();
}

ImageRenderer::ImageRenderer(ImagePalette* palette, QObject* parent)
    : QObject(parent), d(std::make_unique<ImageRendererPrivate>(this, palette))
{
    d->follow();
}

ImageRenderer::~ImageRenderer()
{
    d->canvas.disconnect(this);
    d->canvas.layers()->disconnect(this);
}

ImageCanvas* ImageRenderer::canvas() const
{
    return &d->canvas;
}

ImageTool* ImageRenderer::tool(ImageTool::Type type) const
{
    return type >= 0 && type < ImageRendererPrivate::Tools ? d->tools[std::size_t(type)] : nullptr;
}

StrokeOptions* ImageRenderer::strokeOptions() const
{
    return &d->options;
}

QWidget* ImageRenderer::toolPanel() const
{
    return d->panel;
}

ImageTool* ImageRenderer::currentTool() const
{
    return d->current;
}

void ImageRenderer::setCurrentTool(ImageTool::Type type)
{
    ImageTool* const next = tool(type);
    if (!next) {
        return;
    }
    d->losePress();
    setPanning(false);
    if (d->current) {
        d->current->deactivated();
    }
    d->current = next;
    next->activated();
    if (d->panel) {
        d->pages->setCurrentWidget(next->widget());
    }
    if (widget()) {
        widget()->setFocus();
    }
    d->moveAgain();
    update();
}

void ImageRenderer::setPanning(bool isOn)
{
    if (isOn != d->isPanning) {
        d->isPanning = isOn;
        d->moveAgain();
        emit panningChanged(isOn);
    }
}

bool ImageRenderer::isPanning() const
{
    return d->isPanning;
}

void ImageRenderer::setActiveLayer(ImageLayer* layer)
{
    const ImageLayer* const before = d->canvas.activeLayer();
    d->canvas.setActiveLayer(layer);
    if (d->current && d->canvas.activeLayer() == before) {
        d->current->activeLayerChanged();
    }
}

void ImageRenderer::setPalette(const RGBA (&from)[256], const RGBA (&to)[256])
{
    d->canvas.changePalette(from, to);
}

void ImageRenderer::setBackground(const QColor& top, const QColor& bottom)
{
    d->topColor = top;
    d->bottomColor = bottom;
    update();
}

void ImageRenderer::setOption(Option option, bool isOn)
{
    d->shown = isOn ? d->shown | unsigned(option) : d->shown & ~unsigned(option);
    update();
}

bool ImageRenderer::option(Option option) const
{
    return d->shown & unsigned(option);
}

void ImageRenderer::setSkins(const std::vector<Skin>& skins)
{
    d->tiles.setSkins(skins);
    update();
}

void ImageRenderer::beginChange()
{
    ++d->changeDepth;
}

void ImageRenderer::endChange()
{
    if (d->changeDepth == 0 || --d->changeDepth > 0) {
        return;
    }
    if (d->tiles.size() != d->canvas.size()) {
        d->tiles.reset(d->canvas.size());
    }
    update();
    d->tellAgain();
}

void ImageRenderer::layerChanged()
{
    d->tiles.setDirty(QRect(QPoint(), d->tiles.size()));
    update();
    d->tellAgain();
}

void ImageRenderer::setVisibility(bool original, bool zoomed)
{
    d->changeViews([this, original, zoomed] {
        d->views.showOriginal = original;
        d->views.showZoomed = zoomed;
    });
    update();
}

void ImageRenderer::sizeChanged(int width, int height)
{
    d->changeViews([this, width, height] {
        d->views.widget = QSize(std::max(width, 0), std::max(height, 0));
    });
}

void ImageRenderer::centralize()
{
    d->canvas.setPosition(d->views.middle());
}

void ImageRenderer::addZoom()
{
    const double zoom = d->canvas.zoomLevel();
    if (zoom < LastAdded) {
        d->zoomAboutMiddle(zoom < LastDoubled ? zoom * 2 : zoom + 1);
    }
}

void ImageRenderer::subZoom()
{
    const double zoom = d->canvas.zoomLevel();
    if (zoom > LastHalved) {
        d->zoomAboutMiddle(zoom > LastDoubled ? zoom - 1 : zoom / 2);
    }
}

void ImageRenderer::zoomActual()
{
    d->zoomAboutMiddle(1);
}

int ImageRenderer::splitX() const
{
    return d->views.splitX();
}

QRect ImageRenderer::originalRect() const
{
    return d->place().rect(ImageView::Original);
}

QRect ImageRenderer::zoomedRect() const
{
    return d->place().rect(ImageView::Zoomed);
}

QPoint ImageRenderer::mapToCanvas(QPoint pos, bool zoomed) const
{
    return savePosition(d->place().toCanvas(pos, zoomed ? ImageView::Zoomed : ImageView::Original));
}

QPoint ImageRenderer::pixelAt(QPointF pos, bool zoomed) const
{
    return pixelOf(d->place().toCanvas(pos, zoomed ? ImageView::Zoomed : ImageView::Original));
}

}  // namespace Zorv
