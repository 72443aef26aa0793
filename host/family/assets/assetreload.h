#pragma once

#include <QString>

namespace Zorv {
class ProjectFile;
}

namespace Family {

class AssetHistory;

/// Reloads a collection that was changed on disk. If it cannot be read, or its records are in use,
/// shows a message with the title `title` and changes nothing. True if it was read.
bool reloadAssets(Zorv::ProjectFile& file, const AssetHistory& history, const QString& title);

}  // namespace Family
