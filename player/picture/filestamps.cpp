#include "picture/filestamps.h"

#include <QFileInfo>

namespace Player {

QVector<FileStamps::Stamp> FileStamps::look() const
{
    QVector<Stamp> stamps;
    for (const QString& file : m_files) {
        const QFileInfo info(file);
        stamps.append({info.exists() ? info.size() : -1, info.lastModified()});
    }
    return stamps;
}

void FileStamps::watch(const QStringList& files)
{
    m_files = files;
    m_stamps = look();
    m_isChanging = false;
}

bool FileStamps::hasChanged()
{
    const QVector<Stamp> stamps = look();
    const bool isAnother = stamps != m_stamps;
    m_stamps = stamps;
    const bool isSettled = m_isChanging && !isAnother;
    m_isChanging = isAnother;
    return isSettled;
}

}  // namespace Player
