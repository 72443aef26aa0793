#include "assets/soundfiledata.h"

#include "cache/crc64.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <numeric>

namespace Family {

using Zorv::SampleInfo;

namespace {

const char magic[] = "ZORVSND\x1a";
const int MagicSize = 8;
const int HeadSize = 32;
const int RecordSize = 64;
const int SealSize = 8;
const quint16 Version = 1;
const int MaxChannels = 8;
const int MaxRate = 384000;
const quint64 MaxBytes = std::numeric_limits<int>::max() - 1024;

/// Where the fields of head and record stand.
enum HeadField { VersionAt = 8, CountAt = 12, FileSizeAt = 16 };
enum RecordField {
    GroupAt = 0,
    NumberAt = 2,
    ChannelsAt = 4,
    BitsAt = 6,
    RateAt = 8,
    FramesAt = 12,
    OffsetAt = 16,
    SizeAt = 24,
    PackingAt = 28,
    PlainCrcAt = 32,
    StreamCrcAt = 40
};

QString tr(const char* text)
{
    return QCoreApplication::translate("Family::SoundFileData", text);
}

quint64 checksumOf(const QByteArray& data, int size)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(data.constData()), unsigned(size));
}

template <class Number>
Number numberAt(const QByteArray& data, int at)
{
    return qFromLittleEndian<Number>(data.constData() + at);
}

template <class Number>
void setNumber(QByteArray& data, int at, Number number)
{
    qToLittleEndian(number, data.data() + at);
}

// Each piece ends in the checksum of what stands in front of it.
bool isSealed(const QByteArray& data)
{
    const int size = data.size() - SealSize;
    return numberAt<quint64>(data, size) == checksumOf(data, size);
}

void seal(QByteArray& data)
{
    const int size = data.size() - SealSize;
    setNumber(data, size, checksumOf(data, size));
}

bool fail(QString* error, const char* text)
{
    *error = tr(text);
    return false;
}

bool readHead(QIODevice* device, quint32* count, QString* error)
{
    const QByteArray head = device->read(HeadSize);
    if (head.size() < MagicSize || std::memcmp(head.constData(), magic, MagicSize) != 0) {
        return fail(error, QT_TRANSLATE_NOOP("Family::SoundFileData", "It is not a sound file"));
    }
    if (head.size() < HeadSize || !isSealed(head)) {
        return fail(error,
                    QT_TRANSLATE_NOOP("Family::SoundFileData", "Its first bytes are broken"));
    }
    if (numberAt<quint16>(head, VersionAt) != Version) {
        return fail(error, QT_TRANSLATE_NOOP("Family::SoundFileData",
                                             "A newer version of the program has written it"));
    }
    *count = numberAt<quint32>(head, CountAt);
    if (quint64(device->size()) < HeadSize + quint64(*count) * RecordSize) {
        return fail(error, QT_TRANSLATE_NOOP("Family::SoundFileData", "Its end is missing"));
    }
    return true;
}

SoundFileData::Sound soundOf(const QByteArray& record)
{
    SoundFileData::Sound sound;
    sound.id = {numberAt<quint16>(record, GroupAt), numberAt<quint16>(record, NumberAt)};
    sound.info.channels = numberAt<quint16>(record, ChannelsAt);
    sound.info.bits = numberAt<quint16>(record, BitsAt);
    sound.info.sampleRate = numberAt<qint32>(record, RateAt);
    sound.info.frames = numberAt<qint32>(record, FramesAt);
    return sound;
}

SoundFileData::Stream streamOf(const QByteArray& record, const SampleInfo& info)
{
    SoundFileData::Stream stream;
    stream.offset = numberAt<quint64>(record, OffsetAt);
    stream.size = numberAt<quint32>(record, SizeAt);
    stream.plainSize = SoundFileData::plainSize(info);
    stream.packing = static_cast<SamplePacking>(record.at(PackingAt));
    stream.plainCrc = numberAt<quint64>(record, PlainCrcAt);
    stream.streamCrc = numberAt<quint64>(record, StreamCrcAt);
    return stream;
}

