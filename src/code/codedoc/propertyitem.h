#pragma once

#include "zorv_export.h"

#include <QStringList>
#include <QVariant>

namespace Zorv {

/// Something with named properties, for views that show and edit them.
class ZORV_EXPORT PropertyItem
{
public:
    virtual ~PropertyItem();

    /// The names in the order in which a view shows them.
    virtual QStringList propertyNames() const = 0;

    /// The value of a property, invalid for an unknown name.
    virtual QVariant property(const QString& name) const = 0;

    /// Sets a property; nothing for one that is unknown or cannot be set.
    virtual void setProperty(const QString& name, const QVariant& value) = 0;
};

}  // namespace Zorv
