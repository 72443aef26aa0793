#pragma once

#include "editors/snipman/snipfield.h"

/// A field with one value: a text, a whole number or a number.
class ZORV_EXPORT RegularSnipField : public SnipField
{
public:
    /// `fieldType` is "string", "int" or "float". `defaultValue` is what the input has
    /// at first: the text itself, or a number with a point as in C.
    RegularSnipField(const QString& fieldName, const QString& fieldTitle, const QString& fieldType,
                     const QString& defaultValue);

    QString value;  ///< the default

    /// The type that it was made with.
    QString type() const override;

    /// "value" alone.
    QString attr() const override;
    SnipField* clone() const override;

private:
    QString m_type;
};
