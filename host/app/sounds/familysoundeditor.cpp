#include "app/sounds/familysoundeditor.h"

#include "family/assets/soundfile.h"
#include "operations/check/uses.h"
#include "operations/media/soundwork.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/media/soundsample.h>

namespace App {

using Operations::SoundExtent;
using Zorv::Dialogs;

FamilySoundEditor::FamilySoundEditor(Zorv::SoundWorkspace* workspace, const RemovalCheck& mayRemove,
                                     QObject* parent)
    : SoundEditor(workspace, parent), m_mayRemove(mayRemove), m_extent(SoundExtent::AsTold)
{
}

void FamilySoundEditor::soundChanged(Zorv::Sound* sound)
{
    SoundEditor::soundChanged(sound);
    emit soundShown(sound ? sounds()->currentIndex : -1);
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

/// Programs that record without an end leave sizes that are wrong.
bool FamilySoundEditor::mayReadSounds(const QStringList& fileNames)
{
    m_extent = SoundExtent::AsTold;
    const QString parts = Operations::partialSounds(fileNames);
    if (parts.isEmpty()) {
        return true;
    }
    const auto answer = Dialogs::instance()->question(
        tr("Add sounds"), parts + QLatin1String("\n\n") + tr("Take all frames that are there?"),
        Dialogs::Yes | Dialogs::No | Dialogs::Cancel, Dialogs::Yes);
    if (answer == Dialogs::Yes) {
        m_extent = SoundExtent::Whole;
    }
    return answer == Dialogs::Yes || answer == Dialogs::No;
}

/// What extensions read is read; for the rest the family knows why it does not go.
Zorv::SoundSample FamilySoundEditor::readSound(const QString& fileName, QString* reason)
{
    Zorv::SoundSample sample;
    if (m_extent == SoundExtent::AsTold) {
        sample = SoundEditor::readSound(fileName, reason);
    }
    if (sample.data.isEmpty()) {
        *reason = Operations::readSound(fileName, m_extent, &sample).error;
    }
    return sample;
}

}  // namespace App
