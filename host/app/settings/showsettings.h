#pragma once

#include <functional>

class QWidget;

namespace App {

class ActionRegistry;

/// Opens the settings dialog on a window, or brings it to the front. `applied` is called when
/// settings were stored and must be read again.
void showSettings(ActionRegistry* registry, QWidget* window, const std::function<void()>& applied);

}  // namespace App
