#include "editors/snipman/regularsnipfield.h"

#include "editors/snipman/snippetxml_p.h"

RegularSnipField::RegularSnipField(const QString& fieldName, const QString& fieldTitle,
                                   const QString& fieldType, const QString& defaultValue)
    : SnipField(fieldName, fieldTitle), value(defaultValue), m_type(fieldType)
{
}

QString RegularSnipField::type() const
{
    return m_type;
}

QString RegularSnipField::attr() const
{
    return QLatin1String("value=\"") + Zorv::xmlAttribute(value) + QLatin1Char('"');
}

SnipField* RegularSnipField::clone() const
{
    return new RegularSnipField(*this);
}
