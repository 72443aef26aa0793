#include "media/soundfile.h"

#include "core/extensionmanager.h"
#include "media/wav.h"

#include <QByteArray>
#include <QIODevice>

#include <algorithm>

namespace Zorv {

bool loadSound(QIODevice* device, const char* format, SoundSample& sample)
{
    if (!device->isOpen()) {
        return false;
    }
    if (qstrcmp(format, "WAV") == 0) {
        sample = soundFromWAV(device);
    } else {
        for (Extension* loader : qAsConst(ExtensionManager::list(Extension::SoundLoader))) {
            if (loader->name() == format && loader->loadSound(device, sample)) {
                break;
            }
        }
    }
    // Judged by the samples, not by the extension's return value.
    return !sample.data.isEmpty();
}

bool saveSound(QIODevice* device, const char* format, const SoundSample& sample)
{
    if (!device->isOpen()) {
        return false;
    }
    if (qstrcmp(format, "WAV") == 0) {
        return soundToWAV(sample, device);
    }
    const auto& savers = ExtensionManager::list(Extension::SoundSaver);
    return std::any_of(savers.begin(), savers.end(), [&](Extension* saver) {
        return saver->name() == format && saver->saveSound(device, sample);
    });
}

}  // namespace Zorv
