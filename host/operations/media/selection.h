#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace Operations {

/// Which sprites, palettes or sounds are meant, by group and number.
class Selection
{
public:
    /// All of them.
    Selection() = default;

    /// Adds what a text means: "200" a group, "200-299" some groups, "200,3" one number of a
    /// group; several with blanks between. False, and nothing added, for any other text.
    bool add(const QString& text);

    /// True for every one as long as nothing was added.
    bool contains(int group, int number) const;

    bool isAll() const { return m_ranges.isEmpty() && m_ids.isEmpty(); }

private:
    struct Range
    {
        int first;
        int last;
    };

    QVector<Range> m_ranges;
    QSet<quint32> m_ids;  // all that are selected in a list can be many
};

/// Reads "GROUP,NUMBER", each 0 to 65535. False for any other text.
bool parseIdentifier(const QString& text, int* group, int* number);

}  // namespace Operations
