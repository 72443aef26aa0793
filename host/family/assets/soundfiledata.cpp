#include "family/assets/soundfiledata.h"

#include <zorv/cache/crc64.h>

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <iterator>
#include <limits>
#include <map>

// Reading must survive damage. Head and number of records must be right, but each record is judged
// by itself: by its own checksum, by its format, by the place of its samples and by their checksum.
// `Places` keeps the parts of the file in use, ordered by offset, so an overlap shows in the two
// neighbours. Equal places are shared samples and allowed. A broken record keeps its bytes. If
// there is any, the parts of the file that no record uses are kept too, since its samples may be
// there.

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

/// The offsets of the fields in head and record.
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

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

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

// Each part ends in the checksum of the bytes before it.
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

bool readHead(QIODevice* device, quint32* count, QString* error)
{
    const QByteArray head = device->read(HeadSize);
    if (head.size() < MagicSize || std::memcmp(head.constData(), magic, MagicSize) != 0) {
        *error = Text::tr("it is not a sound file");
    } else if (head.size() < HeadSize || !isSealed(head)) {
        *error = Text::tr("its first bytes are damaged");
    } else if (numberAt<quint16>(head, VersionAt) != Version) {
        *error = Text::tr("a newer version of the program has written it");
    } else {
        *count = numberAt<quint32>(head, CountAt);
        if (quint64(device->size()) >= HeadSize + quint64(*count) * RecordSize) {
            return true;
        }
        *error = Text::tr("its end is missing");
    }
    return false;
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

bool isPackingFine(const SoundFileData::Stream& stream)
{
    return stream.packing == SamplePacking::Deflated ||
           (stream.packing == SamplePacking::Plain && stream.size == stream.plainSize);
}

/// The parts of the file used by streams, by offset: no two overlap.
class Places
{
public:
    Places(QIODevice* device, quint64 begin, QVector<SoundFileData::Stream>& streams)
        : m_device(device), m_begin(begin), m_end(quint64(device->size())), m_streams(streams)
    {
    }

    bool isInside(const SoundFileData::Stream& stream) const
    {
        return stream.offset >= m_begin && stream.offset <= m_end &&
               stream.size <= m_end - stream.offset && stream.size <= MaxBytes;
    }

    /// The index of a stream inside the file, which may be known already; -1 if it overlaps
    /// another.
    int take(const SoundFileData::Stream& stream)
    {
        const auto next = m_taken.lower_bound(stream.offset);
        if (next != m_taken.end() && next->first < stream.offset + stream.size) {
            const SoundFileData::Stream& there = m_streams.at(next->second);
            return there.offset == stream.offset && there.size == stream.size ? next->second : -1;
        }
        if (next != m_taken.begin()) {
            const SoundFileData::Stream& before = m_streams.at(std::prev(next)->second);
            if (before.offset + before.size > stream.offset) {
                return -1;
            }
        }
        const QByteArray bytes = SoundFileData::readStream(m_device, stream);
        m_taken.emplace(stream.offset, m_streams.size());
        m_streams.append(stream);
        m_checksums.append(checksumOf(bytes, bytes.size()));
        return m_streams.size() - 1;
    }

    /// True if the bytes of the stream match the checksum in the record.
    bool fits(int number, const SoundFileData::Stream& stream) const
    {
        return m_checksums.at(number) == stream.streamCrc;
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
    QIODevice* m_device;
    quint64 m_begin;
    quint64 m_end;
    QVector<SoundFileData::Stream>& m_streams;
    QVector<quint64> m_checksums;
    std::map<quint64, int> m_taken;
};

// Checks a record by itself.
QString recordFault(const QByteArray& record, const SampleInfo& info,
                    const SoundFileData::Stream& stream)
{
    if (!isSealed(record)) {
        return Text::tr("its record is damaged");
    }
    if (!SoundFileData::isFine(info) || stream.plainSize > MaxBytes || !isPackingFine(stream)) {
        return Text::tr("its form is not one that the program knows");
    }
    return {};
}

QString placeFault(SoundFileData& file, int number, const SoundFileData::Stream& stream,
                   Places& places)
{
    if (stream.size == 0) {
        return stream.plainSize == 0 ? QString() : Text::tr("its samples are missing");
    }
    if (!places.isInside(stream)) {
        return Text::tr("its samples lie outside of the file");
    }
    const int taken = places.take(stream);
    if (taken < 0) {
        return Text::tr("its samples overlap those of another sound");
    }
    file.sounds[number].stream = taken;
    if (!places.fits(taken, stream)) {
        return Text::tr("its samples are damaged");
    }
    SoundFileData::Stream& known = file.streams[taken];
    if (!places.fits(taken, known)) {
        known = stream;
    }
    const bool isSame = known.plainSize == stream.plainSize && known.packing == stream.packing &&
                        known.plainCrc == stream.plainCrc;
    return isSame ? QString() : Text::tr("its samples overlap those of another sound");
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

// A damaged record may give a wrong position for its samples, so they stay in the rest of the file.
void place(QIODevice* device, SoundFileData& file, const QVector<QByteArray>& records)
{
    Places places(device, HeadSize + quint64(records.size()) * RecordSize, file.streams);
    bool isWhole = true;
    for (int i = 0; i < records.size(); ++i) {
        SoundFileData::Sound& sound = file.sounds[i];
        const SoundFileData::Stream stream = streamOf(records[i], sound.info);
        sound.fault = recordFault(records[i], sound.info, stream);
        if (sound.fault.isEmpty()) {
            sound.fault = placeFault(file, i, stream, places);
        }
        if (!sound.fault.isEmpty()) {
            sound.broken = records[i];
            isWhole = false;
        }
    }
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
    std::transform(records.cbegin(), records.cend(), std::back_inserter(sounds), soundOf);
    place(device, *this, records);
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

QString SoundFileData::faultLine(int place, AssetId id, const QString& fault)
{
    return Text::tr("Sound %1 (%2): %3.").arg(QString::number(place), id.text(), fault);
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
