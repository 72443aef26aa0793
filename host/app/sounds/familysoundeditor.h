#pragma once

#include "app/window/windowservices.h"

#include <zorv/editors/sound/soundeditor.h>

namespace Operations {
enum class SoundExtent;
}

namespace App {

/// The library's editor of sounds for those of the family: who plays a sound is asked about before
/// it goes, and of files that were cut short all that is there can be taken.
class FamilySoundEditor : public Zorv::SoundEditor
{
    Q_OBJECT

public:
    FamilySoundEditor(Zorv::SoundWorkspace* workspace, const RemovalCheck& mayRemove,
                      QObject* parent = nullptr);

    void soundChanged(Zorv::Sound* sound) override;

signals:
    /// Another sound is shown, or the same one anew; -1 for none.
    void soundShown(int row);

protected:
    bool mayDeleteSound() override;
    bool mayReadSounds(const QStringList& fileNames) override;
    SoundReader soundReader(const QString& fileName) override;

private:
    RemovalCheck m_mayRemove;
    Operations::SoundExtent m_extent;
};

}  // namespace App
