#include "family/assets/spritefiledata.h"

#include "family/assets/recordbytes.h"

#include <QIODevice>

#include <algorithm>

// Reading must survive damage. A record with a wrong checksum or nonsensical values keeps its bytes
// and gets a message, but does not stop the others. If the checksum of the head is wrong, its
// counts are tried: if they lead to valid records everywhere, they are right. A stream without a
// valid position gets the unused bytes between its neighbours. Sizes are checked against the file
// before memory is taken.
//
// Writing places the streams one after another and patches their positions into the records, broken
// ones included; all else in a broken record stays.

namespace Family {

namespace {

constexpr char Magic[] = "ZORVSPR\x1a";
constexpr int MagicSize = 8;
constexpr quint16 Version = 1;
constexpr int HeadSize = 64;
constexpr int PaletteSize = 1040;
constexpr int StreamSize = 48;
constexpr int SpriteSize = 32;
constexpr int RemapSize = 16;
constexpr quint32 LargestStream = 1u << 30;

struct Head
{
    quint32 palettes = 0;
    quint32 streams = 0;
    quint32 sprites = 0;
    quint32 remaps = 0;
    quint64 fileSize = 0;

    quint64 tableSize() const
    {
        return quint64(palettes) * PaletteSize + quint64(streams) * StreamSize +
               quint64(sprites) * SpriteSize + quint64(remaps) * RemapSize;
    }
};

Head readHead(const QByteArray& bytes)
{
    RecordReader reader(bytes.constData() + MagicSize + 4);
    Head head;
    head.palettes = reader.u32();
    head.streams = reader.u32();
    head.sprites = reader.u32();
    head.remaps = reader.u32();
    reader.skip(4);
    head.fileSize = reader.u64();
    return head;
}

QByteArray headBytes(const Head& head)
{
    RecordWriter writer(HeadSize);
    writer.bytes(Magic, MagicSize);
    writer.u16(Version);
    writer.u16(0);
    writer.u32(head.palettes);
    writer.u32(head.streams);
    writer.u32(head.sprites);
    writer.u32(head.remaps);
    writer.u32(0);
    writer.u64(head.fileSize);
    return writer.sealed();
}

// Each function reads a record; false if its values are invalid.

bool readPalette(RecordReader& reader, SpriteFileData::Palette* palette)
{
    palette->id = reader.id();
    const int count = reader.u16();
    reader.skip(2);
    palette->count = std::min(count, 256);
    palette->colors.fill({0, 0, 0, 255});
    for (int i = 0; i < palette->count; ++i) {
        Zorv::RGBA& color = palette->colors[size_t(i)];
        color.r = reader.u8();
        color.g = reader.u8();
        color.b = reader.u8();
        color.a = reader.u8();
    }
    return count <= 256;
}

bool readStream(RecordReader& reader, SpriteFileData::Stream* stream)
{
    stream->offset = reader.u64();
    stream->size = reader.u32();
    const int width = reader.u16();
    const int height = reader.u16();
    const auto codec = PixelCodec(reader.u8());
    const int bits = reader.u8();
    reader.skip(6);
    stream->format = {QSize(width, height), bits, codec};
    stream->pixelCrc = reader.u64();
    stream->streamCrc = reader.u64();
    const bool isCodec = codec == PixelCodec::Lz5 || codec == PixelCodec::Rle8 ||
                         codec == PixelCodec::Png || codec == PixelCodec::Pcx;
    return isCodec && stream->size > 0 && stream->size <= LargestStream &&
           (bits == 8 || (bits == 32 && codec == PixelCodec::Png)) && width >= 1 && height >= 1 &&
           width <= LargestSprite && height <= LargestSprite;
}

bool readSprite(RecordReader& reader, SpriteFileData::Sprite* sprite)
{
    sprite->id = reader.id();
    const int x = qint16(reader.u16());
    const int y = qint16(reader.u16());
    sprite->axis = {x, y};
    sprite->stream = reader.u32();
    sprite->palette = reader.u32();
    return true;
}

bool readRemap(RecordReader& reader, SpriteFileData::Remap* remap)
{
    remap->from = reader.id();
    remap->to = reader.id();
    return true;
}

QByteArray recordOf(const SpriteFileData::Palette& palette)
{
    RecordWriter writer(PaletteSize);
    writer.id(palette.id);
    writer.u16(quint16(palette.count));
    writer.u16(0);
    for (int i = 0; i < palette.count; ++i) {
        const Zorv::RGBA color = palette.colors[size_t(i)];
        writer.u8(color.r);
        writer.u8(color.g);
        writer.u8(color.b);
        writer.u8(color.a);
    }
    return writer.sealed();
}

QByteArray recordOf(const SpriteFileData::Stream& stream)
{
    RecordWriter writer(StreamSize);
    writer.u64(stream.offset);
    writer.u32(stream.size);
    writer.u16(quint16(stream.format.size.width()));
    writer.u16(quint16(stream.format.size.height()));
    writer.u8(quint8(stream.format.codec));
    writer.u8(quint8(stream.format.bits));
    writer.skip(6);
    writer.u64(stream.pixelCrc);
    writer.u64(stream.streamCrc);
    return writer.sealed();
}

QByteArray recordOf(const SpriteFileData::Sprite& sprite)
{
    RecordWriter writer(SpriteSize);
    writer.id(sprite.id);
    writer.u16(quint16(sprite.axis.x()));
    writer.u16(quint16(sprite.axis.y()));
    writer.u32(sprite.stream);
    writer.u32(sprite.palette);
    return writer.sealed();
}

QByteArray recordOf(const SpriteFileData::Remap& remap)
{
    RecordWriter writer(RemapSize);
    writer.id(remap.from);
    writer.id(remap.to);
    return writer.sealed();
}

// A broken record keeps its bytes, except for the position of its pixels, which may move. If the
// pixels were not in the file, the position must not point into the new file by accident.
QByteArray brokenRecord(const SpriteFileData::Stream& stream, quint64 fileSize)
{
    QByteArray record = stream.broken;
    const bool wasSealed = isSealed(record.constData(), record.size());
    RecordReader reader(record.constData());
    const quint64 offset = reader.u64();
    const quint32 size = reader.u32();
    const bool leadsNowhere = size == 0 || offset > fileSize || fileSize - offset < size;
    const bool isKnown = stream.inFile && !stream.isGuess;
    if (!isKnown && leadsNowhere) {
        return record;
    }
    qToLittleEndian<quint64>(isKnown ? stream.offset : fileSize, record.data());
    return wasSealed ? sealed(record) : record;
}

/// Parses the tables.
class TableReader
{
public:
    TableReader(const QByteArray& tables, QStringList* problems)
        : m_tables(tables), m_problems(problems)
    {
    }

