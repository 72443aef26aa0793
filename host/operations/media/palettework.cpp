#include "operations/media/palettework.h"

#include "core/files.h"
#include "media/paletteobject.h"
#include "operations/media/jobs.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace Family {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::PaletteWork)
};

}  // namespace

bool readPalette(const QString& fileName, Zorv::RGBA (&colors)[256], QString* error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Text::tr("Cannot open '%1': %2. Check that the file is there and may be read.")
                     .arg(fileName, file.errorString());
        return false;
    }
    Zorv::PaletteObject palette(colors);
    if (!palette.fromFile(&file, Zorv::fileExtension(fileName).constData())) {
        *error = Text::tr("Cannot read a palette from '%1'. Expected .act, .pal, .aco, .ase, .txt, "
                          "or an indexed image.")
                     .arg(fileName);
        return false;
    }
    return true;
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
        Zorv::RGBA colors[256] = {};
        QString fault;
        if (readPalette(files[i], colors, &fault)) {
            const QByteArray bytes =
                paletteFile(colors, outputs.format(i), outputs.path(i), &fault);
            fault = fault.isEmpty() ? outputs.write(i, bytes) : fault;
        }
        result.note(fault);
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

}  // namespace Family
