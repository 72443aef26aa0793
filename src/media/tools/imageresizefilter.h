#pragma once

namespace Zorv {

/// The filter used when an image is resized or rotated.
enum class ImageResizeFilter {
    Nearest = 0,   ///< the nearest pixel
    Bilinear = 1,  ///< a mixture of the four surrounding pixels
    Epx = 2,       ///< Scale2x and Scale3x, repeated, then nearest to fit the size
    Hq = 3         ///< hq2x, hq3x, hq4x, repeated, then bilinear to fit the size
};

}  // namespace Zorv
