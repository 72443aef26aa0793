#pragma once

#include <functional>

class QWidget;

namespace App {

/// Calls a function once, one turn of the event loop after a window was first painted: for work
/// that is not visible in the first frame.
void afterFirstFrame(QWidget* window, std::function<void()> work);

}  // namespace App
