#include "media/png.h"

#include "media/imagesize_p.h"

#include <QIODevice>
#include <QImage>

namespace Zorv {

bool loadPNG(QImage& image, QIODevice* device)
{
    if (!device->isReadable() && !device->open(QIODevice::ReadOnly)) {
        return false;
    }
    if (isHonestPNG(device)) {
        image.load(device, "PNG");
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
