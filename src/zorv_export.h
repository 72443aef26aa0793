#pragma once

#include <QtGlobal>

/// Marks what `libzorv` exports; everything else in the library is hidden.
#if defined(ZORV_BUILD)
#define ZORV_EXPORT Q_DECL_EXPORT
#else
#define ZORV_EXPORT Q_DECL_IMPORT
#endif
