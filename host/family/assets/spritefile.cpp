#include "family/assets/spritefile.h"

#include "family/assets/assetreload.h"
#include "family/assets/pixelstore.h"
#include "family/assets/spritetables.h"

#include <zorv/core/archive.h>

#include <QBuffer>
#include <QDir>

namespace Family {

SpriteFile::SpriteFile() = default;

SpriteFile::~SpriteFile() = default;

bool SpriteFile::fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, &reason);
    if (!device) {
        setErrorString(reason);
        return false;
    }
    Content content;
    content.store = std::make_unique<PixelStore>();
    const auto adopt = [&](const SpriteFileData::Stream& stream, const QByteArray& bytes) {
        return adopted(content.store.get(), stream, bytes);
    };
    bool done = false;
    if (device->isSequential()) {
        QBuffer buffer;
        buffer.setData(device->readAll());
        buffer.open(QIODevice::ReadOnly);
        done = readContent(&buffer, adopt, &content, &reason);
    } else {
        done = readContent(device, adopt, &content, &reason);
    }
    archive.closeFile(device);
    if (!done) {
        setErrorString(tr("Cannot read %1: %2.").arg(QDir::toNativeSeparators(fileName), reason));
        return false;
    }
    take(std::move(content), asCopy);
    FileWatchObject::fromFile(archive, fileName, asCopy);
    if (!asCopy) {
        setFileName(fileName);
        setArchive(&archive);
        emit synchronized();
    }
    setErrorString({});
    return true;
}

bool SpriteFile::toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    refresh();
    const SpriteTables tables(*this, keptPixels());
    const QString name = QDir::toNativeSeparators(fileName);
    if (!tables.isAllThere(*store())) {
        setErrorString(tr("Cannot write %1: pixels that were kept in a temporary file are lost. "
                          "Make room on the disk of temporary files, and add them anew.")
                           .arg(name));
        return false;
    }
    const QString oldName = this->fileName();
    FileWatchObject::toFile(archive, fileName, asCopy);
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly, &reason);
    bool done = device != nullptr;
    if (device) {
        tables.data.write(device,
                          [&](int index) { return store()->stream(tables.pixels[index].get()); });
        done = archive.closeFile(device, &reason);
    }
    if (!done) {
        setErrorString(reason.isEmpty() ? tr("Cannot write %1.").arg(name) : reason);
        renewWatch(oldName);
        return false;
    }
    if (!asCopy) {
        setFileName(fileName);
        setArchive(&archive);
        setClean();
        renewWatch(fileName);
        emit synchronized();
    }
    setErrorString({});
    return true;
}

bool SpriteFile::reload()
{
    return reloadAssets(*this, steps(), tr("Sprites"));
}

}  // namespace Family
