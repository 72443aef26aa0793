#pragma once

#include <functional>

class QObject;

namespace App {

/// Calls `giveTexts` now and whenever the language (`Operations::Language`) changes. If the object
/// is not a widget, its parent must be one. `giveTexts` is kept as long as the object lives.
void followLanguage(QObject* owner, std::function<void()> giveTexts);

}  // namespace App
