#pragma once

#include "zorv_export.h"

#include <QStringList>

namespace Zorv {

/// The first ten lines of a list, and how many more there are.
ZORV_EXPORT QString shortList(const QStringList& lines);

/// Tells what went wrong, a line each, the first ten of them, with a last line below. Nothing if
/// nothing went wrong.
ZORV_EXPORT void tellFailures(const QString& title, const QStringList& errors,
                              const QString& last = {});

}  // namespace Zorv
