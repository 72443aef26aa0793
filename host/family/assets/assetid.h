#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace Family {

/// The identifier of a sprite, palette or sound: a group and a number in it.
struct AssetId
{
    quint16 group = 0;
    quint16 number = 0;

    /// "GROUP,NUMBER", the value of the property "Identifier".
    QString text() const;

    /// Both numbers in one, in natural order.
    quint32 key() const { return quint32(group) << 16 | number; }
    static AssetId fromKey(quint32 key) { return {quint16(key >> 16), quint16(key)}; }

    /// Reads "GROUP,NUMBER", each from 0 to 65535; blanks are allowed. False, without a change, for
    /// any other value.
    static bool read(const QVariant& value, AssetId* id);
};

inline bool operator==(AssetId a, AssetId b)
{
    return a.key() == b.key();
}
inline bool operator!=(AssetId a, AssetId b)
{
    return a.key() != b.key();
}
inline bool operator<(AssetId a, AssetId b)
{
    return a.key() < b.key();
}

/// Applies one of the properties "Identifier", "Group" and "Number" to an identifier. False,
/// without a change, for another name or an invalid value.
bool readIdProperty(const QString& name, const QVariant& value, AssetId* id);

}  // namespace Family
