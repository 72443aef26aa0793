#pragma once

#include <QString>

namespace Family {

/// The state of a file on disk: if two are equal, the file need not be read again.
///
/// Follows links. The state of a folder includes the files directly in it.
class DiskState
{
public:
    /// Nothing exists.
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
    quint64 m_changed = 0;  // status change time: includes owner and permissions
};

}  // namespace Family
