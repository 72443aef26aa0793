#include "cli/soundopening.h"

#include "cli/cli.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/assets/soundfile.h"

#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>

namespace Cli {

void ReleaseSounds::operator()(Family::SoundFile* sounds) const
{
    sounds->release();
}

OpenSounds openSounds(const QString& fileName)
{
    OpenSounds sounds(new Family::SoundFile);
    if (!sounds->fromFile(*Zorv::FileSystemArchive::instance(), fileName, false)) {
        complain(sounds->errorString());
        return {};
    }
    const QStringList broken = sounds->loadErrors();
    for (const QString& line : broken) {
        complain(line);
    }
    return sounds;
}

OpenSounds openOrNewSounds(const QString& fileName)
{
    return QFileInfo::exists(fileName) ? openSounds(fileName) : OpenSounds(new Family::SoundFile);
}

int saveSounds(Family::SoundFile* sounds, const QString& fileName)
{
    const bool isSaved = !sounds->isModified() ||
                         sounds->toFile(*Zorv::FileSystemArchive::instance(), fileName, false);
    return isSaved ? int(Fine) : notDone(sounds->errorString());
}

}  // namespace Cli
