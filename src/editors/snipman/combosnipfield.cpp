#include "editors/snipman/combosnipfield.h"

#include "editors/snipman/snippetxml_p.h"

ComboSnipField::ComboSnipField(const QString& fieldName, const QString& fieldTitle,
                               const QStringList& values, const QStringList& titles)
    : SnipField(fieldName, fieldTitle), itemValues(values), itemTitles(titles)
{
}

QString ComboSnipField::itemValue(int item) const
{
    return itemValues.value(item, itemTitles.value(item));
}

QString ComboSnipField::type() const
{
    return QStringLiteral("items");
}

QString ComboSnipField::attr() const
{
    const QLatin1Char comma(',');
    return QLatin1String("value=\"") + Zorv::xmlAttribute(itemValues.join(comma)) +
           QLatin1String("\" value_title=\"") + Zorv::xmlAttribute(itemTitles.join(comma)) +
           QLatin1Char('"');
}

SnipField* ComboSnipField::clone() const
{
    return new ComboSnipField(*this);
}
