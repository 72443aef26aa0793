#pragma once

#include <QSettings>

namespace Operations {

/// The format of the person's settings: the files of `QSettings::IniFormat`, written whole.
///
/// That format takes a short write for success: on a full disk, what fits would take the place of
/// all settings. In this one the old file stays, `status()` becomes `AccessError`, and the change
/// is tried again with the next. Each reads what the other has written, but for points, sizes and
/// rectangles, which no setting is. Lines that are no settings are passed over. Re-entrant.
QSettings::Format settingsFormat();

}  // namespace Operations
