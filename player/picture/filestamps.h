#pragma once

#include <QDateTime>
#include <QStringList>
#include <QVector>

namespace Player {

/// Whether files were written since.
class FileStamps
{
public:
    /// Looks at the files as they are now.
    void watch(const QStringList& files);

    /// Looks again. True once after a change, when nothing has changed since the look before: who
    /// saves writes several files.
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
