#include "cache/sprite.h"
#include "cache/palettes.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "image/spriteeditor_p.h"
#include "image/tools/strokeoptions.h"

#include <QAction>
#include <QSlider>

#include <cstring>

// Which sprite is on the canvas. A sprite is found again by its address while its file is open, and
// by its identifier after the file was reloaded (`Match`). `sprites` is the present collection;
// when another project comes to the front while the canvas has unsaved work, its collection waits
// in `waiting`. When the stored sprite changes, an unchanged canvas is loaded again, and one with
// work stays and counts as modified.

namespace Zorv {

namespace {

constexpr int PassingField = -1;

QVariant identifierOf(const Sprite& sprite)
{
    return sprite.property(QStringLiteral("Identifier"));
}

}  // namespace

/// Converts a picture to one of the two canvas formats, so that pictures can be compared.
QImage SpriteEditorPrivate::canvasForm(const QImage& image)
{
    return image.isNull() || image.format() == QImage::Format_Indexed8
               ? image
               : image.convertToFormat(QImage::Format_ARGB32);
}

Sprite* SpriteEditorPrivate::sprite() const
{
    return sprites ? sprites->sprite(row) : nullptr;
}

bool SpriteEditorPrivate::hasCanvas() const
{
    return layers()->count() > 0;
}

/// Switches to other sprites, none of which is on the canvas yet.
void SpriteEditorPrivate::take(Sprites* now)
{
    keepCanvas();
    isWaiting = false;
    waiting = nullptr;
    if (sprites) {
        sprites->disconnect(this);
        sprites->palettes()->disconnect(this);
    }
    sprites = now;
    remember(nullptr, -1);
    clearCanvas();
    palettes->setPalettes(now ? now->palettes() : nullptr);
    if (now) {
        connect(now, &Sprites::changed, this, [this] {
            followMoves();
            spritesChanged(SameRecord);
        });
        connect(now, &QAbstractItemModel::modelReset, this,
                [this] { spritesChanged(SameIdentifier); });
        connect(now, &OrganizableObject::modified, editor, &Editor::contentsChanged);
        connect(now->palettes(), &Palettes::palChanged, this, &SpriteEditorPrivate::followMoves);
        connect(now->palettes(), &Palettes::palChanged, this,
                &SpriteEditorPrivate::palettesChanged);
        connect(now, &Sprites::closing, this, [this, now] {
            sprites = nullptr;
            dropKept(now);
            take(nullptr);
        });
    }
    if (editorAction) {
        editorAction->setEnabled(now);
    }
    showPosition();
    if (editor->isActive()) {
        lendList(true);
        showFirst();
    }
}

/// Switches to the sprites of the project in front once the canvas has no unsaved work.
void SpriteEditorPrivate::takeWaiting()
{
    if (isWaiting && !editor->isCanvasModified()) {
        take(waiting);
    }
}

void SpriteEditorPrivate::showFirst()
{
    if (sprites && row < 0 && sprites->count() > 0) {
        show(qBound(0, sprites->currentIndex, int(sprites->count()) - 1));
    }
}

/// The current row moves with its sprite. A sprite that was reloaded or restored is searched.
int SpriteEditorPrivate::findShown(Match match) const
{
    if (match == SameRecord && row >= 0 && sprites->sprite(sprites->currentIndex) == shown) {
        return sprites->currentIndex;
    }
    const auto isShown = [&](int index) {
        const Sprite* there = sprites->sprite(index);
        return there && (match == SameIdentifier || there == shown) &&
               identifierOf(*there) == identifier;
    };
    if (!shown || isShown(row)) {
        return shown ? row : -1;
    }
    for (int i = 0; i < int(sprites->count()); ++i) {
        if (isShown(i)) {
            return i;
        }
    }
    return -1;
}

/// Work that exists only on the canvas stays there, whatever happens to its sprite.
void SpriteEditorPrivate::spritesChanged(Match match)
{
    if (selGuard > 0 || !sprites) {
        return;
    }
    const bool isModified = editor->isCanvasModified();
    const bool holdsWork = isModified || layers()->count() > 1;
    const bool wasThere = row >= 0;
    if (match == SameIdentifier) {
        forgetRecords();
    }
    bind(findShown(match));
    const Sprite* now = sprite();
    if (!now && holdsWork) {
        history()->resetClean();
        if (wasThere) {
            host->showStatus(PassingField,
                             SpriteEditor::tr("The sprite on the canvas is not in the file any "
                                              "more. Its picture can be copied."));
        }
    } else if (!now) {
        remember(nullptr, -1);
        clearCanvas();
    } else {
        takeChange(*now, match, isModified);
    }
    showPosition();
    if (editor->isActive() && !holdsWork) {
        showFirst();
    }
}

/// Makes the row of the sprite on the canvas the current one, which then moves with the sprite.
void SpriteEditorPrivate::bind(int index)
{
    row = index;
    if (index >= 0) {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        if (sprites->currentIndex != index) {
            sprites->setCurrent(index);
        }
        remember(sprites->sprite(index), index);
    }
}

/// Takes over a changed sprite. A canvas that keeps other pixels counts as modified from now on. A
/// reloaded file wins over layers that are already saved: that canvas is put aside.
void SpriteEditorPrivate::takeChange(const Sprite& now, Match match, bool isModified)
{
    if (now.palette() != ownPalette) {
        loadColors();
    }
    const QImage stored = canvasForm(now.image());
    const bool isSamePicture = areSamePixels(stored, loaded);
    if (isSamePicture && now.axis() == loadedAxis) {
        return;
    }
    if (isSamePicture && !isModified) {
        loadedAxis = now.axis();
        canvas()->setAxis(loadedAxis);
    } else if (!isModified && match == SameIdentifier) {
        keepCanvas();
        if (!bringBack()) {
            load();
        }
    } else if (!isModified && layers()->count() <= 1) {
        load();
    } else {
        loaded = stored;
        loadedAxis = now.axis();
        touch(QRect(QPoint(), canvas()->size()));
        const bool isStored = areSamePixels(stored, flattened()) && canvas()->axis() == loadedAxis;
        isStored ? setStored() : history()->resetClean();
    }
}

void SpriteEditorPrivate::remember(Sprite* sprite, int index)
{
    shown = sprite;
    row = index;
    if (sprite) {
        identifier = identifierOf(*sprite);
    }
}

void SpriteEditorPrivate::selPosChanged(int index)
{
    if (selGuard > 0 || !sprites || index == row) {
        return;
    }
    const QPointer<Sprites> before = sprites;
    const bool may = mayLeave();
    if (may && before && before == sprites) {
        show(index);
    } else {
        showPosition();
    }
}

void SpriteEditorPrivate::previous()
{
    if (row > 0) {
        selPosChanged(row - 1);
    }
}

void SpriteEditorPrivate::next()
{
    if (sprites && row + 1 < int(sprites->count())) {
        selPosChanged(row + 1);
    }
}

/// Replaces the canvas. The old one is kept (cached) if it has no unsaved work.
void SpriteEditorPrivate::show(int index)
{
    keepCanvas();
    renderer->strokeOptions()->centerSymmetryAxis();
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        sprites->setCurrent(index);
    }
    Sprite* now = sprites->sprite(index);
    remember(now, now ? index : -1);
    if (!now) {
        clearCanvas();
    } else if (!bringBack()) {
        load();
    }
    selectInList();
    showPosition();
}

