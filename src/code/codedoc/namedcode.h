#pragma once

#include "code/codedoc/propertyitem.h"

namespace Zorv {

/// An item with the properties "DisplayName" (read-only) and "Name".
class ZORV_EXPORT NamedCode : public PropertyItem
{
public:
    /// The name in the code.
    virtual QString name() const = 0;

    /// The name to display; by default `name()`.
    virtual QString displayName() const;

    /// Changes the name in the code.
    virtual void setName(const QString& name) = 0;

    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;
};

}  // namespace Zorv
