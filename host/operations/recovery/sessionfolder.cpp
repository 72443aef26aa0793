#include "operations/recovery/sessionfolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRandomGenerator>
#include <QStandardPaths>

namespace Operations {

namespace {

const QLatin1String Suffix(".zorvcopy");
constexpr int MaxTries = 8;

QString newName()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-")) +
           QString::number(QCoreApplication::applicationPid()) + QLatin1Char('-') +
           QString::number(QRandomGenerator::global()->generate(), 16);
}

}  // namespace

QString SessionFolder::defaultRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QLatin1String("/recovery");
}

SessionFolder::SessionFolder(const QString& path, std::unique_ptr<QLockFile> lock)
    : m_path(path + QLatin1Char('/')), m_lock(std::move(lock))
{
}

SessionFolder::~SessionFolder()
{
    if (copies().isEmpty()) {
        removeCopies();
    }
    m_lock->unlock();
    QDir().rmdir(m_path);
}

std::unique_ptr<SessionFolder> SessionFolder::claim(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path + QLatin1String("/lock"));
    // A lock is valid as long as its process lives, however old it is.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return nullptr;
    }
    return std::unique_ptr<SessionFolder>(new SessionFolder(path, std::move(lock)));
}

std::unique_ptr<SessionFolder> SessionFolder::create(const QString& root, QString* error)
{
    QDir().mkpath(root);
    for (int i = 0; i < MaxTries; ++i) {
        const QString path = root + QLatin1Char('/') + newName();
        if (!QDir().mkdir(path)) {
            continue;
        }
        // Other users must not read unsaved texts.
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        // Another process may have claimed the folder as abandoned before it was locked.
        if (auto folder = claim(path)) {
            return folder;
        }
        QDir().rmdir(path);
    }
    *error = QCoreApplication::translate("Operations::SessionFolder",
                                         "Cannot make a folder in %1. Check its permissions, and "
                                         "that there is room on the disk.")
                 .arg(QDir::toNativeSeparators(root));
    return nullptr;
}

std::vector<std::unique_ptr<SessionFolder>> SessionFolder::claimAbandoned(const QString& root)
{
    std::vector<std::unique_ptr<SessionFolder>> folders;
    const QFileInfoList all =
        QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo& info : all) {
        if (auto folder = claim(info.absoluteFilePath())) {
            folders.push_back(std::move(folder));
        }
    }
    return folders;
}

QString SessionFolder::copyPath(int number) const
{
    return m_path + QString::number(number) + Suffix;
}

QFileInfoList SessionFolder::copies() const
{
    return QDir(m_path).entryInfoList({QLatin1Char('*') + Suffix}, QDir::Files | QDir::NoSymLinks,
                                      QDir::Name);
}

void SessionFolder::removeCopies()
{
    const QStringList names =
        QDir(m_path).entryList({QLatin1Char('*') + Suffix, QLatin1Char('*') + Suffix + ".*"},
                               QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        QFile::remove(m_path + name);
    }
}

}  // namespace Operations
