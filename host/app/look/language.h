#pragma once

#include <functional>

class QObject;

namespace App {

/// Gives an object its texts now and whenever the language (`Operations::Language`) changes. Of an
/// object that is no widget the parent is one. `giveTexts` lives as long as the object.
void followLanguage(QObject* owner, std::function<void()> giveTexts);

}  // namespace App
