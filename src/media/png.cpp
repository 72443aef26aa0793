#include "media/png.h"

#include "media/imagesize_p.h"

#include <QBuffer>
#include <QImage>

namespace Zorv {

bool loadPNG(QImage& image, QIODevice* device)
{
    if (!device->isReadable() && !device->open(QIODevice::ReadOnly)) {
        return false;
    }
    // How much a pipe holds is known only when it has been read.
    QBuffer whole;
    if (device->isSequential()) {
        whole.setData(device->readAll());
        whole.open(QIODevice::ReadOnly);
        device = &whole;
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
