#pragma once

#include "core/archive.h"

#include <QBuffer>

/// An archive of one file in memory, whatever its name.
class MemoryArchive final : public Zorv::Archive
{
public:
    explicit MemoryArchive(const QByteArray& bytes) : m_bytes(bytes) {}

    void release() override {}
    bool isReadOnly() const override { return false; }
    QStringList entries(const QString&, QDir::Filters, QDir::SortFlags) const override
    {
        return {};
    }
    QFileInfoList infoEntries(const QString&, QDir::Filters, QDir::SortFlags) const override
    {
        return {};
    }
    QIODevice* openFile(const QString&, QIODevice::OpenMode mode, QString*) override
    {
        m_buffer.setBuffer(&m_bytes);
        // Unlike a file, a buffer keeps what it had.
        m_buffer.open(mode & QIODevice::WriteOnly ? mode | QIODevice::Truncate : mode);
        return &m_buffer;
    }
    bool closeFile(QIODevice*, QString*) override
    {
        m_buffer.close();
        return true;
    }

    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
};
