#pragma once

#include "app/window/windowservices.h"

#include <zorv/image/spriteeditor.h>

namespace App {

/// The library's editor of sprites for those of the family: new ones are numbered as the names of
/// their files tell, else within the group that is worked on, and who names a sprite is asked about
/// before it goes.
class FamilySpriteEditor : public Zorv::SpriteEditor
{
    Q_OBJECT

public:
    explicit FamilySpriteEditor(const RemovalCheck& mayRemove, QObject* parent = nullptr);

protected:
    void newIdentifiers(const QStringList& files, QList<QVariant>* identifiers) override;
    bool mayDeleteSprite() override;

private:
    RemovalCheck m_mayRemove;
};

}  // namespace App
