#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace Operations {

/// A selection of sprites, palettes or sounds by group and number.
class Selection
{
public:
    /// Selects everything.
    Selection() = default;

    /// Adds the selection in a text: "200" is a group, "200-299" a range of groups, "200,3" one
    /// number of a group. Several are separated by blanks. Returns false and adds nothing if the
    /// text is invalid.
    bool add(const QString& text);

    /// Always true while nothing was added.
    bool contains(int group, int number) const;

    bool isAll() const { return m_ranges.isEmpty() && m_ids.isEmpty(); }

private:
    struct Range
    {
        int first;
        int last;
    };

    QVector<Range> m_ranges;
    QSet<quint32> m_ids;  // a set, because a selection in a list can be large
};

/// Parses "GROUP,NUMBER", each 0 to 65535. False for any other text.
bool parseIdentifier(const QString& text, int* group, int* number);

}  // namespace Operations
