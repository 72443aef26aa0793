#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"

#include <cstring>

// Detects whether the canvas has work that is not in its sprite. This is queried after each step
// and by everything that marks unsaved files. To be fast, only the area touched since both were
// equal is compared, and only once per change.

namespace Zorv {

namespace {

constexpr int PassingField = -1;

bool areSameIn(const QRect& rect, const QImage& a, const QImage& b)
{
    if (a.size() != b.size() || a.format() != b.format()) {
        return false;
    }
    const QRect part = rect & a.rect();
    const int depth = a.depth() / 8;
    const auto bytes = size_t(part.width()) * size_t(depth);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto from = std::ptrdiff_t(part.left()) * depth;
        if (std::memcmp(a.constScanLine(y) + from, b.constScanLine(y) + from, bytes) != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool SpriteEditorPrivate::areSamePixels(const QImage& a, const QImage& b)
{
    return areSameIn(a.rect(), a, b);
}

void SpriteEditorPrivate::followCanvas()
{
    const auto forget = [this] { isKnownChanged.reset(); };
    connect(canvas(), &ImageCanvas::partChanged, this,
            [this](ImageLayer*, const QRect& rect) { touch(rect); });
    connect(canvas(), &ImageCanvas::layerChanged, this, forget);
    connect(canvas(), &ImageCanvas::axisChanged, this, forget);
    connect(layers(), &ImageLayers::changed, this, [this] {
        isKnownChanged.reset();
        editor->contentsChanged();
    });
    connect(history(), &ImageUndoStack::indexChanged, this, forget);
    connect(history(), &ImageUndoStack::indexChanged, this, &SpriteEditorPrivate::keepToBudget);
    connect(history(), &ImageUndoStack::cleanChanged, this, [this](bool isClean) {
        isKnownChanged.reset();
        if (isClean) {
            touched = {};
        }
    });
}

void SpriteEditorPrivate::touch(const QRect& rect)
{
    touched |= rect;
    isKnownChanged.reset();
}

/// Call when canvas and sprite are equal.
void SpriteEditorPrivate::setStored()
{
    history()->setClean();
    storedHidden = hiddenLayers();
    touched = {};
    isKnownChanged.reset();
}

QVector<ImageLayer*> SpriteEditorPrivate::hiddenLayers() const
{
    QVector<ImageLayer*> hidden;
    for (unsigned i = 0; i < layers()->count(); ++i) {
        if (!layers()->at(i)->isVisible()) {
            hidden.append(layers()->at(i));
        }
    }
    return hidden;
}

/// A quick test for changes that undo, or showing a hidden layer, can revert. The pixels may still
/// be equal.
bool SpriteEditorPrivate::mayBeChanged() const
{
    return hasCanvas() && (!history()->isClean() || hiddenLayers() != storedHidden);
}

bool SpriteEditorPrivate::isChanged()
{
    if (!mayBeChanged()) {
        return false;
    }
    if (!isKnownChanged) {
        isKnownChanged = compare();
        if (!*isKnownChanged) {
            touched = {};
        }
    }
    return *isKnownChanged;
}

/// A step that only changed the selection is no work: it leaves the pixels equal.
bool SpriteEditorPrivate::compare() const
{
    if (history()->isClean()) {
        return isPreview() || !areSamePixels(canvas()->mergeLayers(nullptr), loaded);
    }
    const ImageLayer* only = layers()->count() == 1 ? layers()->at(0) : nullptr;
    return !only || !only->isVisible() || only->opacity() < 1.0 ||
           only->blendMode() != QPainter::CompositionMode_SourceOver ||
           canvas()->axis() != loadedAxis || !areSameIn(touched, only->image(), loaded);
}

bool SpriteEditor::isCanvasModified() const
{
    return d->isChanged();
}

/// Asks about unsaved work. True if another sprite can be shown. Without a sprite the work can only
/// be discarded.
bool SpriteEditorPrivate::mayLeave()
{
    enum Answer { Save, Discard };
    canvas()->endStroke();
    if (!isChanged()) {
        return true;
    }
    QStringList choices{SpriteEditor::tr("Discard")};
    if (sprite()) {
        choices.prepend(SpriteEditor::tr("Save image changes"));
    }
    int answer = Dialogs::instance()->choose(
        SpriteEditor::tr("Discard changes?"),
        SpriteEditor::tr("Do you want to discard the changes made in the current sprite?"), choices,
        0);
    answer += answer >= 0 ? Discard + 1 - choices.size() : 0;
    if (answer == Save) {
        saveImg();
    } else if (answer == Discard) {
        goBack();
    }
    return answer >= 0 && !isChanged();
}

/// Undoes or redoes to the state that was equal to the sprite. If the history has no such state any
/// more, the sprite is loaded again.
void SpriteEditorPrivate::goBack()
{
    const ImageRenderer::Change change(renderer);
    canvas()->endStroke();
    while (!history()->isClean() && history()->canUndo()) {
        history()->undo();
    }
    while (!history()->isClean() && history()->canRedo()) {
        history()->redo();
    }
    for (unsigned i = 0; history()->isClean() && i < layers()->count(); ++i) {
        layers()->at(i)->setVisible(!storedHidden.contains(layers()->at(i)));
    }
    if (!mayBeChanged()) {
        return;
    }
    if (sprite()) {
        load();
    } else {
        remember(nullptr, -1);
        clearCanvas();
    }
}

/// Flattens in the sprite's own colours, whatever colours are shown.
QImage SpriteEditorPrivate::flattened()
{
    endPreview();
    return canvas()->mergeLayers(nullptr);
}

/// Called within larger operations, so an error is shown only after they have ended.
void SpriteEditorPrivate::saveImg()
{
    QString error;
    canvas()->endStroke();
    if (sprite() && isChanged() && !putIntoSprite(&error)) {
        QMetaObject::invokeMethod(
            this, [this, error] { tellRefusal(error); }, Qt::QueuedConnection);
    }
}

bool SpriteEditorPrivate::putIntoSprite(QString* error)
{
    const OwnPalettes own(this);
    const QImage picture = flattened();
    const QImage before = loaded;
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        sprites->beginChange(SpriteEditor::tr("Save image changes"));
        sprite()->setImage(picture);
        if (sprite()->size() == picture.size()) {  // otherwise it was refused
            sprite()->setProperty(QStringLiteral("Axis"), canvas()->axis());
        }
        sprites->endChange();
    }
    const Sprite* now = sprite();
    loaded = now ? canvasForm(now->image()) : QImage();
    loadedAxis = now ? now->axis() : QPoint();
    loadedColors = colorsOf(now);
    ownPalette = now ? now->palette() : nullptr;  // a true-colour sprite loses its palette
    const bool isRefused =
        !areSamePixels(before, canvasForm(picture)) && areSamePixels(before, loaded);
    if (picture.isNull() || isRefused) {
        *error = SpriteEditor::tr("The picture could not be saved into the sprite. It is too large "
                                  "for a sprite, or memory is short.");
        return false;
    }
    setStored();
    tellHidden();
    showPosition();
    emit editor->modified();
    return true;
}

void SpriteEditorPrivate::tellHidden()
{
    if (!storedHidden.isEmpty() && !hasToldHidden) {
        hasToldHidden = true;
        host->showStatus(PassingField,
                         SpriteEditor::tr("Hidden layers stay on the canvas and are not saved "
                                          "into the sprite."));
    }
}

ProjectFile* SpriteEditorPrivate::inputFile() const
{
    return editor->isCanvasModified() ? sprites.data() : nullptr;
}

bool SpriteEditorPrivate::takeInput(QString* error)
{
    canvas()->endStroke();
    if (sprite()) {
        return !isChanged() || putIntoSprite(error);
    }
    *error = SpriteEditor::tr("The sprite on the canvas is not in the file any more, and its "
                              "picture cannot be saved. Copy the picture, or discard it.");
    return false;
}

void SpriteEditorPrivate::dropInput()
{
    if (isChanged()) {
        goBack();
        showPosition();
    }
}

}  // namespace Zorv
