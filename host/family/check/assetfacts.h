#pragma once

#include "family/assets/assetid.h"

#include <zorv/core/fileid.h>

#include <QStringList>
#include <QVector>

namespace Zorv {
class ProjectFile;
}

namespace Family {

/// All that a check has to know of a file of sprites or sounds. Any thread may look at it.
struct AssetFacts
{
    bool isReadable = false;     ///< it is such a file, and not cut off in its tables
    QStringList faults;          ///< a line for each broken record, for the person
    QVector<AssetId> ids;        ///< of its sprites or sounds, in their order
    QStringList unusedPalettes;  ///< that no sprite has and no remap names
    QStringList cutPalettes;     ///< whose sprites are all stored in a codec of fewer colours
};

/// Reads the tables of a file or folder, without making its models. Any thread.
AssetFacts assetFacts(Zorv::FileID::Type type, const QString& path);

/// The same of sprites or sounds as they stand, saved or not.
AssetFacts assetFacts(const Zorv::ProjectFile* file);

}  // namespace Family