bool isSame(const SoundFileData::Stream& a, const SoundFileData::Stream& b)
{
    return a.offset == b.offset && a.size == b.size && a.plainSize == b.plainSize &&
           a.packing == b.packing && a.plainCrc == b.plainCrc && a.streamCrc == b.streamCrc;
}

bool isPackingFine(const SoundFileData::Stream& stream)
{
    return stream.packing == SamplePacking::Deflated ||
           (stream.packing == SamplePacking::Plain && stream.size == stream.plainSize);
}

/// The parts of the file that streams have taken, by their offsets: no two overlap.
class Places
{
public:
    Places(quint64 begin, quint64 end, QVector<SoundFileData::Stream>& streams)
        : m_begin(begin), m_end(end), m_streams(streams)
    {
    }

    bool isInside(const SoundFileData::Stream& stream) const
    {
        return stream.offset >= m_begin && stream.offset <= m_end &&
               stream.size <= m_end - stream.offset && stream.size <= MaxBytes;
    }

    /// The number of a stream that lies inside; -1 if it overlaps another.
    int take(const SoundFileData::Stream& stream)
    {
        const auto next = m_taken.lower_bound(stream.offset);
        if (next != m_taken.end() && next->first < stream.offset + stream.size) {
            return isSame(m_streams.at(next->second), stream) ? next->second : -1;
        }
        if (next != m_taken.begin()) {
            const SoundFileData::Stream& before = m_streams.at(std::prev(next)->second);
            if (before.offset + before.size > stream.offset) {
                return -1;
            }
        }
        m_taken.emplace(stream.offset, m_streams.size());
        m_streams.append(stream);
        return m_streams.size() - 1;
    }

    QVector<SoundFileData::Stream> gaps() const
    {
        QVector<SoundFileData::Stream> result;
        quint64 pos = m_begin;
        const auto add = [&](quint64 end) {
            while (pos < end) {
                SoundFileData::Stream gap;
                gap.offset = pos;
                gap.size = quint32(qMin(end - pos, MaxBytes));
                gap.plainSize = gap.size;
                result.append(gap);
                pos += gap.size;
            }
        };
        for (const auto& [offset, stream] : m_taken) {
            add(offset);
            pos = offset + m_streams.at(stream).size;
        }
        add(m_end);
        return result;
    }

private:
    quint64 m_begin;
    quint64 m_end;
    QVector<SoundFileData::Stream>& m_streams;
    std::map<quint64, int> m_taken;
};

// What is wrong with a record in itself.
QString recordFault(const QByteArray& record, const SampleInfo& info,
                    const SoundFileData::Stream& stream)
{
    if (!isSealed(record)) {
        return tr("its record is damaged");
    }
    if (!SoundFileData::isFine(info) || stream.plainSize > MaxBytes || !isPackingFine(stream)) {
        return tr("its form is not one that the program knows");
    }
    return {};
}

// A record that is damaged itself is believed where its samples lie if they fit its checksum.
QString placeFault(QIODevice* device, SoundFileData::Sound& sound, Places& places,
                   const SoundFileData::Stream& stream, bool isBelieved)
{
    if (stream.size == 0) {
        return stream.plainSize == 0 ? QString() : tr("its samples are missing");
    }
    if (!places.isInside(stream)) {
        return tr("its samples lie outside of the file");
    }
    const QByteArray bytes = SoundFileData::readStream(device, stream);
    const bool isSound = checksumOf(bytes, bytes.size()) == stream.streamCrc;
    sound.stream = isSound || isBelieved ? places.take(stream) : -1;
    if (sound.stream < 0) {
        return tr("its samples overlap those of another sound");
    }
    return isSound ? QString() : tr("its samples are damaged");
}

