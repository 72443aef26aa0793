#pragma once

#include "editors/snipman/snipfield.h"

#include <QStringList>

/// A field with a list of choices: the text that the user sees, and the value for the
/// code.
class ZORV_EXPORT ComboSnipField : public SnipField
{
public:
    /// The lists correspond by index. An item with a comma becomes two items after
    /// saving and loading, because there is no escape.
    ComboSnipField(const QString& fieldName, const QString& fieldTitle, const QStringList& values,
                   const QStringList& titles);

    QStringList itemValues;  ///< values inserted into the code
    QStringList itemTitles;  ///< texts shown, before translation

    /// The value that an item inserts into the code; its title if it has no value.
    QString itemValue(int item) const;

    /// "items".
    QString type() const override;

    /// "value" and "value_title", each list joined by commas.
    QString attr() const override;
    SnipField* clone() const override;
};
