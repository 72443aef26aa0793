#pragma once

#include <QSettings>

namespace Operations {

/// A settings format compatible with `QSettings::IniFormat` that replaces files as a whole.
///
/// Qt's format treats a short write as success: on a full disk, a truncated file replaces all
/// settings. With this format the old file stays, `status()` becomes `AccessError`, and the next
/// change tries again. Each format can read what the other has written, except points, sizes and
/// rectangles, which no setting uses. Invalid lines are skipped. Re-entrant.
QSettings::Format settingsFormat();

}  // namespace Operations
