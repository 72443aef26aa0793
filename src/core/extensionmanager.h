#pragma once

#include "core/extension.h"

#include <QList>
#include <QString>

namespace Zorv {

/// The registry of extensions, a list for each type. Main thread only.
class ZORV_EXPORT ExtensionManager
{
public:
    /// Does nothing with the name: all state is static.
    explicit ExtensionManager(const QString& name = {});

    /// Appends an extension to the list of its type; not owned.
    static void add(Extension* extension);

    /// The extensions of a type.
    static QList<Extension*>& list(Extension::Type type);
};

}  // namespace Zorv
