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

/// The table of a sound file as docs/formats.md tells it: a record each, without the models.
///
/// A record that is wrong in itself, or whose bytes are, has its own bytes in `broken`, beside
/// what could be read of it. It is written back as those; only the place of its samples follows
/// them, if the file has them.
struct SoundFileData
{
    /// A part of the file behind the table.
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
        int stream = -1;  ///< in `streams`; -1 without samples, or if they are not to be found
        QByteArray broken;
        QString fault;  ///< why it is broken, in words for the person
    };

    QVector<Sound> sounds;
    QVector<Stream> streams;

    /// Where broken records may have their samples: what no other record names.
    QVector<Stream> rest;

    /// Reads head and table from the start of a device that can seek, and looks at the checksums
    /// of all streams. False, with `error`, if it is no such file, or cut off in its table.
    bool read(QIODevice* device, QString* error);

    /// What the person is told of a broken record; places count from 1.
    static QString faultLine(int place, AssetId id, const QString& fault);

    /// The bytes of a stream; empty if they are not to be had.
    static QByteArray readStream(QIODevice* device, const Stream& stream);

    /// Writes a whole file: the streams one behind the other, then the rest. `bytesOf` gives the
    /// bytes of each, counted through both. False, with `error`, if the device takes not all.
    bool write(QIODevice* device, const std::function<QByteArray(int)>& bytesOf,
               QString* error) const;

    /// True for a form that a sound file can hold.
    static bool isFine(const Zorv::SampleInfo& info);

    /// The bytes that the samples of a form take.
    static quint64 plainSize(const Zorv::SampleInfo& info);
};

}  // namespace Family
