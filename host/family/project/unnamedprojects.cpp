#include "project/unnamedprojects.h"

#include "grammar/filekind.h"
#include "project/familyparentproject.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <filesystem>
#include <system_error>

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

/// The walk through a game.
class Walk
{
public:
    QStringList found;

    void enter(const fs::path& folder, const QString& path, int depth)
    {
        std::error_code error;
        for (fs::directory_iterator it(folder, error), end; !error && it != end;
             it.increment(error)) {
            const QByteArray name = QByteArray::fromStdString(it->path().filename().string());
            std::error_code unknown;
            const fs::file_status status = it->symlink_status(unknown);
            const bool isFolder = fs::is_directory(status);
            const bool isLost = !isText(name);
            if (isLost && (isFolder ? holdsProject(it->path(), depth + 1)
                                    : fs::is_regular_file(status) && isMainName(name))) {
                found.append(path + shown(name));
            } else if (!isLost && isFolder && isEntered(name, depth)) {
                enter(it->path(), path + shown(name) + QLatin1Char('/'), depth + 1);
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
        std::error_code error;
        for (fs::directory_iterator it(folder, error), end; !error && it != end;
             it.increment(error)) {
            const QByteArray name = QByteArray::fromStdString(it->path().filename().string());
            std::error_code unknown;
            const fs::file_status status = it->symlink_status(unknown);
            if ((fs::is_regular_file(status) && isMainName(name)) ||
                (fs::is_directory(status) && isEntered(name, depth) &&
                 holdsProject(it->path(), depth + 1))) {
                return true;
            }
        }
        return false;
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
