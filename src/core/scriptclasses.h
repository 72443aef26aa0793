#pragma once

#include "zorv_export.h"

extern "C" {
/// A hook for hosts with scripting: receives their scripting state and does
/// nothing.
ZORV_EXPORT void registerScriptClasses(void* state);
}
