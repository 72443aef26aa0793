#include "operations/media/palettework.h"

#include "operations/media/jobs.h"

#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/media/paletteobject.h>

#include <QBuffer>
#include <QCoreApplication>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::PaletteWork)
};

}  // namespace

bool readPalette(const QString& fileName, Zorv::RGBA (&colors)[256], QString* error)
{
    // A pipe or a device would be waited for.
    Zorv::FileSystemArchive& disk = *Zorv::FileSystemArchive::instance();
    QIODevice* device = disk.openFile(fileName, QIODevice::ReadOnly, error);
    if (!device) {
        return false;
    }
    Zorv::PaletteObject palette(colors);
    const bool isRead = palette.fromFile(device, Zorv::fileExtension(fileName).constData());
    disk.closeFile(device);
    if (!isRead) {
        *error = Text::tr("Cannot read a palette from '%1'. Expected .act, .pal, .aco, .ase, .txt, "
                          "or an indexed image.")
                     .arg(fileName);
    }
    return isRead;
}

MediaResult convertPalettes(const QStringList& files, const OutputRequest& request)
{
    MediaResult result;
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(files, request, QByteArrayLiteral("ACT"), &refusal)) {
        return refusal;
    }
    JobProgress progress(Text::tr("Palettes"), files.size());
    for (int i = 0; i < files.size() && !result.isCanceled; ++i) {
        result.note(outputs.make(i, [&](QString* error) {
            Zorv::RGBA colors[256] = {};
            return readPalette(files[i], colors, error)
                       ? paletteFile(colors, outputs.format(i), outputs.path(i), error)
                       : QByteArray();
        }));
        result.isCanceled = !progress.step();
    }
    return result;
}

QByteArray paletteFile(const Zorv::RGBA (&colors)[256], const QByteArray& format,
                       const QString& name, QString* error)
{
    Zorv::RGBA copy[256];
    std::copy(std::begin(colors), std::end(colors), copy);
    Zorv::PaletteObject palette(copy);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!palette.toFile(&buffer, format.constData())) {
        *error = Text::tr("Cannot write '%1': palettes are written as .act.").arg(name);
    }
    return bytes;
}

}  // namespace Operations