QByteArray recordOf(const SoundFileData::Sound& sound, const SoundFileData::Stream& stream)
{
    QByteArray record = sound.broken;
    if (!record.isEmpty()) {
        const bool wasSealed = isSealed(record);
        if (sound.stream >= 0) {
            setNumber(record, OffsetAt, stream.offset);
        }
        if (wasSealed) {
            seal(record);
        }
        return record;
    }
    record.fill('\0', RecordSize);
    setNumber(record, GroupAt, sound.id.group);
    setNumber(record, NumberAt, sound.id.number);
    setNumber(record, ChannelsAt, sound.info.channels);
    setNumber(record, BitsAt, sound.info.bits);
    setNumber(record, RateAt, sound.info.sampleRate);
    setNumber(record, FramesAt, sound.info.frames);
    setNumber(record, OffsetAt, stream.offset);
    setNumber(record, SizeAt, stream.size);
    setNumber(record, PackingAt, quint8(stream.packing));
    setNumber(record, PlainCrcAt, stream.plainCrc);
    setNumber(record, StreamCrcAt, stream.streamCrc);
    seal(record);
    return record;
}

// Records without a fault take their places first.
void place(QIODevice* device, SoundFileData& file, const QVector<QByteArray>& records,
           const QVector<SoundFileData::Stream>& wanted)
{
    Places places(HeadSize + quint64(records.size()) * RecordSize, quint64(device->size()),
                  file.streams);
    QVector<int> order(records.size());
    std::iota(order.begin(), order.end(), 0);
    const auto broken = std::stable_partition(
        order.begin(), order.end(), [&file](int i) { return file.sounds[i].fault.isEmpty(); });
    for (auto i = order.begin(); i != order.end(); ++i) {
        SoundFileData::Sound& sound = file.sounds[*i];
        const QString fault = placeFault(device, sound, places, wanted[*i], i < broken);
        sound.fault = sound.fault.isEmpty() ? fault : sound.fault;
        if (!sound.fault.isEmpty()) {
            sound.broken = records[*i];
        }
    }
    const bool isWhole =
        std::all_of(file.sounds.cbegin(), file.sounds.cend(),
                    [](const SoundFileData::Sound& sound) { return sound.broken.isEmpty(); });
    if (!isWhole) {
        file.rest = places.gaps();
    }
}

}  // namespace

bool SoundFileData::read(QIODevice* device, QString* error)
{
    quint32 count = 0;
    if (!readHead(device, &count, error)) {
        return false;
    }
    QVector<QByteArray> records;
    for (quint32 i = 0; i < count; ++i) {
        records.append(device->read(RecordSize));
        if (records.last().size() != RecordSize) {
            *error = device->errorString();
            return false;
        }
    }
    QVector<Stream> wanted;
    for (const QByteArray& record : qAsConst(records)) {
        sounds.append(soundOf(record));
        wanted.append(streamOf(record, sounds.last().info));
        sounds.last().fault = recordFault(record, sounds.last().info, wanted.last());
    }
    place(device, *this, records, wanted);
    return true;
}

QByteArray SoundFileData::readStream(QIODevice* device, const Stream& stream)
{
    return device->seek(qint64(stream.offset)) ? device->read(stream.size) : QByteArray();
}

bool SoundFileData::write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf,
                          QString* error) const
{
    QVector<Stream> placed = streams + rest;
    quint64 end = HeadSize + quint64(sounds.size()) * RecordSize;
    for (Stream& stream : placed) {
        stream.offset = end;
        end += stream.size;
    }
    QByteArray head(magic, MagicSize);
    head.append(HeadSize - MagicSize, '\0');
    setNumber(head, VersionAt, Version);
    setNumber(head, CountAt, quint32(sounds.size()));
    setNumber(head, FileSizeAt, end);
    seal(head);
    bool done = device->write(head) == HeadSize;
    for (const Sound& sound : sounds) {
        const QByteArray record = recordOf(sound, placed.value(sound.stream));
        done = done && device->write(record) == record.size();
    }
    for (int i = 0; i < placed.size() && done; ++i) {
        done = device->write(bytesOf(i)) == placed[i].size;
    }
    if (!done) {
        *error = device->errorString();
    }
    return done;
}

bool SoundFileData::isFine(const SampleInfo& info)
{
    return info.channels >= 1 && info.channels <= MaxChannels && info.bits >= 8 &&
           info.bits <= 32 && info.bits % 8 == 0 && info.sampleRate >= 1 &&
           info.sampleRate <= MaxRate && info.frames >= 0;
}

quint64 SoundFileData::plainSize(const SampleInfo& info)
{
    return quint64(quint32(info.frames)) * info.channels * (info.bits / 8u);
}

}  // namespace Family
