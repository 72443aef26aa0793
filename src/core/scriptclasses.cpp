#include "core/scriptclasses.h"

void registerScriptClasses(void*) {}
