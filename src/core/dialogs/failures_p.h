#pragma once

#include "zorv_export.h"

#include <QStringList>

namespace Zorv {

/// The first ten lines of a list and the number of further ones.
ZORV_EXPORT QString shortList(const QStringList& lines);

/// Shows what went wrong, one line per failure: the first ten, with a summary line below. Does
/// nothing if the list is empty.
ZORV_EXPORT void tellFailures(const QString& title, const QStringList& errors,
                              const QString& last = {});

}  // namespace Zorv
