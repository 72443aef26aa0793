#pragma once

#include "family/assets/assetid.h"
#include "family/assets/sampledata.h"

#include <zorv/media/soundsample.h>

#include <QByteArray>
#include <QString>
#include <QVector>
#include <functional>

class QIODevice;

namespace Family {

/// The table of a sound file as described in docs/formats.md: its records, without the models.
///
/// If a record or its samples are damaged, `broken` holds the bytes of the record, besides what
/// could be read. These bytes are written back; only the position of its samples is updated, if the
/// file has them.
struct SoundFileData
{
    /// A part of the file after the table.
    struct Stream
    {
        quint64 offset = 0;
        quint32 size = 0;
        quint64 plainSize = 0;
        SamplePacking packing = SamplePacking::Plain;
        quint64 plainCrc = 0;
        quint64 streamCrc = 0;
    };
    struct Sound
    {
        AssetId id;
        Zorv::SampleInfo info;
        int stream = -1;  ///< index in `streams`; -1 if it has no samples or they were not found
        QByteArray broken;
        QString fault;  ///< why it is broken, as a text for the user
    };

    QVector<Sound> sounds;
    QVector<Stream> streams;

    /// Where broken records may have their samples: the parts that no other record uses.
    QVector<Stream> rest;

    /// Reads head and table from the start of a seekable device, and verifies the checksums of all
    /// streams. False, with `error`, if it is not a sound file or the table is truncated.
    bool read(QIODevice* device, QString* error);

    /// The message about a broken record; `place` counts from 1.
    static QString faultLine(int place, AssetId id, const QString& fault);

    /// The bytes of a stream; empty if they cannot be read.
    static QByteArray readStream(QIODevice* device, const Stream& stream);

    /// Writes a whole file: the streams in sequence, then the rest. `bytesOf` returns the bytes of
    /// each; its index runs through both lists. False, with `error`, if the device does not take
    /// everything.
    bool write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf,
               QString* error) const;

    /// True for a format that a sound file can hold.
    static bool isFine(const Zorv::SampleInfo& info);

    /// The size of the samples in bytes.
    static quint64 plainSize(const Zorv::SampleInfo& info);
};

}  // namespace Family
