#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/results.h"
#include "cli/spriteopening.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/stage/framecomposer.h"
#include "operations/animationedits.h"
#include "operations/media/animationgif.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/spriteexport.h"

namespace Cli {

namespace {

/// False on failure. The reason is in `error`, or already printed.
bool writeGif(const Family::FamilyDocument* document, const Invocation& invocation, QString* error)
{
    const Family::FamilyAnimations* list = document->animations();
    const int index = Operations::findAnimation(list, invocation.operands.at(1), error);
    const QString spriteFile = index < 0 || !invocation.sprites.isNull()
                                   ? invocation.sprites
                                   : Operations::spritesBeside(invocation.operands.first(), error);
    Operations::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(2);
    Operations::OutputFiles outputs;
    Operations::MediaResult refusal;
    if (!error->isEmpty() ||
        !outputs.plan({invocation.operands.at(1)}, request, QByteArrayLiteral("GIF"), &refusal)) {
        tell(refusal);
        return false;
    }
    const OpenSprites sprites(spriteFile);
    Family::PaletteColors colors;
    const bool isRecolored = !invocation.palette.isNull();
    if (!sprites ||
        (isRecolored && !Operations::findPalette(*sprites, invocation.palette, &colors, error))) {
        return false;
    }
    Family::FrameComposer composer(sprites.get(), {}, isRecolored ? &colors : nullptr);
    const QByteArray bytes = Operations::animationGif(*list->animation(index), &composer, error);
    if (error->isEmpty()) {
        *error = outputs.write(0, bytes);
    }
    return error->isEmpty();
}

}  // namespace

int writeAnimationGif(const Invocation& invocation, Output&)
{
    return readFile(invocation, [&](Family::FamilyDocument* document, QString* error) {
        return writeGif(document, invocation, error);
    });
}

}  // namespace Cli
