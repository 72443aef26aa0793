#pragma once

#include "family/assets/assetid.h"

#include <QByteArray>
#include <QtEndian>

namespace Family {

/// Reads the little-endian values of a record in sequence. The caller guarantees that there are
/// enough bytes.
class RecordReader
{
public:
    explicit RecordReader(const char* bytes) : m_at(bytes) {}

    quint8 u8() { return take<quint8>(); }
    quint16 u16() { return take<quint16>(); }
    quint32 u32() { return take<quint32>(); }
    quint64 u64() { return take<quint64>(); }
    void skip(int count) { m_at += count; }

    AssetId id()
    {
        const quint16 group = u16();
        return {group, u16()};
    }

private:
    template <class Value>
    Value take()
    {
        const Value value = qFromLittleEndian<Value>(m_at);
        m_at += sizeof(Value);
        return value;
    }

    const char* m_at;
};

/// Fills a record of fixed size; bytes that are not written are 0.
class RecordWriter
{
public:
    explicit RecordWriter(int size) : m_record(size, 0) {}

    void u8(quint8 value) { put(value); }
    void u16(quint16 value) { put(value); }
    void u32(quint32 value) { put(value); }
    void u64(quint64 value) { put(value); }
    void skip(int count) { m_at += count; }
    void bytes(const char* data, int count)
    {
        m_record.replace(m_at, count, data, count);
        m_at += count;
    }
    void id(AssetId id)
    {
        u16(id.group);
        u16(id.number);
    }

    /// The record with its checksum in the last 8 bytes.
    QByteArray sealed() const;

private:
    template <class Value>
    void put(Value value)
    {
        qToLittleEndian(value, m_record.data() + m_at);
        m_at += int(sizeof value);
    }

    QByteArray m_record;
    int m_at = 0;
};

/// True if the last 8 bytes of a record are the checksum of the bytes before them.
bool isSealed(const char* record, int size);

/// A record with that checksum.
QByteArray sealed(QByteArray record);

}  // namespace Family
