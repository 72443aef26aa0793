#include "cli/cli.h"
#include "cli/command.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "operations/media/filepatterns.h"
#include "operations/media/imageedits.h"

#include <zorv/media/palettefile.h>

#include <QCoreApplication>

#include <algorithm>

namespace Cli {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

int editImages(const Invocation& invocation, const Operations::ImageEdit& edit)
{
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    return tell(Operations::editImages(files, invocation.output, edit));
}

/// Quantizes all images to one common palette.
int quantizeTogether(const Invocation& invocation)
{
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    Operations::MediaResult result;
    const auto colors = Operations::commonPalette(files, invocation.colors, &result);
    if (colors.isEmpty()) {
        return tell(result);
    }
    return tell(
        Operations::editImages(files, invocation.output, Operations::adaptingImage(colors)));
}

}  // namespace

int convertImages(const Invocation& invocation, Output&)
{
    return editImages(invocation, Operations::keepingImage());
}

int cropImages(const Invocation& invocation, Output&)
{
    return editImages(invocation, Operations::croppingImage(invocation.background));
}

int resizeImages(const Invocation& invocation, Output&)
{
    if (invocation.size.isEmpty() == (invocation.factor <= 0)) {
        return wrongUsage(tr("Expected the new size: either '--size' or '--factor'."));
    }
    return editImages(invocation, Operations::resizingImage(invocation.size, invocation.factor,
                                                            invocation.filter));
}

int rotateImages(const Invocation& invocation, Output&)
{
    if (invocation.angle == 0) {
        return wrongUsage(tr("Expected how far to turn, as in '--angle 90'."));
    }
    return editImages(invocation,
                      Operations::rotatingImage(invocation.angle, qMax(invocation.background, 0),
                                                invocation.filter));
}

int quantizeImages(const Invocation& invocation, Output&)
{
    if ((invocation.colors > 0) == !invocation.palette.isNull()) {
        return wrongUsage(tr("Expected the colours: either '--colours' or '--palette'."));
    }
    if (!invocation.palette.isNull()) {
        Zorv::RGBA colors[256];
        QString error;
        if (!Zorv::loadPaletteFile(invocation.palette, colors, &error)) {
            return notDone(error);
        }
        return editImages(invocation, Operations::adaptingImage(QVector<Zorv::RGBA>(
                                          std::begin(colors), std::end(colors))));
    }
    return invocation.isCommon
               ? quantizeTogether(invocation)
               : editImages(invocation, Operations::quantizingImage(invocation.colors));
}

}  // namespace Cli
