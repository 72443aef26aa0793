#include "media/palettefile.h"

#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/safefile.h"
#include "media/paletteobject.h"

#include <QBuffer>
#include <QCoreApplication>

#include <algorithm>

namespace Zorv {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::PaletteFile)
};

}  // namespace

bool loadPaletteFile(const QString& fileName, RGBA (&colors)[256], QString* error)
{
    // Opened through the archive, because reading a pipe or a device could block.
    Archive* disk = FileSystemArchive::instance();
    QIODevice* device = disk->openFile(fileName, QIODevice::ReadOnly, error);
    if (!device) {
        return false;
    }
    const bool isRead = PaletteObject(colors).fromFile(device, fileExtension(fileName).constData());
    disk->closeFile(device);
    if (!isRead) {
        *error = Text::tr("Cannot read a palette from '%1'. Expected .act, .pal, .aco, .ase, .txt, "
                          "or an indexed image.")
                     .arg(fileName);
    }
    return isRead;
}

QByteArray paletteFileContent(const RGBA (&colors)[256], const QByteArray& format,
                              const QString& fileName, QString* error)
{
    RGBA copy[256];
    std::copy(std::begin(colors), std::end(colors), copy);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!PaletteObject(copy).toFile(&buffer, format.constData())) {
        *error = Text::tr("Cannot write '%1': palettes are written as .act.").arg(fileName);
        return {};
    }
    return buffer.data();
}

bool savePaletteFile(const QString& fileName, const RGBA (&colors)[256], QString* error)
{
    const QByteArray content = paletteFileContent(colors, fileExtension(fileName), fileName, error);
    return !content.isEmpty() && SafeFile::save(fileName, content, error);
}

}  // namespace Zorv
