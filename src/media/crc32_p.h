#pragma once

#include <QByteArray>

namespace Zorv {

/// The checksum of PNG files, fed with bytes in pieces.
class Crc32
{
public:
    void add(const QByteArray& bytes);
    quint32 value() const { return ~m_rest; }

private:
    quint32 m_rest = 0xFFFFFFFF;
};

}  // namespace Zorv
