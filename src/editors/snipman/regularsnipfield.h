#pragma once

#include "editors/snipman/snipfield.h"

/// A field with one value: a text, an integer or a real number.
class ZORV_EXPORT RegularSnipField : public SnipField
{
public:
    /// `fieldType` is "string", "int" or "float". `defaultValue` is the initial input:
    /// the text itself, or a number with a decimal point as in C.
    RegularSnipField(const QString& fieldName, const QString& fieldTitle, const QString& fieldType,
                     const QString& defaultValue);

    QString value;  ///< the default

    /// The type given to the constructor.
    QString type() const override;

    /// Only "value".
    QString attr() const override;
    SnipField* clone() const override;

private:
    QString m_type;
};
