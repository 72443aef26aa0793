#include "core/newbackup_p.h"

#include "core/filereplace_p.h"
#include "core/files.h"
#include "core/folders_p.h"
#include "core/unfinished_p.h"

#include <QDir>
#include <QDirIterator>

namespace Zorv {

namespace {

constexpr int MaxFolders = 1000;

}  // namespace

NewBackup::NewBackup(const QString& folder, const QString& name) : m_folder(folder), m_name(name)
{
    Unfinished::clear(folder, Unfinished::BackupSuffix);
    // A slash in the name would put the backup into another folder.
    if (name.contains(QLatin1Char('/')) || !QDir().mkpath(folder)) {
        return;
    }
    for (int i = 0; i < MaxFolders && m_hidden.isEmpty(); ++i) {
        const QString hidden = folder + QLatin1Char('.') + QString::number(i) +
                               QLatin1String(Unfinished::BackupSuffix);
        if (!make(hidden) && !QDir(hidden).exists()) {
            return;
        }
    }
    // Creating the folder now shows early whether the file system accepts the name.
    const QString path = m_hidden + QLatin1Char('/') + name + QLatin1Char('/');
    if (QDir().mkpath(path)) {
        m_path = path;
    }
}

bool NewBackup::make(const QString& hidden)
{
    if (!QDir().mkdir(hidden)) {
        return false;
    }
    m_handle = Unfinished::openFolder(hidden);
    if (m_handle >= 0 && !Unfinished::lock(m_handle, hidden)) {
        Unfinished::closeFolder(m_handle);
        m_handle = -1;
        return false;
    }
    Unfinished::add(hidden);
    m_hidden = hidden;
    return true;
}

NewBackup::~NewBackup()
{
    if (!m_hidden.isEmpty()) {
        removeDir(m_hidden);
        Unfinished::remove(m_hidden);
        Unfinished::closeFolder(m_handle);
    }
}

bool NewBackup::finish()
{
    QString reason;
    const QString target = m_folder + m_name;
    return !m_path.isEmpty() &&
           (FileReplace::rename(m_path, target, &reason) || join(target + QLatin1Char('/')));
}

bool NewBackup::isWholeName(const QString& name)
{
    return isPlainName(name) && !Unfinished::isName(name, Unfinished::BackupSuffix);
}

bool NewBackup::join(const QString& target) const
{
    QDirIterator files(m_path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    bool isWhole = QDir(target).exists();
    while (isWhole && files.hasNext()) {
        const QString file = files.next();
        const QString place = target + file.mid(m_path.size());
        QString reason;
        isWhole = forcePath(place) && FileReplace::rename(file, place, &reason);
    }
    return isWhole;
}

}  // namespace Zorv
