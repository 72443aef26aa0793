#include "family/assets/assetid.h"

namespace Family {

QString AssetId::text() const
{
    return QString::number(group) + QLatin1Char(',') + QString::number(number);
}

bool AssetId::read(const QVariant& value, AssetId* id)
{
    const QString text = value.toString();
    const int comma = text.indexOf(QLatin1Char(','));
    if (comma < 0) {
        return false;
    }
    bool groupFine = false;
    bool numberFine = false;
    const AssetId found{text.leftRef(comma).trimmed().toUShort(&groupFine),
                        text.midRef(comma + 1).trimmed().toUShort(&numberFine)};
    if (groupFine && numberFine) {
        *id = found;
    }
    return groupFine && numberFine;
}

bool readIdProperty(const QString& name, const QVariant& value, AssetId* id)
{
    if (name == QLatin1String("Identifier")) {
        return AssetId::read(value, id);
    }
    bool fine = false;
    const uint number = value.toUInt(&fine);
    if (!fine || number > 0xffff) {
        return false;
    }
    if (name == QLatin1String("Group")) {
        id->group = quint16(number);
        return true;
    }
    if (name == QLatin1String("Number")) {
        id->number = quint16(number);
        return true;
    }
    return false;
}

}  // namespace Family
