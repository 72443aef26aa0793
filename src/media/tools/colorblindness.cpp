#include "media/tools/colorblindness.h"

#include "media/tools/colorspaces.h"

namespace Zorv {

namespace {

// In the order of the enumeration; a row for each channel that is made.
constexpr double Matrices[][3][3] = {
    {{0.152286, 1.052583, -0.204868},
     {0.114503, 0.786281, 0.099216},
     {-0.003882, -0.048116, 1.051998}},
    {{0.367322, 0.860646, -0.227968},
     {0.280085, 0.672501, 0.047413},
     {-0.011820, 0.042940, 0.968881}},
    {{1.255528, -0.076749, -0.178779},
     {-0.078411, 0.930809, 0.147602},
     {0.004733, 0.691367, 0.303900}},
};

}  // namespace

RGBA seenWith(ColorBlindness blindness, RGBA color)
{
    const auto& matrix = Matrices[int(blindness)];
    const double light[] = {linearLight(color.r), linearLight(color.g), linearLight(color.b)};
    const auto channel = [&](int row) {
        const double(&parts)[3] = matrix[row];
        return encodedLight(parts[0] * light[0] + parts[1] * light[1] + parts[2] * light[2]);
    };
    return {channel(0), channel(1), channel(2), color.a};
}

}  // namespace Zorv
