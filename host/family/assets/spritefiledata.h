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

/// The tables of a sprite file as described in docs/formats.md: their records, without the models.
///
/// If the checksum or the values of a record are wrong, `broken` holds its bytes, besides what
/// could be read. These bytes are written back.
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
        bool inFile = true;    ///< its bytes are in the file, after the tables
        bool isGuess = false;  ///< but its position was guessed, not read
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
    QStringList problems;  ///< one line per broken record, for the user

    /// Reads head and tables from the start of a seekable device. False, with `error`, if it is not
    /// a sprite file or its tables are truncated. Broken records are listed in `problems`.
    bool read(QIODevice* device, QString* error);

    /// The bytes of a stream; empty if they cannot be read.
    static QByteArray readStream(QIODevice* device, const Stream& stream);

    /// Writes a whole file. Sizes and checksums of streams are written as they are, their offsets
    /// are computed so that they follow each other, and `bytesOf` returns the bytes of each. False
    /// if bytes are missing or the device does not take everything.
    bool write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf) const;
};

}  // namespace Family
