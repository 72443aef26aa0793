#include "app/palettes/familypaletteeditor.h"

#include "family/assets/freeids.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/media/paletteedits.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/palette/palettewidget.h>

namespace App {

using Family::AssetId;
using Zorv::Dialogs;

namespace {

AssetId behindLast(const Family::PaletteList& palettes)
{
    const AssetId last =
        palettes.count() > 0 ? palettes.palette(palettes.count() - 1)->id() : AssetId{1, 0};
    return Family::FreeIds([&palettes](AssetId id) { return palettes.byId(id) != nullptr; })
        .next(AssetId::fromKey(last.key() + 1));
}

/// Asks until the answer is an identifier. False if the user cancels.
bool askForId(const QString& title, QString label, AssetId* id)
{
    for (;;) {
        const auto answer = Dialogs::instance()->askText(title, label, id->text());
        if (!answer) {
            return false;
        }
        if (AssetId::read(*answer, id)) {
            return true;
        }
        label = FamilyPaletteEditor::tr("Two numbers are needed, as in \"1,2\". Group and number:");
    }
}

}  // namespace

Family::SpriteCollection* FamilyPaletteEditor::sprites() const
{
    return palettes() ? static_cast<Family::SpriteCollection*>(palettes()->sprites()) : nullptr;
}

bool FamilyPaletteEditor::paletteIdentifier(QVariant* id)
{
    if (!sprites()) {
        return false;
    }
    AssetId wish = behindLast(*sprites()->palettes());
    if (!askForId(tr("Palette"), tr("Group and number:"), &wish)) {
        return false;
    }
    *id = wish.text();
    return true;
}

void FamilyPaletteEditor::paletteIdentifiers(const QStringList& files, QList<QVariant>* ids,
                                             bool* reversed)
{
    if (!sprites()) {
        return;
    }
    const QString title = tr("Add palettes");
    AssetId wish = behindLast(*sprites()->palettes());
    const QString label =
        files.size() == 1 ? tr("Group and number:") : tr("Group and number of the first palette:");
    if (!askForId(title, label, &wish)) {
        return;
    }
    const int order = Dialogs::instance()->choose(
        title, tr("The order of the colours:"),
        {tr("As it is in the file"), tr("Reversed: the last colour becomes the first")}, 0);
    // The file can be closed while the dialog is open.
    const Family::SpriteCollection* collection = sprites();
    if (order < 0 || !collection) {
        return;
    }
    *reversed = order == 1;
    const Family::PaletteList& list = *collection->palettes();
    Family::FreeIds free([&list](AssetId id) { return list.byId(id) != nullptr; });
    for (int i = 0; i < files.size(); ++i) {
        wish = free.next(wish);
        ids->append(wish.text());
    }
}

void FamilyPaletteEditor::reorderColors(const QVector<int>& rows, const Zorv::PaletteOrder& order)
{
    const Operations::MediaResult result = Operations::reorderPalettes(sprites(), rows, order);
    const QStringList lines = result.errors + result.warnings;
    if (!lines.isEmpty()) {
        QMetaObject::invokeMethod(
            this,
            [text = lines.join(QLatin1Char('\n'))] {
                Dialogs::instance()->error(tr("Reorder palette"), text);
            },
            Qt::QueuedConnection);
    }
}

void FamilyPaletteEditor::selectColour(int group, int number, int slot)
{
    const Family::SpriteCollection* collection = sprites();
    const Family::FamilySprite* sprite =
        collection ? collection->byId({quint16(group), quint16(number)}) : nullptr;
    if (!sprite || !sprite->palette() || !view() || slot < 0 || slot > 255) {
        return;
    }
    if (currentPalette() != sprite->palette()) {
        setCurrentPalette(sprite->palette());
    }
    view()->clearSelection();
    view()->selection[slot] = true;
    emit view()->selectionChanged();
}

}  // namespace App