    template <class Record>
    void read(QVector<Record>* list, quint32 count, int size,
              bool (*readRecord)(RecordReader&, Record*), const char* problem)
    {
        list->resize(int(count));
        for (int i = 0; i < int(count); ++i, m_at += size) {
            const char* bytes = m_tables.constData() + m_at;
            Record& record = (*list)[i];
            RecordReader reader(bytes);
            const bool makesSense = readRecord(reader, &record);
            const bool isWhole = isSealed(bytes, size);
            if (!isWhole || !makesSense) {
                record.broken = QByteArray(bytes, size);
                m_problems->append(SpriteFileData::tr(problem).arg(
                    QString::number(i + 1), isWhole ? SpriteFileData::tr("its values make no sense")
                                                    : SpriteFileData::tr("its checksum is wrong")));
            }
        }
    }

private:
    const QByteArray& m_tables;
    QStringList* m_problems;
    int m_at = HeadSize;
};

bool readTables(SpriteFileData* data, const Head& head, const QByteArray& bytes)
{
    TableReader reader(bytes, &data->problems);
    reader.read(&data->palettes, head.palettes, PaletteSize, readPalette,
                QT_TRANSLATE_NOOP("Family::SpriteFileData", "Palette %1 is broken: %2."));
    reader.read(&data->streams, head.streams, StreamSize, readStream,
                QT_TRANSLATE_NOOP("Family::SpriteFileData", "Pixels %1 are broken: %2."));
    reader.read(&data->sprites, head.sprites, SpriteSize, readSprite,
                QT_TRANSLATE_NOOP("Family::SpriteFileData", "Sprite %1 is broken: %2."));
    reader.read(&data->remaps, head.remaps, RemapSize, readRemap,
                QT_TRANSLATE_NOOP("Family::SpriteFileData", "Remap %1 is broken: %2."));
    return data->problems.isEmpty();
}

// If a record gives no valid position for its pixels, assume that they are the unused bytes between
// its neighbours. They cannot be decoded, but must not be lost.
void guessPlaces(SpriteFileData* data, quint64 tableEnd, quint64 size, quint64 left)
{
    quint64 end = tableEnd;
    for (int i = 0; i < data->streams.size(); ++i) {
        SpriteFileData::Stream& stream = data->streams[i];
        if (stream.inFile) {
            end = stream.offset + stream.size;
            continue;
        }
        const auto next = std::find_if(data->streams.begin() + i, data->streams.end(),
                                       [](const auto& other) { return other.inFile; });
        const quint64 until = next == data->streams.end() ? size : next->offset;
        if (until > end && until - end <= std::min<quint64>(left, LargestStream)) {
            stream.offset = end;
            stream.size = quint32(until - end);
            stream.inFile = stream.isGuess = true;
            left -= stream.size;
            end = until;
        }
    }
}

// Streams must be after the tables. Their total size is limited to that of the file, so overlapping
// streams cannot multiply it.
void checkStreams(SpriteFileData* data, const QByteArray& bytes, quint64 tableEnd, quint64 size,
                  int firstRecord)
{
    quint64 left = size - tableEnd;
    for (int i = 0; i < data->streams.size(); ++i) {
        SpriteFileData::Stream& stream = data->streams[i];
        stream.inFile = stream.offset >= tableEnd && stream.offset <= size &&
                        stream.size <= size - stream.offset &&
                        stream.size <= std::min<quint64>(left, LargestStream);
        if (stream.inFile) {
            left -= stream.size;
        } else if (stream.broken.isEmpty()) {
            stream.broken = bytes.mid(firstRecord + i * StreamSize, StreamSize);
            data->problems.append(
                SpriteFileData::tr("Pixels %1 are broken: they are not in the file.").arg(i + 1));
        }
    }
    guessPlaces(data, tableEnd, size, left);
}

void checkSprites(SpriteFileData* data, const QByteArray& bytes, int firstRecord)
{
    const auto isIn = [](quint32 index, int count) {
        return index == SpriteFileData::None || index < quint32(count);
    };
    for (int i = 0; i < data->sprites.size(); ++i) {
        SpriteFileData::Sprite& sprite = data->sprites[i];
        if (isIn(sprite.stream, data->streams.size()) &&
            isIn(sprite.palette, data->palettes.size())) {
            if (sprite.stream != SpriteFileData::None &&
                !data->streams[int(sprite.stream)].broken.isEmpty()) {
                data->problems.append(SpriteFileData::tr("Sprite %1 (%2) has broken pixels.")
                                          .arg(QString::number(i + 1), sprite.id.text()));
            }
        } else if (sprite.broken.isEmpty()) {
            sprite.broken = bytes.mid(firstRecord + i * SpriteSize, SpriteSize);
            data->problems.append(
                SpriteFileData::tr(
                    "Sprite %1 (%2) is broken: it names pixels or a palette that are not there.")
                    .arg(QString::number(i + 1), sprite.id.text()));
        }
        if (!isIn(sprite.stream, data->streams.size())) {
            sprite.stream = SpriteFileData::None;
        }
        if (!isIn(sprite.palette, data->palettes.size())) {
            sprite.palette = SpriteFileData::None;
        }
    }
}

QString headFault(const QByteArray& bytes, quint64 size)
{
    if (bytes.size() < HeadSize || !bytes.startsWith(QByteArray(Magic, MagicSize))) {
        return SpriteFileData::tr("it is no sprite file");
    }
    RecordReader version(bytes.constData() + MagicSize);
    if (version.u16() != Version) {
        return SpriteFileData::tr("it was made by a newer version of the program");
    }
    const bool isWhole = isSealed(bytes.constData(), HeadSize);
    if (readHead(bytes).tableSize() > size - HeadSize) {
        return isWhole ? SpriteFileData::tr("it is cut off")
                       : SpriteFileData::tr("its head is broken");
    }
    return {};
}

}  // namespace

bool SpriteFileData::read(QIODevice* device, QString* error)
{
    const quint64 size = quint64(std::max<qint64>(device->size(), 0));
    QByteArray bytes = device->read(HeadSize);
    *error = headFault(bytes, size);
    if (!error->isEmpty()) {
        return false;
    }
    const Head head = readHead(bytes);
    const quint64 tableEnd = HeadSize + head.tableSize();
    if (tableEnd > quint64(std::numeric_limits<int>::max() / 2)) {
        *error = SpriteFileData::tr("it is too large");
        return false;
    }
    bytes += device->read(qint64(head.tableSize()));
    if (quint64(bytes.size()) != tableEnd) {
        *error = device->errorString();
        return false;
    }
    const bool isWhole = readTables(this, head, bytes);
    if (!isSealed(bytes.constData(), HeadSize)) {
        // If the counts lead to whole records everywhere, only the checksum of the head is wrong.
        if (!isWhole) {
            *error = SpriteFileData::tr("its head is broken");
            return false;
        }
        problems.append(
            SpriteFileData::tr("The head of the file is broken; what stands behind it is not."));
    }
    if (head.fileSize != size) {
        problems.append(SpriteFileData::tr("The file has %1 bytes in place of %2.")
                            .arg(QString::number(size), QString::number(head.fileSize)));
    }
    const int firstStream = HeadSize + int(head.palettes) * PaletteSize;
    checkStreams(this, bytes, tableEnd, size, firstStream);
    checkSprites(this, bytes, firstStream + int(head.streams) * StreamSize);
    return true;
}

QByteArray SpriteFileData::readStream(QIODevice* device, const Stream& stream)
{
    if (!stream.inFile ||
        (device->pos() != qint64(stream.offset) && !device->seek(qint64(stream.offset)))) {
        return {};
    }
    const QByteArray bytes = device->read(stream.size);
    return quint32(bytes.size()) == stream.size ? bytes : QByteArray();
}

bool SpriteFileData::write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf) const
{
    Head head{quint32(palettes.size()), quint32(streams.size()), quint32(sprites.size()),
              quint32(remaps.size())};
    quint64 end = HeadSize + head.tableSize();
    QVector<Stream> placed = streams;
    for (Stream& stream : placed) {
        if (stream.inFile) {
            stream.offset = end;
            end += stream.size;
        }
    }
    head.fileSize = end;
    QByteArray tables = headBytes(head);
    const auto append = [&tables](const QByteArray& broken, const auto& record) {
        tables += broken.isEmpty() ? recordOf(record) : broken;
    };
    for (const Palette& palette : palettes) {
        append(palette.broken, palette);
    }
    for (const Stream& stream : placed) {
        append(stream.broken.isEmpty() ? QByteArray() : brokenRecord(stream, end), stream);
    }
    for (const Sprite& sprite : sprites) {
        append(sprite.broken, sprite);
    }
    for (const Remap& remap : remaps) {
        append(remap.broken, remap);
    }
    bool done = device->write(tables) == tables.size();
    for (int i = 0; done && i < placed.size(); ++i) {
        if (placed[i].inFile) {
            const QByteArray bytes = bytesOf(i);
            done = quint32(bytes.size()) == placed[i].size && device->write(bytes) == bytes.size();
        }
    }
    return done;
}

}  // namespace Family
