#pragma once

#include <QByteArray>
#include <QImage>

class QRandomGenerator;

/// Pixels of the kinds that sprites are made of, and of those that are hard on a codec.
namespace SpritePixels {

enum Kind {
    Drawn,      ///< flat areas with outlines and shading on an empty ground
    Dithered,   ///< two-colour patterns over large areas
    Gradient,   ///< colours that change every few pixels, sideways and down
    FewColors,  ///< short runs of three colours in no order
    Repeated,   ///< pieces of what came before, long and short
    LongRuns,   ///< runs of lengths around the limits of packets
    Flat,       ///< one colour
    Noise       ///< no order
};
constexpr int kinds = Noise + 1;
const char* name(Kind kind);

/// `colors` is at most 256; an index of a pixel is below it.
QByteArray make(Kind kind, int width, int height, int colors, QRandomGenerator& random);

/// An indexed image with a grey colour table.
QImage image(const QByteArray& pixels, int width, int height);
/// The pixels of an indexed image, rows without padding.
QByteArray pixels(const QImage& image);

}  // namespace SpritePixels
