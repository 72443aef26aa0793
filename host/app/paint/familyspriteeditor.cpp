#include "app/paint/familyspriteeditor.h"

#include "family/assets/spritecollection.h"
#include "operations/check/uses.h"

namespace App {

FamilySpriteEditor::FamilySpriteEditor(const RemovalCheck& mayRemove, QObject* parent)
    : SpriteEditor(parent), m_mayRemove(mayRemove)
{
}

bool FamilySpriteEditor::mayDeleteSprite()
{
    return m_mayRemove([this] {
        const auto* collection = static_cast<Family::SpriteCollection*>(sprites());
        return collection ? Operations::removalOf(Operations::Removal::Sprites, *collection,
                                                  {spriteIndex()})
                          : Operations::Removal();
    });
}

}  // namespace App
