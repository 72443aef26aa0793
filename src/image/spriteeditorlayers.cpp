#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "image/spriteeditor_p.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace Zorv {

namespace {

/// The difference between a blend mode and its row in the list. Only mode 0 differs: it is row 0.
constexpr int ModeShift = 11;
constexpr double WholeOpacity = 100;

int modeRow(QPainter::CompositionMode mode)
{
    return mode == QPainter::CompositionMode_SourceOver ? 0 : int(mode) - ModeShift;
}

}  // namespace

void SpriteEditorPrivate::connectLayers()
{
    connect(canvas(), &ImageCanvas::activeLayerChanged, this,
            &SpriteEditorPrivate::followActiveLayer);
    connect(canvas(), &ImageCanvas::formatChanged, this, &SpriteEditorPrivate::updateEnabled);
    // In true colour, painting uses the colours that are shown, so these must be the sprite's own.
    connect(canvas(), &ImageCanvas::formatChanged, this, [this] {
        if (canvas()->format() == ImageCanvas::RGBAFormat) {
            endPreview();
        }
    });
    connect(layers(), &ImageLayers::changed, this, &SpriteEditorPrivate::showLayer);
}

/// Selects the row of the active layer.
void SpriteEditorPrivate::followActiveLayer()
{
    auto* list = widget<QAbstractItemView>("spr_layers_list");
    const ImageLayer* active = canvas()->activeLayer();
    if (list && active && active->index() >= 0) {
        list->setCurrentIndex(layers()->index(active->index()));
    }
    showLayer();
}

void SpriteEditorPrivate::showLayer()
{
    const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
    const ImageLayer* active = canvas()->activeLayer();
    emit setLayerBlending(active ? modeRow(active->blendMode()) : 0);
    emit setLayerOpacity(active ? qRound(active->opacity() * WholeOpacity) : int(WholeOpacity));
    updateEnabled();
}

void SpriteEditorPrivate::layerChosen(const QModelIndex& index)
{
    ImageLayer* chosen = index.isValid() ? layers()->at(unsigned(index.row())) : nullptr;
    if (chosen && chosen != canvas()->activeLayer()) {
        renderer->setActiveLayer(chosen);
    }
}

/// A layer name that is not used yet.
QString SpriteEditorPrivate::freshName() const
{
    for (unsigned number = layers()->count() + 1;; ++number) {
        const QString name = SpriteEditor::tr("Layer %1").arg(number);
        bool isTaken = false;
        for (unsigned i = 0; i < layers()->count(); ++i) {
            isTaken = isTaken || layers()->at(i)->name() == name;
        }
        if (!isTaken) {
            return name;
        }
    }
}

/// Adds a layer above the active one.
void SpriteEditorPrivate::layerAdd()
{
    if (!hasCanvas()) {
        return;
    }
    auto* layer = new RasterLayer(canvas(), canvas()->size(), canvas()->format());
    layer->setName(freshName(), false);
    const ImageLayer* active = canvas()->activeLayer();
    if (layers()->insert(layer, active ? active->index() : 0, true)) {
        renderer->setActiveLayer(layer);
    } else {
        layer->release();
    }
}

void SpriteEditorPrivate::layerClone()
{
    const ImageLayer* active = canvas()->activeLayer();
    if (!active) {
        return;
    }
    ImageLayer* layer = active->duplicate();
    layer->setName(SpriteEditor::tr("%1 copy").arg(active->name()), false);
    if (layers()->insert(layer, active->index(), true)) {
        renderer->setActiveLayer(layer);
    } else {
        layer->release();
    }
}

/// Keeps the last layer: a canvas without layers cannot be painted on.
void SpriteEditorPrivate::layerDel()
{
    if (layers()->count() > 1 && canvas()->activeLayer()) {
        layers()->remove(canvas()->activeLayer(), true);
    }
}

void SpriteEditorPrivate::layerMergeVis()
{
    merge("mergeVisible", false);
}

void SpriteEditorPrivate::layerMergeAll()
{
    merge("mergeAll", true);
}

/// The merged layer replaces the lowest of the layers it is made of. With `all`, hidden layers are
/// merged, too.
void SpriteEditorPrivate::merge(const char* title, bool all)
{
    QVector<ImageLayer*> going;
    QVector<ImageLayer*> hidden;
    for (unsigned i = 0; i < layers()->count(); ++i) {
        ImageLayer* each = layers()->at(i);
        (each->isVisible() ? going : hidden).append(each);
    }
    if ((all ? going + hidden : going).size() < 2) {
        return;
    }
    endPreview();
    const ImageCanvas::Batch batch(canvas());
    history()->beginMacro(QString::fromLatin1(title));
    const auto showHidden = [&](bool isShown) {
        for (ImageLayer* each : qAsConst(hidden)) {
            each->setVisible(isShown);
        }
    };
    if (all) {
        showHidden(true);
        going += hidden;
    }
    QString name;
    auto* merged = new RasterLayer(canvas(), canvas()->mergeLayers(&name));
    merged->setName(name, false);
    if (all) {
        showHidden(false);
    }
    const int lowest = (*std::max_element(going.begin(), going.end(), [](auto* a, auto* b) {
                           return a->index() < b->index();
                       }))->index();
    if (!layers()->insert(merged, lowest + 1, true)) {
        merged->release();
        history()->cancelMacro();
        return;
    }
    for (ImageLayer* each : qAsConst(going)) {
        layers()->remove(each, true);
    }
    history()->endMacro();
    renderer->setActiveLayer(merged);
}

void SpriteEditorPrivate::layerBlending(int index)
{
    ImageLayer* active = canvas()->activeLayer();
    if (selGuard == 0 && active) {
        active->setBlendMode(QPainter::CompositionMode(index <= 0 ? 0 : index + ModeShift), true);
    }
}

void SpriteEditorPrivate::layerOpacity(int percent)
{
    ImageLayer* active = canvas()->activeLayer();
    if (selGuard == 0 && active) {
        active->setOpacity(percent / WholeOpacity, true);
    }
}

}  // namespace Zorv
