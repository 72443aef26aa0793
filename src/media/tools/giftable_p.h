#pragma once

#include "media/colortypes.h"

#include <QRgb>
#include <QVector>

namespace Zorv {

/// The number of a colour in an animation, from 1. Number 0 means transparent.
using GIFColorNumber = quint32;

/// A colour table of up to 256 entries, with a map from colour numbers to indices.
class GIFTable
{
public:
    /// For numbers below `numberCount`.
    explicit GIFTable(int numberCount) : m_indices(numberCount, -1) {}

    int numberCount() const { return m_indices.size(); }

    /// Adds a colour if it is missing. False if the table is full. Number 0 is added like any
    /// other.
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

    /// The index of each number, or -1.
    const qint16* indices() const { return m_indices.constData(); }

    /// The index of the transparent entry, or -1.
    int transparent() const { return m_indices[0]; }

    const QVector<RGB>& colors() const { return m_colors; }

private:
    QVector<RGB> m_colors;
    QVector<qint16> m_indices;
};

}  // namespace Zorv
