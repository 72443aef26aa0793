#include "family/assets/recordbytes.h"

#include <zorv/cache/crc64.h>

namespace Family {

namespace {

constexpr int SealSize = 8;

quint64 checksum(const char* record, int size)
{
    return Zorv::crc64(reinterpret_cast<const unsigned char*>(record), unsigned(size - SealSize));
}

}  // namespace

QByteArray RecordWriter::sealed() const
{
    return Family::sealed(m_record);
}

bool isSealed(const char* record, int size)
{
    return qFromLittleEndian<quint64>(record + size - SealSize) == checksum(record, size);
}

QByteArray sealed(QByteArray record)
{
    const int size = record.size();
    qToLittleEndian(checksum(record.constData(), size), record.data() + size - SealSize);
    return record;
}

}  // namespace Family
