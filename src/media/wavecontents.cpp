// Finds the samples of a WAV file by its chunks, whatever the sizes in its headers say.
//
// The walk goes from chunk to chunk up to "data" and notes the format on the way. The declared size
// of the samples is then compared with the end of the file: a file that is too short has lost
// samples, and a size of 0 can mean that the recorder never wrote one.

#include "media/wavecontents.h"

#include "media/imagesize_p.h"
#include "media/wav_p.h"

#include <cstring>

namespace Zorv {

namespace {

const int ChunkHead = 8;
const int RiffSize = 12;
const int FormatSize = 16;

// A limit, because a file that consists only of chunk headers would take long.
const int MostChunks = 10000;

// Programs that do not know the size yet write a number near the end of the range.
const quint32 LeastOpenSize = 0x7FF00000;

bool isId(const char (&id)[4], const char* name)
{
    return std::memcmp(id, name, 4) == 0;
}

/// Walks over the chunks of a file up to its samples.
class WaveChunks
{
public:
    explicit WaveChunks(QIODevice* device)
        : m_device(device), m_begin(device->pos()), m_end(device->size())
    {
        const QByteArray head = device->peek(RiffSize);
        m_riff = parseWaveHeader<WaveRIFFHeader>(head);
        if (head.size() == RiffSize && isId(m_riff.id, "RIFF") && isId(m_riff.format, "WAVE")) {
            walk();
        }
        m_device->seek(m_begin);
    }

    const WaveFormatHeader& format() const { return m_format; }
    qint64 begin() const { return m_begin; }
    qint64 start() const { return m_start; }

    /// The number of sample bytes present.
    qint64 held() const
    {
        const qint64 rest = m_end - m_start;
        // A declared size of 0 is either an empty sound or a size never written. The size in the
        // file header distinguishes the two.
        const qint64 excess = m_end - m_begin - ChunkHead - m_riff.size;
        const bool isOpen = m_declared == 0 && excess != 0 && excess != 1;
        return isOpen ? rest : qMin<qint64>(rest, m_declared);
    }

    /// The number of declared bytes that are missing.
    qint64 missing() const
    {
        return m_declared < LeastOpenSize ? qMax<qint64>(0, m_declared - (m_end - m_start)) : 0;
    }

    /// The number of frames that a reader finds without walking the chunks: after the first "data",
    /// as far as the declared size of the file reaches; without "data", after the format.
    qint32 reached()
    {
        const qint64 body = qMin<qint64>(m_riff.size, m_end - m_begin - RiffSize);
        const QByteArray head = bytesAt(0, qMin<qint64>(body, ChunkHead + FormatSize));
        const auto format = parseWaveHeader<WaveFormatHeader>(head);
        if (held() == 0 || std::memcmp(format.id, "fmt", 3) != 0 || format.formatTag != PCMTag) {
            return 0;
        }
        const qint64 found = ByteSearch(m_device, head).find("data");
        const qint64 at = found > 0 && found + 4 <= body ? found : ChunkHead + FormatSize;
        const auto data =
            parseWaveHeader<WaveDataHeader>(bytesAt(at, qBound<qint64>(0, body - at, ChunkHead)));
        const qint64 bytes = qBound<qint64>(0, body - at - ChunkHead, data.size);
        return waveSampleInfo(format, quint32(bytes)).frames;
    }

private:
    QByteArray bytesAt(qint64 place, qint64 size)
    {
        const bool isThere = m_device->seek(m_begin + RiffSize + place);
        return isThere ? m_device->read(size) : QByteArray();
    }

    void walk()
    {
        qint64 at = m_begin + RiffSize;
        for (int i = 0; i < MostChunks && at < m_end && m_device->seek(at); ++i) {
            const QByteArray bytes = m_device->read(ChunkHead + FormatSize);
            const auto chunk = parseWaveHeader<WaveDataHeader>(bytes);
            if (isId(chunk.id, "fmt ") && bytes.size() == ChunkHead + FormatSize) {
                m_format = parseWaveHeader<WaveFormatHeader>(bytes);
            } else if (isId(chunk.id, "data") && bytes.size() >= ChunkHead) {
                m_start = at + ChunkHead;
                m_declared = chunk.size;
                return;
            }
            at += ChunkHead + qint64(chunk.size) + (chunk.size & 1);
        }
        m_start = m_end;
    }

    QIODevice* m_device;
    qint64 m_begin;
    qint64 m_end;
    WaveRIFFHeader m_riff{};
    WaveFormatHeader m_format{};
    qint64 m_start = 0;
    quint32 m_declared = 0;
};

}  // namespace

WaveContents waveContents(QIODevice* device)
{
    const SizedDevice sized(device);
    WaveChunks chunks(sized.get());
    WaveContents contents;
    contents.formatTag = chunks.format().formatTag;
    if (contents.formatTag != 0) {
        const quint32 held = quint32(qMin<qint64>(chunks.held(), 0xFFFFFFFF));
        const quint32 missing = quint32(chunks.missing());
        contents.info = waveSampleInfo(chunks.format(), held);
        contents.missing = waveSampleInfo(chunks.format(), missing).frames;
        contents.reached = chunks.reached();
        sized.get()->seek(chunks.begin());
    }
    return contents;
}

SoundSample wholeSoundFromWAV(QIODevice* device)
{
    const SizedDevice sized(device);
    const WaveChunks chunks(sized.get());
    SoundSample sample;
    if (chunks.format().formatTag == PCMTag && sized.get()->seek(chunks.start())) {
        sample.data = readUpTo(sized.get(), chunks.held());
        static_cast<SampleInfo&>(sample) =
            waveSampleInfo(chunks.format(), quint32(sample.data.size()));
    }
    return sample;
}

}  // namespace Zorv
