#include "operations/media/palettework.h"

#include <zorv/core/progress.h>
#include <zorv/media/palettefile.h>

#include <QCoreApplication>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::PaletteWork)
};

}  // namespace

MediaResult convertPalettes(const QStringList& files, const OutputRequest& request)
{
    MediaResult result;
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(files, request, QByteArrayLiteral("ACT"), &refusal)) {
        return refusal;
    }
    Zorv::Progress progress(Text::tr("Palettes"), files.size());
    for (int i = 0; i < files.size() && !result.isCanceled; ++i) {
        result.note(outputs.make(i, [&](QString* error) {
            Zorv::RGBA colors[256] = {};
            return Zorv::loadPaletteFile(files[i], colors, error)
                       ? Zorv::paletteFileContent(colors, outputs.format(i), outputs.path(i), error)
                       : QByteArray();
        }));
        result.isCanceled = !progress.step();
    }
    return result;
}

}  // namespace Operations
