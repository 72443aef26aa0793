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

/// Programs that record without a known end leave wrong sizes in the file.
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

/// Does not report again what the user was already asked about.
Zorv::SoundEditor::SoundReader FamilySoundEditor::soundReader(const QString& fileName)
{
    return [fileName, extent = m_extent](QString* reason) {
        Zorv::SoundSample sample;
        const Operations::Outcome outcome = Operations::readSound(fileName, extent, &sample);
        const QString unfit =
            sample.frames > 0 ? Operations::unfitText(fileName, sample) : QString();
        *reason = !outcome.error.isEmpty() ? outcome.error
                  : !unfit.isEmpty()       ? unfit
                  : outcome.isPart         ? QString()
                                           : outcome.warning;
        return sample;
    };
}

}  // namespace App
