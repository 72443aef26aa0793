#include "editors/sound/floatstream_p.h"

#include <QtEndian>

namespace Zorv {

namespace {

constexpr int SampleBytes = 4;
constexpr float MostPlusOne = 2147483648.0F;

}  // namespace

FloatStream::FloatStream(QObject* parent) : QIODevice(parent)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 FloatStream::readData(char* data, qint64 size)
{
    const qint64 got = m_source ? m_source->read(data, size - size % SampleBytes) : 0;
    for (qint64 at = 0; at + SampleBytes <= got; at += SampleBytes) {
        const float value = float(qFromLittleEndian<qint32>(data + at)) / MostPlusOne;
        qToLittleEndian(value, data + at);
    }
    return got;
}

}  // namespace Zorv
