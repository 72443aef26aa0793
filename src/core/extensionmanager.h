#pragma once

#include "core/extension.h"

#include <QList>
#include <QString>

namespace Zorv {

/// The registry of extensions, with one list per type. Main thread only.
class ZORV_EXPORT ExtensionManager
{
public:
    /// Ignores the name: all state is static.
    explicit ExtensionManager(const QString& name = {});

    /// Appends an extension to the list of its type. Not owned.
    static void add(Extension* extension);

    /// The extensions of one type.
    static QList<Extension*>& list(Extension::Type type);
};

}  // namespace Zorv
