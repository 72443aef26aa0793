#include "operations/find/codefiles.h"

#include "family/project/familyparentproject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

// Qt queries each file of a listing separately. std::filesystem gets the file types from the
// directory itself, which saves most of the time in a large game.

namespace fs = std::filesystem;

namespace Operations {

namespace {

class Walk
{
public:
    explicit Walk(FileKinds kinds) : m_kinds(kinds) {}

    QStringList found;

    void enter(const fs::path& folder, const QString& path, int depth)
    {
        std::error_code error;
        for (fs::directory_iterator it(folder, error), end; !error && it != end;
             it.increment(error)) {
            std::error_code unknown;
            const fs::file_status status = it->symlink_status(unknown);
            const QByteArray bytes = QByteArray::fromStdString(it->path().filename().string());
            const QString name = QFile::decodeName(bytes);
            // A name that cannot be decoded could not be opened later.
            if (bytes.startsWith('.') || QFile::encodeName(name) != bytes) {
                continue;
            }
            if (fs::is_regular_file(status) && isWanted(name)) {
                found.append(path + name);
            } else if (fs::is_directory(status) &&
                       Family::FamilyParentProject::isProjectFolder(name, depth)) {
                enter(it->path(), path + name + QLatin1Char('/'), depth + 1);
            }
        }
    }

private:
    bool isWanted(const QString& name) const
    {
        return Family::hasCodeSuffix(name) && hasKind(m_kinds, Family::fileKindOf(name));
    }

    FileKinds m_kinds;
};

}  // namespace

QStringList codeFiles(const QString& folder, FileKinds kinds)
{
    QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (!path.endsWith(QLatin1Char('/'))) {
        path += QLatin1Char('/');
    }
    Walk walk(kinds);
    walk.enter(fs::path(QFile::encodeName(path).toStdString()), path, 0);
    std::sort(walk.found.begin(), walk.found.end());
    return walk.found;
}

}  // namespace Operations
