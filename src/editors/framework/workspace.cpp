#include "editors/framework/workspace.h"

namespace Zorv {

void Workspace::engineSwitched(bool) {}

void Workspace::activate() {}

void Workspace::deactivate() {}

void Workspace::reconfig() {}

void Workspace::retranslate() {}

void Workspace::statusClicked() {}

void Workspace::zoomActual() {}

void Workspace::zoomIn() {}

void Workspace::zoomOut() {}

}  // namespace Zorv
