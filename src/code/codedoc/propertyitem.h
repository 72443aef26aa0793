#pragma once

#include "zorv_export.h"

#include <QStringList>
#include <QVariant>

namespace Zorv {

/// An object with named properties that views can show and edit.
class ZORV_EXPORT PropertyItem
{
public:
    virtual ~PropertyItem();

    /// The names, in display order.
    virtual QStringList propertyNames() const = 0;

    /// The value of a property; invalid for an unknown name.
    virtual QVariant property(const QString& name) const = 0;

    /// Sets a property. Does nothing if it is unknown or read-only.
    virtual void setProperty(const QString& name, const QVariant& value) = 0;
};

}  // namespace Zorv
