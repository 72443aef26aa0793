#include "cache/sprite.h"

#include "cache/pixelcopy.h"
#include "cache/preparedimage.h"

#include <QImage>

namespace Zorv {

namespace {

class ImageCopy : public PixelCopy
{
public:
    explicit ImageCopy(const Sprite& sprite) : m_image(sprite.image()), m_size(sprite.size()) {}

    bool read() override { return m_image.size() == m_size || m_size.isEmpty(); }

    /// An indexed image without colours replaces only the pixels.
    bool putInto(Sprite* sprite) override
    {
        if (m_image.format() == QImage::Format_Indexed8) {
            m_image.setColorTable({});
        }
        if (!m_size.isEmpty()) {
            sprite->setImage(m_image);
        }
        return sprite->size().isEmpty() == m_size.isEmpty() &&
               (m_size.isEmpty() || sprite->size() == m_size);
    }

private:
    QImage m_image;
    QSize m_size;
};

}  // namespace

Sprite::~Sprite() = default;

std::shared_ptr<PixelCopy> Sprite::copyPixels() const
{
    return std::make_shared<ImageCopy>(*this);
}

void Sprite::setPrepared(const PreparedImage& prepared)
{
    setImage(prepared.image());
}

}  // namespace Zorv
