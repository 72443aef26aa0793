#include "code/codedoc/namedcode.h"

namespace Zorv {

namespace {

const QLatin1String DisplayName("DisplayName");
const QLatin1String Name("Name");

}  // namespace

QString NamedCode::displayName() const
{
    return name();
}

QStringList NamedCode::propertyNames() const
{
    return {DisplayName, Name};
}

QVariant NamedCode::property(const QString& key) const
{
    if (key == DisplayName) {
        return displayName();
    }
    return key == Name ? QVariant(name()) : QVariant();
}

void NamedCode::setProperty(const QString& key, const QVariant& value)
{
    if (key == Name) {
        setName(value.toString());
    }
}

}  // namespace Zorv
