#include "cli/cli.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/assets/spritecollection.h"
#include "family/nodes/animationnode.h"
#include "family/stage/framecomposer.h"
#include "operations/media/animationgif.h"
#include "operations/media/animationrender.h"
#include "operations/media/imagefiles.h"
#include "operations/media/mediaresult.h"
#include "operations/media/openanimation.h"
#include "operations/media/outputfiles.h"
#include "operations/media/spriteexport.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Cli {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// What is wrong with the options; empty if they are valid.
QString optionFault(const Invocation& invocation)
{
    const QByteArray suffix = QFileInfo(invocation.output.place).suffix().toLower().toLatin1();
    if (invocation.output.place.isEmpty()) {
        return Text::tr("Expected where the picture goes, as in '-o picture.png'.");
    }
    if (int(invocation.asGif) + int(invocation.asSheet) + int(invocation.frame >= 0) > 1) {
        return Text::tr("'--frame', '--gif' and '--sheet' exclude each other.");
    }
    if (invocation.asGif && !suffix.isEmpty() && suffix != "gif") {
        return Text::tr("Expected a file that ends in '.gif'; found '%1'.")
            .arg(invocation.output.place);
    }
    return invocation.columns > 0 && !invocation.asSheet ? Text::tr("'--columns' is for '--sheet'.")
                                                         : QString();
}

using Operations::Outcome;

/// The output files: the picture and, for a sheet, its description.
struct Outputs
{
    Operations::OutputFiles image;
    Operations::OutputFiles text;
};

bool plan(const Invocation& invocation, Outputs* outputs, Operations::MediaResult* refusal)
{
    const QByteArray format(invocation.asGif ? "GIF" : "PNG");
    if (!outputs->image.plan({invocation.operands.at(1)}, invocation.output, format, refusal)) {
        return false;
    }
    if (!invocation.asSheet) {
        return true;
    }
    const QFileInfo image(outputs->image.path(0));
    Operations::OutputRequest request = invocation.output;
    request.place =
        image.path() + QLatin1Char('/') + image.completeBaseName() + QLatin1String(".json");
    return outputs->text.plan({request.place}, request, {}, refusal);
}

Family::FrameStyle styleOf(const Invocation& invocation)
{
    Family::FrameStyle style = Operations::stageStyle();
    style.zoom = float(invocation.zoom);
    style.parts.setFlag(Family::FrameStyle::Boxes, invocation.showsBoxes);
    style.parts.setFlag(Family::FrameStyle::Axis, invocation.showsAxis);
    return style;
}

/// Draws and writes the requested picture.
Outcome render(const Invocation& invocation, const Family::AnimationNode& animation,
               Family::FrameComposer* composer, const Outputs& outputs)
{
    QString error;
    if (invocation.asGif) {
        const QByteArray bytes = Operations::animationGif(animation, composer, &error);
        return error.isEmpty() ? outputs.image.write(0, bytes) : error;
    }
    if (!invocation.asSheet) {
        const QImage image =
            Operations::renderFrame(animation, qMax(invocation.frame, 0), composer, &error);
        return error.isEmpty() ? Operations::writeImage(image, outputs.image, 0) : Outcome(error);
    }
    const QString name = QFileInfo(outputs.image.path(0)).fileName();
    const Operations::AnimationSheet sheet =
        Operations::renderSheet(animation, invocation.columns, name, composer, &error);
    Outcome outcome =
        error.isEmpty() ? Operations::writeImage(sheet.image, outputs.image, 0) : Outcome(error);
    if (outcome.error.isEmpty()) {
        outcome.error = outputs.text.write(0, sheet.json);
    }
    return outcome;
}

}  // namespace

int renderAnimation(const Invocation& invocation, Output&)
{
    const QString fault = optionFault(invocation);
    if (!fault.isEmpty()) {
        return wrongUsage(fault);
    }
    Outputs outputs;
    Operations::MediaResult refusal;
    if (!plan(invocation, &outputs, &refusal)) {
        return tell(refusal);
    }
    const Operations::OpenAnimation opened(invocation.operands.at(0), invocation.operands.at(1),
                                           invocation.sprites);
    if (!opened) {
        return notDone(opened.errorString());
    }
    const QStringList notes = opened.notes();
    for (const QString& note : notes) {
        complain(note);
    }
    if (!opened.sprites()) {
        return notDone(
            Text::tr("There are no sprites to draw '%1' with.").arg(invocation.operands.at(1)));
    }
    Family::PaletteColors colors;
    const bool isRecolored = !invocation.palette.isNull();
    QString error;
    if (isRecolored &&
        !Operations::findPalette(*opened.sprites(), invocation.palette, &colors, &error)) {
        return notDone(error);
    }
    Family::FrameComposer composer(opened.sprites(), styleOf(invocation),
                                   isRecolored ? &colors : nullptr);
    Operations::MediaResult result;
    result.note(render(invocation, opened.animation(), &composer, outputs));
    return tell(result);
}

}  // namespace Cli
