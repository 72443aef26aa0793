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

/// The sounds of a file, open while a command works on them.
using OpenSounds = std::unique_ptr<Family::SoundFile, ReleaseSounds>;

/// Null if the file cannot be read. Prints what is wrong with it.
OpenSounds openSounds(const QString& fileName);

/// Like `openSounds()`, but returns an empty collection if the file does not exist.
OpenSounds openOrNewSounds(const QString& fileName);

/// Saves the sounds if anything has changed; returns the status.
int saveSounds(Family::SoundFile* sounds, const QString& fileName);

}  // namespace Cli
