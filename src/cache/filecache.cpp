#include "cache/filecache.h"

#include "core/safefile.h"

#include <QFileInfo>

#include <limits>

namespace Zorv {

namespace {

enum FileType : unsigned char {
    UnknownFile = 0,
    PngFile = 4,
    PcxFile = 5,
    GifFrame = 6,
    ActFile = 7,
    GifFile = 8
};

const struct
{
    QLatin1String suffix;
    FileType type;
} fileTypes[] = {
    {QLatin1String("gif"), GifFrame},
    {QLatin1String("png"), PngFile},
    {QLatin1String("pcx"), PcxFile},
    {QLatin1String("act"), ActFile},
};

FileItem* fileItem(StreamCache::Item* item)
{
    return static_cast<FileItem*>(item);
}

int sizeOf(const QString& fileName)
{
    return int(qMin<qint64>(QFileInfo(fileName).size(), std::numeric_limits<int>::max()));
}

void setType(FileItem* item)
{
    const QString suffix = QFileInfo(item->fileName).suffix().toLower();
    item->type = UnknownFile;
    for (const auto& known : fileTypes) {
        if (suffix == known.suffix) {
            item->type = known.type;
        }
    }
    if (item->type == GifFrame && !item->filterData) {
        item->type = GifFile;
        item->filterData = &item->fileName;
    }
}

}  // namespace

StreamCache::Type FileCache::type() const
{
    return FileStore;
}

QByteArray FileCache::itemData(Item* item) const
{
    const QByteArray stored = itemRawData(item);
    QByteArray result;
    if (!stored.isEmpty()) {
        emit readFilter(item->type, item->filterData, stored, result);
    }
    return result;
}

QByteArray FileCache::itemRawData(Item* item) const
{
    if (!item) {
        return {};
    }
    const QFileInfo info(fileItem(item)->fileName);
    QFile file(info.filePath());
    const bool isReadable = info.isFile() && info.size() < std::numeric_limits<int>::max() - 64 &&
                            file.open(QIODevice::ReadOnly);
    return isReadable ? file.readAll() : QByteArray();
}

StreamCache::Item* FileCache::addItem(const QByteArray& data, unsigned char /*type*/,
                                      void* filterData, unsigned long long crc)
{
    auto* item = new FileItem;
    item->fileName = QString::fromLocal8Bit(data.constData(),
                                            int(qstrnlen(data.constData(), uint(data.size()))));
    item->filterData = filterData;
    item->crc = crc;
    setType(item);
    item->size = sizeOf(item->fileName);
    appendItem(item);
    return item;
}

void FileCache::setItemData(Item* item, const QByteArray& data, unsigned char type,
                            void* filterData, unsigned long long crc)
{
    if (crc != 0) {
        item->crc = crc;
        itemChanged(item);
    }
    QByteArray usable = data;
    if (type != 0 && type != item->type) {
        usable.clear();
        emit readFilter(type, filterData, data, usable);
    }
    QByteArray stored;
    if (!usable.isEmpty()) {
        emit writeFilter(type, filterData, usable, stored);
    }
    if (stored.isEmpty()) {
        stored = usable;
    }
    SafeFile file(fileItem(item)->fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(stored);
        file.commit();
    }
    m_failure = file.failure();
}

bool FileCache::itemIsValid(Item* item) const
{
    item->size = sizeOf(fileItem(item)->fileName);
    return item->size != 0;
}

void FileCache::renameItem(Item* item, const QString& name)
{
    QFile::rename(fileItem(item)->fileName, name);
    fileItem(item)->fileName = name;
}

void FileCache::deleteItem(Item* item)
{
    QFile::remove(fileItem(item)->fileName);
}

QString FileCache::fileName(Item* item) const
{
    return fileItem(item)->fileName;
}

}  // namespace Zorv
