#pragma once

class QIODevice;

namespace Zorv {

/// True if a PNG file is complete: all chunks up to the last one exist, the chunks needed for
/// pixels have correct checksums, and none declares more than 64 MiB that its bytes cannot hold.
/// Call this before libpng, which allocates the declared size first and prints every error to
/// standard error. The device must not be sequential; its position does not change.
bool isWholePNG(QIODevice* device);

}  // namespace Zorv
