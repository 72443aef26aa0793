#pragma once

#include "zorv_export.h"

#include <QStringList>

namespace Zorv {

/// Tells what went wrong, a line each, the first ten of them, with a last line below. Nothing if
/// nothing went wrong.
ZORV_EXPORT void tellFailures(const QString& title, const QStringList& errors,
                              const QString& last = {});

}  // namespace Zorv
