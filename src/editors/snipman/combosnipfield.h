#pragma once

#include "editors/snipman/snipfield.h"

#include <QStringList>

/// A field that is chosen from a list: what the person sees, and what goes into the
/// code for it.
class ZORV_EXPORT ComboSnipField : public SnipField
{
public:
    /// The lists belong together by place. A comma in an item makes two of it as soon
    /// as the field has been in a file: there is no escape.
    ComboSnipField(const QString& fieldName, const QString& fieldTitle, const QStringList& values,
                   const QStringList& titles);

    QStringList itemValues;  ///< what goes into the code
    QStringList itemTitles;  ///< what is shown, before translation

    /// What an item puts into the code. An item without a value of its own stands for
    /// its title.
    QString itemValue(int item) const;

    /// "items".
    QString type() const override;

    /// "value" and "value_title", each list joined by commas.
    QString attr() const override;
    SnipField* clone() const override;
};
