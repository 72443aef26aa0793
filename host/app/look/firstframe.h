#pragma once

#include <functional>

class QWidget;

namespace App {

/// Calls a function once, in the turn of the event loop after a window has painted itself first:
/// for work that nobody can see in that frame.
void afterFirstFrame(QWidget* window, std::function<void()> work);

}  // namespace App
