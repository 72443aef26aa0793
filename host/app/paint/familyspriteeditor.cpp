#include "app/paint/familyspriteeditor.h"

#include "family/assets/spritecollection.h"
#include "operations/check/uses.h"

namespace App {

FamilySpriteEditor::FamilySpriteEditor(const WindowServices& services,
                                       Zorv::PaletteEditor* palettes, QObject* parent)
    : SpriteEditor(palettes, parent), m_services(services)
{
}

bool FamilySpriteEditor::takeFiles(Zorv::Sprites* into, const QStringList& files)
{
    m_services.addImages(static_cast<Family::SpriteCollection*>(into), files);
    return true;
}

/// Looks for uses even if another sprite has the same number.
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
