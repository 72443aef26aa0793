#pragma once

#include "app/window/windowservices.h"

#include <zorv/editors/sound/soundeditor.h>

namespace App {

/// The library's editor of sounds for those of the family: who plays a sound is asked about before
/// it goes.
class FamilySoundEditor : public Zorv::SoundEditor
{
    Q_OBJECT

public:
    FamilySoundEditor(Zorv::SoundWorkspace* workspace, const RemovalCheck& mayRemove,
                      QObject* parent = nullptr);

protected:
    bool mayDeleteSound() override;

private:
    RemovalCheck m_mayRemove;
};

}  // namespace App
