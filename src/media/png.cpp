#include "media/png.h"

#include "media/imagesize_p.h"
#include "media/pngchunks_p.h"

#include <QImage>

namespace Zorv {

bool loadPNG(QImage& image, QIODevice* device)
{
    if (!device->isReadable() && !device->open(QIODevice::ReadOnly)) {
        return false;
    }
    const SizedDevice sized(device);
    if (isWholePNG(sized.get())) {
        image.load(sized.get(), "PNG");
    } else {
        image = QImage();
    }
    return true;
}

bool savePNG(const QImage& image, QIODevice* device)
{
    if (!device->isReadable() && !device->open(QIODevice::WriteOnly)) {
        return false;
    }
    return image.save(device, "PNG", -1);
}

}  // namespace Zorv
