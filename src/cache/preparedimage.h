#pragma once

#include "zorv_export.h"

#include <QImage>

#include <functional>
#include <memory>

namespace Zorv {

/// An image to be put into a sprite, with all work already done that does not need the collection.
///
/// A host derives from it to keep intermediate results, such as compressed pixels, and creates it
/// in the function returned by `Sprites::imagePreparer()`. Created in any thread and never changed
/// afterwards.
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

/// Prepares an image. May be called in several threads at once. The result remains valid after its
/// collection has been deleted.
using ImagePreparer = std::function<std::shared_ptr<const PreparedImage>(const QImage&)>;

}  // namespace Zorv
