#pragma once

#include "media/colortypes.h"

#include <QRgb>
#include <QVector>

namespace Zorv {

/// The colours of an animation by number, from 1 on. Number 0 is what is transparent.
using GIFColorNumber = quint32;

/// A colour table of up to 256 entries, with the way from the number of a colour to its index.
class GIFTable
{
public:
    /// For numbers below `numberCount`.
    explicit GIFTable(int numberCount) : m_indices(numberCount, -1) {}

    int numberCount() const { return m_indices.size(); }

    /// Adds a colour, if it is not there. False if the table is full. Number 0 is added like
    /// any other.
    bool insert(GIFColorNumber number, QRgb color)
    {
        if (m_indices[int(number)] >= 0) {
            return true;
        }
        if (m_colors.size() == 256) {
            return false;
        }
        m_indices[int(number)] = qint16(m_colors.size());
        m_colors.append({quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color))});
        return true;
    }

    /// For each number its index, or -1.
    const qint16* indices() const { return m_indices.constData(); }

    /// The index of what is transparent, or -1.
    int transparent() const { return m_indices[0]; }

    const QVector<RGB>& colors() const { return m_colors; }

private:
    QVector<RGB> m_colors;
    QVector<qint16> m_indices;
};

}  // namespace Zorv
