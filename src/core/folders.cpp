#include "core/folders_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Zorv {

bool removeDir(const QString& path)
{
    // With a slash at the end, a link would be taken for the folder it points to.
    const QString folder = QDir::cleanPath(path);
    if (QFileInfo(folder).isSymLink()) {
        return QFile::remove(folder);
    }
    const QDir dir(folder);
    if (path.isEmpty() || !dir.exists()) {
        return true;
    }
    const QFileInfoList entries = dir.entryInfoList(QDir::NoDotAndDotDot | QDir::System |
                                                        QDir::Hidden | QDir::AllDirs | QDir::Files,
                                                    QDir::DirsFirst);
    for (const QFileInfo& entry : entries) {
        const QString name = entry.filePath();
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        if (!(isFolder ? removeDir(name) : QFile::remove(name))) {
            return false;
        }
    }
    return QDir().rmdir(folder);
}

void listFiles(const QString& path, QStringList& list)
{
    const QFileInfoList entries = QDir(path).entryInfoList(
        QDir::NoDotAndDotDot | QDir::Readable | QDir::NoSymLinks | QDir::Files | QDir::Dirs);
    for (const QFileInfo& entry : entries) {
        const QString name = path + entry.fileName();
        if (entry.isDir()) {
            listFiles(name + QLatin1Char('/'), list);
        } else {
            list.append(name);
        }
    }
}

bool isPlainName(const QString& name)
{
    const bool leadsElsewhere = name == QLatin1String(".") || name == QLatin1String("..");
    return !name.isEmpty() && !leadsElsewhere && !name.contains(QLatin1Char('/')) &&
           QDir::fromNativeSeparators(name) == name && !name.contains(QChar(0));
}

QString nearestFolder(const QString& path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

}  // namespace Zorv
