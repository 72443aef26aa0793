#pragma once

class QString;

namespace App {

/// What an action was called in settings that an earlier version has written; null for the same.
const char* formerNameOf(const QString& action);

}  // namespace App
