#include "core/run/runrecord_p.h"

#include "core/folders_p.h"
#include "core/safefile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

// A record file contains a heading, the SHA-256 of the content in hex, and the content as JSON.
// Records list files to be deleted, so a damaged one must never be used.

namespace Zorv {

namespace {

constexpr qint64 MaxRecordSize = 64 * 1024 * 1024;

const QByteArray& heading()
{
    static const QByteArray line("zorv-run 1\n");
    return line;
}

QByteArray checksum(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + '\n';
}

QStringList texts(const QJsonValue& value)
{
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue& text : array) {
        list.append(text.toString());
    }
    return list;
}

/// True if a component of the path is named as only copies are.
bool isCopyPath(const QString& path)
{
    static const QRegularExpression copyName(QStringLiteral("(^|/)zorvs_[0-9]"));
    return path.contains(copyName);
}

qint64 modificationTime(const QFileInfo& info)
{
    return info.lastModified().toMSecsSinceEpoch();
}

bool isRealFolder(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink();
}

}  // namespace

bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

void RunRecord::addFile(const QString& path, const QString& place)
{
    const QFileInfo info(place);
    files.append({path, info.size(), modificationTime(info)});
}

void RunRecord::forgetFile(const QString& path)
{
    files.erase(std::remove_if(files.begin(), files.end(),
                               [&path](const File& file) { return file.path == path; }),
                files.end());
}

bool RunRecord::write(const QString& fileName) const
{
    QJsonArray rows;
    for (const File& file : files) {
        rows.append(QJsonObject{{QStringLiteral("path"), file.path},
                                {QStringLiteral("size"), double(file.size)},
                                {QStringLiteral("modified"), double(file.modified)}});
    }
    const QJsonObject object{
        {QStringLiteral("folder"), folder},
        {QStringLiteral("wholeFolders"), QJsonArray::fromStringList(wholeFolders)},
        {QStringLiteral("files"), rows},
        {QStringLiteral("madeFolders"), QJsonArray::fromStringList(madeFolders)}};
    const QByteArray content = QJsonDocument(object).toJson(QJsonDocument::Compact);
    QString error;
    return SafeFile::save(fileName, heading() + checksum(content) + content, &error,
                          SafeFile::IsCopy);
}

bool RunRecord::read(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > MaxRecordSize ||
        file.readLine() != heading()) {
        return false;
    }
    const QByteArray sum = file.readLine();
    const QByteArray content = file.readAll();
    const QJsonObject object = QJsonDocument::fromJson(content).object();
    if (sum != checksum(content) || object.isEmpty()) {
        return false;
    }
    folder = object.value(QStringLiteral("folder")).toString();
    wholeFolders = texts(object.value(QStringLiteral("wholeFolders")));
    madeFolders = texts(object.value(QStringLiteral("madeFolders")));
    files.clear();
    const QJsonArray rows = object.value(QStringLiteral("files")).toArray();
    for (const QJsonValue& row : rows) {
        files.append({row[QStringLiteral("path")].toString(),
                      qint64(row[QStringLiteral("size")].toDouble(-1)),
                      qint64(row[QStringLiteral("modified")].toDouble(-1))});
    }
    return folder.endsWith(QLatin1Char('/')) && QDir::isAbsolutePath(folder);
}

/// True for a relative path without links or ".." on the way.
bool RunRecord::isInside(const QString& path) const
{
    const QStringList parts = path.split(QLatin1Char('/'));
    QString place = folder;
    for (int i = 0; i < parts.size(); ++i) {
        const QString& part = parts.at(i);
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..")) {
            return false;
        }
        place += part;
        if (i + 1 < parts.size() && !isRealFolder(place)) {
            return false;
        }
        place += QLatin1Char('/');
    }
    return true;
}

bool RunRecord::isUnchanged(const File& file) const
{
    const QFileInfo info(folder + file.path);
    return info.isFile() && !info.isSymLink() && info.size() == file.size &&
           modificationTime(info) == file.modified;
}

/// True if at least one path is named as only copies are.
bool RunRecord::holdsCopy() const
{
    return std::any_of(wholeFolders.begin(), wholeFolders.end(),
                       [](const QString& path) { return isCopyPath(path); }) ||
           std::any_of(files.begin(), files.end(),
                       [](const File& file) { return isCopyPath(file.path); });
}

RunRecord RunRecord::safePart() const
{
    RunRecord safe;
    safe.folder = folder;
    if (!holdsCopy()) {
        return safe;
    }
    for (const QString& path : wholeFolders) {
        if (isInside(path) && isCopyPath(path) && isRealFolder(folder + path)) {
            safe.wholeFolders.append(path);
        }
    }
    std::copy_if(files.begin(), files.end(), std::back_inserter(safe.files),
                 [this](const File& file) { return isInside(file.path) && isUnchanged(file); });
    for (const QString& path : madeFolders) {
        if (isInside(path) && isRealFolder(folder + path)) {
            safe.madeFolders.append(path);
        }
    }
    return safe;
}

QStringList RunRecord::paths() const
{
    QStringList list;
    for (const File& file : files) {
        list.append(folder + file.path);
    }
    for (const QStringList& folders : {wholeFolders, madeFolders}) {
        for (auto it = folders.rbegin(); it != folders.rend(); ++it) {
            list.append(folder + *it + QLatin1Char('/'));
        }
    }
    return list;
}

QStringList RunRecord::removeAll() const
{
    QStringList stays;
    for (const File& file : files) {
        const QString path = folder + file.path;
        if (isThere(path) && !QFile::remove(path)) {
            stays.append(path);
        }
    }
    for (const QString& path : wholeFolders) {
        if (!removeDir(folder + path)) {
            stays.append(folder + path + QLatin1Char('/'));
        }
    }
    // Innermost folders were added last and must be removed first.
    for (auto it = madeFolders.rbegin(); it != madeFolders.rend(); ++it) {
        QDir().rmdir(folder + *it);
    }
    return stays;
}

}  // namespace Zorv
