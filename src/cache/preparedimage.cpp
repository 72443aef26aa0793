#include "cache/preparedimage.h"

namespace Zorv {

PreparedImage::PreparedImage(const QImage& image) : m_image(image) {}

PreparedImage::~PreparedImage() = default;

}  // namespace Zorv
