#pragma once

#include "media/soundsample.h"
#include "media/wav.h"

#include <QByteArray>
#include <QDataStream>

namespace Zorv {

const quint16 PCMTag = 1;

/// The header that some bytes begin with; what they lack is 0.
template <class Header>
Header parseWaveHeader(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    Header header{};
    stream >> header;
    return header;
}

/// The form of so many bytes of samples.
SampleInfo waveSampleInfo(const WaveFormatHeader& format, quint32 dataSize);

/// As many bytes as there are of those that a header declares, which may be any number.
QByteArray readUpTo(QIODevice* device, qint64 size);

}  // namespace Zorv
