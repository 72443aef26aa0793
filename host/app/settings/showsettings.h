#pragma once

#include <functional>

class QWidget;

namespace App {

class ActionRegistry;

/// Opens the dialog of all settings on a window, or brings it forward. `applied` is called when
/// settings were stored, and are to be taken.
void showSettings(ActionRegistry* registry, QWidget* window, const std::function<void()>& applied);

}  // namespace App
