#pragma once

#include <QStringList>

namespace App {

/// The recently opened game folders, latest first, stored in the settings.
class RecentFolders
{
public:
    static constexpr int MaxCount = 10;

    /// Only those that still exist.
    static QStringList list();

    /// Adds a folder at the front.
    static void add(const QString& folder);
    static void clear();
};

}  // namespace App
