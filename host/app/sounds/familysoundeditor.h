#pragma once

#include "app/window/windowservices.h"

#include <zorv/editors/sound/soundeditor.h>

namespace Operations {
enum class SoundExtent;
}

namespace App {

/// The library's sound editor for this engine family. Before a sound is removed, it asks if
/// something plays it. Truncated files can be imported as far as they go.
class FamilySoundEditor : public Zorv::SoundEditor
{
    Q_OBJECT

public:
    FamilySoundEditor(Zorv::SoundWorkspace* workspace, const RemovalCheck& mayRemove,
                      QObject* parent = nullptr);

    void soundChanged(Zorv::Sound* sound) override;

signals:
    /// Another sound is shown, or the same one again; -1 for none.
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
