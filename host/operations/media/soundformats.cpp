#include "operations/media/soundformats.h"

#include <zorv/core/extension.h>
#include <zorv/core/extensionmanager.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <sndfile.h>
#include <vector>

namespace Operations {

using Zorv::SoundSample;

namespace {

constexpr int BlockValues = 1 << 16;
constexpr sf_count_t MostBytes = 1 << 30;
constexpr int FullScale = 1 << 15;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SoundFormats)
};

struct Closer
{
    void operator()(SNDFILE* file) const { sf_close(file); }
};

QIODevice* deviceOf(void* data)
{
    return static_cast<QIODevice*>(data);
}

sf_count_t seekIn(sf_count_t offset, int whence, void* data)
{
    QIODevice* device = deviceOf(data);
    const qint64 from = whence == SEEK_CUR   ? device->pos()
                        : whence == SEEK_END ? device->size()
                                             : 0;
    // A damaged file may contain an invalid position.
    const bool isThere = offset <= device->size() - from && offset >= -from;
    return isThere && device->seek(from + offset) ? device->pos() : -1;
}

SF_VIRTUAL_IO access()
{
    SF_VIRTUAL_IO io{};
    io.get_filelen = [](void* data) { return sf_count_t(deviceOf(data)->size()); };
    io.seek = seekIn;
    io.read = [](void* to, sf_count_t count, void* data) {
        return std::max<sf_count_t>(deviceOf(data)->read(static_cast<char*>(to), count), 0);
    };
    io.write = [](const void*, sf_count_t, void*) { return sf_count_t(0); };
    io.tell = [](void* data) { return sf_count_t(deviceOf(data)->pos()); };
    return io;
}

/// The width of PCM samples; 0 for other readable formats, negative for unreadable ones.
int bitsOf(int form)
{
    switch (form & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_U8:
    case SF_FORMAT_PCM_S8:
        return 8;
    case SF_FORMAT_PCM_16:
        return 16;
    case SF_FORMAT_PCM_24:
        return 24;
    case SF_FORMAT_PCM_32:
        return 32;
    case SF_FORMAT_FLOAT:
    case SF_FORMAT_DOUBLE:
    case SF_FORMAT_ALAW:
    case SF_FORMAT_ULAW:
    case SF_FORMAT_VORBIS:
    case SF_FORMAT_OPUS:
        return 0;
    default:
        return -1;
    }
}

bool isTaken(int form)
{
    switch (form & SF_FORMAT_TYPEMASK) {
    case SF_FORMAT_FLAC:
    case SF_FORMAT_OGG:
    case SF_FORMAT_WAVEX:
        return bitsOf(form) >= 0;
    case SF_FORMAT_WAV:
        return bitsOf(form) == 0;  // the library reads PCM
    default:
        return false;
    }
}

/// Reads the samples of a file block by block.
class Reader
{
public:
    Reader(SNDFILE* file, const SF_INFO& info)
        : m_file(file), m_channels(info.channels), m_isPlain(bitsOf(info.format) > 0),
          m_bytes(m_isPlain ? bitsOf(info.format) / 8 : 2),
          m_blockFrames(std::max(BlockValues / info.channels, 1))
    {
        m_whole.resize(size_t(m_isPlain ? m_blockFrames * m_channels : 0));
        m_floats.resize(size_t(m_isPlain ? 0 : m_blockFrames * m_channels));
    }

    int bits() const { return m_bytes * 8; }
    int frameBytes() const { return m_bytes * m_channels; }

