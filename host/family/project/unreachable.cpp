#include "family/project/unreachable.h"

#include "family/project/familyparentproject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace Family {

namespace {

int obstacleTo(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info;
    if (stat(name.constData(), &info) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? 0 : errno;
    }
    return S_ISDIR(info.st_mode) && access(name.constData(), R_OK | X_OK) != 0 ? errno : 0;
}

void collectClosed(const QDir& folder, int depth, QStringList* list)
{
    const QFileInfoList entries =
        folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo& entry : entries) {
        if (!FamilyParentProject::isProjectFolder(entry.fileName(), depth)) {
            continue;
        }
        if (entry.isReadable() && entry.isExecutable()) {
            collectClosed(QDir(entry.filePath()), depth + 1, list);
        } else {
            list->append(entry.filePath());
        }
    }
}

}  // namespace

QString unreachable(const QString& path)
{
    const int number = path.isEmpty() ? 0 : obstacleTo(path);
    return number == 0 ? QString()
                       : QCoreApplication::translate(
                             "Family", "'%1' cannot be read: %2. Check the permissions of the "
                                       "folders on the way.")
                             .arg(QDir::toNativeSeparators(path), qt_error_string(number));
}

QString orUnreachable(const QString& otherwise, const QString& path)
{
    const QString reason = unreachable(path);
    return reason.isEmpty() ? otherwise.arg(path) : reason;
}

QString unreadableReason(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile()) {
        return QCoreApplication::translate("Family", "it is not a file");
    }
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

QStringList closedFolders(const QString& folder)
{
    QStringList list;
    collectClosed(QDir(folder), 0, &list);
    return list;
}

}  // namespace Family