void SpriteEditorPrivate::load()
{
    const Sprite* now = sprite();
    loaded = canvasForm(now->image());
    loadedAxis = now->axis();
    loadedColors = colorsOf(now);
    hasToldHidden = false;
    loadColors();
    editor->setImage(loaded, SpriteEditor::tr("Layer %1").arg(1));
    canvas()->setAxis(loadedAxis);
    setStored();
    emit editor->spriteShown();
}

void SpriteEditorPrivate::clearCanvas()
{
    loaded = {};
    loadedAxis = {};
    editor->setImage({}, {});
    emit editor->spriteShown();
}

void SpriteEditorPrivate::showPosition()
{
    const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
    const int count = sprites ? int(sprites->count()) : 0;
    if (auto* slider = widget<QSlider>("spr_sel")) {
        slider->setRange(0, qMax(count - 1, 0));
    }
    emit setSelPos(qMax(row, 0));
    emit setPosText(
        row < 0 ? QStringLiteral("0 / 0")
                : QStringLiteral("%1 / %2").arg(QString::number(row + 1), QString::number(count)));
    updateEnabled();
}

void SpriteEditor::setImage(const QImage& image, const QString& name)
{
    ImageCanvas* canvas = d->canvas();
    const ImageRenderer::Change change(d->renderer);
    canvas->endStroke();
    canvas->layers()->removeAll();
    if (!image.isNull()) {
        const bool isIndexed = image.format() == QImage::Format_Indexed8;
        canvas->setFormat(isIndexed ? ImageCanvas::IndexedFormat : ImageCanvas::RGBAFormat, true);
        if (isIndexed) {
            d->colors->setForeground(d->colors->foreground());
            d->colors->setBackground(d->colors->background());
        }
        const bool hasRoom = canvas->setSize(image.size(), {ImageCanvas::Centered, 0}, true);
        auto* layer = new RasterLayer(canvas, image);
        layer->setName(name, false);
        if (hasRoom && canvas->layers()->add(layer, true)) {
            d->renderer->setActiveLayer(layer);
        } else {
            layer->release();
        }
    }
    canvas->undoStack()->clear();
    d->retranslate();
    d->updateEnabled();
}

}  // namespace Zorv
