// Reads any bytes as a sound file, unpacks every sound, and saves it again; once as they are, and
// once with right checksums, for these keep all else that is wrong out.

#include "assets/recordbytes.h"
#include "assets/soundfile.h"
#include "support/memoryarchive.h"

namespace {

constexpr int HeadSize = 32;
constexpr int RecordSize = 64;

QByteArray withChecksums(QByteArray bytes)
{
    const auto seal = [&bytes](int at, int size) {
        bytes.replace(at, size, Family::sealed(bytes.mid(at, size)));
    };
    if (bytes.size() < HeadSize) {
        return bytes;
    }
    seal(0, HeadSize);
    for (int at = HeadSize; at + RecordSize <= bytes.size() && at < 8 * RecordSize;
         at += RecordSize) {
        seal(at, RecordSize);
    }
    return bytes;
}

void readAndSave(const QByteArray& bytes)
{
    MemoryArchive archive(bytes);
    Family::SoundFile file;
    if (!file.fromFile(archive, QStringLiteral("a"), false)) {
        return;
    }
    const int broken = file.brokenCount();
    for (const auto& sound : file.items()) {
        if (!sound->fault().isEmpty() && !sound->sampleData().isEmpty()) {
            qFatal("a broken sound is played");
        }
    }
    if (!file.toFile(archive, QStringLiteral("a"), false) ||
        !file.fromFile(archive, QStringLiteral("a"), false)) {
        qFatal("cannot save what was read");
    }
    if (file.brokenCount() > broken) {
        qFatal("saving breaks records");
    }
    file.removeBroken();
    if (!file.toFile(archive, QStringLiteral("a"), false) ||
        !file.fromFile(archive, QStringLiteral("a"), false) || file.brokenCount() > 0) {
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
