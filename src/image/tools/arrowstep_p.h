#pragma once

#include <QPoint>
#include <Qt>

namespace Zorv {

/// One pixel in the direction of an arrow key; zero for other keys.
inline QPoint arrowStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

}  // namespace Zorv
