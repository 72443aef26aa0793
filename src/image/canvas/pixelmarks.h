#pragma once

#include "zorv_export.h"

#include <QPoint>
#include <QSize>

#include <vector>

namespace Zorv {

/// A bit for each pixel of an image, none set at first. Rows take memory when a bit in them is set.
class ZORV_EXPORT PixelMarks
{
public:
    explicit PixelMarks(const QSize& size = {});

    /// Sets a bit and tells whether it was not set. False outside of the image.
    bool mark(const QPoint& pixel);
    void unmark(const QPoint& pixel);

private:
    QSize m_size;
    std::vector<std::vector<quint64>> m_rows;
};

}  // namespace Zorv
