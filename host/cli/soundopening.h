#pragma once

#include <memory>

class QString;

namespace Family {
class SoundFile;
}  // namespace Family

namespace Cli {

struct ReleaseSounds
{
    void operator()(Family::SoundFile* sounds) const;
};

/// The sounds of a file while a command works on them.
using OpenSounds = std::unique_ptr<Family::SoundFile, ReleaseSounds>;

/// Null if the file cannot be read. What is wrong with it is told.
OpenSounds openSounds(const QString& fileName);

/// The same; without sounds if the file is not there.
OpenSounds openOrNewSounds(const QString& fileName);

/// Writes them if anything has changed; gives the status.
int saveSounds(Family::SoundFile* sounds, const QString& fileName);

}  // namespace Cli
