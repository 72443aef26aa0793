#include "app/paint/familyspriteeditor.h"

#include "family/assets/spritecollection.h"
#include "operations/check/uses.h"
#include "operations/media/assetnames.h"

namespace App {

FamilySpriteEditor::FamilySpriteEditor(const WindowServices& services,
                                       Zorv::PaletteEditor* palettes, QObject* parent)
    : SpriteEditor(palettes, parent), m_services(services)
{
}

void FamilySpriteEditor::newIdentifiers(const Zorv::Sprites& into, const QStringList& files,
                                        QList<QVariant>* identifiers)
{
    const auto* all = static_cast<const Family::SpriteCollection*>(&into);
    const Family::FamilySprite* current = all->sprite(all->currentIndex);
    Family::AssetId first;
    first.group = current ? current->id().group : first.group;
    const auto free = [all](Family::AssetId from) { return all->freeId(from); };
    for (const Family::AssetId id : Operations::newIds(files, free, first)) {
        identifiers->append(id.text());
    }
}

/// Another sprite of the same number does not take its place here.
bool FamilySpriteEditor::spriteUses(QStringList* places) const
{
    const Family::FamilySprite* current = collection()->sprite(spriteIndex());
    return current &&
           m_services.findUses(
               {Operations::Removal::Sprites, collection()->fileName(), {current->id().text()}, {}},
               places);
}

bool FamilySpriteEditor::mayDeleteSprite()
{
    return m_services.mayRemove([this] {
        return sprites() ? Operations::removalOf(Operations::Removal::Sprites, *collection(),
                                                 {spriteIndex()})
                         : Operations::Removal();
    });
}

Family::SpriteCollection* FamilySpriteEditor::collection() const
{
    return static_cast<Family::SpriteCollection*>(sprites());
}

}  // namespace App
