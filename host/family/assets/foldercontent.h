#pragma once

#include "family/assets/familypalette.h"
#include "family/assets/folderlist.h"
#include "family/assets/pixelcodec.h"

namespace Zorv {
class Archive;
}

namespace Family {

/// The content of a loose folder of images, completely read except for the pixels.
struct FolderContent
{
    struct Image
    {
        QString file;  ///< empty if the sprite has no pixels
        AssetId id;
        QPoint axis;
        PixelFormat format;
        quint64 pixelCrc = 0;
        bool hasColors = false;  ///< an indexed image
        PaletteColors colors{};
    };

    QVector<Image> images;            ///< in the order of the sprites
    FolderList list;                  ///< as read
    QVector<FolderList::Image> lost;  ///< entries whose image is missing or broken
    QStringList problems;             ///< one line each, for the user

    static FolderContent read(Zorv::Archive& archive, const QString& folder);
};

/// The codec of an image file according to its suffix; `None` for any other.
PixelCodec codecOfFile(const QString& file);

}  // namespace Family
