#pragma once

#include <QString>

namespace Operations {

/// The difference of two texts in the unified format, with three lines around
/// each change; empty for equal texts. Lines end in a line feed.
QString unifiedDiff(const QString& oldText, const QString& newText, const QString& oldName,
                    const QString& newName);

}  // namespace Operations
