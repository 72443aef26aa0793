#include "cli.h"
#include "command.h"
#include "operations/media/filepatterns.h"
#include "operations/media/imageedits.h"
#include "operations/media/palettework.h"
#include "progresshost.h"
#include "results.h"

#include <QCoreApplication>

#include <algorithm>

namespace Cli {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

int editImages(const Invocation& invocation, const Family::ImageEdit& edit)
{
    QString error;
    const QStringList files = Family::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    return tell(Family::editImages(files, invocation.output, edit));
}

/// One palette for all images.
int quantizeTogether(const Invocation& invocation)
{
    QString error;
    const QStringList files = Family::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    Family::MediaResult result;
    const auto colors = Family::commonPalette(files, invocation.colors, &result);
    if (colors.isEmpty()) {
        return tell(result);
    }
    return tell(Family::editImages(files, invocation.output, Family::adaptingImage(colors)));
}

}  // namespace

int convertImages(const Invocation& invocation, Output&)
{
    return editImages(invocation, Family::keepingImage());
}

int cropImages(const Invocation& invocation, Output&)
{
    return editImages(invocation, Family::croppingImage(invocation.background));
}

int resizeImages(const Invocation& invocation, Output&)
{
    if (invocation.size.isEmpty() == (invocation.factor <= 0)) {
        return wrongUsage(tr("Expected the new size: either '--size' or '--factor'."));
    }
    return editImages(invocation,
                      Family::resizingImage(invocation.size, invocation.factor, invocation.filter));
}

int rotateImages(const Invocation& invocation, Output&)
{
    if (invocation.angle == 0) {
        return wrongUsage(tr("Expected how far to turn, as in '--angle 90'."));
    }
    return editImages(
        invocation,
        Family::rotatingImage(invocation.angle, qMax(invocation.background, 0), invocation.filter));
}

int quantizeImages(const Invocation& invocation, Output&)
{
    if ((invocation.colors > 0) == !invocation.palette.isNull()) {
        return wrongUsage(tr("Expected the colours: either '--colours' or '--palette'."));
    }
    if (!invocation.palette.isNull()) {
        Zorv::RGBA colors[256];
        QString error;
        if (!Family::readPalette(invocation.palette, colors, &error)) {
            return notDone(error);
        }
        return editImages(invocation, Family::adaptingImage(QVector<Zorv::RGBA>(std::begin(colors),
                                                                                std::end(colors))));
    }
    return invocation.isCommon ? quantizeTogether(invocation)
                               : editImages(invocation, Family::quantizingImage(invocation.colors));
}

}  // namespace Cli
