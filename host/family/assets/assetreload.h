#pragma once

#include <QString>

namespace Zorv {
class ProjectFile;
}

namespace Family {

class AssetHistory;

/// Reads a collection again that was changed on disk. If it cannot be read, or its records are in
/// use, the person is told under `title`, and all stays as it is. True if it was read.
bool reloadAssets(Zorv::ProjectFile& file, const AssetHistory& history, const QString& title);

}  // namespace Family
