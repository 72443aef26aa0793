#include "cache/palette.h"
#include "cache/palettes.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "image/spriteeditor_p.h"
#include "media/paletteobject.h"
#include "media/tools/colorquantizer.h"

#include <algorithm>

// The canvas is shown in the colours of the palette panel's grid. These are one of:
// - the current palette of the panel, either the sprite's or another one just to look at,
// - the colours of the picture itself, if the sprite has no palette,
// - colours that a host previews.
//
// Only the sprite's own palette and the picture's own colours may decide pixels. Whatever computes
// pixels ends a preview first.

namespace Zorv {

namespace {

constexpr int ColorCount = 256;

/// Larger pictures are scaled down to this side before their colours are searched.
constexpr int SampleSide = 1024;

void fillColors(const QVector<QRgb>& table, RGBA* entries)
{
    for (int i = 0; i < qMin(table.size(), ColorCount); ++i) {
        const QRgb color = table.at(i);
        entries[i] = {quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
                      quint8(qAlpha(color))};
    }
}

/// Colours to paint with, taken from a true-colour picture.
QVector<QRgb> ownColors(const QImage& image)
{
    const bool isLarge = image.width() > SampleSide || image.height() > SampleSide;
    const QImage sample =
        isLarge ? image.scaled(SampleSide, SampleSide, Qt::KeepAspectRatio) : image;
    return ColorQuantizer::quantize(sample, ColorCount).colorTable();
}

}  // namespace

/// Sets the colours for a sprite that was put on the canvas.
void SpriteEditorPrivate::loadColors()
{
    const Sprite* now = sprite();
    if (!now) {
        return;
    }
    ownPalette = now->palette();
    if (!ownPalette || isOn("spr_switch_pal") || !palettes->currentPalette()) {
        showOwnColors();
    }
    if (colors->foreground() == colors->background()) {
        chooseFirstColors();
    }
}

/// The colours of the sprite's palette, or of its picture if it has none.
void SpriteEditorPrivate::fillOwn(RGBA (&entries)[ColorCount]) const
{
    const Sprite* now = sprite();
    std::fill(std::begin(entries), std::end(entries), RGBA{0, 0, 0, 255});
    if (const Palette* own = now->palette()) {
        own->toPalette(entries);
    } else {
        const QImage image = now->image();
        fillColors(image.colorCount() > 0 ? image.colorTable() : ownColors(image), entries);
    }
}

void SpriteEditorPrivate::showOwnColors()
{
    const Sprite* now = sprite();
    isOtherColors = false;
    if (!now || isAway()) {
        return;
    }
    if (Palette* palette = now->palette()) {
        // While a file is reloaded, its sprites exist before its palettes do.
        const Palettes* all = palettes->palettes();
        const bool isListed = all && all->palette(int(palette->index())) == palette;
        const bool isShown = palettes->currentPalette() == palette && !palettes->isPreviewing();
        if (isListed && !isShown) {
            palettes->setCurrentPalette(palette);
        }
        return;
    }
    RGBA entries[ColorCount];
    fillOwn(entries);
    {
        const QScopedValueRollback<bool> guard(isShowingOwn, true);
        palettes->showColors(entries);
    }
    colorsShown();
}

bool SpriteEditorPrivate::isPreview() const
{
    const Sprite* now = sprite();
    return now && (isOtherColors || isAway() || palettes->isPreviewing() ||
                   palettes->currentPalette() != now->palette());
}

/// Call before computing pixels: colours that are only looked at must not decide them.
void SpriteEditorPrivate::endPreview()
{
    if (isPreview()) {
        showOwnColors();
    }
}

/// Without a current palette the sprite's own colours are shown, so there are always some.
void SpriteEditorPrivate::currentPaletteChanged()
{
    if (isShowingOwn || isAway()) {
        return;
    }
    if (palettes->currentPalette()) {
        isOtherColors = false;
    } else if (!isOtherColors) {
        showOwnColors();
    }
    colorsShown();
}

void SpriteEditorPrivate::colorsShown()
{
    renderer->layerChanged();
    emit editor->colorsShown();
}

/// Runs after the panel, which identifies palettes by row and does not update while it is hidden.
void SpriteEditorPrivate::palettesChanged(bool isStructure)
{
    if (isAway()) {
        return;
    }
    if (isStructure) {
        followPalette();
    } else if (!palettes->isActive() && palettes->currentPalette()) {
        palettes->setCurrentPalette(palettes->currentPalette());
    }
}

/// Makes the sprite's palette the current one if the switch is on.
void SpriteEditorPrivate::followPalette()
{
    const Sprite* now = sprite();
    if (now && now->palette() && isOn("spr_switch_pal")) {
        showOwnColors();
    }
}

/// A transparent background, which erases, and a visible foreground.
void SpriteEditorPrivate::chooseFirstColors()
{
    int ground = 0;
    while (ground < ColorCount && qAlpha(colors->color(uchar(ground))) != 0) {
        ++ground;
    }
    ground %= ColorCount;
    int front = 0;
    while (front < ColorCount - 1 &&
           (front == ground || qAlpha(colors->color(uchar(front))) == 0)) {
        ++front;
    }
    colors->setBackground(uchar(ground));
    colors->setForeground(uchar(front));
}

void SpriteEditor::previewColors(const QVector<QRgb>* colors)
{
    if (!colors) {
        d->showOwnColors();
        return;
    }
    if (d->isAway()) {
        return;
    }
    RGBA entries[ColorCount] = {};
    fillColors(*colors, entries);
    d->isOtherColors = true;
    d->palettes->showColors(entries);
    d->colorsShown();
}

CanvasRecord SpriteEditor::canvasRecord() const
{
    CanvasRecord record = CanvasRecord::of(*d->canvas());
    if (d->isPreview()) {
        RGBA entries[ColorCount];
        d->fillOwn(entries);
        std::transform(std::begin(entries), std::end(entries), record.colors.begin(),
                       [](const RGBA& each) { return qRgba(each.r, each.g, each.b, each.a); });
    }
    return record;
}

bool SpriteEditor::isPreviewing() const
{
    return d->isPreview();
}

PaletteEditor* SpriteEditor::paletteEditor() const
{
    return d->palettes;
}

}  // namespace Zorv
