#pragma once

#include "zorv_export.h"

#include <QPoint>
#include <QSize>

#include <vector>

namespace Zorv {

/// One bit per pixel of an image, initially 0. A row takes memory only once one of its bits is set.
class ZORV_EXPORT PixelMarks
{
public:
    explicit PixelMarks(const QSize& size = {});

    /// Sets a bit; returns whether it was not set before. False outside the image.
    bool mark(const QPoint& pixel);
    void unmark(const QPoint& pixel);

private:
    QSize m_size;
    std::vector<std::vector<quint64>> m_rows;
};

}  // namespace Zorv
