#include "app/assets/spritecommands.h"

#include "app/actions/actiontable.h"
#include "app/assets/spritepanel.h"
#include "app/assets/transfer.h"
#include "app/mainwindow.h"
#include "core/dialogs/dialogs.h"
#include "family/assets/familypalette.h"
#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"
#include "operations/media/imagefiles.h"
#include "operations/media/palettework.h"
#include "operations/media/spriteexport.h"
#include "operations/media/spriteimport.h"

#include <QImage>

#include <algorithm>

namespace App {

using Family::FamilySprite;
using Family::MediaResult;
using Family::SpriteCollection;
using Zorv::Dialogs;

SpriteCommands::SpriteCommands(MainWindow* window)
    : QObject(window), m_window(window), m_panel(window->spritePanel())
{
}

int SpriteCommands::presentNeeds() const
{
    const SpriteCollection* sprites = m_panel->sprites();
    const FamilySprite* sprite = m_panel->currentSprite();
    const auto when = [](bool condition, Need need) { return condition ? int(need) : 0; };
    return when(sprites, NeedsSprites) | when(sprite, NeedsSprite) |
           when(sprite && sprite->palette(), NeedsPalette) |
           when(sprites && sprites->steps().canUndo(), NeedsSpriteUndo) |
           when(sprites && sprites->steps().canRedo(), NeedsSpriteRedo);
}

void SpriteCommands::addImages()
{
    SpriteCollection* sprites = m_panel->sprites();
    if (!sprites) {
        return;
    }
    const FamilySprite* current = m_panel->currentSprite();
    const QString title = tr("Add images");
    const ImportChoice choice =
        askForImport(title, MediaKind::Images, current ? current->id().group : 0,
                     [sprites](Family::AssetId id) { return sprites->contains(id); });
    if (choice.files.isEmpty()) {
        return;
    }
    Family::ImportRequest request;
    request.group = choice.group;
    request.force = choice.force;
    const unsigned before = sprites->count();
    const MediaResult result = Family::importSprites(sprites, choice.files, request);
    tellResult(title, tr("%1 images are taken up.").arg(result.done), result);
    if (sprites->count() > before) {
        m_panel->setCurrentRow(int(sprites->count()) - 1);
    }
}

int SpriteCommands::chosenMode(const QImage& image, const FamilySprite* sprite) const
{
    if (!sprite->palette() || image.colorTable() == sprite->shownColors()) {
        return Zorv::Sprite::ImagePalette;
    }
    const QStringList modes{tr("The image's palette, added if it is not there yet"),
                            tr("The sprite's palette: the image is adapted to it"),
                            tr("The sprite's palette takes the colours of the image")};
    return Dialogs::instance()->choose(
               tr("Replace image"), tr("The image has other colours than the sprite."), modes, 0) +
           Zorv::Sprite::ImagePalette;
}

void SpriteCommands::replaceImage()
{
    FamilySprite* sprite = m_panel->currentSprite();
    const QString title = tr("Replace image");
    const QString file = sprite ? askForFile(title, MediaKind::Images) : QString();
    if (file.isEmpty()) {
        return;
    }
    QString error;
    const QImage image = Family::readImage(file, &error);
    if (image.isNull()) {
        Dialogs::instance()->error(title, error);
        return;
    }
    const int mode = chosenMode(image, sprite);
    if (mode >= Zorv::Sprite::ImagePalette) {
        m_panel->sprites()->beginChange(title);
        sprite->setImage(image, false, mode, sprite->palette());
        m_panel->sprites()->endChange();
    }
}

void SpriteCommands::exportImages()
{
    const SpriteCollection* sprites = m_panel->sprites();
    const QVector<Family::AssetId> ids = m_panel->selectedIds();
    if (!ids.isEmpty()) {
        exportSelected(tr("Save images as"), MediaKind::Images, ids, QStringLiteral(".png"),
                       [sprites](const auto& selection, const auto& request) {
                           return Family::exportSprites(*sprites, selection, request);
                       });
    }
}

void SpriteCommands::removeSelected()
{
    SpriteCollection* sprites = m_panel->sprites();
    const QVector<int> rows = m_panel->selectedRows();
    if (!sprites || rows.isEmpty()) {
        return;
    }
    sprites->beginChange(tr("Remove sprites"));
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        sprites->removeSprite(*row);
    }
    sprites->endChange();
    m_panel->setCurrentRow(std::min(rows.first(), int(sprites->count()) - 1));
}

void SpriteCommands::undo()
{
    if (m_panel->sprites()) {
        m_panel->sprites()->undo();
    }
}

void SpriteCommands::redo()
{
    if (m_panel->sprites()) {
        m_panel->sprites()->redo();
    }
}

void SpriteCommands::openPalette()
{
    const FamilySprite* sprite = m_panel->currentSprite();
    Zorv::Palette* palette = sprite ? sprite->palette() : nullptr;
    const QString title = tr("Change palette");
    const QString file = palette ? askForFile(title, MediaKind::Palettes) : QString();
    if (file.isEmpty()) {
        return;
    }
    Zorv::RGBA colors[256];
    QString error;
    if (Family::readPalette(file, colors, &error)) {
        palette->setColors(colors, Zorv::Palette::KeepPixels);
    } else {
        Dialogs::instance()->error(title, error);
    }
}

void SpriteCommands::savePalette()
{
    const FamilySprite* sprite = m_panel->currentSprite();
    const Zorv::Palette* palette = sprite ? sprite->palette() : nullptr;
    if (!palette) {
        return;
    }
    const QString title = tr("Save palette as");
    const QString identifier = palette->property(QStringLiteral("Identifier")).toString();
    const QString name =
        QString(identifier).replace(QLatin1Char(','), QLatin1Char('-')) + QLatin1String(".act");
    const QString target = askForTarget(title, name, MediaKind::PaletteTarget);
    if (target.isEmpty()) {
        return;
    }
    Zorv::RGBA colors[256] = {};
    palette->toPalette(colors);
    Family::OutputRequest request;
    request.place = target;
    request.force = true;
    Family::OutputFiles files;
    MediaResult result;
    if (files.plan({name}, request, QByteArrayLiteral("ACT"), &result)) {
        QString error;
        const QByteArray bytes = Family::paletteFile(colors, files.format(0), target, &error);
        result.note(error.isEmpty() ? files.write(0, bytes) : error);
    }
    tellResult(title, tr("The palette is saved."), result);
}

}  // namespace App
