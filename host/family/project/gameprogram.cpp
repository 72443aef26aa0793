#include "family/project/gameprogram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Family {

namespace {

// A sparse file can claim any size, and hashing it would take forever.
constexpr qint64 MaxSize = qint64(2) * 1024 * 1024 * 1024;

QByteArray checksumOf(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.size() <= MaxSize && file.open(QIODevice::ReadOnly) && hash.addData(&file)
               ? hash.result().toHex()
               : QByteArray();
}

}  // namespace

GameProgram::GameProgram(const QString& gameFolder)
{
    if (isIn(gameFolder)) {
        m_path = QDir(QDir(gameFolder).canonicalPath()).absoluteFilePath(name());
        m_checksum = checksumOf(m_path);
    }
}

QString GameProgram::name()
{
    return QStringLiteral("zorv-player");
}

bool GameProgram::isIn(const QString& gameFolder)
{
    return QFileInfo(QDir(gameFolder).absoluteFilePath(name())).isFile();
}

}  // namespace Family
