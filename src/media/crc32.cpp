#include "media/crc32_p.h"

#include "core/crctables_p.h"

#include <QtEndian>

namespace Zorv {

namespace {

const int Step = 8;

constexpr auto tables = crcTables<quint32, Step>(0xEDB88320);

}  // namespace

void Crc32::add(const QByteArray& bytes)
{
    const char* at = bytes.constData();
    const char* const end = at + bytes.size();
    for (; end - at >= Step; at += Step) {
        const quint64 word = qFromLittleEndian<quint64>(at) ^ m_rest;
        m_rest = 0;
        for (int i = 0; i < Step; ++i) {
            m_rest ^= tables[size_t(Step - 1 - i)][word >> (8 * i) & 0xFF];
        }
    }
    for (; at < end; ++at) {
        m_rest = m_rest >> 8 ^ tables[0][(m_rest ^ uchar(*at)) & 0xFF];
    }
}

}  // namespace Zorv
