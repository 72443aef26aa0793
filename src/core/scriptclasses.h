#pragma once

#include "zorv_export.h"

extern "C" {
/// A place for a host with scripting to hook: takes its scripting state and
/// does nothing.
ZORV_EXPORT void registerScriptClasses(void* state);
}
