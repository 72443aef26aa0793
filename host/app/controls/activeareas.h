#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

namespace App {

/// The active areas of the window: "code" while a text is in front, "sprites" while sprites are.
/// The area "all" is always active.
class ActiveAreas : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void set(const QSet<QString>& areas);
    const QSet<QString>& areas() const { return m_areas; }

    /// True if one of the areas is active, or if the list is empty: an empty list means all areas.
    bool isAnyActive(const QStringList& areas) const;

    /// True if there is an area where both apply.
    static bool canMeet(const QStringList& first, const QStringList& second);

    /// The names in a null-terminated array; none for a null pointer.
    static QStringList fromArray(const char* const* areas);

signals:
    void changed();

private:
    QSet<QString> m_areas;
};

}  // namespace App
