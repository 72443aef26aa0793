#include "family/assets/newsprites.h"

#include "family/assets/spritefile.h"
#include "family/assets/spritefolder.h"

#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>

namespace Family {

SpriteCollection* newSprites(const QString& path)
{
    if (path.endsWith(QLatin1Char('/')) || QFileInfo(path).isDir()) {
        return new SpriteFolder;
    }
    return new SpriteFile;
}

SpriteCollection* openSprites(const QString& path, QString* error)
{
    SpriteCollection* sprites = newSprites(path);
    if (!sprites->fromFile(*Zorv::FileSystemArchive::instance(), path, false)) {
        *error = sprites->errorString();
        sprites->release();
        return nullptr;
    }
    return sprites;
}

}  // namespace Family
