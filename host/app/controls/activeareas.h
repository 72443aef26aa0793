#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

namespace App {

/// The areas of the window that are active: "code" while a text is in front, "sprites" while
/// sprites are. The area "all" always is.
class ActiveAreas : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void set(const QSet<QString>& areas);
    const QSet<QString>& areas() const { return m_areas; }

    /// True if one of the areas is active, or if none is named: what names no area
    /// applies in all of them.
    bool isAnyActive(const QStringList& areas) const;

    /// True if there is an area in which both apply.
    static bool canMeet(const QStringList& first, const QStringList& second);

    /// The names of a null-ended array; none for null.
    static QStringList fromArray(const char* const* areas);

signals:
    void changed();

private:
    QSet<QString> m_areas;
};

}  // namespace App