    /// Reads all frames, but at most this many.
    QByteArray readAll(sf_count_t most)
    {
        QByteArray bytes;
        for (sf_count_t left = most; left > 0;) {
            const sf_count_t wanted = std::min<sf_count_t>(left, m_blockFrames);
            const sf_count_t got = m_isPlain ? sf_readf_int(m_file, m_whole.data(), wanted)
                                             : sf_readf_float(m_file, m_floats.data(), wanted);
            if (got <= 0) {
                break;
            }
            append(&bytes, int(got) * m_channels);
            left -= got;
        }
        return bytes;
    }

private:
    void append(QByteArray* bytes, int values) const
    {
        const int start = bytes->size();
        bytes->resize(start + values * m_bytes);
        char* to = bytes->data() + start;
        for (int i = 0; i < values; ++i, to += m_bytes) {
            const quint32 value = valueAt(size_t(i)) ^ (m_bytes == 1 ? 0x80U : 0);
            for (int byte = 0; byte < m_bytes; ++byte) {
                to[byte] = char(value >> (8 * byte));
            }
        }
    }

    quint32 valueAt(size_t i) const
    {
        if (m_isPlain) {
            return quint32(m_whole[i] >> (32 - 8 * m_bytes));
        }
        const float value = std::isfinite(m_floats[i]) ? m_floats[i] : 0.0F;
        return quint32(std::clamp(int(std::lround(std::clamp(value, -2.0F, 2.0F) * FullScale)),
                                  -FullScale, FullScale - 1));
    }

    SNDFILE* m_file;
    int m_channels;
    bool m_isPlain;
    int m_bytes;  // bytes per value
    int m_blockFrames;
    std::vector<int> m_whole;
    std::vector<float> m_floats;
};

/// A sound format of the host: the name of the extension is the suffix.
class SoundFormat final : public Zorv::Extension
{
public:
    explicit SoundFormat(const char* name) : m_name(name) {}
    Type type() const override { return SoundLoader; }
    QByteArray name() const override { return m_name; }
    bool loadSound(QIODevice* device, SoundSample& sample) override
    {
        QString error;
        sample = decodeSound(device, &error);
        return !sample.data.isEmpty();
    }

private:
    const char* m_name;
};

}  // namespace

void registerSoundFormats()
{
    static std::array<SoundFormat, 5> formats{SoundFormat("FLAC"), SoundFormat("OGG"),
                                              SoundFormat("OGA"), SoundFormat("OPUS"),
                                              SoundFormat("WAV")};
    for (SoundFormat& format : formats) {
        if (!Zorv::ExtensionManager::list(Zorv::Extension::SoundLoader).contains(&format)) {
            Zorv::ExtensionManager::add(&format);
        }
    }
}

bool isDecodedFormat(const QByteArray& format)
{
    return format == "FLAC" || format == "OGG" || format == "OGA" || format == "OPUS";
}

SoundSample decodeSound(QIODevice* device, QString* error, qint64* missing)
{
    SF_VIRTUAL_IO io = access();
    SF_INFO info{};
    const std::unique_ptr<SNDFILE, Closer> file(sf_open_virtual(&io, SFM_READ, &info, device));
    if (!file || !isTaken(info.format) || info.channels < 1 || info.samplerate < 1) {
        *error = Text::tr("it is damaged, or of a format that is not known here");
        return {};
    }
    Reader reader(file.get(), info);
    const sf_count_t most = MostBytes / reader.frameBytes();
    // A stream may have no length.
    const bool isKnown = info.frames > 0 && info.frames != SF_COUNT_MAX;
    if (isKnown && info.frames > most) {
        *error = Text::tr("it declares more than a gigabyte of samples");
        return {};
    }
    SoundSample sample;
    sample.data = reader.readAll(isKnown ? info.frames : most);
    if (sample.data.isEmpty()) {
        *error = Text::tr("it has no samples, or they are damaged");
        return {};
    }
    sample.channels = quint16(info.channels);
    sample.bits = quint16(reader.bits());
    sample.sampleRate = info.samplerate;
    sample.frames = sample.data.size() / reader.frameBytes();
    if (missing) {
        *missing = isKnown ? info.frames - sample.frames : 0;
    }
    return sample;
}

}  // namespace Operations
