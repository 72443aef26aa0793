#pragma once

#include "support/spritepixels.h"

#include <QRandomGenerator>

#include <vector>

namespace Bench {

/// Sprites of one kind, more than a processor learns by heart when they are read again and
/// again.
struct Sprites
{
    static constexpr int count = 16;

    Sprites(SpritePixels::Kind kind, int side, int colors)
    {
        QRandomGenerator random(1);
        for (int i = 0; i < count; ++i) {
            pixels.push_back(SpritePixels::make(kind, side, side, colors, random));
            images.push_back(SpritePixels::image(pixels.back(), side, side));
        }
        std::printf("%s, %d colours\n", SpritePixels::name(kind), colors);
    }

    std::vector<QByteArray> pixels;
    std::vector<QImage> images;
};

}  // namespace Bench
