#include "media/wav.h"

#include "media/wav_p.h"

#include <QBuffer>
#include <QDataStream>
#include <QFileDevice>
#include <QIODevice>

#include <climits>
#include <cstring>

namespace Zorv {

namespace {

const int IdSize = 4;

void readId(QDataStream& stream, char (&id)[IdSize])
{
    if (stream.readRawData(id, IdSize) != IdSize) {
        std::memset(id, 0, IdSize);
    }
}

bool isId(const char (&id)[IdSize], const char* name)
{
    return std::memcmp(id, name, std::strlen(name)) == 0;
}

void setId(char (&id)[IdSize], const char* name)
{
    std::memcpy(id, name, IdSize);
}

QDataStream& littleEndian(QDataStream& stream)
{
    stream.setByteOrder(QDataStream::LittleEndian);
    return stream;
}

// Opens a closed device, and closes it again when destroyed.
class OpenDevice
{
public:
    OpenDevice(QIODevice* device, QIODevice::OpenMode mode)
        : m_device(device), m_wasClosed(!device->isOpen()),
          m_isOpen(device->isOpen() || device->open(mode))
    {
    }
    ~OpenDevice()
    {
        if (m_wasClosed && m_isOpen) {
            m_device->close();
        }
    }
    bool isOpen() const { return m_isOpen; }

private:
    Q_DISABLE_COPY(OpenDevice)
    QIODevice* m_device;
    bool m_wasClosed;
    bool m_isOpen;
};

}  // namespace

SampleInfo waveSampleInfo(const WaveFormatHeader& format, quint32 dataSize)
{
    SampleInfo info;
    info.channels = format.channels;
    info.bits = format.bitsPerSample;
    info.sampleRate = qint32(format.sampleRate);
    const quint32 frameSize = quint32(format.bitsPerSample) * format.channels / 8;
    if (format.byteRate != 0 && frameSize != 0) {
        info.frames = qint32(qMin(dataSize / frameSize, quint32(INT_MAX)));
    }
    return info;
}

QByteArray readUpTo(QIODevice* device, qint64 size)
{
    const qint64 most = qMin<qint64>(size, INT_MAX - 64);
    QByteArray bytes;
    while (bytes.size() < most) {
        const QByteArray more = device->read(qMin<qint64>(most - bytes.size(), 1 << 20));
        if (more.isEmpty()) {
            break;
        }
        bytes += more;
    }
    return bytes;
}

QDataStream& operator>>(QDataStream& stream, WaveRIFFHeader& header)
{
    readId(stream, header.id);
    stream >> header.size;
    readId(stream, header.format);
    return stream;
}

QDataStream& operator>>(QDataStream& stream, WaveFormatHeader& header)
{
    readId(stream, header.id);
    return stream >> header.size >> header.formatTag >> header.channels >> header.sampleRate >>
           header.byteRate >> header.blockAlign >> header.bitsPerSample;
}

QDataStream& operator>>(QDataStream& stream, WaveDataHeader& header)
{
    readId(stream, header.id);
    return stream >> header.size;
}

QDataStream& operator<<(QDataStream& stream, const WaveRIFFHeader& header)
{
    stream.writeRawData(header.id, IdSize);
    stream << header.size;
    stream.writeRawData(header.format, IdSize);
    return stream;
}

QDataStream& operator<<(QDataStream& stream, const WaveFormatHeader& header)
{
    stream.writeRawData(header.id, IdSize);
    return stream << header.size << header.formatTag << header.channels << header.sampleRate
                  << header.byteRate << header.blockAlign << header.bitsPerSample;
}

QDataStream& operator<<(QDataStream& stream, const WaveDataHeader& header)
{
    stream.writeRawData(header.id, IdSize);
    return stream << header.size;
}

SampleInfo soundInfoFromWAV(QIODevice* device)
{
    const OpenDevice open(device, QIODevice::ReadOnly);
    if (!open.isOpen() || !device->isReadable()) {
        return {};
    }
    const int riffSize = 12;
    const int formatSize = 24;
    const QByteArray head = device->read(riffSize + formatSize);
    const auto format = parseWaveHeader<WaveFormatHeader>(head.mid(riffSize));
    if (format.formatTag != PCMTag) {
        return {};
    }
    ByteSearch search(device, head);
    quint32 dataSize = 0;
    if (search.find("data") > 0) {
        dataSize = parseWaveHeader<WaveDataHeader>(search.take(DataHeaderSize)).size;
    }
    return waveSampleInfo(format, dataSize);
}

SoundSample soundFromWAV(QIODevice* device)
{
    SoundSample sample;
    const OpenDevice open(device, QIODevice::ReadOnly);
    if (!open.isOpen() || !device->isReadable()) {
        return sample;
    }
    QDataStream file(device);
    WaveRIFFHeader riff;
    littleEndian(file) >> riff;
    if (!isId(riff.format, "WAVE")) {
        return sample;
    }
    QByteArray bytes = readUpTo(device, riff.size);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QDataStream stream(&buffer);
    WaveFormatHeader format;
    littleEndian(stream) >> format;
    if (!isId(format.id, "fmt") || format.formatTag != PCMTag) {
        return sample;
    }
    const int place = bytes.indexOf("data");
    if (place > 0) {
        buffer.seek(place);
    }
    WaveDataHeader header;
    stream >> header;
    const int start = int(buffer.pos());
    buffer.close();
    bytes.remove(0, start);
    bytes.truncate(int(qMin<qint64>(header.size, bytes.size())));
    static_cast<SampleInfo&>(sample) = waveSampleInfo(format, quint32(bytes.size()));
    bytes.squeeze();
    sample.data = bytes;
    return sample;
}

bool soundToWAV(const SoundSample& sample, QIODevice* device)
{
    const OpenDevice open(device, QIODevice::WriteOnly);
    if (!open.isOpen() || !device->isWritable()) {
        return false;
    }
    const quint32 size = quint32(sample.data.size());
    WaveRIFFHeader riff{{}, size + 36, {}};
    setId(riff.id, "RIFF");
    setId(riff.format, "WAVE");
    WaveFormatHeader format{};
    setId(format.id, "fmt ");
    format.size = 16;
    format.formatTag = PCMTag;
    format.channels = sample.channels;
    format.sampleRate = quint32(sample.sampleRate);
    format.blockAlign = quint16(quint32(sample.bits) * sample.channels / 8);
    format.byteRate = format.sampleRate * format.blockAlign;
    format.bitsPerSample = sample.bits;
    WaveDataHeader data{{}, size};
    setId(data.id, "data");

    QDataStream stream(device);
    littleEndian(stream) << riff << format << data;
    if (stream.writeRawData(sample.data.constData(), sample.data.size()) != sample.data.size()) {
        return false;
    }
    // A full disk may be noticed only when the device's buffer is written.
    auto* file = qobject_cast<QFileDevice*>(device);
    return stream.status() == QDataStream::Ok && (!file || file->flush());
}

}  // namespace Zorv
