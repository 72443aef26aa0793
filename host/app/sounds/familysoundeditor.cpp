#include "app/sounds/familysoundeditor.h"

#include "family/assets/soundfile.h"
#include "operations/check/uses.h"

namespace App {

FamilySoundEditor::FamilySoundEditor(Zorv::SoundWorkspace* workspace, const RemovalCheck& mayRemove,
                                     QObject* parent)
    : SoundEditor(workspace, parent), m_mayRemove(mayRemove)
{
}

bool FamilySoundEditor::mayDeleteSound()
{
    return m_mayRemove([this] {
        const auto* file = static_cast<Family::SoundFile*>(sounds());
        return file
                   ? Operations::removalOf(Operations::Removal::Sounds, *file, {file->currentIndex})
                   : Operations::Removal();
    });
}

}  // namespace App
