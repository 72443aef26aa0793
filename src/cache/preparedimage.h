#pragma once

#include "zorv_export.h"

#include <QImage>

#include <functional>
#include <memory>

namespace Zorv {

/// An image on its way into a sprite, with the part of the work that needs no collection done.
///
/// A host derives from it to keep what it has worked out, as the packed pixels, and makes it by the
/// function of `Sprites::imagePreparer()`. Made on any thread, and never changed afterwards.
class ZORV_EXPORT PreparedImage
{
public:
    explicit PreparedImage(const QImage& image);
    virtual ~PreparedImage();
    PreparedImage(const PreparedImage&) = delete;
    PreparedImage& operator=(const PreparedImage&) = delete;

    const QImage& image() const { return m_image; }

private:
    QImage m_image;
};

/// Prepares an image. Any thread, and several at once; it is good after its collection has gone.
using ImagePreparer = std::function<std::shared_ptr<const PreparedImage>(const QImage&)>;

}  // namespace Zorv
