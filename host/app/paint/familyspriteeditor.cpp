#include "app/paint/familyspriteeditor.h"

#include "family/assets/spritecollection.h"
#include "operations/check/uses.h"
#include "operations/media/assetnames.h"

namespace App {

FamilySpriteEditor::FamilySpriteEditor(const RemovalCheck& mayRemove, QObject* parent)
    : SpriteEditor(parent), m_mayRemove(mayRemove)
{
}

void FamilySpriteEditor::newIdentifiers(const QStringList& files, QList<QVariant>* identifiers)
{
    const auto* collection = static_cast<Family::SpriteCollection*>(sprites());
    const Family::FamilySprite* current = collection->sprite(spriteIndex());
    Family::AssetId first;
    first.group = current ? current->id().group : first.group;
    const auto free = [collection](Family::AssetId from) { return collection->freeId(from); };
    for (const Family::AssetId id : Operations::newIds(files, free, first)) {
        identifiers->append(id.text());
    }
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
