// Reads any bytes as a sprite file, unpacks every sprite, and saves it again; once as they are, and
// once with right checksums, for these keep all else that is wrong out.

#include "assetfile.h"
#include "family/assets/spritefile.h"

#include <QImage>

namespace {

constexpr int HeadSize = 64;

QByteArray withChecksums(QByteArray bytes)
{
    if (bytes.size() < HeadSize) {
        return bytes;
    }
    AssetFuzz::seal(&bytes, 0, HeadSize);
    Family::RecordReader counts(bytes.constData() + 12);
    int at = HeadSize;
    for (const int size : {1040, 48, 32, 16}) {
        for (quint32 left = counts.u32(); left > 0 && at + size <= bytes.size(); --left) {
            AssetFuzz::seal(&bytes, at, size);
            at += size;
        }
    }
    return bytes;
}

void unpack(const Family::SpriteFile& file)
{
    for (const auto& sprite : file.items()) {
        sprite->image();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    AssetFuzz::readAndSave<Family::SpriteFile>(bytes, unpack);
    AssetFuzz::readAndSave<Family::SpriteFile>(withChecksums(bytes), unpack);
    return 0;
}
