#include "support/folders.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

bool copyFolder(const QString& source, const QString& target)
{
    QDirIterator each(source, QDir::Files, QDirIterator::Subdirectories);
    bool isDone = true;
    while (each.hasNext()) {
        const QString file = each.next();
        const QString copy = target + file.mid(source.size());
        isDone &= QDir().mkpath(QFileInfo(copy).path()) && QFile::copy(file, copy) &&
                  QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner |
                                                  QFile::ReadGroup | QFile::ReadOther);
    }
    return isDone;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
}
