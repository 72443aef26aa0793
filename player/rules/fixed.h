#pragma once

#include <QtGlobal>

#include <cmath>

namespace Rules {

/// A place or a speed in 1/256 pixel. Whole numbers alone are the same on every machine.
using Fixed = qint32;

constexpr Fixed One = 256;

/// A number of a file, rounded to the nearest one, half away from zero.
inline Fixed fixedOf(double number)
{
    return Fixed(std::lround(number * One));
}

/// The pixel that a place lies in.
constexpr qint32 pixelOf(Fixed place)
{
    return place >= 0 ? place / One : -((-place + One - 1) / One);
}

/// What is left of a speed that loses one of `parts` a tick. Below 1/16 pixel nothing is.
constexpr Fixed slowed(Fixed speed, int parts)
{
    const Fixed left = speed - speed / parts;
    return left < One / 16 && left > -One / 16 ? 0 : left;
}

}  // namespace Rules
