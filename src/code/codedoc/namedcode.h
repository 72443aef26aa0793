#pragma once

#include "code/codedoc/propertyitem.h"

namespace Zorv {

/// A property item with a name: "DisplayName", which cannot be set, and "Name".
class ZORV_EXPORT NamedCode : public PropertyItem
{
public:
    /// The name as the code has it.
    virtual QString name() const = 0;

    /// The name for the person; `name()` here.
    virtual QString displayName() const;

    /// Changes the name in the code.
    virtual void setName(const QString& name) = 0;

    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;
};

}  // namespace Zorv
