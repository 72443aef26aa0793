#include "image/tools/strokeoptions.h"

#include <QSize>

#include <algorithm>
#include <cmath>

namespace Zorv {

StrokeOptions::StrokeOptions(QObject* parent) : QObject(parent) {}

template <class Value>
void StrokeOptions::set(Value& member, const Value& value)
{
    if (member != value) {
        member = value;
        emit changed();
    }
}

bool StrokeOptions::isPixelPerfect() const
{
    return m_pixelPerfect;
}

void StrokeOptions::setPixelPerfect(bool isOn)
{
    set(m_pixelPerfect, isOn);
}

bool StrokeOptions::straightLines() const
{
    return m_straightLines;
}

void StrokeOptions::setStraightLines(bool isOn)
{
    set(m_straightLines, isOn);
}

bool StrokeOptions::isShading() const
{
    return m_shading;
}

void StrokeOptions::setShading(bool isOn)
{
    set(m_shading, isOn);
}

StrokeOptions::Symmetry StrokeOptions::symmetry() const
{
    return m_symmetry;
}

void StrokeOptions::setSymmetry(Symmetry symmetry)
{
    set(m_symmetry, symmetry);
}

void StrokeOptions::setSymmetryAxis(const QPointF& axis)
{
    // No canvas is larger than that, and mirrored points beyond it could overflow.
    const double farthest = 65536;
    if (std::abs(axis.x()) <= farthest && std::abs(axis.y()) <= farthest) {
        set(m_axis, std::optional(QPointF(std::round(axis.x() * 2), std::round(axis.y() * 2)) / 2));
    }
}

void StrokeOptions::centerSymmetryAxis()
{
    set(m_axis, std::optional<QPointF>());
}

void StrokeOptions::keepSymmetryAxisOn(const QSize& canvas)
{
    if (m_axis && !canvas.isEmpty()) {
        setSymmetryAxis({std::clamp(m_axis->x(), 0.0, double(canvas.width())),
                         std::clamp(m_axis->y(), 0.0, double(canvas.height()))});
    }
}

QPointF StrokeOptions::symmetryAxis(const QSize& canvas) const
{
    return m_axis.value_or(QPointF(canvas.width(), canvas.height()) / 2);
}

}  // namespace Zorv
