#pragma once

class QString;

namespace App {

/// The name of an action in the settings of an earlier version; null if it has not changed.
const char* formerNameOf(const QString& action);

}  // namespace App
