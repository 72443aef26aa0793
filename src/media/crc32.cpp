#include "media/crc32_p.h"

#include <QtEndian>

#include <array>

namespace Zorv {

namespace {

const int Step = 8;

using Tables = std::array<std::array<quint32, 256>, Step>;

/// What a byte does to the checksum, and what it does with up to seven others behind it, so that
/// eight bytes are one step.
constexpr Tables makeTables()
{
    Tables tables{};
    for (quint32 byte = 0; byte < 256; ++byte) {
        quint32 rest = byte;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest & 1) ? rest >> 1 ^ 0xEDB88320 : rest >> 1;
        }
        tables[0][byte] = rest;
    }
    for (size_t distance = 1; distance < Step; ++distance) {
        for (size_t byte = 0; byte < 256; ++byte) {
            const quint32 before = tables[distance - 1][byte];
            tables[distance][byte] = before >> 8 ^ tables[0][before & 0xFF];
        }
    }
    return tables;
}

constexpr Tables tables = makeTables();

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
