#pragma once

#include <QtGlobal>

#include <cmath>

namespace Rules {

/// A position or speed in 1/256 pixel. Integers give the same result on every machine.
using Fixed = qint32;

constexpr Fixed One = 256;

/// Converts a number of a file, rounding half away from zero.
inline Fixed fixedOf(double number)
{
    return Fixed(std::lround(number * One));
}

/// The pixel that contains a position.
constexpr qint32 pixelOf(Fixed place)
{
    return place >= 0 ? place / One : -((-place + One - 1) / One);
}

/// A speed after friction: it loses 1/`parts` each tick. Below 1/16 pixel it becomes 0.
constexpr Fixed slowed(Fixed speed, int parts)
{
    const Fixed left = speed - speed / parts;
    return left < One / 16 && left > -One / 16 ? 0 : left;
}

}  // namespace Rules
