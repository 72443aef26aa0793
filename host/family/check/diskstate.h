#pragma once

#include <QString>

namespace Family {

/// How a file lies on the disk: when two of these are equal, it need not be read again.
///
/// Links are followed. A folder is as all that lies in it.
class DiskState
{
public:
    /// Nothing is there.
    DiskState() = default;

    static DiskState of(const QString& path);

    bool operator==(const DiskState& other) const
    {
        return m_inode == other.m_inode && m_size == other.m_size && m_written == other.m_written &&
               m_changed == other.m_changed;
    }

private:
    quint64 m_inode = 0;
    quint64 m_size = ~quint64(0);
    quint64 m_written = 0;  // nanoseconds
    quint64 m_changed = 0;  // owner and permissions count too
};

}  // namespace Family
