#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/interface.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageundostack.h"
#include "image/dialogs/imginfodlg.h"
#include "image/dialogs/imgresizedlg.h"
#include "image/dialogs/rotimgdlg.h"
#include "image/spriteeditor_p.h"

#include <QSet>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int MostColors = 4096;

/// Counts distinct colours; -1 for too many.
int countColors(const QImage& image)
{
    const bool isIndexed = image.format() == QImage::Format_Indexed8;
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y) {
        const uchar* indices = image.constScanLine(y);
        const auto* pixels = reinterpret_cast<const QRgb*>(indices);
        for (int x = 0; x < image.width(); ++x) {
            found.insert(isIndexed ? indices[x] : pixels[x]);
        }
        if (found.size() > MostColors) {
            return -1;
        }
    }
    return found.size();
}

}  // namespace

void SpriteEditorPrivate::resize()
{
    if (!hasCanvas()) {
        return;
    }
    const std::function<bool()> isThere = stillThere();
    ImgResizeDlg dialog(host->mainWindow(), flattened());
    if (dialog.exec() != QDialog::Accepted || !isThere() || !hasCanvas() ||
        dialog.chosenSize() == canvas()->size()) {
        return;
    }
    endPreview();
    if (dialog.mode() == ImgResizeDlg::ScalePicture) {
        canvas()->resize(dialog.chosenSize(), dialog.filter());
    } else {
        canvas()->setSize(dialog.chosenSize(), dialog.position(), true);
    }
}

void SpriteEditorPrivate::imgRotate()
{
    if (!hasCanvas()) {
        return;
    }
    const std::function<bool()> isThere = stillThere();
    const unsigned ground = colors->background();
    const bool isIndexed = canvas()->format() == ImageCanvas::IndexedFormat;
    RotImgDlg dialog(host->mainWindow(), flattened(),
                     isIndexed ? ground : colors->color(uchar(ground)));
    if (dialog.exec() == QDialog::Accepted && isThere() && hasCanvas()) {
        endPreview();
        canvas()->rotateAll(dialog.angle(), dialog.filter());
    }
}

ImgInfoDlg::Facts SpriteEditorPrivate::facts()
{
    const Sprite* now = sprite();
    const QImage picture = flattened();
    ImgInfoDlg::Facts facts;
    facts.number = spriteNumber(now);
    facts.axis = canvas()->axis();
    facts.size = canvas()->size();
    facts.isIndexed = canvas()->format() == ImageCanvas::IndexedFormat;
    facts.colorCount = countColors(picture);
    facts.codec = now->property(QStringLiteral("Codec")).toString();
    facts.palette = now->property(QStringLiteral("Palette")).toString();
    facts.areUsesKnown = editor->spriteUses(&facts.uses);
    return facts;
}

/// A change of the canvas is a step of the canvas. The sprite's number is not part of the canvas,
/// so its change is a step of the file.
void SpriteEditorPrivate::imgProps()
{
    if (!sprite() || !hasCanvas()) {
        return;
    }
    const std::function<bool()> isThere = stillThere();
    const ImgInfoDlg::Facts before = facts();
    if (!isThere()) {
        return;
    }
    ImgInfoDlg dialog(host->mainWindow(), before);
    if (dialog.exec() != QDialog::Accepted || !isThere() || !hasCanvas()) {
        return;
    }
    const ImgInfoDlg::Facts chosen = dialog.facts();
    endPreview();
    history()->beginMacro(QStringLiteral("properties"));
    if (chosen.isIndexed != before.isIndexed) {
        canvas()->convertTo(chosen.isIndexed ? ImageCanvas::IndexedFormat
                                             : ImageCanvas::RGBAFormat);
    }
    if (chosen.size != before.size) {
        canvas()->setSize(chosen.size, {ImageCanvas::Centered, 0}, true);
    }
    if (chosen.axis != before.axis) {
        canvas()->moveAxis(chosen.axis);
    }
    history()->endMacro();
    if (chosen.number != before.number) {
        renumber(chosen.number);
    }
}

/// The sprite stays the same, so the canvas is not reloaded.
void SpriteEditorPrivate::renumber(SpriteNumber number)
{
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        sprites->beginChange(SpriteEditor::tr("Renumber sprite"));
        sprite()->setProperty(QStringLiteral("Group"), number.group);
        sprite()->setProperty(QStringLiteral("Number"), number.number);
        sprites->endChange();
    }
    remember(sprite(), row);
    showPosition();
}

bool SpriteEditor::spriteUses(QStringList*) const
{
    return false;
}

}  // namespace Zorv
