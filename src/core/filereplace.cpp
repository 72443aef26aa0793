#include "core/filereplace_p.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace Zorv::FileReplace {

namespace {

const int MaxLinks = 40;

fs::path toNative(const QString& path)
{
#ifdef Q_OS_WIN
    return fs::path(path.toStdWString());
#else
    return fs::path(QFile::encodeName(path).toStdString());
#endif
}

QString fromNative(const fs::path& path)
{
#ifdef Q_OS_WIN
    return QString::fromStdWString(path.generic_wstring());
#else
    return QFile::decodeName(path.c_str());
#endif
}

QString systemText(int code)
{
    return qt_error_string(code);
}

}  // namespace

QString resolved(const QString& path, QString* reason)
{
    fs::path place = toNative(path);
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(place, error)); ++links) {
        if (links == MaxLinks) {
            *reason = systemText(int(std::errc::too_many_symbolic_link_levels));
            return {};
        }
        const fs::path target = fs::read_symlink(place, error);
        if (error) {
            *reason = systemText(error.value());
            return {};
        }
        // If the target is absolute, it replaces the folder as well.
        place = place.parent_path() / target;
    }
    return fromNative(place);
}

#ifdef Q_OS_UNIX

HandleCopy::HandleCopy(const QFile& file) : m_handle(::fcntl(file.handle(), F_DUPFD_CLOEXEC, 0)) {}

HandleCopy::~HandleCopy()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

#else

HandleCopy::HandleCopy(const QFile&) {}

HandleCopy::~HandleCopy() = default;

#endif

void takeOwnerAndMode(QFile& file, const QString& from)
{
#ifdef Q_OS_UNIX
    struct stat old, now;
    if (::stat(QFile::encodeName(from).constData(), &old) != 0 ||
        ::fstat(file.handle(), &now) != 0) {
        return;
    }
    mode_t mode = old.st_mode & 07777;
    if (old.st_uid != now.st_uid || old.st_gid != now.st_gid) {
        const bool ownerTaken = ::fchown(file.handle(), old.st_uid, old.st_gid) == 0;
        if (!ownerTaken && ::fchown(file.handle(), uid_t(-1), old.st_gid) != 0) {
            // The new group must not get more rights than everybody had.
            mode = (mode & ~mode_t(070)) | ((mode & 07) << 3 & mode);
        }
        if (!ownerTaken) {
            // Under another owner, set-user-ID and set-group-ID would grant the wrong rights.
            mode &= 01777;
        }
    }
    if (::fchmod(file.handle(), mode) != 0) {
        file.setPermissions(QFileInfo(from).permissions());
    }
#else
    file.setPermissions(QFileInfo(from).permissions());
#endif
}

bool syncFile(QFile& file, QString* reason)
{
#ifdef Q_OS_UNIX
    int result;
    do {
        result = ::fsync(file.handle());
    } while (result != 0 && errno == EINTR);
    // Some network and user-space file systems do not support fsync.
    if (result != 0 && errno != EINVAL && errno != ENOSYS) {
        *reason = systemText(errno);
        return false;
    }
#else
    Q_UNUSED(file)
    Q_UNUSED(reason)
#endif
    return true;
}

void syncFolder(const QString& folder)
{
#ifdef Q_OS_UNIX
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return;
    }
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(folder)
#endif
}

void syncDisk(const QString& folder)
{
#ifdef Q_OS_LINUX
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        ::syncfs(handle);
        ::close(handle);
    }
#else
    Q_UNUSED(folder)
#endif
}

bool rename(const QString& from, const QString& to, QString* reason)
{
    std::error_code error;
    fs::rename(toNative(from), toNative(to), error);
    if (error) {
        *reason = systemText(error.value());
    }
    return !error;
}

}  // namespace Zorv::FileReplace
