#pragma once

class QIODevice;

namespace Zorv {

/// True unless a PNG or BMP file declares a picture, or anything else, of more than 64 MiB that its
/// bytes cannot hold. To be asked before Qt takes the memory; nothing is consumed, and what is no
/// such file is left to its reader. The device is not sequential.
bool isHonestPNG(QIODevice* device);
bool isHonestBMP(QIODevice* device);

}  // namespace Zorv
