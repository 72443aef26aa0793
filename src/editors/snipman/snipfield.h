#pragma once

#include "zorv_export.h"

#include <QString>

/// A field of a snippet: what the person is asked for when the snippet is used.
///
/// In the code "@" and the name stand for the answer. A plain record with what its
/// kind adds; main thread is not required.
class ZORV_EXPORT SnipField
{
public:
    SnipField(const QString& fieldName, const QString& fieldTitle);
    virtual ~SnipField();

    QString name;   ///< what stands behind "@"; never empty in a sound snippet
    QString title;  ///< the label before the input, before translation

    /// What the file has as type: "string", "int", "float" or "items".
    virtual QString type() const = 0;

    /// The attributes of the element in the file that only this kind has, quoted and
    /// with the characters that mean something in XML escaped.
    virtual QString attr() const = 0;

    /// A new field that is equal to this one. The caller owns it.
    virtual SnipField* clone() const = 0;
};
