#pragma once

#include <QDateTime>
#include <QStringList>
#include <QVector>

namespace Player {

/// Detects changes of files by polling.
class FileStamps
{
public:
    /// Records the current state of the files.
    void watch(const QStringList& files);

    /// Checks the files. Returns true once after a change, as soon as two checks in a row see the
    /// same state, because a save often writes several files.
    bool hasChanged();

private:
    struct Stamp
    {
        qint64 size;
        QDateTime time;
        bool operator==(const Stamp& other) const
        {
            return size == other.size && time == other.time;
        }
    };

    QVector<Stamp> look() const;

    QStringList m_files;
    QVector<Stamp> m_stamps;
    bool m_isChanging = false;
};

}  // namespace Player
