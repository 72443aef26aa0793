#pragma once

#include <QString>

namespace Operations {

/// A unified diff of two texts with three lines of context; empty for equal texts. Lines end in a
/// line feed.
QString unifiedDiff(const QString& oldText, const QString& newText, const QString& oldName,
                    const QString& newName);

}  // namespace Operations
