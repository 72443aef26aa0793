#pragma once

#include "family/assets/assetid.h"

#include <zorv/core/fileid.h>

#include <QStringList>
#include <QVector>

namespace Zorv {
class ProjectFile;
}

namespace Family {

/// All that a check needs to know about a file of sprites or sounds. Usable from any thread.
struct AssetFacts
{
    bool isReadable = false;     ///< it has the right format and complete tables
    QStringList faults;          ///< one line per broken record, for the user
    QVector<AssetId> ids;        ///< of its sprites or sounds, in order
    QStringList unusedPalettes;  ///< that no sprite uses and no remap names
    QStringList cutPalettes;     ///< whose sprites all use a codec with fewer colours
};

/// Reads the tables of a file or folder without building models. Any thread.
AssetFacts assetFacts(Zorv::FileID::Type type, const QString& path);

/// The same for sprites or sounds in memory, saved or not.
AssetFacts assetFacts(const Zorv::ProjectFile* file);

}  // namespace Family
