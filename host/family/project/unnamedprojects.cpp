#include "family/project/unnamedprojects.h"

#include "family/grammar/filekind.h"
#include "family/project/familyparentproject.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

// Qt drops names that cannot be decoded, so the folders are listed with std::filesystem. The search
// enters the same folders as that for projects. At the first undecodable name on a path it stops
// and only asks whether there is a main file at or below it.

namespace fs = std::filesystem;

namespace Family {

namespace {

bool isText(const QByteArray& name)
{
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

QString shown(const QByteArray& name)
{
    if (isText(name)) {
        return QFile::decodeName(name);
    }
    QString text;
    for (const char c : name) {
        const auto byte = uchar(c);
        text += byte < 0x80 ? QString(QLatin1Char(c))
                            : QStringLiteral("\\x%1").arg(byte, 2, 16, QLatin1Char('0'));
    }
    return text;
}

bool isMainName(const QByteArray& name)
{
    return isMainFile(fileKindOf(QString::fromLatin1(name)));
}

struct Entry
{
    QByteArray name;
    fs::path path;
    bool isFolder = false;
    bool isFile = false;
};

/// The entries of a folder. Qt's own listing leaves out names that cannot be decoded.
std::vector<Entry> entriesOf(const fs::path& folder)
{
    std::vector<Entry> entries;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        std::error_code unknown;
        const fs::file_status status = it->symlink_status(unknown);
        entries.push_back({QByteArray::fromStdString(it->path().filename().string()), it->path(),
                           fs::is_directory(status), fs::is_regular_file(status)});
    }
    return entries;
}

/// Searches a game recursively.
class Walk
{
public:
    QStringList found;

    void enter(const fs::path& folder, const QString& path, int depth)
    {
        for (const Entry& entry : entriesOf(folder)) {
            const bool isLost = !isText(entry.name);
            if (isLost && (entry.isFolder ? holdsProject(entry.path, depth + 1)
                                          : entry.isFile && isMainName(entry.name))) {
                found.append(path + shown(entry.name));
            } else if (!isLost && entry.isFolder && isEntered(entry.name, depth)) {
                enter(entry.path, path + shown(entry.name) + QLatin1Char('/'), depth + 1);
            }
        }
    }

private:
    static bool isEntered(const QByteArray& name, int depth)
    {
        return !name.startsWith('.') &&
               FamilyParentProject::isProjectFolder(QFile::decodeName(name), depth);
    }

    static bool holdsProject(const fs::path& folder, int depth)
    {
        const std::vector<Entry> entries = entriesOf(folder);
        return std::any_of(entries.begin(), entries.end(), [depth](const Entry& entry) {
            return (entry.isFile && isMainName(entry.name)) ||
                   (entry.isFolder && isEntered(entry.name, depth) &&
                    holdsProject(entry.path, depth + 1));
        });
    }
};

}  // namespace

QStringList unnamedProjects(const QString& gameFolder)
{
    Walk walk;
    walk.enter(fs::path(QFile::encodeName(gameFolder).toStdString()), {}, 0);
    std::sort(walk.found.begin(), walk.found.end());
    return walk.found;
}

QString unnamedProjectText(const QString& path)
{
    return QCoreApplication::translate("Family",
                                       "The name of '%1' is no text in UTF-8, so nothing of it can "
                                       "be read. Give it another name.")
        .arg(path);
}

}  // namespace Family
