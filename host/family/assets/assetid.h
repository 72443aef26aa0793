#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace Family {

/// What sprites, palettes and sounds are called by: a group and a number in it.
struct AssetId
{
    quint16 group = 0;
    quint16 number = 0;

    /// "GROUP,NUMBER", the value of the property "Identifier".
    QString text() const;

    /// Both numbers as one, in the natural order.
    quint32 key() const { return quint32(group) << 16 | number; }
    static AssetId fromKey(quint32 key) { return {quint16(key >> 16), quint16(key)}; }

    /// Reads "GROUP,NUMBER", each from 0 to 65535, blanks allowed. False, and no change, for
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

/// Reads one of the properties "Identifier", "Group" and "Number" into an identifier. False, and no
/// change, for another name or a value that it cannot take.
bool readIdProperty(const QString& name, const QVariant& value, AssetId* id);

}  // namespace Family
