#include "core/files.h"

#include "core/archive.h"
#include "core/safefile.h"
#include "core/unfinished_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Zorv {

namespace {

const int SkipBlock = 256;
const int CopyBlock = 131072;

QString readFailure(const QString& name, const QString& reason)
{
    return QCoreApplication::translate("Zorv::Files", "Cannot read %1: %2. Check that the file is "
                                                      "there and may be read.")
        .arg(QDir::toNativeSeparators(name), reason);
}

// Copies until the source ends or either side fails. Returns false if the source failed.
bool copyBlocks(QIODevice& source, QIODevice& target, QString& writeError)
{
    QByteArray block(CopyBlock, Qt::Uninitialized);
    while (!source.atEnd()) {
        const qint64 count = source.read(block.data(), block.size());
        if (count <= 0) {
            return false;
        }
        if (target.write(block.constData(), count) != count) {
            writeError = target.errorString();
            break;
        }
    }
    return true;
}

}  // namespace

QString fixFileCase(const QString& path, Archive&, const QString& name)
{
    return path + name;
}

QByteArray fileExtension(const QString& fileName)
{
    return QFileInfo(fileName).suffix().toUpper().toLatin1();
}

void skipRead(QIODevice* device, unsigned count)
{
    char buffer[SkipBlock];
    while (count > 0) {
        const unsigned size = qMin<unsigned>(count, sizeof buffer);
        // At the end of a file there is nothing more to read.
        if (device->read(buffer, size) <= 0 && !device->isSequential()) {
            return;
        }
        count -= size;
    }
}

bool forcePath(const QString& fileName)
{
    return !fileName.isEmpty() && QDir().mkpath(QFileInfo(fileName).absolutePath());
}

bool copyFile(Archive& source, const QString& sourceName, Archive& target,
              const QString& targetName, QString* error)
{
    QString readError, writeError;
    QIODevice* from = source.openFile(sourceName, QIODevice::ReadOnly, &readError);
    QIODevice* to = target.openFile(targetName, QIODevice::WriteOnly, &writeError);
    const bool opened = from && to;
    if (!from && readError.isEmpty()) {
        readError =
            readFailure(sourceName, QCoreApplication::translate("Zorv::Files", "It does not open"));
    } else if (opened && !copyBlocks(*from, *to, writeError)) {
        readError = readFailure(sourceName, from->errorString());
    }

    // An incomplete copy must not replace the existing target.
    auto* safeTarget = qobject_cast<SafeFile*>(to);
    if (safeTarget && !readError.isEmpty()) {
        safeTarget->fail(readError);
    }
    QString closeError;
    source.closeFile(from);
    if (!target.closeFile(to, &closeError)) {
        writeError = closeError;
    }
    if (error) {
        *error = readError.isEmpty() ? writeError : readError;
    }
    return opened;
}

void removeUnfinished()
{
    Unfinished::removeAll();
}

}  // namespace Zorv
