#pragma once

#include "zorv_export.h"

#include <QString>

/// A field of a snippet: a value that the user is asked for when the snippet is used.
///
/// In the code, "@" and the name stand for the value. A plain record; each kind adds
/// its own data. Any thread.
class ZORV_EXPORT SnipField
{
public:
    SnipField(const QString& fieldName, const QString& fieldTitle);
    virtual ~SnipField();

    QString name;   ///< the name after "@"; never empty in a valid snippet
    QString title;  ///< the label of the input, before translation

    /// The type in the file: "string", "int", "float" or "items".
    virtual QString type() const = 0;

    /// The XML attributes that only this kind of field has, quoted and escaped.
    virtual QString attr() const = 0;

    /// A copy of this field. The caller owns it.
    virtual SnipField* clone() const = 0;
};
