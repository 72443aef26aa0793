#pragma once

#include <QPoint>
#include <QPointF>
#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zorv {

/// @name Numbers of a text or a host, as whole ones
/// A text or a host can contain any `double`. Values outside the range of `int` are clamped;
/// not-a-number becomes 0.
/// @{

/// Applies `rounding` to values that fit into an `int`.
template <typename Real, typename Rounding>
inline int savedInt(Real value, Rounding rounding)
{
    constexpr Real limit = static_cast<Real>(std::numeric_limits<int>::max());
    if (value > -limit && value < limit) {
        return rounding(value);
    }
    if (std::isnan(value)) {
        return 0;
    }
    return value < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

inline int roundedInt(double value)
{
    return savedInt(value, [](double number) { return qRound(number); });
}

inline int roundedInt(float value)
{
    return savedInt(value, [](float number) { return qRound(number); });
}

inline int truncatedInt(double value)
{
    return savedInt(value, [](double number) { return static_cast<int>(number); });
}

/// @}
/// @name Positions on the stage
/// Limited to a range in which a few positions can be added without overflow.
/// @{

constexpr int StageLimit = 1 << 28;

inline int stageInt(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, -StageLimit, StageLimit));
}

inline QPoint stageSum(QPoint a, QPoint b)
{
    return {stageInt(qint64(a.x()) + b.x()), stageInt(qint64(a.y()) + b.y())};
}

/// A length times a zoom.
inline int stageLength(int length, float zoom)
{
    return stageInt(roundedInt(static_cast<float>(length) * zoom));
}

/// A length times a scale, truncated to whole pixels of the game.
inline int scaledLength(int length, double scale)
{
    return stageInt(truncatedInt(length * scale));
}

inline QPoint scaledPoint(QPoint point, QPointF scale)
{
    return {scaledLength(point.x(), scale.x()), scaledLength(point.y(), scale.y())};
}

/// @}

}  // namespace Zorv
