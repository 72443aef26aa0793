#pragma once

#include "family/assets/assetid.h"
#include "family/assets/familypalette.h"
#include "family/assets/pixelcodec.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <functional>

class QIODevice;

namespace Family {

/// The tables of a sprite file as docs/formats.md tells them: a record each, without the models.
///
/// A record whose checksum or values are wrong has its bytes in `broken`, beside what could be read
/// of it; it is written back as those bytes.
struct SpriteFileData
{
    Q_DECLARE_TR_FUNCTIONS(Family::SpriteFileData)

public:
    static constexpr quint32 None = 0xffffffff;  ///< no pixels, or no palette

    struct Palette
    {
        AssetId id;
        int count = 256;
        PaletteColors colors{};
        QByteArray broken;
    };
    struct Stream
    {
        quint64 offset = 0;
        quint32 size = 0;
        PixelFormat format;
        quint64 pixelCrc = 0;
        quint64 streamCrc = 0;
        QByteArray broken;
        bool inFile = true;    ///< its bytes lie in the file, behind the tables
        bool isGuess = false;  ///< but where is not told by the record: what lies there is nobody's
    };
    struct Sprite
    {
        AssetId id;
        QPoint axis;
        quint32 stream = None;
        quint32 palette = None;
        QByteArray broken;
    };
    struct Remap
    {
        AssetId from;
        AssetId to;
        QByteArray broken;
    };

    QVector<Palette> palettes;
    QVector<Stream> streams;
    QVector<Sprite> sprites;
    QVector<Remap> remaps;
    QStringList problems;  ///< a line for each broken record, for the person

    /// Reads head and tables from the start of a device that can seek. False, with `error`, if it
    /// is no such file, or cut off in its tables; broken records are told in `problems`.
    bool read(QIODevice* device, QString* error);

    /// The bytes of a stream; empty if they are not to be had.
    static QByteArray readStream(QIODevice* device, const Stream& stream);

    /// Writes a whole file: sizes and checksums of streams as they stand, their offsets one behind
    /// the other, and the bytes that `bytesOf` gives for the index of each. False if
    /// bytes are missing or the device takes not all.
    bool write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf) const;
};

}  // namespace Family
