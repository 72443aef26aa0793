#pragma once

#include "family/assets/familypalette.h"
#include "family/assets/folderlist.h"
#include "family/assets/pixelcodec.h"

namespace Zorv {
class Archive;
}

namespace Family {

/// What a loose folder of images holds, read whole but for the pixels.
struct FolderContent
{
    struct Image
    {
        QString file;  ///< empty for a sprite without pixels
        AssetId id;
        QPoint axis;
        PixelFormat format;
        quint64 pixelCrc = 0;
        bool hasColors = false;  ///< an indexed image
        PaletteColors colors{};
    };

    QVector<Image> images;            ///< in the order of the sprites
    FolderList list;                  ///< as it is read
    QVector<FolderList::Image> lost;  ///< lines of the list whose image is not there or broken
    QStringList problems;             ///< a line each for the person

    static FolderContent read(Zorv::Archive& archive, const QString& folder);
};

/// The codec of an image file by its suffix; `None` for any other.
PixelCodec codecOfFile(const QString& file);

}  // namespace Family
