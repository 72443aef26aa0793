#pragma once

#include "family/assets/recordbytes.h"
#include "support/memoryarchive.h"

#include <QStringList>

/// What the harnesses of sprite and sound files share.
namespace AssetFuzz {

/// Gives the record of `size` bytes at a place its right checksum.
inline void seal(QByteArray* bytes, int at, int size)
{
    bytes->replace(at, size, Family::sealed(bytes->mid(at, size)));
}

/// Reads bytes as a file, unpacks what is in it by `unpack(file)`, and saves it again, with its
/// broken records and without.
template <class File, class Unpack>
void readAndSave(const QByteArray& bytes, Unpack unpack)
{
    const QString name = QStringLiteral("a");
    MemoryArchive archive(bytes);
    File file;
    if (!file.fromFile(archive, name, false)) {
        return;
    }
    const int broken = file.loadErrors().size();
    unpack(file);
    const auto saveAndRead = [&] {
        return file.toFile(archive, name, false) && file.fromFile(archive, name, false);
    };
    if (!saveAndRead()) {
        qFatal("cannot save what was read");
    }
    // A second saving finds nothing new to mend.
    if (file.loadErrors().size() > broken) {
        qFatal("saving breaks records");
    }
    file.removeBroken();
    if (!saveAndRead() || !file.loadErrors().isEmpty()) {
        qFatal("broken records are left");
    }
}

}  // namespace AssetFuzz
