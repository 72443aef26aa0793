// Reads any bytes as a sprite file, unpacks every sprite, and saves it again; once as they are, and
// once with right checksums, for these keep all else that is wrong out.

#include "assets/recordbytes.h"
#include "assets/spritefile.h"
#include "support/memoryarchive.h"

#include <QImage>

namespace {

constexpr int HeadSize = 64;

QByteArray withChecksums(QByteArray bytes)
{
    const auto seal = [&bytes](int at, int size) {
        bytes.replace(at, size, Family::sealed(bytes.mid(at, size)));
    };
    if (bytes.size() < HeadSize) {
        return bytes;
    }
    seal(0, HeadSize);
    Family::RecordReader counts(bytes.constData() + 12);
    int at = HeadSize;
    for (const int size : {1040, 48, 32, 16}) {
        for (quint32 left = counts.u32(); left > 0 && at + size <= bytes.size(); --left) {
            seal(at, size);
            at += size;
        }
    }
    return bytes;
}

void readAndSave(const QByteArray& bytes)
{
    MemoryArchive archive(bytes);
    Family::SpriteFile file;
    if (!file.fromFile(archive, QStringLiteral("a"), false)) {
        return;
    }
    const QStringList errors = file.loadErrors();
    for (const auto& sprite : file.items()) {
        sprite->image();
    }
    if (!file.toFile(archive, QStringLiteral("a"), false) ||
        !file.fromFile(archive, QStringLiteral("a"), false)) {
        qFatal("cannot save what was read");
    }
    // A second saving finds nothing new to mend.
    if (file.loadErrors().size() > errors.size()) {
        qFatal("saving breaks records");
    }
    file.removeBroken();
    if (!file.toFile(archive, QStringLiteral("a"), false) ||
        !file.fromFile(archive, QStringLiteral("a"), false) || !file.loadErrors().isEmpty()) {
        qFatal("broken records are left");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    readAndSave(bytes);
    readAndSave(withChecksums(bytes));
    return 0;
}
