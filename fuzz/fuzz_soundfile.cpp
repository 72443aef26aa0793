// Reads any bytes as a sound file, unpacks every sound, and saves it again; once as they are, and
// once with right checksums, for these keep all else that is wrong out.

#include "assetfile.h"
#include "family/assets/soundfile.h"

namespace {

constexpr int HeadSize = 32;
constexpr int RecordSize = 64;

QByteArray withChecksums(QByteArray bytes)
{
    if (bytes.size() < HeadSize) {
        return bytes;
    }
    AssetFuzz::seal(&bytes, 0, HeadSize);
    for (int at = HeadSize; at + RecordSize <= bytes.size() && at < 8 * RecordSize;
         at += RecordSize) {
        AssetFuzz::seal(&bytes, at, RecordSize);
    }
    return bytes;
}

void unpack(const Family::SoundFile& file)
{
    for (const auto& sound : file.items()) {
        if (!sound->fault().isEmpty() && !sound->sampleData().isEmpty()) {
            qFatal("a broken sound is played");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    AssetFuzz::readAndSave<Family::SoundFile>(bytes, unpack);
    AssetFuzz::readAndSave<Family::SoundFile>(withChecksums(bytes), unpack);
    return 0;
}
