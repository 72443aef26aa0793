#include "operations/create/newfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

// The hidden folder contains a lock file and a folder with the content. Only the content is renamed
// to the final place, which is atomic. A hidden folder whose lock can be taken belongs to a dead
// process and is removed by the next program that creates something there.

namespace Operations {

namespace {

const QString Hidden = QStringLiteral(".zorv-new-");
const QString Lock = QStringLiteral("/lock");
const QString Content = QStringLiteral("/content/");
constexpr int Attempts = 3;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Create)
};

void removeAbandoned(const QString& folder)
{
    const QDir around(folder);
    const QStringList names =
        around.entryList({Hidden + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const QString path = around.absoluteFilePath(name);
        QLockFile lock(path + Lock);
        lock.setStaleLockTime(0);
        if (lock.tryLock(0)) {
            lock.unlock();
            QDir(path).removeRecursively();
        }
    }
}

}  // namespace

NewFolder::NewFolder(const QString& place)
    : m_place(QDir::cleanPath(QFileInfo(place).absoluteFilePath()))
{
}

NewFolder::~NewFolder()
{
    // Deleting the folder also deletes its lock file, so the lock is released first.
    m_lock.reset();
    m_hidden.reset();
}

/// Retries, because another program may remove the folder as abandoned before it is locked.
bool NewFolder::make()
{
    const QString folder = QFileInfo(m_place).absolutePath();
    for (int i = 0; i < Attempts; ++i) {
        m_hidden = std::make_unique<QTemporaryDir>(folder + QLatin1Char('/') + Hidden +
                                                   QStringLiteral("XXXXXX"));
        if (!m_hidden->isValid()) {
            return false;
        }
        m_lock = std::make_unique<QLockFile>(m_hidden->path() + Lock);
        m_lock->setStaleLockTime(0);
        if (m_lock->tryLock(0) && QDir().mkdir(m_hidden->path() + Content)) {
            return true;
        }
    }
    return false;
}

bool NewFolder::begin(QString* error)
{
    const QFileInfo info(m_place);
    const QString folder = info.absolutePath();
    const bool isEmptyFolder =
        info.isDir() && QDir(m_place).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System |
                                              QDir::NoDotAndDotDot);
    if ((info.exists() || info.isSymLink()) && (!isEmptyFolder || info.isSymLink())) {
        *error = Text::tr("%1 is there already. Choose another name.")
                     .arg(QDir::toNativeSeparators(m_place));
        return false;
    }
    if (!QFileInfo(folder).isDir()) {
        *error = Text::tr("There is no folder %1. Choose another one, or make it.")
                     .arg(QDir::toNativeSeparators(folder));
        return false;
    }
    removeAbandoned(folder);
    if (!make()) {
        *error = cannotWrite(folder);
        return false;
    }
    return true;
}

QString NewFolder::path() const
{
    return m_hidden->path() + Content;
}

// rename() replaces an empty folder, but nothing else.
bool NewFolder::finish(QString* error)
{
    const QByteArray from = QFile::encodeName(QDir::cleanPath(path()));
    if (std::rename(from.constData(), QFile::encodeName(m_place).constData()) == 0) {
        return true;
    }
    *error = QFileInfo::exists(m_place) ? Text::tr("%1 is there already. Choose another name.")
                                              .arg(QDir::toNativeSeparators(m_place))
                                        : cannotWrite(QFileInfo(m_place).absolutePath());
    return false;
}

QString NewFolder::cannotWrite(const QString& folder)
{
    return Text::tr("Nothing can be made in %1. Check the permissions of the folder, and that "
                    "there is space on the disk.")
        .arg(QDir::toNativeSeparators(folder));
}

QString NewFolder::told(QString text) const
{
    return text.replace(QDir::cleanPath(path()), m_place);
}

}  // namespace Operations
