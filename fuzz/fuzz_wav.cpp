#include "media/wav.h"
#include "media/wavecontents.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

}  // namespace

/// Any bytes are read as a sound, which is written and read as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QBuffer buffer(&bytes);
    const Zorv::SoundSample sample = Zorv::soundFromWAV(&buffer);
    require(size_t(sample.data.size()) <= size);
    require(sample.frames * (qint64(sample.bits) * sample.channels / 8) <= sample.data.size());
    const Zorv::SampleInfo info = Zorv::soundInfoFromWAV(&buffer);
    require(info.frames >= 0);

    buffer.open(QIODevice::ReadOnly);
    const qint64 frames = Zorv::waveContents(&buffer).info.frames;
    const Zorv::SoundSample whole = Zorv::wholeSoundFromWAV(&buffer);
    require(size_t(whole.data.size()) <= size && (whole.data.isEmpty() || whole.frames == frames));
    buffer.close();

    QBuffer copy;
    require(Zorv::soundToWAV(sample, &copy));
    if (copy.data().indexOf("data") != 36) {
        return 0;  // a sample rate of these four bytes is taken for the chunk, as any others are
    }
    const Zorv::SoundSample again = Zorv::soundFromWAV(&copy);
    require(again.data == sample.data && again.channels == sample.channels &&
            again.bits == sample.bits && again.sampleRate == sample.sampleRate);
    return 0;
}
