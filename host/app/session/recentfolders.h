#pragma once

#include <QStringList>

namespace App {

/// The game folders that were opened last, the latest first, in the settings.
class RecentFolders
{
public:
    static constexpr int MaxCount = 10;

    /// Those that are still there.
    static QStringList list();

    /// Puts a folder in front.
    static void add(const QString& folder);
    static void clear();
};

}  // namespace App
